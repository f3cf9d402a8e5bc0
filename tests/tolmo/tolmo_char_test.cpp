/* Tests of the character classes. */
#include "test.h"

#include <tolmo/tolmo_char.h>

#include <limits>

namespace {

using namespace std::string_literals;

using Predicate = KoBool ( * )( KoChar );

KoBool IsHexdig( KoChar ch )
{
    return tolmo___CharIsHexdig( ch, nullptr );
}

/** From one character up to another, both in it. */
std::string Range( char first, char last )
{
    std::string all;
    for ( int ch = first; ch <= last; ++ch ) {
        all += static_cast<char>( ch );
    }
    return all;
}

const std::string digits = Range( '0', '9' );
const std::string alphas = Range( 'A', 'Z' ) + Range( 'a', 'z' );
const std::string alphanums = alphas + digits;

/* The sets as RFC 3261 section 25.1 orders them, with the number of members. */
const std::string tokenMarks = "-.!%*_+`'~";
const std::string mark = "-_.!~*'()";
const std::string reserved = ";/?:@&=+$,";

struct Class {
    const char *name;
    Predicate is;
    std::string members;
    size_t size;
};

const std::vector<Class> classes = {
    { "Alpha", tolmo___CharIsAlpha, alphas, 52 },
    { "Digit", tolmo___CharIsDigit, digits, 10 },
    { "Alphanum", tolmo___CharIsAlphanum, alphanums, 62 },
    { "Hexdig", IsHexdig, digits + "ABCDEF" + "abcdef", 22 },
    { "Lws", tolmo___CharIsLws, " \t", 2 },
    { "Token", tolmo___CharIsToken, alphanums + tokenMarks, 72 },
    { "TokenNodot", tolmo___CharIsTokenNodot, alphanums + "-!%*_+`'~", 71 },
    { "Atom", tolmo___CharIsAtom, alphanums + "-!%*_+`'~", 71 },
    { "Word", tolmo___CharIsWord, alphanums + tokenMarks + "()<>:\\\"/[]?{}", 85 },
    { "Mark", tolmo___CharIsMark, mark, 9 },
    { "Unreserved", tolmo___CharIsUnreserved, alphanums + mark, 71 },
    { "Reserved", tolmo___CharIsReserved, reserved, 10 },
    { "UserUnreserved", tolmo___CharIsUserUnreserved, "&=+$,;?/", 8 },
    { "HnvUnreserved", tolmo___CharIsHnvUnreserved, "[]/?:+$", 7 },
    { "ParamChar", tolmo___CharIsParamChar, alphanums + mark + "[]/:&+$" + "%", 79 },
    { "Separator", tolmo___CharIsSeparator, "()<>@,;:\\\"/[]?={} \t", 19 },
};

const KoChar noAscii[] = { -1,
                           -128,
                           -'a',
                           128,
                           128 + 'a',
                           256 + 'a',
                           0xE9,
                           0x0130,
                           0x0131,
                           0x0661, // a digit of another script
                           0x212A, // the Kelvin sign, whose small letter is k
                           0xFF21, // a full-width letter
                           0x10FFFF,
                           0x110000,
                           0x110000 + 'a',
                           std::numeric_limits<KoChar>::min(),
                           std::numeric_limits<KoChar>::min() + 'a',
                           std::numeric_limits<KoChar>::max() };

TEST( CharTest, EachClassHasItsMembersAndNoOthers )
{
    EXPECT_EQ( classes.size(), 16u );
    for ( const Class &c : classes ) {
        EXPECT_EQ( c.members.size(), c.size ) << c.name;
        for ( KoChar ch = 0; ch < 128; ++ch ) {
            const bool member = c.members.find( static_cast<char>( ch ) ) != std::string::npos;
            EXPECT_EQ( c.is( ch ), member ? KO_TRUE : KO_FALSE ) << c.name << " " << ch;
        }
    }
}

TEST( CharTest, WhatIsNoAsciiCharacterIsInNoClass )
{
    for ( const Class &c : classes ) {
        for ( const KoChar ch : noAscii ) {
            EXPECT_EQ( c.is( ch ), KO_FALSE ) << c.name << " " << ch;
        }
        for ( KoChar ch = 128; ch <= 0x10FFFF; ++ch ) {
            ASSERT_EQ( c.is( ch ), KO_FALSE ) << c.name << " " << ch;
        }
    }
}

TEST( CharTest, SomeCharactersAreInNoClass )
{
    const std::string none = "#^|\r\n\x7F\x0B\x0C\x1F"s + '\0';
    for ( const Class &c : classes ) {
        for ( const char ch : none ) {
            EXPECT_EQ( c.is( ch ), KO_FALSE ) << c.name << " " << int{ ch };
        }
    }
}

TEST( CharTest, HexdigGivesTheValue )
{
    const std::string inOrder[] = { "0123456789abcdef", "0123456789ABCDEF" };
    for ( const std::string &all : inOrder ) {
        for ( size_t i = 0; i < all.size(); ++i ) {
            KoInt value = 99;
            EXPECT_EQ( tolmo___CharIsHexdig( all[i], &value ), KO_TRUE ) << all[i];
            EXPECT_EQ( value, static_cast<KoInt>( i ) ) << all[i];
        }
    }
}

TEST( CharTest, HexdigGivesMinusOneForAllOthers )
{
    const auto expectNone = []( KoChar ch ) {
        KoInt value = 99;
        EXPECT_EQ( tolmo___CharIsHexdig( ch, &value ), KO_FALSE ) << ch;
        EXPECT_EQ( value, -1 ) << ch;
    };
    for ( const char ch : "gGzZ@`/:."s ) {
        expectNone( ch );
    }
    for ( const KoChar ch : noAscii ) {
        expectNone( ch );
    }
}

TEST( CharTest, HexdigTakesNoAddress )
{
    EXPECT_EQ( tolmo___CharIsHexdig( 'f', nullptr ), KO_TRUE );
    EXPECT_EQ( tolmo___CharIsHexdig( 'g', nullptr ), KO_FALSE );
}

} // namespace
