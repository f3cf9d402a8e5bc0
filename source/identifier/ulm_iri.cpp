/* Resource identifiers: skip functions and validation (RFC 3987, section 2.2). */
#include <identifier/ulm.h>

#include <address/wen_address.h>
#include <identifier/ulm_iri.hpp>
#include <runtime/ko_inner.hpp>
#include <runtime/ko_string.h>

#include <bit>
#include <utility>

#if defined( __SSE2__ )
#include <emmintrin.h>
#endif

namespace ulm {
namespace {

/** What stands in a block of characters, a bit for each: the lowest for the first. */
struct Marks {
    static constexpr KoInt most = 16; // characters

    uint32_t others = 0; // all that are not plain, and maybe some that are
    uint32_t hyphens = 0;

    /** The same without the first characters of the block. */
    [[nodiscard]] Marks Behind( KoInt count ) const { return { others >> count, hyphens >> count }; }
};

/** The marks of a block, which may be shorter. */
[[gnu::noinline]] Marks ReadMarks( const KoChar *chs, KoInt length )
{
    Marks marks;
    for ( KoInt i = 0; i < length; ++i ) {
        marks.others |= static_cast<uint32_t>( !Is( chs[i], charPlain ) ) << i;
        marks.hyphens |= static_cast<uint32_t>( chs[i] == '-' ) << i;
    }
    return marks;
}

/** The marks of a whole block. */
inline Marks ReadMarks( const KoChar *chs )
{
#if defined( __SSE2__ )
    const auto load = [&]( int i ) { return _mm_loadu_si128( reinterpret_cast<const __m128i *>( chs ) + i ); };
    // What is no ASCII character becomes a byte that is none either, or NUL.
    const __m128i bytes =
        _mm_packus_epi16( _mm_packs_epi32( load( 0 ), load( 1 ) ), _mm_packs_epi32( load( 2 ), load( 3 ) ) );
    const auto among = []( __m128i of, char first, char last ) {
        const __m128i up = _mm_add_epi8( of, _mm_set1_epi8( static_cast<char>( 0x7F - last ) ) );
        return _mm_cmpgt_epi8( up, _mm_set1_epi8( static_cast<char>( 0x7F - last + first - 1 ) ) );
    };
    const auto bits = []( __m128i of ) { return static_cast<uint32_t>( _mm_movemask_epi8( of ) ); };
    const __m128i letters = among( _mm_or_si128( bytes, _mm_set1_epi8( 0x20 ) ), 'a', 'z' );
    const __m128i common = among( bytes, '&', ';' );
    const __m128i equals = _mm_cmpeq_epi8( bytes, _mm_set1_epi8( '=' ) );
    return { bits( _mm_or_si128( _mm_or_si128( letters, common ), equals ) ) ^ 0xFFFF,
             bits( _mm_cmpeq_epi8( bytes, _mm_set1_epi8( '-' ) ) ) };
#else
    return ReadMarks( chs, Marks::most );
#endif
}

/** The marks of the first block of the last `rest` characters of a text. */
inline Marks ReadMarks( const KoChar *chs, KoInt length, KoInt rest )
{
    if ( rest >= Marks::most ) {
        return ReadMarks( chs + length - rest );
    }
    return length >= Marks::most ? ReadMarks( chs + length - Marks::most ).Behind( Marks::most - rest )
                                 : ReadMarks( chs + length - rest, rest );
}

/** The length of the scheme at the start of a text that has a colon behind it; 0 if there is none. */
inline KoInt SchemeLength( const KoChar *chs, KoInt length )
{
    if ( length > 3 && ( chs[0] | 0x20 ) == 's' && ( chs[1] | 0x20 ) == 'i' && ( chs[2] | 0x20 ) == 'p' &&
         chs[3] == ':' ) {
        return 3; // as nearly all
    }
    if ( length == 0 || !Is( chs[0], charAlpha ) ) {
        return 0;
    }
    KoInt i = 1;
    while ( i < length && Is( chs[i], charScheme ) ) {
        ++i;
    }
    return i < length && chs[i] == ':' ? i : 0;
}

/** Takes a character of an identifier that may be not plain; false when it ends the identifier. */
[[gnu::noinline]] bool Take( const KoChar *chs, KoInt length, KoInt at, Iri &iri )
{
    const KoChar ch = chs[at];
    if ( static_cast<uint32_t>( ch ) >= charTable.size() ) {
        const bool taken = IsUcschar( ch ) || ( iri.query && IsPrivate( ch ) );
        iri.ascii = iri.ascii && !taken;
        return taken;
    }
    switch ( ch ) {
    case '@':
        iri.secondAt = iri.at >= 0;
        iri.at = iri.at >= 0 ? iri.at : at;
        return true;
    case '?':
        iri.query = true;
        return true;
    case '#':
        return !std::exchange( iri.fragment, true );
    case '%': // its digits are plain
        if ( !IsEscape( chs, length, at ) ) {
            return false;
        }
        iri.asciiEscapes = iri.asciiEscapes && chs[at + 1] < '8';
        return true;
    default:
        return Is( ch, charPlain );
    }
}

/** Takes all of an identifier behind its colon; returns where it ends. */
inline KoInt TakeRest( const KoChar *chs, KoInt length, Iri &iri )
{
    for ( KoInt rest = length - iri.colon - 1; rest > 0; rest -= Marks::most ) {
        const Marks marks = ReadMarks( chs, length, rest );
        constexpr uint32_t before = 1; // in front of the block there may be another
        if ( ( marks.hyphens & ( marks.hyphens << 1 | before ) ) != 0 ) {
            iri.hyphens = true;
        }
        for ( uint32_t others = marks.others; others != 0; others &= others - 1 ) {
            const KoInt place = length - rest + std::countr_zero( others );
            if ( !Take( chs, length, place, iri ) ) {
                return place;
            }
        }
    }
    return length;
}

} // namespace

Iri Read( const KoChar *chs, KoInt length )
{
    Iri iri;
    iri.colon = SchemeLength( chs, length );
    if ( iri.colon > 0 ) {
        iri.length = TakeRest( chs, length, iri );
    }
    return iri;
}

} // namespace ulm

KoInt ulm___SkipIri( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return ulm::Read( chs, length ).length;
}

KoInt ulm___SkipIpV4Address( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return wen___SkipIpV4Address( chs, length );
}

KoInt ulm___SkipIpV6Address( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return wen___SkipIpV6Address( chs, length );
}

namespace {

/** The length of a run of digits whose value fits a KoInt; 0 if it does not. */
[[gnu::noinline]] KoInt FittingLength( const KoChar *digits, KoInt length )
{
    KoInt value = 0;
    KoInt taken = 0;
    return koFormatTryDecodeIntChars( digits, length, 10, &value, &taken ) ? taken : 0;
}

} // namespace

KoInt ulm___SkipPort( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    KoInt at = 0;
    while ( at < length && chs[at] >= '0' && chs[at] <= '9' ) {
        ++at;
    }
    constexpr KoInt alwaysFit = 18; // digits
    return at <= alwaysFit ? at : FittingLength( chs, at );
}

KoBool ulmGensValidatePart( KoInt part, KoString iri )
{
    KO_REQUIRE( part == 0 );
    KO_REQUIRE( iri );
    return iri->length > 0 && ulm::Read( ko::Chars( iri ), iri->length ).length == iri->length;
}
