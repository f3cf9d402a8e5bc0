/* Tests of the grammar of resource identifiers: skip functions and validation. */
#include <identifier/ulm.h>

#include "test.h"

#include <algorithm>
#include <random>
#include <vector>

namespace {

using test::Exact;
using test::Str;

constexpr const char *path = "source/identifier/ulm_iri.cpp";

class UlmIri : public test::Fixture {};

using Skip = KoInt ( * )( const KoChar *, KoInt );

KoInt SkipAll( Skip skip, std::string_view text )
{
    const Exact chs( text );
    return skip( chs.Chars(), chs.Length() );
}

/** Each prefix in a block of its size: nothing is read behind it, and what is taken is taken again on its own. */
void SweepPrefixes( Skip skip, std::string_view text )
{
    const auto whole = Str( text );
    for ( KoInt count = 0; count <= koStringLength( whole.Get() ); ++count ) {
        const Exact chs( whole.Get(), count );
        const KoInt taken = skip( chs.Chars(), count );
        ASSERT_GE( taken, 0 );
        ASSERT_LE( taken, count );
        const Exact again( whole.Get(), taken );
        ASSERT_EQ( skip( again.Chars(), taken ), taken ) << text;
    }
}

bool Valid( std::string_view text )
{
    return ulmGensValidatePart( 0, Str( text ).Get() ) == KO_TRUE;
}

struct Row {
    const char *text;
    KoInt length;
};

TEST_F( UlmIri, SkipsIris )
{
    static const Row rows[] = {
        { "", 0 },
        { "sip:", 4 }, // nothing but the scheme and the colon has to be there
        { "s:", 2 },
        { "sip:a@b", 7 },
        { "SIP:A@B", 7 },
        { "sip:a@b;x=1?y=z", 15 },
        { "sip:bob@[2001:db8::1]:5060", 26 }, // brackets stand anywhere
        { "sip:[]][", 8 },
        { "tel:+1-201-555-0123;phone-context=a", 35 },
        { "urn:service:sos.fire", 20 },
        { "http://user:pw@example.com:80/a/b?c=d&e=f#g", 43 },
        { "mailto:a@b,c@d", 14 },
        { "x+y-z.1:a", 9 },
        { "sipx:a", 6 },
        { "sip-:a", 6 },
        { "sip;:a", 0 },
        { "sip", 0 },
        { "si", 0 },
        { "si:p", 4 },
        { "siP:p", 5 },
        { "1:a", 0 }, // a scheme begins with a letter
        { "+a:b", 0 },
        { ":a", 0 },
        { "a", 0 },
        { "a_b:c", 0 },
        { "a%41:b", 0 },
        { "\u00E4:b", 0 },
        { "a\u00E4:b", 0 },
        { "//a/b", 0 },
        { "*", 0 },
        { "<sip:a>", 0 },
        { " sip:a", 0 },
        { "sip :a", 0 },
        { "sip:a>", 5 },
        { "sip:a<", 5 },
        { "sip:a b", 5 },
        { "sip:a\tb", 5 },
        { "sip:a\r\nb", 5 },
        { "sip:a\"b", 5 },
        { "sip:a\\b", 5 },
        { "sip:a^b", 5 },
        { "sip:a`b", 5 },
        { "sip:a{b", 5 },
        { "sip:a|b", 5 },
        { "sip:a}b", 5 },
        { "sip:a\x7F", 5 },
        { "sip:a\x01", 5 },
        { "sip:-._~!$&'()*+,;=:@/?[]aZ09", 29 },
        { "sip:a,sip:b", 11 }, // a comma belongs to it
        { "sip:a#b", 7 },
        { "sip:#", 5 },
        { "sip:a#b#c", 7 }, // one fragment
        { "sip:a##", 6 },
        { "sip:a#b?c", 9 },
        { "sip:%41", 7 },
        { "sip:%aF%Fa", 10 },
        { "sip:a%", 5 }, // an escape is two digits
        { "sip:a%4", 5 },
        { "sip:a%4g", 5 },
        { "sip:a%g4", 5 },
        { "sip:a%%41", 5 },
        { "sip:%00", 7 },
        { "sip:a\u0660%\u0661\u0662", 6 }, // digits, but none of ASCII
        { "sip:\u00FC", 5 },
        { "sip:\u00A0", 5 }, // the first ucschar
        { "sip:\u009F", 4 },
        { "sip:\u0080", 4 },
        { "sip:\uD7FF", 5 },
        { "sip:\uE000", 4 }, // private use only behind a question mark
        { "sip:\uF8FF", 4 },
        { "sip:?\uE000\uF8FF", 7 },
        { "sip:#\uE000", 5 },
        { "sip:?#\uE000", 7 },
        { "sip:#?\uE000", 7 },
        { "sip:\U000F0000", 4 },
        { "sip:?\U000F0000\U000FFFFD\U00100000\U0010FFFD", 9 },
        { "sip:?\U000FFFFE", 5 },
        { "sip:?\U0010FFFE", 5 },
        { "sip:?\U0010FFFF", 5 },
        { "sip:\uF900\uFDCF", 6 },
        { "sip:\uFDD0", 4 }, // noncharacters
        { "sip:?\uFDEF", 5 },
        { "sip:\uFDF0\uFFEF", 6 },
        { "sip:\uFFF0", 4 }, // specials are no ucschar
        { "sip:\uFFFD", 4 },
        { "sip:\uFFFE", 4 },
        { "sip:\uFFFF", 4 },
        { "sip:\U00010000\U0001FFFD", 6 },
        { "sip:\U0001FFFE", 4 },
        { "sip:\U0001FFFF", 4 },
        { "sip:\U0002FFFF", 4 },
        { "sip:\U000DFFFD", 5 },
        { "sip:\U000E0000", 4 }, // tags are none
        { "sip:\U000E0FFF", 4 },
        { "sip:\U000E1000\U000EFFFD", 6 },
        { "sip:\U000EFFFE", 4 },
        { "sip:\u200E\u202E\uFEFF", 7 }, // ucschar, though nobody sees them
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( SkipAll( ulm___SkipIri, row.text ), row.length ) << row.text;
        SweepPrefixes( ulm___SkipIri, row.text );
        const auto s = Str( row.text );
        EXPECT_EQ( Valid( row.text ), row.length > 0 && row.length == koStringLength( s.Get() ) ) << row.text;
    }
}

TEST_F( UlmIri, WhatIsNoCharacterEndsAnIri )
{
    for ( const KoChar ch : { -1, INT32_MIN, 0xD800, 0xDFFF, 0x110000, INT32_MAX, 0 } ) {
        for ( const KoChar front : { '/', '?', '#' } ) {
            const KoChar chs[] = { 's', ':', front, ch, 'a' };
            EXPECT_EQ( ulm___SkipIri( chs, 5 ), 3 ) << ch;
        }
        const KoChar scheme[] = { 's', ch, ':' };
        EXPECT_EQ( ulm___SkipIri( scheme, 3 ), 0 );
        EXPECT_EQ( ulm___SkipIri( scheme + 1, 2 ), 0 );
        EXPECT_EQ( ulm___SkipPort( scheme + 1, 2 ), 0 );
        EXPECT_EQ( ulm___SkipIpV4Address( scheme + 1, 2 ), 0 );
        EXPECT_EQ( ulm___SkipIpV6Address( scheme + 1, 2 ), 0 );
    }
}

// Each character in front of a question mark, and behind one, against the ranges of RFC 3987 as they stand there.
TEST_F( UlmIri, EachCharacter )
{
    static const struct {
        KoChar first;
        KoChar last;
        bool query;
    } ranges[] = {
        { 0xA0, 0xD7FF, false },     { 0xF900, 0xFDCF, false },    { 0xFDF0, 0xFFEF, false },
        { 0x10000, 0x1FFFD, false }, { 0x20000, 0x2FFFD, false },  { 0x30000, 0x3FFFD, false },
        { 0x40000, 0x4FFFD, false }, { 0x50000, 0x5FFFD, false },  { 0x60000, 0x6FFFD, false },
        { 0x70000, 0x7FFFD, false }, { 0x80000, 0x8FFFD, false },  { 0x90000, 0x9FFFD, false },
        { 0xA0000, 0xAFFFD, false }, { 0xB0000, 0xBFFFD, false },  { 0xC0000, 0xCFFFD, false },
        { 0xD0000, 0xDFFFD, false }, { 0xE1000, 0xEFFFD, false },  { 0xE000, 0xF8FF, true },
        { 0xF0000, 0xFFFFD, true },  { 0x100000, 0x10FFFD, true },
    };
    const std::string_view ascii =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789-._~!$&'()*+,;=:@/?[]#";
    for ( KoChar ch = 0; ch <= 0x10FFFF; ++ch ) {
        bool inPath = ch < 0x80 && ascii.find( static_cast<char>( ch ) ) != std::string_view::npos;
        bool query = inPath;
        for ( const auto &range : ranges ) {
            if ( ch >= range.first && ch <= range.last ) {
                query = true;
                inPath = !range.query;
            }
        }
        const KoChar chs[] = { 's', ':', ch, '?', ch };
        const KoInt taken = ulm___SkipIri( chs, 5 );
        const KoInt wanted = !inPath ? 2 : ch == '#' ? 4 : 5;
        ASSERT_EQ( taken, wanted ) << std::hex << ch;
        const KoChar behind[] = { 's', ':', '?', ch };
        ASSERT_EQ( ulm___SkipIri( behind, 4 ), query ? 4 : 3 ) << std::hex << ch;
    }
}

// Texts of each length with another character at each place, so in each place of a block of any size.
TEST_F( UlmIri, EachPlace )
{
    static constexpr KoChar goOn[] = { '@',    '?',    '#', '!',    '$',    '&',     ';',     '=',    'A',  'Z',
                                       'a',    'z',    '[', ']',    '_',    '~',     '-',     0xA0,   0xFF, 0x7FFF,
                                       0x8000, 0xD7FF, '0', 0xF900, 0xFFEF, 0x10000, 0x10061, 0x1FFFD };
    static constexpr KoChar stop[] = { 0,      ' ',      '"',        '%',       '<',       '>',
                                       '\\',   '^',      '`',        '{',       '|',       '}',
                                       0x7F,   0x80,     0x9F,       0xD800,    0xE000,    0xFFF0,
                                       0xFFFF, 0x110000, 0x7FFF0061, INT32_MAX, INT32_MIN, INT32_MIN + 'x',
                                       -1,     -0x8000 };
    static constexpr size_t most = 60;
    for ( size_t length = 4; length <= most; ++length ) {
        std::vector<KoChar> chs( length, 'x' );
        constexpr KoChar scheme[] = { 's', 'i', 'p', ':' };
        std::copy( std::begin( scheme ), std::end( scheme ), chs.begin() );
        const auto taken = [&] { return ulm___SkipIri( chs.data(), static_cast<KoInt>( length ) ); };
        ASSERT_EQ( taken(), length );
        for ( size_t place = 4; place < length; ++place ) {
            for ( const KoChar ch : goOn ) {
                chs[place] = ch;
                ASSERT_EQ( taken(), length ) << std::hex << ch << " at " << place;
            }
            for ( const KoChar ch : stop ) {
                chs[place] = ch;
                ASSERT_EQ( taken(), place ) << std::hex << ch << " at " << place;
            }
            chs[place] = 'x';
        }
        for ( size_t place = 4; place + 2 < length; ++place ) {
            chs[place] = '%';
            chs[place + 1] = '4';
            chs[place + 2] = 'f';
            ASSERT_EQ( taken(), length ) << place;
            chs[place + 2] = 'g';
            ASSERT_EQ( taken(), place );
            chs[place] = chs[place + 1] = chs[place + 2] = 'x';
        }
    }
}

TEST_F( UlmIri, SkipsPorts )
{
    static const Row rows[] = {
        { "", 0 },
        { "5060", 4 },
        { "0", 1 },
        { "70000", 5 }, // no bound but that of a number
        { "5060x", 4 },
        { "x", 0 },
        { "-1", 0 },
        { "+1", 0 },
        { " 1", 0 },
        { "1 2", 1 },
        { "9223372036854775807", 19 },
        { "9223372036854775807;", 19 },
        { "9223372036854775808", 0 },
        { "18446744073709551616", 0 }, // would wrap to 0
        { "18446744073709556676", 0 },
        { "00000000000000000000000000005060", 32 },
        { "\u0661", 0 },
        { ":5060", 0 },
        { "9:", 1 },
        { "1/", 1 },
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( SkipAll( ulm___SkipPort, row.text ), row.length ) << row.text;
    }
    for ( const char *const text : { "5060x", "9223372036854775807", "000000000000000000000000" } ) {
        SweepPrefixes( ulm___SkipPort, text );
    }
    EXPECT_EQ( SkipAll( ulm___SkipPort, std::string( 1'000'000, '9' ) ), 0 );
    EXPECT_EQ( SkipAll( ulm___SkipPort, std::string( 1'000'000, '0' ) ), 1'000'000 );
}

TEST_F( UlmIri, SkipsAddresses )
{
    EXPECT_EQ( SkipAll( ulm___SkipIpV4Address, "192.0.2.1:5060" ), 9 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV4Address, "1.2.3.4x" ), 7 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV4Address, "1.2.3.256" ), 0 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV4Address, "::1" ), 0 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV6Address, "::1]" ), 3 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV6Address, "::1%25e" ), 3 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV6Address, "[::1]" ), 0 );
    EXPECT_EQ( SkipAll( ulm___SkipIpV6Address, "1.2.3.4" ), 0 );
    SweepPrefixes( ulm___SkipIpV4Address, "255.255.255.255x" );
    SweepPrefixes( ulm___SkipIpV6Address, "2001:db8::ffff:192.0.2.1]" );
}

