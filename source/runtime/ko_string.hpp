/* Making, changing and searching strings without checks: for the code of this system. Not installed. */
#ifndef KO_STRING_HPP
#define KO_STRING_HPP

#include <runtime/ko_inner.hpp>
#include <runtime/ko_utf8.hpp>

#include <bit>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace ko {

/** A new unique string of the length whose characters are not set. */
KoString CreateUninitialised( KoInt length );

/** Cuts a unique string off, and gives memory back when that leaves much of its block unused. */
void Trim( KoString *s, KoInt length );

/** Copies the string unless it is unique, and returns its characters, which may be changed. */
KoChar *MakeUnique( KoString *s );

/**
 * Makes a string unique, with room for `more` characters behind those that it has. Does nothing when `more` is 0.
 *
 * @param before Receives the string that the handle had if it was replaced, so that characters which lie inside it can
 * be copied before it ends.
 * @return Where the new characters go; the caller adds their number to the length.
 */
KoChar *Reserve( KoString *s, KoInt more, KoRef<KoString> *before );

/** Reserve, with the new characters counted in at once. */
inline KoChar *Extend( KoString *s, KoInt more, KoRef<KoString> *before )
{
    KoChar *const to = Reserve( s, more, before );
    if ( more > 0 ) { // without new characters the string may still be shared
        ( *s )->length += more;
    }
    return to;
}

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

// The texts of callers: UTF-8, UTF-16 or characters. What is ill-formed becomes U+FFFD: one for each maximal subpart of
// UTF-8, one for each lone surrogate of UTF-16.

/** Takes one character off a text that is not empty, and returns its number of units. */
inline KoInt DecodeStep( const char *chs, KoInt length, KoChar *ch )
{
    const KoInt taken = DecodeUtf8( reinterpret_cast<const uint8_t *>( chs ), length, ch );
    if ( taken < 0 ) {
        *ch = replacementChar;
        return -taken;
    }
    return taken;
}

inline KoInt DecodeStep( const uint16_t *units, KoInt length, KoChar *ch )
{
    const KoChar first = units[0];
    if ( ( first & 0xF800 ) != 0xD800 ) {
        *ch = first;
        return 1;
    }
    if ( first < 0xDC00 && length > 1 && ( units[1] & 0xFC00 ) == 0xDC00 ) {
        *ch = 0x10000 + ( ( first & 0x3FF ) << 10 | ( units[1] & 0x3FF ) );
        return 2;
    }
    *ch = replacementChar;
    return 1;
}

/** The number of characters of a text. */
template <class Unit>
KoInt DecodedLength( const Unit *units, KoInt length )
{
    KoInt i = 0;
    if constexpr ( sizeof( Unit ) == 1 ) {
        i = AsciiLength( reinterpret_cast<const uint8_t *>( units ), length );
    }
    KoChar ch = 0;
    KoInt count = i;
    for ( ; i < length; ++count ) {
        i += DecodeStep( units + i, length - i, &ch );
    }
    return count;
}

inline KoInt DecodedLength( const KoChar *, KoInt length )
{
    return length;
}

/** Writes the characters of a text, and returns where they end. */
template <class Unit>
KoChar *Decode( KoChar *to, const Unit *units, KoInt length )
{
    KoInt i = 0;
    if constexpr ( sizeof( Unit ) == 1 ) {
        i = WidenAscii( to, reinterpret_cast<const uint8_t *>( units ), length );
        to += i;
    }
    for ( ; i < length; ++to ) {
        i += DecodeStep( units + i, length - i, to );
    }
    return to;
}

inline KoChar *Decode( KoChar *to, const KoChar *chs, KoInt length )
{
    CopyChars( to, chs, length );
    return to + length;
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
