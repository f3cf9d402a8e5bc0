/* Blocks for objects: thread-local free lists by size class over malloc. */
#ifndef KO_MEMORY_HPP
#define KO_MEMORY_HPP

#include <cstddef>
#include <cstdint>

namespace ko {

/** A block and the size class that it has to be given back with. Comes in two registers. */
struct Block {
    void *memory;
    int32_t blockClass;
    uint32_t classSize; // what may be used of a block of a class; 0 where there is no class

    /** What may be used: at least what was asked for. */
    [[nodiscard]] size_t Usable( size_t asked ) const { return classSize ? classSize : asked; }
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
