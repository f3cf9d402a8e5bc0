/* The grammar of resource identifiers (RFC 3987, section 2.2), without the structure of single schemes. Not installed. */
#ifndef ULM_IRI_HPP
#define ULM_IRI_HPP

#include <runtime/ko_base.h>

#include <array>
#include <string_view>

namespace ulm {

/** The classes of ASCII characters, one bit each. */
enum CharClass : uint8_t {
    charAlpha = 1u << 0,
    charScheme = 1u << 1,
    charPlain = 1u << 2, // characters of an identifier without a meaning to it
    charHex = 1u << 3,
    charHostMark = 1u << 4, // the end of a host, and the dot
    charHyphen = 1u << 5,
};

consteval std::array<uint8_t, 128> MakeCharTable()
{
    std::array<uint8_t, 128> table{};
    const auto add = [&]( unsigned charClass, std::string_view members ) {
        for ( const char ch : members ) {
            uint8_t &classes = table[static_cast<size_t>( ch )];
            classes = static_cast<uint8_t>( classes | charClass );
        }
    };
    add( charAlpha | charScheme | charPlain, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz" );
    add( charScheme | charPlain, "0123456789+-." );
    add( charPlain, "_~!$&'()*,;=:/[]" );
    add( charHostMark, ".:;?#/" );
    add( charHyphen, "-" );
    add( charHex, "0123456789ABCDEFabcdef" );
    return table;
}

inline constexpr std::array<uint8_t, 128> charTable = MakeCharTable();

/** True when a character is in the class. What is no ASCII character is in none. */
inline bool Is( KoChar ch, CharClass charClass )
{
    return static_cast<uint32_t>( ch ) < charTable.size() && ( charTable[static_cast<size_t>( ch )] & charClass ) != 0;
}

/** True when each of four characters is plain: a run of them costs one branch for four. Adds their classes to `seen`. */
inline bool AreFourPlain( const KoChar *chs, unsigned &seen )
{
    const auto at = [&]( int i ) { return static_cast<uint32_t>( chs[i] ); };
    if ( ( at( 0 ) | at( 1 ) | at( 2 ) | at( 3 ) ) >= charTable.size() ) {
        return false;
    }
    const unsigned a = charTable[at( 0 )];
    const unsigned b = charTable[at( 1 )];
    const unsigned c = charTable[at( 2 )];
    const unsigned d = charTable[at( 3 )];
    seen |= a | b | c | d;
    return ( a & b & c & d & charPlain ) != 0;
}

/** ucschar of RFC 3987. */
inline bool IsUcschar( KoChar ch )
{
    if ( ch < 0x10000 ) {
        return ( ch >= 0xA0 && ch <= 0xD7FF ) || ( ch >= 0xF900 && ch <= 0xFDCF ) || ( ch >= 0xFDF0 && ch <= 0xFFEF );
    }
    return ch <= 0xEFFFD && ( ch & 0xFFFF ) <= 0xFFFD && ( ch < 0xE0000 || ch >= 0xE1000 );
}

/** iprivate of RFC 3987. */
inline bool IsPrivate( KoChar ch )
{
    return ( ch >= 0xE000 && ch <= 0xF8FF ) || ( ch >= 0xF0000 && ch <= 0xFFFFD ) ||
           ( ch >= 0x100000 && ch <= 0x10FFFD );
}

/** True when an escape stands at a place of a text. */
inline bool IsEscape( const KoChar *chs, KoInt length, KoInt place )
{
    return length - place > 2 && chs[place] == '%' && Is( chs[place + 1], charHex ) && Is( chs[place + 2], charHex );
}

/** An identifier at the start of a text, and what was seen in it on the way. */
struct Iri {
    KoInt length = 0; // 0: there is none
    KoInt colon = 0;  // the one behind the scheme
    KoInt at = -1;    // the first @
    bool secondAt = false;
    bool ascii = true;        // no other character
    bool asciiEscapes = true; // and none that is escaped
    bool hyphen = false;      // one was seen, so that there may be an xn-- label
};

/** Reads the longest identifier at the start of a text, in one pass. */
inline Iri Read( const KoChar *chs, KoInt length )
{
    Iri iri;
    if ( length == 0 || !Is( chs[0], charAlpha ) ) {
        return iri;
    }
    KoInt i = 1;
    while ( i < length && Is( chs[i], charScheme ) ) {
        ++i;
    }
    if ( i == length || chs[i] != ':' ) {
        return iri;
    }
    iri.colon = i++;
    bool query = false;
    bool fragment = false;
    unsigned seen = 0;
    for ( ;; ++i ) {
        while ( length - i >= 4 && AreFourPlain( chs + i, seen ) ) {
            i += 4;
        }
        while ( i < length && Is( chs[i], charPlain ) ) {
            seen |= charTable[static_cast<size_t>( chs[i] )];
            ++i;
        }
        if ( i == length ) {
            break;
        }
        const KoChar ch = chs[i];
        if ( ch == '@' ) {
            iri.secondAt = iri.at >= 0;
            iri.at = iri.at >= 0 ? iri.at : i;
        } else if ( ch == '?' ) {
            query = true;
        } else if ( ch == '#' && !fragment ) {
            fragment = true;
        } else if ( IsEscape( chs, length, i ) ) {
            iri.asciiEscapes = iri.asciiEscapes && chs[i + 1] < '8';
            i += 2;
        } else if ( IsUcschar( ch ) || ( query && IsPrivate( ch ) ) ) {
            iri.ascii = false;
        } else {
            break;
        }
    }
    iri.hyphen = ( seen & charHyphen ) != 0;
    iri.length = i;
    return iri;
}

} // namespace ulm

#endif
