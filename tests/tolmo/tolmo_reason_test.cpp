/* One item of a Reason header. */
#include "tolmo_value_test.h"

namespace {

using test::Own;
using test::Str;
using test::Take;

struct Functions {
    using Handle = TolmoReason;
    static constexpr auto Encode = tolmo___ReasonEncode;
    static constexpr auto TryDecode = tolmo___ReasonTryDecode;
    static constexpr auto Skip = tolmo___SkipReason;
    static constexpr auto GenericParams = tolmoReasonGenericParams;
    static constexpr auto SetGenericParams = tolmoReasonSetGenericParams;
    static constexpr char path[] = "source/tolmo/tolmo_reason.cpp";
    static constexpr char name[] = "reason";
};

class Reason : public test::TolmoFixture {};

constexpr auto decode = test::Decode<Functions>;
constexpr auto encode = test::Encode<Functions>;
constexpr auto path = Functions::path;

// The sort compares and prints nothing: a reason equals itself alone.
TEST_F( Reason, StandardOperations )
{
    const auto reason = decode( "SIP;cause=200;text=\"a\";x" );
    const KoObj obj = tolmoReasonObj( reason.Get() );
    EXPECT_STREQ( tolmoReasonSort()->name, "TOLMO_REASON" );
    EXPECT_EQ( koObjSort( obj ), tolmoReasonSort() );
    EXPECT_EQ( tolmoReasonFrom( nullptr ), nullptr );
    EXPECT_EQ( tolmoReasonFrom( obj ), reason.Get() );
    EXPECT_ABORT_MESSAGE( tolmoReasonFrom( koStringObj( Str( "" ).Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_REASON" );
    EXPECT_EQ( tolmoReasonRetain( reason.Get() ), reason.Get() );
    EXPECT_EQ( test::Count( reason.Get() ), 2 );
    tolmoReasonRelease( reason.Get() );
    EXPECT_EQ( test::Count( reason.Get() ), 1 );
    EXPECT_ABORT_MESSAGE( tolmoReasonRetain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoReasonRelease( nullptr ), "stdfunc release", path, "obj" );

    const auto copy = Own( tolmoReasonCreateFrom( reason.Get() ) );
    EXPECT_EQ( encode( copy ), "SIP;cause=200;text=\"a\";x" );
    EXPECT_EQ( tolmoReasonCompare( reason.Get(), reason.Get() ), 0 );
    EXPECT_NE( tolmoReasonCompare( reason.Get(), copy.Get() ), 0 );
    EXPECT_TRUE( tolmoReasonEquals( reason.Get(), reason.Get() ) );
    EXPECT_FALSE( tolmoReasonEquals( reason.Get(), copy.Get() ) );
    EXPECT_TRUE( tolmoReasonEquals( nullptr, nullptr ) );
    EXPECT_EQ( Take( tolmoReasonToString( reason.Get() ) ), "<TOLMO_REASON>" );
    EXPECT_EQ( tolmoReasonSort()->compare, nullptr );
    EXPECT_EQ( tolmoReasonSort()->toString, nullptr );
    EXPECT_ABORT( tolmoReasonCreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT_MESSAGE( tolmoReasonCompare( nullptr, copy.Get() ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( tolmoReasonCompare( copy.Get(), nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT_MESSAGE( tolmoReasonToString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT( tolmoReasonSort()->free( nullptr ), path, "reason" );
}

TEST_F( Reason, Create )
{
    const auto protocol = Str( "Sip" );
    const auto reason = Own( tolmoReasonCreate( protocol.Get() ) );
    EXPECT_EQ( Own( tolmoReasonProtocol( reason.Get() ) ).Get(), protocol.Get() ); // the very string, in its case
    EXPECT_FALSE( tolmoReasonHasCause( reason.Get() ) );
    EXPECT_FALSE( tolmoReasonHasText( reason.Get() ) );
    EXPECT_EQ( test::Generic<Functions>( reason ), "" );
    EXPECT_ABORT( tolmoReasonCreate( nullptr ), "source/tolmo/tolmo_token.cpp", "token" );
    EXPECT_ABORT( tolmoReasonCreate( Str( "" ).Get() ), path, "tolmoReasonProtocolOk( protocol )" );
    EXPECT_ABORT( tolmoReasonCreate( Str( "a b" ).Get() ), path, "tolmoReasonProtocolOk( protocol )" );
}

TEST_F( Reason, Fields )
{
    const auto create = [] { return Own( tolmoReasonCreate( Str( "SIP" ).Get() ) ); };
    const char *const token = "source/tolmo/tolmo_token.cpp";
    test::ExpectStringField<Functions>( { nullptr,
                                          tolmoReasonProtocol,
                                          tolmoReasonSetProtocol,
                                          nullptr,
                                          "Q.850",
                                          "Q.850",
                                          "sip",
                                          { { nullptr, token, "token" },
                                            { "", path, "tolmoReasonProtocolOk( protocol )" },
                                            { "a;", path, "tolmoReasonProtocolOk( protocol )" } } },
                                        create );
    test::ExpectStringField<Functions>( { tolmoReasonHasCause,
                                          tolmoReasonCause,
                                          tolmoReasonSetCause,
                                          tolmoReasonDelCause,
                                          "016",
                                          "016",
                                          "200",
                                          { { nullptr, "source/tolmo/tolmo_reason_cause.cpp", "cause" },
                                            { "", path, "tolmoReasonCauseOk( cause )" },
                                            { "1x", path, "tolmoReasonCauseOk( cause )" } } },
                                        create );
    test::ExpectStringField<Functions>( { tolmoReasonHasText,
                                          tolmoReasonText,
                                          tolmoReasonSetText,
                                          tolmoReasonDelText,
                                          "a \"b\" \u00FC",
                                          "a \"b\" \u00FC",
                                          "",
                                          { { nullptr, "source/tolmo/tolmo_quotable_string.cpp", "quotableString" },
                                            { "a\nb", path, "tolmoReasonTextOk( text )" },
                                            { "\r", path, "tolmoReasonTextOk( text )" } } },
                                        create );
    test::ExpectGenericParams<Functions>( create );
}

const test::ValueRow rows[] = {
    { "SIP;cause=200;text=\"Call completed elsewhere\"", "SIP;cause=200;text=\"Call completed elsewhere\"" },
    { "sip", "sip" },
    { "Q.850;cause=016", "Q.850;cause=016" }, // text, no number
    { "Q.850;cause=000000000000000000000000000000000000", "Q.850;cause=000000000000000000000000000000000000" },
    { "SIP ; CAUSE = 1 ; TexT = \"a\" ; X = Y", "SIP;cause=1;text=\"a\";x=Y" },
    { "SIP;x;text=\"a\";y;cause=1", "SIP;cause=1;text=\"a\";x;y" },
    { "SIP;text=\"\"", "SIP;text=\"\"" }, // present, and empty
    { "SIP;text= \"a\"", "SIP;text=\"a\"" },
    { "SIP;text=\"a\\\"b\\\\\\c\"", "SIP;text=\"a\\\"b\\\\c\"" },
    { "SIP;text=\"a  b;c=d,e\"", "SIP;text=\"a \\ b;c=d,e\"" },
    { "SIP;text=\"\u00FC\u4E2D\"", "SIP;text=\"\u00FC\u4E2D\"" },
    { "SIP;cause=1;cause=2", "SIP;cause=2" },
    { "SIP;text=\"a\";text=\"b\"", "SIP;text=\"b\"" },
    { "", "(null)" },
    { ";cause=1", "(null)" },
    { " SIP", "(null)" },
    { "SIP ", "(null)" },
    { "SIP;", "(null)" },
    { "SIP;cause=1;", "(null)" },
    { "SIP;;cause=1", "(null)" },
    { "SIP cause=1", "(null)" },
    { "SIP;cause=1 ", "(null)" },
    { "SIP, SIP", "(null)" },
    { "\u00FC", "(null)" },
    // A good beginning of a value is taken, and then a semicolon has to follow.
    { "SIP;cause=0.5", "(null)" },
    { "SIP;cause=2x", "(null)" },
    { "SIP;text=\"a\"b", "(null)" },
    // What does not fit a field is a generic parameter.
    { "SIP;cause", "SIP;cause" },
    { "SIP;cause=x", "SIP;cause=x" },
    { "SIP;cause=-1", "SIP;cause=-1" },
    { "SIP;cause=\"1\"", "SIP;cause=\"1\"" },
    { "SIP;causex=1", "SIP;causex=1" },
    { "SIP;cause=", "(null)" },
    { "SIP;text=x", "SIP;text=x" },
    { "SIP;text=gone;x", "SIP;text=gone;x" },
    { "SIP;text=[::1]", "SIP;text=[::1]" },
    { "SIP;text=\"a", "(null)" },
    // One that did not fit is hidden while there is one that did.
    { "SIP;cause=x;cause=1;y", "SIP;cause=1;y" },
    { "SIP;text=\"a\";text=b", "SIP;text=\"a\"" },
};

TEST_F( Reason, Rows )
{
    test::ExpectRows<Functions>( rows );
}

TEST_F( Reason, DecodedFields )
{
    auto reason = decode( "Sip;text=\"a  \\\"b\\\"\";cause=016;Cause=x;y" );
    EXPECT_EQ( Take( tolmoReasonProtocol( reason.Get() ) ), "Sip" );
    EXPECT_EQ( Take( tolmoReasonCause( reason.Get() ) ), "016" );
    EXPECT_EQ( Take( tolmoReasonText( reason.Get() ) ), "a  \"b\"" );
    EXPECT_EQ( test::Generic<Functions>( reason ), ";cause=x;y" );
    tolmoReasonDelCause( reason.Address() ); // and what it hid goes out
    EXPECT_EQ( encode( reason ), "Sip;text=\"a \\ \\\"b\\\"\";cause=x;y" );

    const auto unquoted = decode( "SIP;text=x" );
    EXPECT_FALSE( tolmoReasonHasText( unquoted.Get() ) );
    const auto empty = decode( "SIP;text=\"\"" );
    EXPECT_TRUE( tolmoReasonHasText( empty.Get() ) );
    EXPECT_EQ( Take( tolmoReasonText( empty.Get() ) ), "" );
}

TEST_F( Reason, Huge )
{
    test::ExpectHuge<Functions>( "SIP;cause=1" );
    const std::string digits( 100000, '0' );
    EXPECT_EQ( encode( decode( "SIP;cause=" + digits ) ), "SIP;cause=" + digits );
}

TEST_F( Reason, DecodeOfEncodeIsTheSame )
{
    test::Draw draw( 310 );
    for ( int i = 0; i < 2000; ++i ) {
        auto reason = Own( tolmoReasonCreate( draw.One( { "SIP", "sip", "Q.850", "x" } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoReasonSetCause( reason.Address(), draw.One( { "0", "200", "016" } ).Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoReasonSetText( reason.Address(),
                                draw.One( { "", "a", "a  b", "\"\\", ";,=\t", "\u00FC\x7F" } ).Get() );
        }
        tolmoReasonSetGenericParams( reason.Address(), draw.Params().Get() );
        test::ExpectDecodes<Functions>( reason );
    }
}

} // namespace
