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
    add( charHex, "0123456789ABCDEFabcdef" );
    return table;
}

inline constexpr std::array<uint8_t, 128> charTable = MakeCharTable();

/** True when a character is in the class. What is no ASCII character is in none. */
inline bool Is( KoChar ch, CharClass charClass )
{
    return static_cast<uint32_t>( ch ) < charTable.size() && ( charTable[static_cast<size_t>( ch )] & charClass ) != 0;
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
    bool hyphens = false;     // there are two in a row, as in an xn-- label
    bool query = false;
    bool fragment = false;
};

/** Reads the longest identifier at the start of a text, in one pass. */
Iri Read( const KoChar *chs, KoInt length );

} // namespace ulm

#endif
