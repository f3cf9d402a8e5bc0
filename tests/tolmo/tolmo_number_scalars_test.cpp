/* The elements that are numbers: ranges, digits and back. */
#include "test.h"

#include <tolmo/tolmo_cseq.h>
#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_diversion_counter.h>
#include <tolmo/tolmo_diversion_limit.h>
#include <tolmo/tolmo_max_forwards.h>
#include <tolmo/tolmo_port.h>
#include <tolmo/tolmo_response_num.h>
#include <tolmo/tolmo_ttl.h>

namespace {

using test::Str;

class NumberScalars : public test::Fixture {};

struct OkRow {
    KoInt value;
    bool ok;
};

void ExpectOk( KoBool ( *ok )( KoInt ), const std::vector<OkRow> &rows )
{
    for ( const OkRow &row : rows ) {
        EXPECT_EQ( ok( row.value ), row.ok ? KO_TRUE : KO_FALSE ) << row.value;
    }
}

struct Row {
    std::string_view text;
    KoInt value; // -1: refused
};

/** Text to number; and each number of the rows to text and back. */
void ExpectNumbers( KoInt ( *decode )( const KoChar *, KoInt ), KoString ( *encode )( KoInt ),
                    const std::vector<Row> &rows )
{
    for ( const Row &row : rows ) {
        const test::Exact chs( row.text );
        EXPECT_EQ( decode( chs.Chars(), chs.Length() ), row.value ) << "text: " << row.text;
        if ( row.value >= 0 ) {
            const std::string text = test::Take( encode( row.value ) );
            EXPECT_EQ( text, std::to_string( row.value ) );
            const test::Exact again( text );
            EXPECT_EQ( decode( again.Chars(), again.Length() ), row.value );
        }
    }
    EXPECT_EQ( decode( nullptr, 0 ), -1 );
}

const std::vector<Row> anyNumber = { { "", -1 },
                                     { "0", 0 },
                                     { "7", 7 },
                                     { "007", 7 },
                                     { "-0", 0 }, // a minus is part of a number, and this one is not below 0
                                     { "-1", -1 },
                                     { "-5", -1 },
                                     { "+5", -1 },
                                     { "-", -1 },
                                     { " 5", -1 },
                                     { "5 ", -1 },
                                     { "5x", -1 },
                                     { "0x5", -1 },
                                     { "5.0", -1 },
                                     { "\u0665", -1 }, // a digit of another script
                                     { "9223372036854775808", -1 },
                                     { "99999999999999999999999999", -1 },
                                     { "00000000000000000000000000000000000000000000000000000000000000000007", 7 } };

#define EXPECT_DECODE_ABORTS( function, path )                                                                         \
    EXPECT_ABORT( function( nullptr, -1 ), path, "length >= 0" );                                                      \
    EXPECT_ABORT( function( nullptr, 1 ), path, "chs || length == 0" )

TEST_F( NumberScalars, Cseq )
{
    ExpectOk( tolmoCseqOk, { { 0, true },
                             { 2147483647, true },
                             { 2147483648, false },
                             { -1, false },
                             { INT64_MIN, false },
                             { INT64_MAX, false } } );
    ExpectOk( tolmoCseqIncrementOk, { { 0, true }, { 2147483646, true }, { 2147483647, false } } );
    ExpectOk( tolmoCseqScarce, { { 0, false }, { 2147483547, false }, { 2147483548, true }, { 2147483647, true } } );
    EXPECT_ABORT( tolmoCseqIncrementOk( -1 ), "source/tolmo/tolmo_cseq.cpp", "tolmoCseqOk( cseq )" );
    EXPECT_ABORT( tolmoCseqScarce( -1 ), "source/tolmo/tolmo_cseq.cpp", "tolmoCseqOk( cseq )" );
    EXPECT_ABORT( tolmoCseqScarce( 2147483648 ), "source/tolmo/tolmo_cseq.cpp", "tolmoCseqOk( cseq )" );
}

TEST_F( NumberScalars, ResponseNum )
{
    ExpectOk( tolmoResponseNumOk, { { 0, false }, // unlike a sequence number
                                    { 1, true },
                                    { 4294967295, true },
                                    { 4294967296, false },
                                    { -1, false } } );
    ExpectOk( tolmoResponseNumIncrementOk, { { 1, true }, { 4294967294, true }, { 4294967295, false } } );
    EXPECT_ABORT( tolmoResponseNumIncrementOk( 0 ), "source/tolmo/tolmo_response_num.cpp",
                  "tolmoResponseNumOk( responseNum )" );
}

TEST_F( NumberScalars, MaxForwards )
{
    ExpectOk( tolmoMaxForwardsOk, { { 0, true }, { 70, true }, { 255, true }, { 256, false }, { -1, false } } );
}

TEST_F( NumberScalars, Ttl )
{
    ExpectOk( tolmoTtlOk, { { 0, true }, { 255, true }, { 256, false }, { -1, false } } );
    ExpectNumbers( tolmo___TtlTryDecode, tolmo___TtlEncode, anyNumber );
    ExpectNumbers( tolmo___TtlTryDecode, tolmo___TtlEncode, { { "255", 255 }, { "256", -1 } } );
    EXPECT_ABORT( tolmo___TtlEncode( 256 ), "source/tolmo/tolmo_ttl.cpp", "tolmoTtlOk( ttl )" );
    EXPECT_ABORT( tolmo___TtlEncode( -1 ), "source/tolmo/tolmo_ttl.cpp", "tolmoTtlOk( ttl )" );
    EXPECT_DECODE_ABORTS( tolmo___TtlTryDecode, "source/tolmo/tolmo_ttl.cpp" );
}

TEST_F( NumberScalars, DeltaSeconds )
{
    ExpectOk( tolmoDeltaSecondsOk, { { 0, true }, { 4294967296, true }, { INT64_MAX, true }, { -1, false } } );
    ExpectNumbers( tolmo___DeltaSecondsTryDecode, tolmo___DeltaSecondsEncode, anyNumber );
    ExpectNumbers( tolmo___DeltaSecondsTryDecode, tolmo___DeltaSecondsEncode,
                   { { "4294967297", 4294967297 }, { "9223372036854775807", INT64_MAX } } );
    EXPECT_ABORT( tolmo___DeltaSecondsEncode( -1 ), "source/tolmo/tolmo_delta_seconds.cpp",
                  "tolmoDeltaSecondsOk( deltaSeconds )" );
    EXPECT_DECODE_ABORTS( tolmo___DeltaSecondsTryDecode, "source/tolmo/tolmo_delta_seconds.cpp" );
}

TEST_F( NumberScalars, Port )
{
    ExpectOk( tolmoPortOk, { { 0, true }, { 5060, true }, { 70000, true }, { INT64_MAX, true }, { -1, false } } );
    ExpectNumbers( tolmo___PortTryDecode, tolmo___PortEncode, anyNumber );
    ExpectNumbers( tolmo___PortTryDecode, tolmo___PortEncode,
                   { { "5060", 5060 }, { "5060x", -1 }, { "70000", 70000 }, { "9223372036854775807", INT64_MAX } } );
    EXPECT_ABORT( tolmo___PortEncode( -1 ), "source/tolmo/tolmo_port.cpp", "tolmoPortOk( port )" );
    EXPECT_DECODE_ABORTS( tolmo___PortTryDecode, "source/tolmo/tolmo_port.cpp" );
}

TEST_F( NumberScalars, DiversionCounter )
{
    ExpectOk( tolmoDiversionCounterOk, { { 0, true }, { 99, true }, { 100, false }, { -1, false } } );
    ExpectNumbers( tolmo___DiversionCounterTryDecode, tolmo___DiversionCounterEncode, anyNumber );
    ExpectNumbers( tolmo___DiversionCounterTryDecode, tolmo___DiversionCounterEncode,
                   { { "99", 99 }, { "100", -1 }, { "099", 99 } } );
    EXPECT_ABORT( tolmo___DiversionCounterEncode( 100 ), "source/tolmo/tolmo_diversion_counter.cpp",
                  "tolmoDiversionCounterOk( counter )" );
    EXPECT_DECODE_ABORTS( tolmo___DiversionCounterTryDecode, "source/tolmo/tolmo_diversion_counter.cpp" );
}

TEST_F( NumberScalars, DiversionLimit )
{
    ExpectOk( tolmoDiversionLimitOk, { { 0, true }, { 99, true }, { 100, false }, { -1, false } } );
    ExpectNumbers( tolmo___DiversionLimitTryDecode, tolmo___DiversionLimitEncode, anyNumber );
    ExpectNumbers( tolmo___DiversionLimitTryDecode, tolmo___DiversionLimitEncode,
                   { { "99", 99 }, { "100", -1 }, { "099", 99 } } );
    EXPECT_ABORT( tolmo___DiversionLimitEncode( -1 ), "source/tolmo/tolmo_diversion_limit.cpp",
                  "tolmoDiversionLimitOk( limit )" );
    EXPECT_DECODE_ABORTS( tolmo___DiversionLimitTryDecode, "source/tolmo/tolmo_diversion_limit.cpp" );
}

} // namespace
