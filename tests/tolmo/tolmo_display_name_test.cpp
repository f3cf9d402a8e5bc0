#include "test.h"

#include <tolmo/tolmo_display_name.h>

#include <random>

namespace {

using test::Str;
using test::Text;
using namespace std::string_view_literals;

class DisplayName : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_display_name.cpp";

std::string Decode( std::string_view text )
{
    const test::Exact chs( text );
    return test::Take( tolmo___DisplayNameTryDecode( chs.Chars(), chs.Length() ) );
}

TEST_F( DisplayName, Ok )
{
    EXPECT_TRUE( tolmoDisplayNameOk( Str( "" ).Get() ) );
    EXPECT_TRUE( tolmoDisplayNameOk( Str( "Bob Smith" ).Get() ) );
    EXPECT_TRUE( tolmoDisplayNameOk( Str( "<any> \"text\"\t\\ \u00E9" ).Get() ) ); // whatever has no line end
    EXPECT_FALSE( tolmoDisplayNameOk( Str( "Bob\r" ).Get() ) );
    EXPECT_FALSE( tolmoDisplayNameOk( Str( "Bob\n Smith" ).Get() ) );
    EXPECT_ABORT( tolmoDisplayNameOk( nullptr ), path, "displayName" );
}

TEST_F( DisplayName, NormalizeWhitespace )
{
    const struct {
        std::string_view text;
        std::string_view normal;
    } rows[] = { { "", "" },
                 { " ", " " },
                 { "Bob Smith", "Bob Smith" },
                 { "\t", " " }, // a lone tab
                 { "  ", " " },
                 { "\t\t", " " },
                 { " Bob ", " Bob " }, // both ends keep one blank
                 { "  Bob  ", " Bob " },
                 { "a\t  b", "a b" },
                 { "a \tb", "a b" },
                 { "a\tb", "a b" },
                 { "a b  c   d", "a b c d" },
                 { "\u00A0  \u00A0", "\u00A0 \u00A0" } }; // whitespace is blank and tab only
    for ( const auto &row : rows ) {
        auto name = Str( row.text );
        const KoString given = name.Get();
        tolmoDisplayNameNormalizeWhitespace( name.Address() );
        EXPECT_EQ( Text( name ), row.normal ) << "text: " << row.text;
        if ( row.text == row.normal ) {
            EXPECT_EQ( name.Get(), given ) << "text: " << row.text;
        }
    }
}

TEST_F( DisplayName, NormalizeWhitespaceLeavesOtherHandlesAlone )
{
    const auto other = Str( "a  b" );
    auto name = KoRef<KoString>::Share( other.Get() );
    tolmoDisplayNameNormalizeWhitespace( name.Address() );
    EXPECT_EQ( Text( name ), "a b" );
    EXPECT_EQ( Text( other ), "a  b" );
    EXPECT_EQ( test::Count( other.Get() ), 1 );

    const auto same = Str( "a b" );
    auto shared = KoRef<KoString>::Share( same.Get() );
    tolmoDisplayNameNormalizeWhitespace( shared.Address() );
    EXPECT_EQ( shared.Get(), same.Get() );
    EXPECT_EQ( test::Count( same.Get() ), 2 );
}

TEST_F( DisplayName, NormalizeWhitespaceAborts )
{
    KoString null = nullptr;
    auto bad = Str( "a\n" );
    EXPECT_ABORT( tolmoDisplayNameNormalizeWhitespace( nullptr ), path, "displayName" );
    EXPECT_ABORT( tolmoDisplayNameNormalizeWhitespace( &null ), path, "*displayName" );
    EXPECT_ABORT( tolmoDisplayNameNormalizeWhitespace( bad.Address() ), path, "tolmoDisplayNameOk( *displayName )" );
}

TEST_F( DisplayName, Encode )
{
    EXPECT_EQ( test::Take( tolmo___DisplayNameEncode( Str( "" ).Get() ) ), "\"\"" );
    EXPECT_EQ( test::Take( tolmo___DisplayNameEncode( Str( "Bob" ).Get() ) ), "\"Bob\"" ); // a token is quoted too
    EXPECT_EQ( test::Take( tolmo___DisplayNameEncode( Str( "J\u00FCrgen \"J\"" ).Get() ) ),
               "\"J\u00FCrgen \\\"J\\\"\"" );
    EXPECT_ABORT( tolmo___DisplayNameEncode( nullptr ), path, "displayName" );
    EXPECT_ABORT( tolmo___DisplayNameEncode( Str( "a\rb" ).Get() ), path, "tolmoDisplayNameOk( displayName )" );
    EXPECT_ABORT( tolmo___DisplayNameEncode( Str( "\n" ).Get() ), path, "tolmoDisplayNameOk( displayName )" );
}

TEST_F( DisplayName, TryDecode )
{
    const struct {
        std::string_view text;
        std::string_view name; // "(null)": refused
    } rows[] = { { "", "" },   // no name is a name
                 { "Bob", "Bob" },
                 { "Bob  Smith ", "Bob Smith" },
                 { "Bob\t \tSmith\t", "Bob Smith" },
                 { "a b c", "a b c" },
                 { "%zz*", "%zz*" },
                 { "\"Bob  Smith \"", "Bob  Smith " }, // quoted blanks stay
                 { " \"Bob\"", "Bob" },
                 { "\"\"", "" },
                 { " Bob", "(null)" }, // whitespace may not stand before tokens
                 { " ", "(null)" },
                 { "\"Bob\" ", "(null)" },
                 { "\"Bob\" Smith", "(null)" },
                 { "Bob \"Smith\"", "(null)" },
                 { "Bob <", "(null)" },
                 { "Bob,", "(null)" },
                 { "J\u00FCrgen", "(null)" }, // only in quotes
                 { "a\nb", "(null)" },
                 { "\"", "(null)" } };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Decode( row.text ), row.name ) << "text: " << row.text;
    }
    EXPECT_EQ( test::Take( tolmo___DisplayNameTryDecode( nullptr, 0 ) ), "" );
    EXPECT_ABORT( tolmo___DisplayNameTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___DisplayNameTryDecode( nullptr, 1 ), path, "chs || length == 0" );
}

TEST_F( DisplayName, DecodeOfEncodeOfAny )
{
    static constexpr KoChar alphabet[] = { ' ', ' ', '\t', '"', '\\', '<', 'a', 0x00, 0x7F, 0xFC, 0x4E2D };
    std::mt19937 random( 3 );
    for ( int i = 0; i < 20000; ++i ) {
        auto name = KoRef<KoString>::Adopt( koStringCreate() );
        for ( auto length = random() % 16; length > 0; --length ) {
            koStringAppendChar( name.Address(), alphabet[random() % std::size( alphabet )] );
        }
        const auto encoded = KoRef<KoString>::Adopt( tolmo___DisplayNameEncode( name.Get() ) );
        const test::Exact chs( encoded.Get(), -1 );
        EXPECT_EQ( test::Take( tolmo___DisplayNameTryDecode( chs.Chars(), chs.Length() ) ), Text( name ) );
    }
}

TEST_F( DisplayName, Huge )
{
    std::string text;
    for ( int i = 0; i < 100000; ++i ) {
        text += "a \t";
    }
    const std::string name = Decode( text );
    EXPECT_EQ( name.size(), 199999u );
    EXPECT_EQ( name.find( "  " ), std::string::npos );
}

} // namespace
