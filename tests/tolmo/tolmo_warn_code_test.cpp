#include "test.h"

#include <tolmo/tolmo_warn_code.h>

namespace {

using test::Str;

class WarnCode : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_warn_code.cpp";

KoInt Decode( std::string_view text )
{
    const test::Exact chs( text );
    return tolmo___WarnCodeDecode( chs.Chars(), chs.Length() );
}

TEST_F( WarnCode, Ok )
{
    EXPECT_FALSE( tolmoWarnCodeOk( -1 ) );
    EXPECT_TRUE( tolmoWarnCodeOk( 0 ) );
    EXPECT_TRUE( tolmoWarnCodeOk( 999 ) );
    EXPECT_FALSE( tolmoWarnCodeOk( 1000 ) );
}

TEST_F( WarnCode, ToString )
{
    const struct {
        KoInt code;
        std::string_view text;
    } rows[] = { { 300, "Incompatible network protocol" },
                 { 301, "Incompatible network address formats" },
                 { 302, "Incompatible transport protocol" },
                 { 303, "Incompatible bandwidth units" },
                 { 304, "Media type not available" },
                 { 305, "Incompatible media format" },
                 { 306, "Attribute not understood" },
                 { 307, "Session description parameter not understood" },
                 { 330, "Multicast not available" },
                 { 331, "Unicast not available" },
                 { 370, "Insufficient bandwidth" },
                 { 399, "Miscellaneous warning" },
                 { 123, "Warning \"123\"" },
                 { 7, "Warning \"007\"" },
                 { 0, "Warning \"000\"" },
                 { 308, "Warning \"308\"" },
                 { 999, "Warning \"999\"" } };
    for ( const auto &row : rows ) {
        EXPECT_EQ( test::Take( tolmoWarnCodeToString( row.code ) ), row.text );
    }
    EXPECT_ABORT( tolmoWarnCodeToString( -1 ), path, "tolmoWarnCodeOk( warnCode )" );
    EXPECT_ABORT( tolmoWarnCodeToString( 1000 ), path, "tolmoWarnCodeOk( warnCode )" );
}

TEST_F( WarnCode, Encode )
{
    EXPECT_EQ( test::Take( tolmo___WarnCodeEncode( 399 ) ), "399" );
    EXPECT_EQ( test::Take( tolmo___WarnCodeEncode( 7 ) ), "7" ); // is not padded, and so is no code on the wire
    EXPECT_ABORT( tolmo___WarnCodeEncode( -1 ), path, "tolmoWarnCodeOk( warnCode )" );
    EXPECT_ABORT( tolmo___WarnCodeEncode( 1000 ), path, "tolmoWarnCodeOk( warnCode )" );
}

TEST_F( WarnCode, Decode )
{
    EXPECT_EQ( Decode( "399" ), 399 );
    EXPECT_EQ( Decode( "007" ), 7 );
    EXPECT_EQ( Decode( "000" ), 0 );
    EXPECT_ABORT( Decode( "" ), path, "read && consumed == length" );
    EXPECT_ABORT( Decode( "39x" ), path, "read && consumed == length" );
    EXPECT_ABORT( Decode( "x" ), path, "read && consumed == length" );
    EXPECT_ABORT( tolmo___WarnCodeDecode( nullptr, 0 ), path, "read && consumed == length" );
    EXPECT_ABORT( tolmo___WarnCodeDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___WarnCodeDecode( nullptr, 1 ), path, "chs || length == 0" );
}

} // namespace
