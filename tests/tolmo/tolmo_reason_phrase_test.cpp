#include "test.h"

#include <tolmo/tolmo_reason_phrase.h>

#include <random>

namespace {

using test::Str;
using test::Text;
using namespace std::string_view_literals;

class ReasonPhrase : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_reason_phrase.cpp";

std::string Encode( std::string_view text )
{
    return test::Take( tolmo___ReasonPhraseEncode( Str( text ).Get() ) );
}

std::string Decode( std::string_view text )
{
    const test::Exact chs( text );
    return test::Take( tolmo___ReasonPhraseDecode( chs.Chars(), chs.Length() ) );
}

TEST_F( ReasonPhrase, Ok )
{
    EXPECT_TRUE( tolmoReasonPhraseOk( Str( "" ).Get() ) );
    EXPECT_TRUE( tolmoReasonPhraseOk( Str( "OK" ).Get() ) );
    EXPECT_TRUE( tolmoReasonPhraseOk( Str( "a\r\nb\0"sv ).Get() ) ); // the encoder escapes it
    EXPECT_ABORT( tolmoReasonPhraseOk( nullptr ), path, "reasonPhrase" );
}

TEST_F( ReasonPhrase, Encode )
{
    const struct {
        std::string_view phrase;
        std::string_view wire;
    } rows[] = { { "", "" },
                 { "OK", "OK" },
                 { "Call leg/transaction does not exist", "Call leg/transaction does not exist" },
                 { "a\tb", "a\tb" },
                 { "%", "%25" },
                 { "100%", "100%25" },
                 { "a\r\nb", "a%0D%0Ab" },
                 { "\0\x1F\x7F"sv, "%00%1F%7F" },
                 { "\"#%<>[\\]^`{|}", "%22%23%25%3C%3E%5B%5C%5D%5E%60%7B%7C%7D" },
                 { "$&+,/:;=?@!'()*-._~", "$&+,/:;=?@!'()*-._~" },
                 { "Unknown reason \"199\"", "Unknown reason %22199%22" },
                 { "\u0080\u00E9\U0001F600", "\u0080\u00E9\U0001F600" } }; // only ASCII is escaped
    for ( const auto &row : rows ) {
        EXPECT_EQ( Encode( row.phrase ), row.wire );
        EXPECT_EQ( Decode( row.wire ), row.phrase );
    }
    // A string may hold what is no code point. That goes through as well, and the encoder of the message replaces it.
    const KoChar chs[] = { 'a', -1, INT32_MIN, 0x110000 };
    const auto phrase = KoRef<KoString>::Adopt( koStringCreateFromCharsCopy( chs, std::size( chs ) ) );
    const auto wire = KoRef<KoString>::Adopt( tolmo___ReasonPhraseEncode( phrase.Get() ) );
    EXPECT_TRUE( koStringEquals( wire.Get(), phrase.Get() ) );
    EXPECT_ABORT( tolmo___ReasonPhraseEncode( nullptr ), path, "reasonPhrase" );
}

TEST_F( ReasonPhrase, Decode )
{
    const struct {
        std::string_view wire;
        std::string_view phrase;
    } rows[] = { { "100%", "100%" }, // no two characters behind it
                 { "%4", "%4" },
                 { "%zz", "%zz" },
                 { "%4g", "%4g" },
                 { "%%41", "%A" },
                 { "%2541", "%41" }, // what is decoded is not decoded again
                 { "%0a%0A", "\n\n" },
                 { "%00", "\0"sv },
                 { "%ff", "\u00FF" },
                 { "%C3%A9", "\u00C3\u00A9" }, // characters, not bytes of UTF-8
                 { "%4\u00E9", "%4\u00E9" },
                 { "a b", "a b" } };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Decode( row.wire ), row.phrase ) << "text: " << row.wire;
    }
    EXPECT_EQ( test::Take( tolmo___ReasonPhraseDecode( nullptr, 0 ) ), "" );
    EXPECT_ABORT( tolmo___ReasonPhraseDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___ReasonPhraseDecode( nullptr, 1 ), path, "chs || length == 0" );
}

TEST_F( ReasonPhrase, DecodeOfEncodeOfAny )
{
    std::mt19937 random( 4 );
    for ( int i = 0; i < 20000; ++i ) {
        auto phrase = KoRef<KoString>::Adopt( koStringCreate() );
        for ( auto length = random() % 16; length > 0; --length ) {
            const bool any = random() % 4 == 0;
            const char likely[] = "%%%0123456789abcdefAF";
            koStringAppendChar( phrase.Address(), any ? static_cast<KoChar>( random() % 0x180 )
                                                      : static_cast<KoChar>( likely[random() % 21] ) );
        }
        const auto wire = KoRef<KoString>::Adopt( tolmo___ReasonPhraseEncode( phrase.Get() ) );
        const test::Exact chs( wire.Get(), -1 );
        EXPECT_EQ( test::Take( tolmo___ReasonPhraseDecode( chs.Chars(), chs.Length() ) ), Text( phrase ) );
    }
}

} // namespace
