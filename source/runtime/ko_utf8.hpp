/* UTF-8 (RFC 3629), strictly: one character at a time, and kernels for runs of ASCII. Not installed. */
#ifndef KO_UTF8_HPP
#define KO_UTF8_HPP

#include <runtime/ko_base.h>

#include <bit>
#include <cstring>

#if defined( __SSE4_1__ )
#include <smmintrin.h>
#elif defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace ko {

/** What stands for text that is none. */
constexpr KoChar replacementChar = 0xFFFD;

/** True for what UTF-8 can carry: a code point that is no surrogate. */
constexpr bool IsScalarValue( KoChar ch )
{
    return KO_CHAR_OK( ch ) && ( ch & 0x1FF800 ) != 0xD800;
}

/** How many bytes are ASCII before the first that is not. */
inline KoInt AsciiLength( const uint8_t *bytes, KoInt length )
{
    KoInt i = 0;
#if defined( __SSE2__ )
    for ( ; length - i >= 16; i += 16 ) {
        const __m128i block = _mm_loadu_si128( reinterpret_cast<const __m128i *>( bytes + i ) );
        if ( const auto others = static_cast<unsigned>( _mm_movemask_epi8( block ) ) ) {
            return i + std::countr_zero( others );
        }
    }
#else
    for ( uint64_t block; length - i >= 8; i += 8 ) {
        memcpy( &block, bytes + i, sizeof block );
        if ( block & 0x8080808080808080 ) {
            break;
        }
    }
#endif
    while ( i < length && bytes[i] < 0x80 ) {
        ++i;
    }
    return i;
}

#if defined( __SSE4_1__ )
/** Widens four bytes to characters. */
inline void WidenFour( KoChar *to, const uint8_t *from )
{
    _mm_storeu_si128( reinterpret_cast<__m128i *>( to ), _mm_cvtepu8_epi32( _mm_loadu_si32( from ) ) );
}

/** Widens 16 bytes to characters, if all of them are ASCII; otherwise returns false. */
inline bool WidenSixteen( KoChar *to, const uint8_t *from )
{
    if ( _mm_movemask_epi8( _mm_loadu_si128( reinterpret_cast<const __m128i *>( from ) ) ) ) {
        return false;
    }
    for ( int i = 0; i < 16; i += 4 ) {
        WidenFour( to + i, from + i );
    }
    return true;
}
#endif

/** Widens bytes to characters up to the first that is not ASCII, and returns how many. */
inline KoInt WidenAscii( KoChar *to, const uint8_t *from, KoInt length )
{
    KoInt i = 0;
#if defined( __SSE4_1__ )
    while ( length - i >= 16 && WidenSixteen( to + i, from + i ) ) {
        i += 16;
    }
    for ( uint32_t four; length - i >= 4; i += 4 ) {
        memcpy( &four, from + i, sizeof four );
        if ( four & 0x80808080 ) {
            break;
        }
        WidenFour( to + i, from + i );
    }
#else
    for ( uint64_t block; length - i >= 8; i += 8 ) {
        memcpy( &block, from + i, sizeof block );
        if ( block & 0x8080808080808080 ) {
            break;
        }
        for ( KoInt k = 0; k < 8; ++k ) {
            to[i + k] = from[i + k];
        }
    }
#endif
    for ( ; i < length && from[i] < 0x80; ++i ) {
        to[i] = from[i];
    }
    return i;
}

#if defined( __SSE2__ )
/**
 * Narrows characters to bytes if all of them are ASCII; otherwise returns false. They are as many as `end` (4 or 8), up
 * to twice as many: the first and the last of them are taken, which may overlap.
 */
template <KoInt end>
inline bool NarrowEnds( uint8_t *to, const KoChar *from, KoInt length )
{
    const auto load = [from]( KoInt i ) { return _mm_loadu_si128( reinterpret_cast<const __m128i *>( from + i ) ); };
    const KoInt last = length - end;
    // Words saturate, so what is no ASCII character is no word below 0x80 either.
    const __m128i low = end == 8 ? _mm_packs_epi32( load( 0 ), load( 4 ) ) : _mm_packs_epi32( load( 0 ), load( last ) );
    const __m128i high = end == 8 ? _mm_packs_epi32( load( last ), load( last + 4 ) ) : low;
    const __m128i raised = _mm_adds_epu16( _mm_or_si128( low, high ), _mm_set1_epi16( 0x7F80 ) );
    if ( ( _mm_movemask_epi8( raised ) & 0xAAAA ) != 0 ) {
        return false;
    }
    uint8_t bytes[16];
    _mm_storeu_si128( reinterpret_cast<__m128i *>( bytes ), _mm_packus_epi16( low, high ) );
    memcpy( to, bytes, end );
    memcpy( to + last, bytes + end, end );
    return true;
}
#endif

