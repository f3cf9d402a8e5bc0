#include "test.h"

#include <tolmo/tolmo_qvalue.h>

namespace {

class Qvalue : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_qvalue.cpp";

KoInt Decode( std::string_view text )
{
    const test::Exact chs( text );
    return tolmo___QvalueTryDecode( chs.Chars(), chs.Length() );
}

TEST_F( Qvalue, Ok )
{
    EXPECT_FALSE( tolmoQvalueOk( -1 ) );
    EXPECT_TRUE( tolmoQvalueOk( 0 ) );
    EXPECT_TRUE( tolmoQvalueOk( 1000 ) );
    EXPECT_FALSE( tolmoQvalueOk( 1001 ) );
}

TEST_F( Qvalue, Encode )
{
    EXPECT_EQ( test::Take( tolmo___QvalueEncode( 0 ) ), "0.000" );
    EXPECT_EQ( test::Take( tolmo___QvalueEncode( 1 ) ), "0.001" );
    EXPECT_EQ( test::Take( tolmo___QvalueEncode( 500 ) ), "0.500" );
    EXPECT_EQ( test::Take( tolmo___QvalueEncode( 999 ) ), "0.999" );
    EXPECT_EQ( test::Take( tolmo___QvalueEncode( 1000 ) ), "1.000" );
    EXPECT_ABORT( tolmo___QvalueEncode( -1 ), path, "tolmoQvalueOk( qvalue )" );
    EXPECT_ABORT( tolmo___QvalueEncode( 1001 ), path, "tolmoQvalueOk( qvalue )" );
}

TEST_F( Qvalue, TryDecode )
{
    const struct {
        std::string_view text;
        KoInt qvalue;
    } rows[] = { { "", 0 }, // a value, and no failure
                 { "0", 0 },        { "1", 1000 },     { "0.", 0 },    { "1.", 1000 },  { "0.5", 500 },
                 { "0.25", 250 },   { "0.125", 125 },  { "0.005", 5 }, { "1.0", 1000 }, { "1.00", 1000 },
                 { "1.000", 1000 }, { "1.001", -1 },   { "1.1", -1 },  { "1.5", -1 },   { "0.1234", -1 },
                 { "1.0000", -1 },  { "2", -1 },       { ".5", -1 },   { "00", -1 },    { "10", -1 },
                 { "0,5", -1 },     { "0.x", -1 },     { "0.5x", -1 }, { "0.5 ", -1 },  { " 0.5", -1 },
                 { "-0", -1 },      { "0.\u0665", -1 } };
    for ( const auto &row : rows ) {
        EXPECT_EQ( Decode( row.text ), row.qvalue ) << "text: " << row.text;
    }
    EXPECT_EQ( tolmo___QvalueTryDecode( nullptr, 0 ), 0 );
    EXPECT_ABORT( tolmo___QvalueTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___QvalueTryDecode( nullptr, 1 ), path, "chs || length == 0" );
}

TEST_F( Qvalue, DecodeOfEncodeOfAll )
{
    for ( KoInt qvalue = 0; qvalue <= 1000; ++qvalue ) {
        EXPECT_EQ( Decode( test::Take( tolmo___QvalueEncode( qvalue ) ) ), qvalue );
    }
}

} // namespace
