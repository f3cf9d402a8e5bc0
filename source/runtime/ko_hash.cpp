/* The hash of dictionary keys: SipHash-1-3 with a secret of the process. */
#include <runtime/ko_dict.h>
#include <runtime/ko_hash.hpp>

#include <cstring>
#include <pthread.h>
#include <sys/auxv.h>
#include <sys/random.h>

namespace {

ko::HashKey processKey;
pthread_once_t processKeyOnce = PTHREAD_ONCE_INIT;

void MakeProcessKey()
{
    if ( getrandom( &processKey, sizeof processKey, GRND_NONBLOCK ) != static_cast<ssize_t>( sizeof processKey ) ) {
        // Early at boot, or without the system call: the kernel has given every process these 16 random bytes.
        memcpy( &processKey, reinterpret_cast<const void *>( getauxval( AT_RANDOM ) ), sizeof processKey );
    }
}

} // namespace

KoInt ko___CharsHash( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= 0 );
    pthread_once( &processKeyOnce, MakeProcessKey );
    return static_cast<KoInt>( ko::SipHash<1, 3>( processKey, chs, length ) );
}
