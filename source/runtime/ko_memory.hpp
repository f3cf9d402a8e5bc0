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

/** A block for an object of at least `size` bytes, not cleared. Never null: the process ends when memory is exhausted. */
Block Allocate( size_t size );

/** Gives the block of an object back. */
void Free( void *memory, int32_t blockClass );

/** Leaves an object that becomes a constant out of the count. */
void UncountObject();

/** How many objects have been made and not been given back, in all threads. Takes a lock. */
int64_t ObjectCount();

} // namespace ko

#endif
