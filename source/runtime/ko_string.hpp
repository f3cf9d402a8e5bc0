/* Making, changing and searching strings without checks: for the code of this system. Not installed. */
#ifndef KO_STRING_HPP
#define KO_STRING_HPP

#include <runtime/ko_inner.hpp>

#include <bit>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace ko {

/** A new unique string of the length whose characters are not set. */
KoString CreateUninitialised( KoInt length );

/** Copies the string unless it is unique, and returns its characters, which may be changed. */
KoChar *MakeUnique( KoString *s );

/**
 * Makes a string unique and `more` characters longer; those are not set.
 *
 * @param before Receives the string that the handle had if it was replaced, so that characters which lie inside it can
 * be copied before it ends.
 * @return Where the new characters begin.
 */
KoChar *Extend( KoString *s, KoInt more, KoRef<KoString> *before );

/** The length of a text: the length that was given, or for -1 that up to its terminating zero. */
template <class Unit>
KoInt TextLength( const Unit *units, KoInt length )
{
    if ( length < 0 ) {
        for ( length = 0; units[length]; ) {
            ++length;
        }
    }
    return length;
}

/** Index of the first such character from `start` on, or -1. */
inline KoInt FindChar( const KoChar *chs, KoInt length, KoInt start, KoChar ch )
{
    KoInt i = start;
#if defined( __SSE2__ )
    const __m128i wanted = _mm_set1_epi32( ch );
    for ( ; length - i >= 8; i += 8 ) {
        const auto *const in = reinterpret_cast<const __m128i *>( chs + i );
        const __m128i low = _mm_cmpeq_epi32( _mm_loadu_si128( in ), wanted );
        const __m128i high = _mm_cmpeq_epi32( _mm_loadu_si128( in + 1 ), wanted );
        if ( const auto found = static_cast<unsigned>( _mm_movemask_epi8( _mm_packs_epi32( low, high ) ) ) ) {
            return i + std::countr_zero( found ) / 2;
        }
    }
#endif
    for ( ; i < length; ++i ) {
        if ( chs[i] == ch ) {
            return i;
        }
    }
    return -1;
}

/** Index of the first place from `start` on where the pattern stands, or -1. Linear in the two lengths. */
KoInt FindChars( const KoChar *chs, KoInt length, KoInt start, const KoChar *pattern, KoInt patternLength );

} // namespace ko

#endif
