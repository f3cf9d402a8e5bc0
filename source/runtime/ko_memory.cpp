/* Blocks for objects: thread-local free lists by size class over malloc. */
#include <runtime/ko_memory.hpp>

#include <runtime/ko_base.h>

#include <bit>
#include <cstdlib>
#include <new>
#include <pthread.h>

namespace ko {
namespace {

constexpr size_t largeLimit = 65536;

// What a thread keeps of one class: as many blocks as fit in this many bytes, and at least four.
constexpr size_t keptBytes = 32768;
constexpr int32_t keptBlocks = 4;

#if defined( __SANITIZE_ADDRESS__ ) || defined( __SANITIZE_THREAD__ ) || defined( KO_KEEP_NO_BLOCKS )
constexpr bool keepsBlocks = false;
#elif defined( __has_feature )
#if __has_feature( address_sanitizer ) || __has_feature( thread_sanitizer ) || __has_feature( memory_sanitizer )
constexpr bool keepsBlocks = false;
#else
constexpr bool keepsBlocks = true;
#endif
#else
constexpr bool keepsBlocks = true;
#endif

/** The class of a size up to the large limit that is not 0. */
constexpr int32_t ClassOf( size_t size )
{
    if ( __builtin_expect( size <= smallLimit, 1 ) ) {
        return static_cast<int32_t>( ( size + blockStep - 1 ) / blockStep );
    }
    const unsigned top = static_cast<unsigned>( std::bit_width( size - 1 ) ) - 1; // 2^top < size <= 2^(top+1)
    const size_t quarter = ( size - 1 ) >> ( top - 2 ) & 3;
    return 1 + smallClasses + static_cast<int32_t>( ( top - 10 ) * 4 + quarter );
}

constexpr size_t SizeOf( int32_t blockClass )
{
    if ( blockClass <= smallClasses ) {
        return static_cast<size_t>( blockClass ) * blockStep;
    }
    const auto large = static_cast<unsigned>( blockClass - smallClasses - 1 );
    const unsigned top = 10 + large / 4;
    return ( size_t{ 1 } << top ) + ( static_cast<size_t>( large % 4 ) + 1 ) * ( size_t{ 1 } << ( top - 2 ) );
}

/** How many blocks of a class a thread keeps. */
constexpr int32_t RoomOf( int32_t blockClass )
{
    const auto fitting = static_cast<int32_t>( keptBytes / SizeOf( blockClass ) );
    return fitting > keptBlocks ? fitting : keptBlocks;
}

static_assert( ClassOf( smallLimit ) == smallClasses && ClassOf( smallLimit + 1 ) == smallClasses + 1 );
static_assert( ClassOf( largeLimit ) == classes - 1 && SizeOf( classes - 1 ) == largeLimit );
static_assert( SizeOf( ClassOf( 1281 ) ) == 1536 && SizeOf( ClassOf( 1280 ) ) == 1280 );

pthread_mutex_t threadsLock = PTHREAD_MUTEX_INITIALIZER;
Thread *threads = nullptr;
int64_t objectsOfEndedThreads = 0;
pthread_key_t threadKey;
pthread_once_t threadKeyOnce = PTHREAD_ONCE_INIT;

const Thread noThread{};

/** malloc, which does not fail. */
void *AllocateMemory( size_t size )
{
    void *const block = malloc( size );
    KO_REQUIRE_MESSAGE( block, "out of memory", "block" );
    return block;
}

/** The blocks that the thread has handed out, less those that have come back to it. */
int64_t Objects( const Thread *thread )
{
    int64_t count = thread->blocks;
    for ( int32_t i = noClass + 1; i < classes; ++i ) {
        count -= RoomOf( i ) - thread->lists[i].room;
    }
    return count;
}

void EndThread( void *ended )
{
    auto *const thread = static_cast<Thread *>( ended );
    pthread_mutex_lock( &threadsLock );
    objectsOfEndedThreads += Objects( thread );
    ( thread->previous ? thread->previous->next : threads ) = thread->next;
    if ( thread->next ) {
        thread->next->previous = thread->previous;
    }
    pthread_mutex_unlock( &threadsLock );
    here = const_cast<Thread *>( &noThread );
    for ( FreeList &list : thread->lists ) {
        while ( list.first ) {
            FreeBlock *const block = list.first;
            list.first = block->next;
            free( block );
        }
    }
    free( thread );
}

void MakeThreadKey()
{
    pthread_key_create( &threadKey, EndThread );
}

Thread *BeginThread()
{
    auto *const thread = new ( AllocateMemory( sizeof( Thread ) ) ) Thread{};
    for ( int32_t i = noClass + 1; i < classes; ++i ) {
        thread->lists[i].room = RoomOf( i );
        thread->lists[i].size = static_cast<uint32_t>( SizeOf( i ) );
    }
    pthread_once( &threadKeyOnce, MakeThreadKey );
    pthread_setspecific( threadKey, thread );
    pthread_mutex_lock( &threadsLock );
    thread->next = threads;
    if ( threads ) {
        threads->previous = thread;
    }
    threads = thread;
    pthread_mutex_unlock( &threadsLock );
    here = thread;
    return thread;
}

Thread *Here()
{
    return here == &noThread ? BeginThread() : here;
}

} // namespace

constinit thread_local Thread *here = const_cast<Thread *>( &noThread );

Block Allocate( size_t size )
{
    Thread *const thread = Here();
    if ( size > largeLimit || !keepsBlocks ) {
        ++thread->blocks;
        return { AllocateMemory( size ), size, noClass };
    }
    const int32_t blockClass = ClassOf( size );
    FreeList &list = thread->lists[blockClass];
    if ( void *const kept = list.Take() ) {
        return { kept, list.size, blockClass };
    }
    ++thread->blocks;
    return { AllocateMemory( list.size ), list.size, blockClass };
}

void FreeUnkept( void *memory )
{
    --Here()->blocks;
    free( memory );
}

void UncountObject()
{
    --Here()->blocks;
}

int64_t ObjectCount()
{
    pthread_mutex_lock( &threadsLock );
    int64_t count = objectsOfEndedThreads;
    for ( const Thread *thread = threads; thread; thread = thread->next ) {
        count += Objects( thread );
    }
    pthread_mutex_unlock( &threadsLock );
    return count;
}

} // namespace ko
