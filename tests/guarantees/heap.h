/* The heap of one thread, watched and made to fail: include in one file of a program, whose malloc this becomes. */
#ifndef HEAP_H
#define HEAP_H

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <malloc.h>
#include <thread>

namespace heap {

/** What a thread has allocated since it began to watch. */
struct Watch {
    bool on = false;
    int64_t bytes = 0; // what is allocated now
    int64_t peak = 0;
    int64_t blocks = 0;  // how often something was allocated
    int64_t failing = 0; // the how-manieth allocation fails; 0: none
};

inline thread_local Watch watch;

/** Begins to watch, with nothing allocated; the allocation with the number `failing` will fail. */
inline void Begin( int64_t failing = 0 )
{
    watch = { .on = true, .failing = failing };
}

/** Stops watching, and tells what there was. */
inline Watch End()
{
    watch.on = false;
    return watch;
}

inline bool Fails()
{
    return watch.on && ++watch.blocks == watch.failing;
}

inline void *Count( void *block )
{
    if ( watch.on && block ) {
        watch.bytes += static_cast<int64_t>( malloc_usable_size( block ) );
        watch.peak = watch.bytes > watch.peak ? watch.bytes : watch.peak;
    }
    return block;
}

inline void Uncount( void *block )
{
    if ( watch.on && block ) {
        watch.bytes -= static_cast<int64_t>( malloc_usable_size( block ) );
    }
}

/** Runs work in a thread of its own, which has kept no blocks of earlier work, and tells what it took. */
inline Watch Watched( const std::function<void()> &work, int64_t failing = 0 )
{
    Watch watched;
    std::thread( [&] {
        Begin( failing );
        work();
        watched = End();
    } ).join();
    return watched;
}

} // namespace heap

extern "C" {

void *__libc_malloc( size_t size );
void *__libc_calloc( size_t count, size_t size );
void *__libc_realloc( void *block, size_t size );
void __libc_free( void *block );

__attribute__( ( visibility( "default" ) ) ) void *malloc( size_t size )
{
    if ( heap::Fails() ) {
        errno = ENOMEM;
        return nullptr;
    }
    return heap::Count( __libc_malloc( size ) );
}

__attribute__( ( visibility( "default" ) ) ) void *calloc( size_t count, size_t size )
{
    if ( heap::Fails() ) {
        errno = ENOMEM;
        return nullptr;
    }
    return heap::Count( __libc_calloc( count, size ) );
}

__attribute__( ( visibility( "default" ) ) ) void *realloc( void *block, size_t size )
{
    if ( heap::Fails() ) {
        errno = ENOMEM;
        return nullptr;
    }
    heap::Uncount( block );
    return heap::Count( __libc_realloc( block, size ) );
}

__attribute__( ( visibility( "default" ) ) ) void free( void *block )
{
    heap::Uncount( block );
    __libc_free( block );
}

} // extern "C"

// What the tests allocate for themselves is not watched; the libraries have no `new`.
void *operator new( size_t size )
{
    return __libc_malloc( size );
}
void operator delete( void *block ) noexcept
{
    __libc_free( block );
}
void operator delete( void *block, size_t ) noexcept
{
    __libc_free( block );
}

#endif