/** Narrows characters to bytes up to the first that is not ASCII, and returns how many. */
[[gnu::always_inline]] inline KoInt NarrowAscii( uint8_t *to, const KoChar *from, KoInt length )
{
    KoInt i = 0;
#if defined( __SSE2__ )
    while ( length - i > 16 && NarrowEnds<8>( to + i, from + i, 16 ) ) {
        i += 16;
    }
    const KoInt rest = length - i;
    if ( rest >= 8 ? rest <= 16 && NarrowEnds<8>( to + i, from + i, rest )
                   : rest >= 4 && NarrowEnds<4>( to + i, from + i, rest ) ) {
        return length;
    }
#endif
    for ( ; i < length && static_cast<uint32_t>( from[i] ) < 0x80; ++i ) {
        to[i] = static_cast<uint8_t>( from[i] );
    }
    return i;
}

/**
 * Decodes the character at the start of bytes that are not empty: strictly, so without overlong forms, surrogates and
 * values above U+10FFFF.
 *
 * @return The number of bytes of the character; or, negated, that of the bytes that a U+FFFD stands for (the maximal
 * subpart of an ill-formed sequence, Unicode 15.0, 3.9), with `ch` left alone.
 */
inline KoInt DecodeUtf8( const uint8_t *bytes, KoInt length, KoChar *ch )
{
    const uint8_t first = bytes[0];
    if ( first < 0x80 ) {
        *ch = first;
        return 1;
    }
    KoInt count = 0;
    KoChar value = 0;
    uint8_t least = 0x80; // of the second byte; those behind it have 0x80 to 0xBF
    uint8_t most = 0xBF;
    if ( first >= 0xC2 && first <= 0xDF ) {
        count = 2;
        value = first & 0x1F;
    } else if ( first >= 0xE0 && first <= 0xEF ) {
        count = 3;
        value = first & 0x0F;
        least = first == 0xE0 ? 0xA0 : least;
        most = first == 0xED ? 0x9F : most;
    } else if ( first >= 0xF0 && first <= 0xF4 ) {
        count = 4;
        value = first & 0x07;
        least = first == 0xF0 ? 0x90 : least;
        most = first == 0xF4 ? 0x8F : most;
    } else {
        return -1;
    }
    for ( KoInt i = 1; i < count; ++i ) {
        if ( i >= length || bytes[i] < least || bytes[i] > most ) {
            return -i;
        }
        value = value << 6 | ( bytes[i] & 0x3F );
        least = 0x80;
        most = 0xBF;
    }
    *ch = value;
    return count;
}

/** Number of bytes that EncodeUtf8 writes for a character. */
constexpr KoInt Utf8Length( KoChar ch )
{
    // The three bytes of U+FFFD also stand for what is beyond U+10FFFF, and negative: that is huge here.
    const auto value = static_cast<uint32_t>( ch );
    return 1 + ( value >= 0x80 ) + ( value >= 0x800 ) + ( value >= 0x10000 && value <= 0x10FFFF );
}

/** True when all characters are ASCII. */
inline bool AreAscii( const KoChar *chs, KoInt length )
{
#if defined( __SSE2__ )
    if ( length >= 4 ) {
        // Four at a time, and the last four once more.
        const auto load = [chs]( KoInt at ) {
            return _mm_loadu_si128( reinterpret_cast<const __m128i *>( chs + at ) );
        };
        __m128i all = load( length - 4 );
        for ( KoInt i = 0; length - i > 4; i += 4 ) {
            all = _mm_or_si128( all, load( i ) );
        }
        const __m128i beyond = _mm_and_si128( all, _mm_set1_epi32( ~0x7F ) );
        return _mm_movemask_epi8( _mm_cmpeq_epi32( beyond, _mm_setzero_si128() ) ) == 0xFFFF;
    }
#endif
    uint32_t any = 0;
    for ( KoInt i = 0; i < length; ++i ) {
        any |= static_cast<uint32_t>( chs[i] );
    }
    return any < 0x80;
}

/** Number of bytes of the UTF-8 form of characters. */
inline KoInt Utf8Length( const KoChar *chs, KoInt length )
{
    if ( AreAscii( chs, length ) ) {
        return length;
    }
    KoInt need = 0;
    for ( KoInt i = 0; i < length; ++i ) {
        need += Utf8Length( chs[i] );
    }
    return need;
}

/** Writes a character, U+FFFD for what is no scalar value. Returns the number of bytes, 1 to 4. */
inline KoInt EncodeUtf8( uint8_t *to, KoChar ch )
{
    const KoChar value = IsScalarValue( ch ) ? ch : replacementChar;
    const auto trail = [value]( int shift ) { return static_cast<uint8_t>( 0x80 | ( value >> shift & 0x3F ) ); };
    if ( value < 0x80 ) {
        to[0] = static_cast<uint8_t>( value );
        return 1;
    }
    if ( value < 0x800 ) {
        to[0] = static_cast<uint8_t>( 0xC0 | value >> 6 );
        to[1] = trail( 0 );
        return 2;
    }
    if ( value < 0x10000 ) {
        to[0] = static_cast<uint8_t>( 0xE0 | value >> 12 );
        to[1] = trail( 6 );
        to[2] = trail( 0 );
        return 3;
    }
    to[0] = static_cast<uint8_t>( 0xF0 | value >> 18 );
    to[1] = trail( 12 );
    to[2] = trail( 6 );
    to[3] = trail( 0 );
    return 4;
}

} // namespace ko

#endif
