/* Blocks for objects: thread-local free lists by size class over malloc. */
#ifndef KO_MEMORY_HPP
#define KO_MEMORY_HPP

#include <cstddef>
#include <cstdint>

namespace ko {

/** A block and the size class that it has to be given back with. */
struct Block {
    void *memory;
    size_t usable; // at least what was asked for
    int32_t blockClass;
};

// Size classes: 0 for blocks that go straight back to malloc, then one for every 16 bytes up to 1024, then four for each
// doubling up to 64 KiB. Larger blocks have the class 0.
constexpr size_t blockStep = 16;
constexpr size_t smallLimit = 1024;
constexpr int32_t noClass = 0;
constexpr int32_t smallClasses = smallLimit / blockStep;
constexpr int32_t classes = 1 + smallClasses + 6 * 4;

struct FreeBlock {
    FreeBlock *next;
};

/** The blocks of one class that a thread keeps. */
struct FreeList {
    FreeBlock *first;
    int32_t room;  // how many more may be kept
    uint32_t size; // of its blocks

    /** One of the blocks, or null. */
    void *Take()
    {
        FreeBlock *const block = first;
        if ( block ) {
            first = block->next;
            ++room;
        }
        return block;
    }
};

/** What a thread has of its own. Threads are linked, so that the counts can be added up. */
struct Thread {
    FreeList lists[classes];
    int64_t blocks; // that it has taken from malloc, less those that it has given back
    Thread *next;
    Thread *previous;
};

/** The thread's own, or the one of all threads that have none yet: its lists are empty and have no room, so that nobody
 * changes it. One word of static thread storage, so that the library can also be loaded at run time. */
extern constinit thread_local Thread *here __attribute__( ( tls_model( "initial-exec" ) ) );

/** A block of at least `size` bytes that the thread has kept, without memory when there is none or the size is large. */
inline Block TakeKept( size_t size )
{
    if ( size > smallLimit ) {
        return {};
    }
    const size_t blockClass = ( size + blockStep - 1 ) / blockStep;
    return { here->lists[blockClass].Take(), blockClass * blockStep, static_cast<int32_t>( blockClass ) };
}

/** A block for an object of at least `size` bytes, not cleared. Never null: the process ends when memory is exhausted. */
Block Allocate( size_t size );

/** Free where the list has no room. */
void FreeUnkept( void *memory );

/** Gives the block of an object back. */
inline void Free( void *memory, int32_t blockClass )
{
    FreeList &list = here->lists[blockClass];
    const int32_t room = list.room - 1;
    if ( __builtin_expect( room < 0, 0 ) ) {
        FreeUnkept( memory );
        return;
    }
    list.room = room;
    auto *const block = static_cast<FreeBlock *>( memory );
    block->next = list.first;
    list.first = block;
}

/** Leaves an object that becomes a constant out of the count. */
void UncountObject();

/** How many objects have been made and not been given back, in all threads. Takes a lock. */
int64_t ObjectCount();

} // namespace ko

#endif
