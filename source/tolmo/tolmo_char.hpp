/* The character classes of the grammar (RFC 3261 section 25.1), as one table of bits. */
#ifndef TOLMO_CHAR_HPP
#define TOLMO_CHAR_HPP

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
    charPassword = 1u << 13, // & = + $ , : password without the unreserved
    charPvalue = 1u << 14,   // [ ] / : & + $ : pvalue without the unreserved
    charTextWord = 1u << 15, // 0x21 to 0x7E
};

consteval std::array<uint32_t, 128> MakeCharTable()
{
    std::array<uint32_t, 128> table{};
    const auto add = [&]( uint32_t charClass, std::string_view members ) {
        for ( const char ch : members ) {
            table[static_cast<size_t>( ch )] |= charClass;
        }
    };
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    constexpr std::string_view digits = "0123456789";
    for ( const std::string_view alphanum : { letters, digits } ) {
        add( charToken | charTokenNodot | charWord | charParamChar, alphanum );
    }
    add( charAlpha, letters );
    add( charDigit | charHexdig, digits );
    add( charHexdig, "ABCDEFabcdef" );
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
    add( charPassword, "&=+$," );
    add( charPvalue, "[]/:&+$" );
    for ( char ch = 0x21; ch < 0x7F; ++ch ) {
        table[static_cast<size_t>( ch )] |= charTextWord;
    }
    return table;
}

inline constexpr std::array<uint32_t, 128> charTable = MakeCharTable();

/** True when a character is in one of the classes. What is no ASCII character is in none. */
inline bool Is( KoChar ch, uint32_t classes )
{
    return static_cast<uint32_t>( ch ) < charTable.size() && ( charTable[static_cast<size_t>( ch )] & classes ) != 0;
}

} // namespace tolmo

#endif
