#include "test.h"

#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_skip.h>

#include <random>

namespace {

using test::Str;
using namespace std::string_view_literals;

class QuotableString : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_quotable_string.cpp";
constexpr char noLineEnd[] = "backing[i] != KO_CHAR_CARRIAGE_RETURN && backing[i] != KO_CHAR_LINE_FEED";

std::string Encode( std::string_view text )
{
    return test::Take( tolmo___QuotableStringEncode( Str( text ).Get() ) );
}

std::string Decode( std::string_view text )
{
    const test::Exact chs( text );
    return test::Take( tolmo___QuotableStringTryDecode( chs.Chars(), chs.Length() ) );
}

TEST_F( QuotableString, Ok )
{
    EXPECT_TRUE( tolmoQuotableStringOk( Str( "" ).Get() ) );
    EXPECT_TRUE( tolmoQuotableStringOk( Str( "a \"b\" \\ \t\x7F\u00E9\U0001F600" ).Get() ) );
    EXPECT_TRUE( tolmoQuotableStringOk( Str( "\0"sv ).Get() ) );
    EXPECT_FALSE( tolmoQuotableStringOk( Str( "\r" ).Get() ) );
    EXPECT_FALSE( tolmoQuotableStringOk( Str( "a\nb" ).Get() ) );
    EXPECT_FALSE( tolmoQuotableStringOk( Str( "a\r\n" ).Get() ) );
    EXPECT_ABORT( tolmoQuotableStringOk( nullptr ), path, "quotableString" );
}

TEST_F( QuotableString, Encode )
{
    const struct {
        std::string_view text;
        std::string_view quoted;
    } rows[] = { { "", "\"\"" },
                 { "Bob", "\"Bob\"" },
                 { "a b", "\"a b\"" },
                 { "a  ", "\"a \\ \"" }, // every second blank of a run
                 { "a   b", "\"a \\  b\"" },
                 { "    ", "\" \\  \\ \"" },
                 { " a ", "\" a \"" }, // another character ends the run
                 { "  a  ", "\" \\ a \\ \"" },
                 { "\t", "\"\\\t\"" },
                 { " \t ", "\" \\\t \"" }, // a tab ends it too
                 { "\"", "\"\\\"\"" },
                 { "\\", "\"\\\\\"" },
                 { " \\ ", "\" \\\\ \"" },
                 { "\0"sv, "\"\\\0\""sv },
                 { "\x1F\x20\x7E\x7F", "\"\\\x1F\x20\x7E\\\x7F\"" },
                 { "\u0080\u00E9\U0001F600", "\"\u0080\u00E9\U0001F600\"" } };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Encode( row.text ), row.quoted ) << "text: " << row.text;
        EXPECT_EQ( Decode( row.quoted ), row.text );
    }
    EXPECT_ABORT( tolmo___QuotableStringEncode( nullptr ), path, "quotableString" );
    EXPECT_ABORT( tolmo___QuotableStringEncode( Str( "a\r" ).Get() ), path, noLineEnd );
    EXPECT_ABORT( tolmo___QuotableStringEncode( Str( "\nb" ).Get() ), path, noLineEnd );
}

TEST_F( QuotableString, TryDecode )
{
    const struct {
        std::string_view quoted;
        std::string_view text; // "(null)": refused
    } rows[] = { { "\"\"", "" },
                 { "\"a\"", "a" },
                 { " \t\"a\"", "a" }, // whitespace may stand before
                 { "\"\\a\"", "a" },  // an escaped letter is the letter
                 { "\"\\\u00E9\"", "\u00E9" },
                 { "\"\\\\\"", "\\" },
                 { "\"\\\"\"", "\"" },
                 { "\"  a \t \"", "  a \t " },
                 { "\"\0\x7F\""sv, "\0\x7F"sv }, // controls need no escape
                 { "\"\\\0\""sv, "\0"sv },
                 { "", "(null)" },
                 { "a", "(null)" },
                 { "\"", "(null)" },
                 { " \"", "(null)" },
                 { "\"a", "(null)" },
                 { "\"\\", "(null)" },
                 { "\"\\\"", "(null)" }, // the closing quote is escaped
                 { "\"a\" ", "(null)" }, // nothing may stand behind
                 { "\"a\"b", "(null)" },
                 { "\"a\"\"b\"", "(null)" },
                 { "\"a\nb\"", "(null)" },
                 { "\"a\r\"", "(null)" },
                 { "\"a\\\n\"", "(null)" },
                 { "\"a\\\r\"", "(null)" },
                 { " ", "(null)" } };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Decode( row.quoted ), row.text ) << "text: " << row.quoted;
    }
    EXPECT_EQ( tolmo___QuotableStringTryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( tolmo___QuotableStringTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___QuotableStringTryDecode( nullptr, 1 ), path, "chs || length == 0" );
}

