/* SipHash (Aumasson and Bernstein 2012) over characters. Not installed. */
#ifndef KO_HASH_HPP
#define KO_HASH_HPP

#include <runtime/ko_base.h>

#include <bit>
#include <cstring>

namespace ko {

/** A secret, so that nobody can choose keys that collide. */
struct HashKey {
    uint64_t words[2];
};

/** The hash with `inner` rounds for each word of two characters and `outer` rounds at the end. */
template <int inner, int outer>
uint64_t SipHash( HashKey key, const KoChar *chs, KoInt length )
{
    uint64_t a = key.words[0] ^ 0x736f6d6570736575;
    uint64_t b = key.words[1] ^ 0x646f72616e646f6d;
    uint64_t c = key.words[0] ^ 0x6c7967656e657261;
    uint64_t d = key.words[1] ^ 0x7465646279746573;
    const auto rounds = [&]( int count ) {
        for ( int i = 0; i < count; ++i ) {
            a += b;
            b = std::rotl( b, 13 ) ^ a;
            a = std::rotl( a, 32 );
            c += d;
            d = std::rotl( d, 16 ) ^ c;
            a += d;
            d = std::rotl( d, 21 ) ^ a;
            c += b;
            b = std::rotl( b, 17 ) ^ c;
            c = std::rotl( c, 32 );
        }
    };
    const auto take = [&]( uint64_t word ) {
        d ^= word;
        rounds( inner );
        a ^= word;
    };
    KoInt i = 0;
    for ( ; i + 1 < length; i += 2 ) {
        take( static_cast<uint32_t>( chs[i] ) | static_cast<uint64_t>( static_cast<uint32_t>( chs[i + 1] ) ) << 32 );
    }
    const uint64_t last = i < length ? static_cast<uint32_t>( chs[i] ) : 0;
    take( last | static_cast<uint64_t>( length ) * sizeof( KoChar ) << 56 );
    c ^= 0xff;
    rounds( outer );
    return a ^ b ^ c ^ d;
}

} // namespace ko

#endif
