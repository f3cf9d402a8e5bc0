/* The abort of the system, and the smallest operations. */
#include <runtime/ko_base.h>

#include <cstdlib>
#include <cstring>
#include <sys/uio.h>
#include <unistd.h>

void ko___Abort( const char *message, const char *path, KoInt line, const char *expression )
{
    // Written by hand: memory may be exhausted, and the line has to go out in one piece.
    char digits[20];
    size_t first = sizeof digits;
    auto rest = static_cast<uint64_t>( line );
    do {
        digits[--first] = static_cast<char>( '0' + rest % 10 );
        rest /= 10;
    } while ( rest );
    const auto part = []( const char *text ) { return iovec{ const_cast<char *>( text ), strlen( text ) }; };
    const iovec parts[] = { part( message ? message : "" ),
                            part( message ? ": " : "" ),
                            part( path ),
                            part( ":" ),
                            iovec{ digits + first, sizeof digits - first },
                            part( ": " ),
                            part( expression ),
                            part( "\n" ) };
    [[maybe_unused]] const ssize_t written = writev( STDERR_FILENO, parts, sizeof parts / sizeof *parts );
    abort();
}

KoInt koIntMin( KoInt a, KoInt b )
{
    return a < b ? a : b;
}

KoInt koIntMax( KoInt a, KoInt b )
{
    return a > b ? a : b;
}

void *koMemAllocN( KoInt count, KoInt size )
{
    KO_REQUIRE( count >= 0 );
    KO_REQUIRE( size >= 0 );
    size_t bytes = 0;
    const bool fits = !__builtin_mul_overflow( static_cast<size_t>( count ), static_cast<size_t>( size ), &bytes );
    void *const block = fits ? malloc( bytes ? bytes : 1 ) : nullptr;
    KO_REQUIRE_MESSAGE( block, "out of memory", "block" );
    return block;
}

void koMemFree( void *block )
{
    free( block );
}