TEST_F( UlmIri, EndsOfText )
{
    for ( const Skip skip : { ulm___SkipIri, ulm___SkipIpV4Address, ulm___SkipIpV6Address, ulm___SkipPort } ) {
        EXPECT_EQ( skip( nullptr, 0 ), 0 );
        EXPECT_ABORT( skip( nullptr, -1 ), path, "length >= 0" );
        EXPECT_ABORT( skip( nullptr, 1 ), path, "chs || length == 0" );
        const KoChar ch = 'a';
        EXPECT_ABORT( skip( &ch, -1 ), path, "length >= 0" );
    }
}

TEST_F( UlmIri, RandomTexts )
{
    std::mt19937 random( 10 );
    int iris = 0;
    for ( int i = 0; i < 100'000; ++i ) {
        std::string text( random() % 24, ' ' );
        for ( char &ch : text ) {
            ch = "sip:::a@b%%41#?[]/; ,\xC3\xBC"[random() % 23];
        }
        SweepPrefixes( ulm___SkipIri, "s:" + text );
        iris += Valid( "s:" + text );
    }
    EXPECT_GT( iris, 10'000 );
}

TEST_F( UlmIri, Validates )
{
    EXPECT_TRUE( Valid( "sip:" ) );
    EXPECT_TRUE( Valid( "sip:a@[::1]" ) );
    EXPECT_FALSE( Valid( "" ) );
    EXPECT_FALSE( Valid( "sip" ) );
    EXPECT_FALSE( Valid( "sip:a b" ) );
    EXPECT_FALSE( Valid( "sip:a " ) );
    EXPECT_FALSE( Valid( "*" ) );
    EXPECT_TRUE( Valid( "sip:" + std::string( 1'000'000, 'a' ) ) );
    EXPECT_ABORT( ulmGensValidatePart( 1, nullptr ), path, "part == 0" );
    EXPECT_ABORT( ulmGensValidatePart( -1, Str( "sip:a" ).Get() ), path, "part == 0" );
    EXPECT_ABORT( ulmGensValidatePart( 0, nullptr ), path, "iri" );
}

TEST_F( UlmIri, Module )
{
    const KoModule module = ulmModule();
    EXPECT_EQ( module, ulmModule() );
    EXPECT_STREQ( module->record->name, "ulm" );
    EXPECT_STREQ( module->record->description, "Resource Identifiers" );
    EXPECT_STREQ( module->record->needs, "wen ko" );
    EXPECT_TRUE( koModuleStart( module ) );
    koModuleStop( module );
}

} // namespace
