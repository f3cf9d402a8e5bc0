/* Resource identifiers: skip functions and validation (RFC 3987, section 2.2). */
#include <identifier/ulm.h>

#include <address/wen_address.h>
#include <identifier/ulm_iri.hpp>
#include <runtime/ko_ascii_set.hpp>
#include <runtime/ko_inner.hpp>
#include <runtime/ko_string.h>

#include <bit>
#include <utility>

namespace ulm {
namespace {

consteval ko::AsciiSet MakePlainSet()
{
    ko::AsciiSet set;
    for ( size_t ch = 0; ch < charTable.size(); ++ch ) {
        if ( ( charTable[ch] & charPlain ) != 0 && ch != '-' ) {
            set.Add( static_cast<KoChar>( ch ) );
        }
    }
    return set;
}

/** The characters that are taken without a look: the plain ones but the hyphen, as two of them may tell something. */
constexpr ko::AsciiSet plainSet = MakePlainSet();

constexpr KoInt block = 16; // characters

/** A bit for each character that is not in the set, of a text that is shorter than a block. */
[[gnu::noinline]] uint32_t OthersOfShort( const KoChar *chs, KoInt length )
{
    uint32_t others = 0;
    for ( KoInt i = 0; i < length; ++i ) {
        others |= static_cast<uint32_t>( !plainSet.Has( chs[i] ) ) << i;
    }
    return others;
}

/** The same, of the first block of the last `rest` characters of a text. */
inline uint32_t Others( const KoChar *chs, KoInt length, KoInt rest )
{
    constexpr uint32_t whole = 0xFFFF;
    if ( rest >= block ) {
        return plainSet.Others<block>( chs + length - rest ) & whole;
    }
    return length >= block ? ( plainSet.Others<block>( chs + length - block ) & whole ) >> ( block - rest )
                           : OthersOfShort( chs + length - rest, rest );
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

/** Takes a character of an identifier that is not in the set; false when it ends the identifier. */
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
    case '-':
        iri.hyphens = iri.hyphens || chs[at - 1] == '-'; // in front there is a colon at least
        return true;
    default:
        return false;
    }
}

/** Takes all of an identifier behind its colon; returns where it ends. */
inline KoInt TakeRest( const KoChar *chs, KoInt length, Iri &iri )
{
    for ( KoInt rest = length - iri.colon - 1; rest > 0; rest -= block ) {
        for ( uint32_t others = Others( chs, length, rest ); others != 0; others &= others - 1 ) {
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
