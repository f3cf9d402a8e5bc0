/* Sets of ASCII characters, and the runs of their members in a text. Not installed. */
#ifndef KO_ASCII_SET_HPP
#define KO_ASCII_SET_HPP

#include <runtime/ko_base.h>

#include <bit>

#if defined( __SSSE3__ )
#include <tmmintrin.h>
#endif

namespace ko {

/**
 * A set of ASCII characters, as the processor likes it: for each low half of a code, a bit for each of the eight high
 * halves with which it makes a member. So two looks into tables of 16 bytes, 16 characters at a time, tell the members.
 */
struct AsciiSet {
    alignas( 16 ) uint8_t high[16]{};

    /** Any character but NUL, which in a block stands for what is no character. */
    constexpr void Add( KoChar member )
    {
        high[member & 0xF] = static_cast<uint8_t>( high[member & 0xF] | 1 << ( member >> 4 ) );
    }

    [[nodiscard]] constexpr bool Has( KoChar ch ) const
    {
        return static_cast<uint32_t>( ch ) < 0x80 && ( high[ch & 0xF] >> ( ch >> 4 ) & 1 ) != 0;
    }

    /** A bit for each of 8 or 16 characters that is no member, and all bits above. */
    template <int count>
    [[nodiscard]] unsigned Others( const KoChar *chs ) const
    {
#if defined( __SSSE3__ )
        const auto eight = [in = reinterpret_cast<const __m128i *>( chs )]( int at ) {
            return _mm_packs_epi32( _mm_loadu_si128( in + at ), _mm_loadu_si128( in + at + 1 ) );
        };
        // What is no ASCII character comes out as 0, or with its top bit, for which a shuffle gives 0.
        const __m128i codes = _mm_packus_epi16( eight( 0 ), count == 16 ? eight( 2 ) : _mm_setzero_si128() );
        const __m128i highs = _mm_and_si128( _mm_srli_epi16( codes, 4 ), _mm_set1_epi8( 0xF ) );
        const __m128i bits = _mm_setr_epi8( 1, 2, 4, 8, 16, 32, 64, -128, 0, 0, 0, 0, 0, 0, 0, 0 );
        const __m128i found =
            _mm_and_si128( _mm_shuffle_epi8( _mm_load_si128( reinterpret_cast<const __m128i *>( high ) ), codes ),
                           _mm_shuffle_epi8( bits, highs ) );
        return static_cast<unsigned>( _mm_movemask_epi8( _mm_cmpeq_epi8( found, _mm_setzero_si128() ) ) ) |
               ~0U << count;
#else
        unsigned others = ~0U << count;
        for ( int i = 0; i < count; ++i ) {
            others |= static_cast<unsigned>( !Has( chs[i] ) ) << i;
        }
        return others;
#endif
    }
};

/** How many members stand at the start of a text. */
inline KoInt RunOf( const AsciiSet &set, const KoChar *chs, KoInt length )
{
    KoInt taken = 0;
#if defined( __SSSE3__ )
    constexpr unsigned sixteen = 0xFFFF;
    for ( ; length - taken >= 16; taken += 16 ) {
        if ( const unsigned others = set.Others<16>( chs + taken ); ( others & sixteen ) != 0 ) {
            return taken + std::countr_zero( others );
        }
    }
    // The last ones once more, of which the first are known: in place of them, the bits above come in.
    if ( taken > 0 ) {
        return taken + std::countr_zero( set.Others<16>( chs + length - 16 ) >> ( 16 - ( length - taken ) ) );
    }
    if ( length >= 8 ) {
        const int first = std::countr_zero( set.Others<8>( chs ) );
        return first < 8 ? first : 8 + std::countr_zero( set.Others<8>( chs + length - 8 ) >> ( 16 - length ) );
    }
#endif
    while ( taken < length && set.Has( chs[taken] ) ) {
        ++taken;
    }
    return taken;
}

/** The ASCII characters for which `Ends` is false, but NUL. */
template <bool Ends( KoChar )>
constexpr AsciiSet SetOfOthers()
{
    AsciiSet set;
    for ( KoChar ch = 1; ch < 0x80; ++ch ) {
        if ( !Ends( ch ) ) {
            set.Add( ch );
        }
    }
    return set;
}

/** How many characters stand at the start of a text before the first for which `Ends` is true. */
template <bool Ends( KoChar )>
KoInt RunUntil( const KoChar *chs, KoInt length )
{
    static constexpr AsciiSet others = SetOfOthers<Ends>();
    for ( KoInt taken = 0;; ++taken ) {
        taken += RunOf( others, chs + taken, length - taken );
        if ( taken == length || Ends( chs[taken] ) ) {
            return taken;
        }
    }
}

} // namespace ko

#endif
