/* Blocks for objects: thread-local free lists by size class over malloc. */
#include <runtime/ko_memory.hpp>

#include <runtime/ko_base.h>

#include <bit>
#include <cstdlib>
#include <new>
#include <pthread.h>

namespace ko {
namespace {

// Size classes: every 16 bytes up to 1024, then four for each doubling up to 64 KiB. Larger blocks go to malloc.
constexpr size_t step = 16;
constexpr size_t smallLimit = 1024;
constexpr size_t largeLimit = 65536;
constexpr int32_t smallClasses = smallLimit / step;
constexpr int32_t classes = smallClasses + 6 * 4;
constexpr int32_t noClass = -1;

// What a thread keeps of one class: as many blocks as fit in this many bytes, and at least four.
constexpr size_t keptBytes = 32768;
constexpr uint32_t keptBlocks = 4;

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

/** The class of a size that is not 0. */
constexpr int32_t ClassOf( size_t size )
{
    if ( __builtin_expect( size <= smallLimit, 1 ) ) {
        return static_cast<int32_t>( ( size - 1 ) / step );
    }
    const unsigned top = static_cast<unsigned>( std::bit_width( size - 1 ) ) - 1; // 2^top < size <= 2^(top+1)
    const size_t quarter = ( size - 1 ) >> ( top - 2 ) & 3;
    return smallClasses + static_cast<int32_t>( ( top - 10 ) * 4 + quarter );
}

constexpr size_t SizeOf( int32_t blockClass )
{
    if ( blockClass < smallClasses ) {
        return static_cast<size_t>( blockClass + 1 ) * step;
    }
    const auto large = static_cast<unsigned>( blockClass - smallClasses );
    const unsigned top = 10 + large / 4;
    return ( size_t{ 1 } << top ) + ( static_cast<size_t>( large % 4 ) + 1 ) * ( size_t{ 1 } << ( top - 2 ) );
}

static_assert( ClassOf( smallLimit ) == smallClasses - 1 && ClassOf( smallLimit + 1 ) == smallClasses );
static_assert( ClassOf( largeLimit ) == classes - 1 && SizeOf( classes - 1 ) == largeLimit );
static_assert( SizeOf( ClassOf( 1281 ) ) == 1536 && SizeOf( ClassOf( 1280 ) ) == 1280 );

struct FreeBlock {
    FreeBlock *next;
};

struct FreeList {
    FreeBlock *first;
    uint32_t length;
    uint32_t limit;
    uint32_t size; // of its blocks
};

/** What a thread has of its own. Threads are linked, so that the counts can be added up. */
struct Thread {
    FreeList lists[classes];
    int64_t objects;
    Thread *next;
    Thread *previous;
};

pthread_mutex_t threadsLock = PTHREAD_MUTEX_INITIALIZER;
Thread *threads = nullptr;
int64_t objectsOfEndedThreads = 0;
pthread_key_t threadKey;
pthread_once_t threadKeyOnce = PTHREAD_ONCE_INIT;

// One word of static thread storage, so that the library can also be loaded at run time.
thread_local Thread *here __attribute__( ( tls_model( "initial-exec" ) ) ) = nullptr;

/** malloc, which does not fail. */
[[gnu::noinline]] void *AllocateMemory( size_t size )
{
    void *const block = malloc( size );
    KO_REQUIRE_MESSAGE( block, "out of memory", "block" );
    return block;
}

void EndThread( void *ended )
{
    auto *const thread = static_cast<Thread *>( ended );
    pthread_mutex_lock( &threadsLock );
    objectsOfEndedThreads += thread->objects;
    ( thread->previous ? thread->previous->next : threads ) = thread->next;
    if ( thread->next ) {
        thread->next->previous = thread->previous;
    }
    pthread_mutex_unlock( &threadsLock );
    here = nullptr;
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

[[gnu::noinline]] Thread *BeginThread()
{
    auto *const thread = new ( AllocateMemory( sizeof( Thread ) ) ) Thread{};
    for ( int32_t i = 0; i < classes; ++i ) {
        const size_t fitting = keptBytes / SizeOf( i );
        thread->lists[i].limit = fitting > keptBlocks ? static_cast<uint32_t>( fitting ) : keptBlocks;
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
    return __builtin_expect( here != nullptr, 1 ) ? here : BeginThread();
}

} // namespace

Block Allocate( size_t size )
{
    Thread *const thread = Here();
    ++thread->objects;
    if ( size > largeLimit || !keepsBlocks ) {
        return { AllocateMemory( size ), noClass, 0 };
    }
    const int32_t blockClass = ClassOf( size );
    FreeList &list = thread->lists[blockClass];
    FreeBlock *const block = list.first;
    if ( __builtin_expect( !block, 0 ) ) {
        return { AllocateMemory( list.size ), blockClass, list.size };
    }
    list.first = block->next;
    --list.length;
    return { block, blockClass, list.size };
}

void Free( void *memory, int32_t blockClass )
{
    Thread *const thread = Here();
    --thread->objects;
    if ( blockClass == noClass || thread->lists[blockClass].length == thread->lists[blockClass].limit ) {
        free( memory );
        return;
    }
    FreeList &list = thread->lists[blockClass];
    auto *const block = static_cast<FreeBlock *>( memory );
    block->next = list.first;
    list.first = block;
    ++list.length;
}

void UncountObject()
{
    --Here()->objects;
}

int64_t ObjectCount()
{
    pthread_mutex_lock( &threadsLock );
    int64_t count = objectsOfEndedThreads;
    for ( const Thread *thread = threads; thread; thread = thread->next ) {
        count += thread->objects;
    }
    pthread_mutex_unlock( &threadsLock );
    return count;
}

} // namespace ko