TEST_F( QuotableString, EveryPrefixIsRefused )
{
    const auto whole = Str( "\"a\\\" \\\\ b\\c\"" );
    for ( KoInt length = 0; length < koStringLength( whole.Get() ); ++length ) {
        const test::Exact chs( whole.Get(), length );
        EXPECT_EQ( tolmo___QuotableStringTryDecode( chs.Chars(), chs.Length() ), nullptr ) << length;
    }
}

/** Characters that matter here, and others. */
KoRef<KoString> Random( std::mt19937 &random )
{
    static constexpr KoChar alphabet[] = { ' ', ' ', ' ', '\t', '"', '\\', 'a', 0x00, 0x1F, 0x7F, 0x80, 0xE9, 0x1F600 };
    KoRef<KoString> s = KoRef<KoString>::Adopt( koStringCreate() );
    for ( auto length = random() % 24; length > 0; --length ) {
        koStringAppendChar( s.Address(), alphabet[random() % std::size( alphabet )] );
    }
    return s;
}

TEST_F( QuotableString, DecodeOfEncodeOfAny )
{
    std::mt19937 random( 1 );
    for ( int i = 0; i < 20000; ++i ) {
        const auto text = Random( random );
        const auto quoted = KoRef<KoString>::Adopt( tolmo___QuotableStringEncode( text.Get() ) );
        EXPECT_EQ( tolmo___SkipQuotedString( koStringBacking( quoted.Get() ), koStringLength( quoted.Get() ) ),
                   koStringLength( quoted.Get() ) );
        const test::Exact chs( quoted.Get(), -1 );
        EXPECT_EQ( test::Take( tolmo___QuotableStringTryDecode( chs.Chars(), chs.Length() ) ), test::Text( text ) );
    }
}

// What the skip function takes is what the decoder takes.
TEST_F( QuotableString, DecoderTakesWhatTheSkipFunctionTakes )
{
    static constexpr KoChar alphabet[] = { ' ', '"', '"', '"', '\\', 'a', '\r', '\n', 0xE9 };
    std::mt19937 random( 2 );
    int taken = 0;
    for ( int i = 0; i < 50000; ++i ) {
        std::vector<KoChar> chs( 1 + random() % 8 );
        for ( KoChar &ch : chs ) {
            ch = alphabet[random() % std::size( alphabet )];
        }
        const KoInt length = tolmo___SkipQuotedString( chs.data(), static_cast<KoInt>( chs.size() ) );
        for ( KoInt part = 0; part <= static_cast<KoInt>( chs.size() ); ++part ) {
            const auto text = KoRef<KoString>::Adopt( tolmo___QuotableStringTryDecode( chs.data(), part ) );
            EXPECT_EQ( static_cast<bool>( text ), length > 0 && part == length );
        }
        taken += length > 0;
    }
    EXPECT_GT( taken, 1000 );
}

TEST_F( QuotableString, Huge )
{
    const std::string text( 1000000, '"' );
    const std::string quoted = Encode( text );
    EXPECT_EQ( quoted.size(), 2 * text.size() + 2 );
    EXPECT_EQ( Decode( quoted ), text );
}

} // namespace
