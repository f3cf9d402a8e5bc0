/* The character classes of the grammar (RFC 3261 section 25.1), as one table of bits. */
#ifndef TOLMO_CHAR_HPP
#define TOLMO_CHAR_HPP

#include <runtime/ko_ascii_set.hpp>
#include <runtime/ko_base.h>

#include <array>
#include <string_view>

namespace tolmo {

/** One bit for each class; classes can be asked for together. */
enum CharClass : uint32_t {
    charAlpha = 1u << 0,
    charDigit = 1u << 1,
    charAlphanum = charAlpha | charDigit,
    charHexdig = 1u << 2,
    charLws = 1u << 3,
    charToken = 1u << 4,
    charTokenNodot = 1u << 5,
    charAtom = charTokenNodot,
    charWord = 1u << 6,
    charMark = 1u << 7,
    charUnreserved = charAlphanum | charMark,
    charReserved = 1u << 8,
    charUserUnreserved = 1u << 9,
    charHnvUnreserved = 1u << 10,
    charParamChar = 1u << 11,
    charSeparator = 1u << 12,
    charPasswordUnreserved = 1u << 13, // what a password may hold besides the unreserved
    charParamUnreserved = 1u << 14,    // the same for the value of a URI parameter
    charSessUuid = 1u << 15,
    charHostname = 1u << 16,
};

consteval std::array<uint32_t, 128> MakeCharTable()
{
    std::array<uint32_t, 128> table{};
    const auto add = [&]( uint32_t classes, std::string_view members ) {
        for ( const char ch : members ) {
            table[static_cast<size_t>( ch )] |= classes;
        }
    };
    constexpr uint32_t allAlphanum = charToken | charTokenNodot | charWord | charParamChar | charHostname;
    add( allAlphanum | charAlpha, "ABCDEFGHIJKLMNOPQRSTUVWXYZ" );
    add( allAlphanum | charAlpha | charSessUuid, "abcdefghijklmnopqrstuvwxyz" );
    add( allAlphanum | charDigit | charSessUuid, "0123456789" );
    add( charHexdig, "0123456789ABCDEFabcdef" );
    add( charLws, " \t" );
    add( charToken, "!%'*+-._`~" );
    add( charTokenNodot, "!%'*+-_`~" );
    add( charWord, "!\"%'()*+-./:<>?[\\]_`{}~" );
    add( charMark, "!'()*-._~" );
    add( charReserved, "$&+,/:;=?@" );
    add( charUserUnreserved, "$&+,/;=?" );
    add( charHnvUnreserved, "$+/:?[]" );
    add( charParamChar, "!$%&'()*+-./:[]_~" );
    add( charSeparator, "\t \"(),/:;<=>?@[\\]{}" );
    add( charPasswordUnreserved, "&=+$," );
    add( charParamUnreserved, "[]/:&+$" );
    add( charHostname, "-." );
    return table;
}

inline constexpr std::array<uint32_t, 128> charTable = MakeCharTable();

/** True when a character is in one of the classes. What is no ASCII character is in none. */
inline bool Is( KoChar ch, uint32_t classes )
{
    return static_cast<uint32_t>( ch ) < charTable.size() && ( charTable[static_cast<size_t>( ch )] & classes ) != 0;
}

constexpr ko::AsciiSet MakeSet( uint32_t classes )
{
    ko::AsciiSet set;
    for ( size_t ch = 0; ch < charTable.size(); ++ch ) {
        if ( charTable[ch] & classes ) {
            set.Add( static_cast<KoChar>( ch ) );
        }
    }
    return set;
}

/** The characters of some classes, to look for runs of them. */
template <uint32_t classes>
inline constexpr ko::AsciiSet setOf = MakeSet( classes );

/** A capital ASCII letter as a small one; every other character as it is. */
inline KoChar AsciiLower( KoChar ch )
{
    return ch >= 'A' && ch <= 'Z' ? ch + ( 'a' - 'A' ) : ch;
}

/** The value of a hexadecimal digit; -1 for another character. */
inline KoInt HexValue( KoChar ch )
{
    if ( !Is( ch, charHexdig ) ) {
        return -1;
    }
    return ch <= '9' ? ch - '0' : AsciiLower( ch ) - 'a' + 10;
}

} // namespace tolmo

#endif
