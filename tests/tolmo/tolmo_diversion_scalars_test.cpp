/* Privacy, reason and screening of a Diversion: one kind of word. */
#include "test.h"

#include <tolmo/tolmo_diversion_privacy.h>
#include <tolmo/tolmo_diversion_reason.h>
#include <tolmo/tolmo_diversion_screen.h>

namespace {

using test::Str;
using test::Text;

struct Word {
    KoBool ( *ok )( KoString );
    KoString ( *normalize )( KoString );
    KoString ( *encode )( KoString );
    KoString ( *tryDecode )( const KoChar *, KoInt );
    const char *path;
    const char *parameter;
};

const Word words[] = { { tolmoDiversionPrivacyOk, tolmoDiversionPrivacyNormalize, tolmo___DiversionPrivacyEncode,
                         tolmo___DiversionPrivacyTryDecode, "source/tolmo/tolmo_diversion_privacy.cpp", "privacy" },
                       { tolmoDiversionReasonOk, tolmoDiversionReasonNormalize, tolmo___DiversionReasonEncode,
                         tolmo___DiversionReasonTryDecode, "source/tolmo/tolmo_diversion_reason.cpp", "reason" },
                       { tolmoDiversionScreenOk, tolmoDiversionScreenNormalize, tolmo___DiversionScreenEncode,
                         tolmo___DiversionScreenTryDecode, "source/tolmo/tolmo_diversion_screen.cpp", "screen" } };

class DiversionScalars : public test::Fixture {};

TEST_F( DiversionScalars, OkAndTryDecode )
{
    const struct {
        std::string_view text;
        std::string_view decoded; // "(null)": refused
    } rows[] = { { "user-busy", "user-busy" },
                 { "USER-BUSY", "USER-BUSY" },
                 { "\"Time of Day\"", "Time of Day" },
                 { "\"a\\\"b\"", "a\"b" },
                 { "\"\"", "" },
                 { " \"a\"", "a" }, // a quoted string brings its whitespace
                 { "", "(null)" },
                 { "time of day", "(null)" }, // what the decoder gives need not be valid itself
                 { " a", "(null)" },
                 { "a ", "(null)" },
                 { "\"a\" ", "(null)" },
                 { "\"a", "(null)" },
                 { "a\"b\"", "(null)" },
                 { "\u00E9", "(null)" } };
    for ( const Word &word : words ) {
        for ( const auto &row : rows ) {
            EXPECT_EQ( word.ok( Str( row.text ).Get() ), row.decoded != "(null)" ) << row.text;
            const test::Exact chs( row.text );
            EXPECT_EQ( test::Take( word.tryDecode( chs.Chars(), chs.Length() ) ), row.decoded ) << row.text;
        }
        EXPECT_EQ( word.tryDecode( nullptr, 0 ), nullptr );
        EXPECT_ABORT( word.ok( nullptr ), word.path, word.parameter );
        EXPECT_ABORT( word.tryDecode( nullptr, -1 ), word.path, "length >= 0" );
        EXPECT_ABORT( word.tryDecode( nullptr, 1 ), word.path, "chs || length == 0" );
    }
}

TEST_F( DiversionScalars, Encode )
{
    for ( const Word &word : words ) {
        const auto token = Str( "User-Busy" );
        const auto same = KoRef<KoString>::Adopt( word.encode( token.Get() ) );
        EXPECT_EQ( same.Get(), token.Get() ); // a token needs no copy
        EXPECT_EQ( test::Take( word.encode( Str( "time of day" ).Get() ) ), "\"time of day\"" );
        EXPECT_EQ( test::Take( word.encode( Str( "\"a\"" ).Get() ) ), "\"\\\"a\\\"\"" ); // quotes are text here
        EXPECT_EQ( test::Take( word.encode( Str( "" ).Get() ) ), "\"\"" );
        EXPECT_ABORT( word.encode( nullptr ), word.path, word.parameter );
        EXPECT_ABORT( word.encode( Str( "a\r\nb" ).Get() ), "source/tolmo/tolmo_quotable_string.cpp",
                      "backing[i] != KO_CHAR_CARRIAGE_RETURN && backing[i] != KO_CHAR_LINE_FEED" );
    }
}

TEST_F( DiversionScalars, NormalizeDoesNotAskTheValidator )
{
    for ( const Word &word : words ) {
        for ( const auto &[text, normal] : { std::pair<std::string_view, std::string_view>{ "USER-Busy", "user-busy" },
                                             { "Time of Day", "time of day" },
                                             { "", "" },
                                             { "A\r\nB", "a\r\nb" },
                                             { "\u00C9", "\u00E9" } } ) { // by the tables of Unicode
            const auto s = Str( text );
            EXPECT_EQ( test::Take( word.normalize( s.Get() ) ), normal );
            EXPECT_EQ( Text( s ), text );
        }
        EXPECT_ABORT( word.normalize( nullptr ), word.path, word.parameter );
    }
}

} // namespace
