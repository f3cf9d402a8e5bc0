/* One item of a Warning header. */
#include "tolmo_value_test.h"

namespace {

using test::Own;
using test::Str;
using test::Take;

struct Functions {
    TEST_STANDARD_FUNCTIONS( WarningValue )
    static constexpr auto Encode = tolmo___WarningValueEncode;
    static constexpr auto TryDecode = tolmo___WarningValueTryDecode;
    static constexpr auto Skip = tolmo___SkipWarningValue;
    static constexpr char path[] = "source/tolmo/tolmo_warning_value.cpp";
    static constexpr char name[] = "wv";
};

class WarningValue : public test::TolmoFixture {};

constexpr auto decode = test::Decode<Functions>;
constexpr auto encode = test::Encode<Functions>;
constexpr auto path = Functions::path;

KoRef<TolmoWarningValue> Create( KoInt warnCode, std::string_view warnAgent )
{
    return Own( tolmoWarningValueCreate( warnCode, Str( warnAgent ).Get() ) );
}

TEST_F( WarningValue, StandardOperations )
{
    const auto wv = decode( "399 a \"b\"" );
    test::ExpectStandardOperations<Functions>( wv.Get(), "TOLMO_WARNING_VALUE", path, "wv", "wvA", "wvB" );
    EXPECT_EQ( tolmoWarningValueSort()->toString, nullptr );
    EXPECT_EQ( Take( tolmoWarningValueToString( wv.Get() ) ), "<TOLMO_WARNING_VALUE>" );
}

TEST_F( WarningValue, Create )
{
    const auto agent = Str( "host1" );
    const auto known = Own( tolmoWarningValueCreate( 399, agent.Get() ) );
    EXPECT_EQ( tolmoWarningValueWarnCode( known.Get() ), 399 );
    EXPECT_EQ( Own( tolmoWarningValueWarnAgent( known.Get() ) ).Get(), agent.Get() );
    EXPECT_EQ( Take( tolmoWarningValueWarnText( known.Get() ) ), "Miscellaneous warning" );
    EXPECT_EQ( encode( known ), "399 host1 \"Miscellaneous warning\"" );

    const auto unknown = Create( 123, "host1" );
    EXPECT_EQ( Take( tolmoWarningValueWarnText( unknown.Get() ) ), "Warning \"123\"" ); // the quotes are in the text
    EXPECT_EQ( encode( unknown ), "123 host1 \"Warning \\\"123\\\"\"" );
    EXPECT_EQ( encode( Create( 0, "[::1]:5060" ) ), "0 [::1]:5060 \"Warning \\\"000\\\"\"" );

    const auto text = Str( "x" );
    const auto with = Own( tolmoWarningValueCreateWithWarnText( 999, agent.Get(), text.Get() ) );
    EXPECT_EQ( Own( tolmoWarningValueWarnText( with.Get() ) ).Get(), text.Get() );
    EXPECT_EQ( encode( with ), "999 host1 \"x\"" );

    const auto bad = Str( "a b" );
    const auto lines = Str( "a\nb" );
    EXPECT_ABORT( tolmoWarningValueCreate( -1, nullptr ), path, "tolmoWarnCodeOk( warnCode )" );
    EXPECT_ABORT( tolmoWarningValueCreate( 1000, agent.Get() ), path, "tolmoWarnCodeOk( warnCode )" );
    EXPECT_ABORT( tolmoWarningValueCreate( 300, nullptr ), "source/tolmo/tolmo_warn_agent.cpp", "warnAgent" );
    EXPECT_ABORT( tolmoWarningValueCreate( 300, bad.Get() ), path, "tolmoWarnAgentOk( warnAgent )" );
    EXPECT_ABORT( tolmoWarningValueCreateWithWarnText( 1000, bad.Get(), lines.Get() ), path,
                  "tolmoWarnCodeOk( warnCode )" );
    EXPECT_ABORT( tolmoWarningValueCreateWithWarnText( 300, bad.Get(), lines.Get() ), path,
                  "tolmoWarnAgentOk( warnAgent )" );
    EXPECT_ABORT( tolmoWarningValueCreateWithWarnText( 300, agent.Get(), nullptr ), "source/tolmo/tolmo_warn_text.cpp",
                  "warnText" );
    EXPECT_ABORT( tolmoWarningValueCreateWithWarnText( 300, agent.Get(), lines.Get() ), path,
                  "tolmoWarnTextOk( warnText )" );
}

TEST_F( WarningValue, WarnCode )
{
    auto wv = Create( 399, "a" );
    const TolmoWarningValue object = wv.Get();
    tolmoWarningValueSetWarnCode( wv.Address(), 300, KO_FALSE ); // the text stays, whatever it says
    EXPECT_EQ( encode( wv ), "300 a \"Miscellaneous warning\"" );
    tolmoWarningValueSetWarnCode( wv.Address(), 300, KO_TRUE );
    EXPECT_EQ( encode( wv ), "300 a \"Incompatible network protocol\"" );
    EXPECT_EQ( wv.Get(), object );

    const auto other = KoRef<TolmoWarningValue>::Share( wv.Get() );
    tolmoWarningValueSetWarnCode( wv.Address(), 12, 2 ); // any true value
    EXPECT_NE( wv.Get(), other.Get() );
    EXPECT_EQ( encode( wv ), "12 a \"Warning \\\"012\\\"\"" );
    EXPECT_EQ( encode( other ), "300 a \"Incompatible network protocol\"" );

    TolmoWarningValue none = nullptr;
    EXPECT_ABORT( tolmoWarningValueWarnCode( nullptr ), path, "wv" );
    EXPECT_ABORT( tolmoWarningValueSetWarnCode( nullptr, -1, KO_TRUE ), path, "wv" );
    EXPECT_ABORT( tolmoWarningValueSetWarnCode( &none, -1, KO_TRUE ), path, "*wv" );
    EXPECT_ABORT( tolmoWarningValueSetWarnCode( wv.Address(), -1, KO_TRUE ), path, "tolmoWarnCodeOk( warnCode )" );
    EXPECT_ABORT( tolmoWarningValueSetWarnCode( wv.Address(), 1000, KO_FALSE ), path, "tolmoWarnCodeOk( warnCode )" );
}

TEST_F( WarningValue, Fields )
{
    const auto create = [] { return Create( 399, "host" ); };
    test::ExpectStringField<Functions>( { nullptr,
                                          tolmoWarningValueWarnAgent,
                                          tolmoWarningValueSetWarnAgent,
                                          nullptr,
                                          "host1:5060",
                                          "host1:5060",
                                          "_token",
                                          { { nullptr, "source/tolmo/tolmo_warn_agent.cpp", "warnAgent" },
                                            { "", path, "tolmoWarnAgentOk( warnAgent )" },
                                            { "a_b", path, "tolmoWarnAgentOk( warnAgent )" },
                                            { "a:x", path, "tolmoWarnAgentOk( warnAgent )" } } },
                                        create );
    test::ExpectStringField<Functions>( { nullptr,
                                          tolmoWarningValueWarnText,
                                          tolmoWarningValueSetWarnText,
                                          nullptr,
                                          "a \"b\"",
                                          "a \"b\"",
                                          "",
                                          { { nullptr, "source/tolmo/tolmo_warn_text.cpp", "warnText" },
                                            { "\r\n", path, "tolmoWarnTextOk( warnText )" } } },
                                        create );
}

const test::ValueRow rows[] = {
    { "399 host1 \"x\"", "399 host1 \"x\"" },
    { "399  host1\t \"x\"", "399 host1 \"x\"" },
    { "399 host1:5060 \"x\"", "399 host1:5060 \"x\"" },
    { "399 [2001:db8::1]:5060 \"x\"", "399 [2001:db8::1]:5060 \"x\"" },
    { "399 192.0.2.1 \"x\"", "399 192.0.2.1 \"x\"" },
    { "399 _token \"x\"", "399 _token \"x\"" },
    { "399 host1 \"\"", "399 host1 \"\"" },
    { "307 isi.edu \"Session parameter 'foo' not understood\"",
      "307 isi.edu \"Session parameter 'foo' not understood\"" },
    { "399 host1 \"a\\\"b  c\\d\"", "399 host1 \"a\\\"b \\ cd\"" },
    { "399 host1 \"\u00FC\"", "399 host1 \"\u00FC\"" },
    { "999 a \"x\"", "999 a \"x\"" },
    // The code goes out without zeros in front, and then it is none.
    { "007 host1 \"x\"", "7 host1 \"x\"", "(null)" },
    { "000 host1 \"x\"", "0 host1 \"x\"", "(null)" },
    { "099 host1 \"x\"", "99 host1 \"x\"", "(null)" },
    // What follows the text is not looked at.
    { "399 host1 \"x\" trailing", "399 host1 \"x\"" },
    { "399 host1 \"x\"trailing", "399 host1 \"x\"" },
    { "399 host1 \"x\";y", "399 host1 \"x\"" },
    { "399 host1 \"x\" ", "399 host1 \"x\"" },
    { "399 host1 \"x\"\"", "399 host1 \"x\"" },
    { "", "(null)" },
    { "399", "(null)" },
    { "399 ", "(null)" },
    { "399 host1", "(null)" },
    { "399 host1 ", "(null)" },
    { "399 host1 x", "(null)" },
    { "399 host1 \"x", "(null)" },
    { "399 host1 \"x\\\"", "(null)" },
    { "399 host1 \"x\n\"", "(null)" },
    { " 399 host1 \"x\"", "(null)" },
    { "39 host1 \"x\"", "(null)" },
    { "3999 host1 \"x\"", "(null)" },
    { "-99 host1 \"x\"", "(null)" },
    { "399host1 \"x\"", "(null)" },
    { "399 host1\"x\"", "(null)" }, // whitespace is needed there, too
    { "399 \"x\"", "(null)" },
    { "399 a_b \"x\"", "(null)" }, // the host is taken first, without a way back to the token
    { "399 host1: \"x\"", "(null)" },
    { "399 host1:x \"x\"", "(null)" },
    { "399 host1:99999999999999999999 \"x\"", "(null)" },
    { "399 \u00FC \"x\"", "(null)" },
};

TEST_F( WarningValue, Rows )
{
    test::ExpectRows<Functions>( rows );
}

TEST_F( WarningValue, DecodedFields )
{
    const auto wv = decode( "042 host1:5060 \"a \\\"b\\\"\"" );
    EXPECT_EQ( tolmoWarningValueWarnCode( wv.Get() ), 42 );
    EXPECT_EQ( Take( tolmoWarningValueWarnAgent( wv.Get() ) ), "host1:5060" );
    EXPECT_EQ( Take( tolmoWarningValueWarnText( wv.Get() ) ), "a \"b\"" );
}

TEST_F( WarningValue, CompareOrder )
{
    test::ExpectAscending<Functions>(
        { "007 z \"z\"", "300 a \"a\"", "300 a \"b\"", "300 b \"a\"", "301 A \"a\"", "301 a \"a\"" } );
}

TEST_F( WarningValue, Huge )
{
    const std::string text( 100000, '\\' );
    EXPECT_EQ( encode( decode( "399 a \"" + text + "\"" ) ), "399 a \"" + text + "\"" );
    EXPECT_EQ( encode( decode( "399 a \"" + text ) ), "(null)" );
    const std::string agent( 100000, 'a' );
    EXPECT_EQ( encode( decode( "399 " + agent + " \"\"" ) ), "399 " + agent + " \"\"" );
}

TEST_F( WarningValue, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 311 );
    for ( int i = 0; i < 2000; ++i ) {
        const auto agent = draw.One( { "a", "a.b:5060", "[::1]", "192.0.2.1:1", "-!" } );
        const KoInt code = 100 + draw.Below( 900 );
        const auto text = draw.One( { "", "a", "a  b", "\"\\", ";,=\t", "\u00FC\x7F" } );
        const auto wv = Own( draw.Perhaps() ? tolmoWarningValueCreate( code, agent.Get() )
                                            : tolmoWarningValueCreateWithWarnText( code, agent.Get(), text.Get() ) );
        test::ExpectDecodes<Functions>( wv );
        EXPECT_TRUE( tolmoWarningValueEquals( decode( encode( wv ) ).Get(), wv.Get() ) );
    }
}

} // namespace
