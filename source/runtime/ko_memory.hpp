/* Blocks for objects: thread-local free lists by size class over malloc. */
#ifndef KO_MEMORY_HPP
#define KO_MEMORY_HPP

#include <cstddef>
#include <cstdint>

namespace ko {

/** A block and the size class that it has to be given back with. */
struct Block {
    void *memory;
    int32_t blockClass;
    size_t size; // what may be used; at least what was asked for
};

/** A block of at least `size` bytes, not cleared. Never null: the process ends when memory is exhausted. */
Block Allocate( size_t size );

/** Gives a block back. */
void Free( void *memory, int32_t blockClass );

/** Counts an object that was made (+1) or has ended (-1). */
void CountObject( int32_t change );

/** The sum of all counts of all threads. Takes a lock. */
int64_t ObjectCount();

} // namespace ko

#endif
