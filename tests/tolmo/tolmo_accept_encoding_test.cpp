/* One item of an Accept-Encoding header. */
#include "tolmo_value_test.h"

namespace {

using test::Str;

struct Value {
    TEST_VALUE_FUNCTIONS( AcceptEncoding, "tolmo_accept_encoding", "acceptEncoding" )
};

using Ref = KoRef<TolmoAcceptEncoding>;
constexpr auto Decode = test::Decode<Value>;
constexpr auto Encode = test::Encode<Value>;
constexpr char path[] = "source/tolmo/tolmo_accept_encoding.cpp";
constexpr char coding[] = "source/tolmo/tolmo_content_coding.cpp";
constexpr char null[] = "(null)";

Ref Create()
{
    return test::Own( tolmoAcceptEncodingCreate() );
}

class AcceptEncoding : public test::TolmoFixture {};

TEST_F( AcceptEncoding, StandardOperations )
{
    const auto acceptEncoding = Decode( "gzip;q=0.7;x" );
    test::ExpectStandardOperations<Value>( acceptEncoding.Get(), "TOLMO_ACCEPT_ENCODING", path, "acceptEncoding", "aeA",
                                           "aeB" );
    EXPECT_EQ( test::Take( tolmoAcceptEncodingToString( acceptEncoding.Get() ) ), "gzip;q=0.700;x" );
}

TEST_F( AcceptEncoding, Create )
{
    const auto all = Create();
    EXPECT_FALSE( tolmoAcceptEncodingHasContentCoding( all.Get() ) );
    EXPECT_EQ( Encode( all ), "*" );
    const auto gzip = test::Own( tolmoAcceptEncodingCreateWithContentCoding( Str( "GZip" ).Get() ) );
    EXPECT_EQ( test::Take( tolmoAcceptEncodingContentCoding( gzip.Get() ) ), "gzip" );
    EXPECT_EQ( Encode( gzip ), "gzip" );
    EXPECT_ABORT( tolmoAcceptEncodingCreateWithContentCoding( nullptr ), coding, "contentCoding" );
    EXPECT_ABORT( tolmoAcceptEncodingCreateWithContentCoding( Str( "" ).Get() ), coding,
                  "tolmoContentCodingOk( contentCoding )" );
}

const test::ValueRow rows[] = {
    { "gzip", "gzip" },
    { "GZIP;Q=1", "gzip;q=1.000" },
    { "*", "*" },
    { "*;q=0", "*;q=0.000" },
    { "identity ; q = 0.5", "identity;q=0.500" },
    { "gzip;x;q=0.25;y=Z", "gzip;q=0.250;x;y=Z" },
    { "gzip;q=2", "gzip;q=2" }, // generic
    { "gzip;q", "gzip;q" },
    { "gzip;q;q=0.5", "gzip;q=0.500" },
    { "gzip;quality=1", "gzip;quality=1" },
    { "", null },
    { " gzip", null },
    { "gzip ", null },
    { "gzip,deflate", null },
    { "gzip deflate", null },
    { "\"gzip\"", null },
    { "gz\u00EFp", null },
    { "gzip;", null },
    { "gzip;q=", null },
    { "gzip;q=1.5", null },
    { "gzip;q=0.1234", null },
    { ";q=1", null },
};

TEST_F( AcceptEncoding, Rows )
{
    test::ExpectRows<Value>( rows );
}

TEST_F( AcceptEncoding, Star )
{
    const auto star = Decode( "*" );
    EXPECT_TRUE( tolmoAcceptEncodingHasContentCoding( star.Get() ) );
    EXPECT_EQ( test::Take( tolmoAcceptEncodingContentCoding( star.Get() ) ), "*" );
    EXPECT_FALSE( tolmoAcceptEncodingEquals( star.Get(), Create().Get() ) );
    EXPECT_EQ( Encode( star ), Encode( Create() ) );
}

TEST_F( AcceptEncoding, Fields )
{
    // The check is that of the normaliser.
    test::ExpectStringField( test::StringField<Value>{ tolmoAcceptEncodingHasContentCoding,
                                                       tolmoAcceptEncodingContentCoding,
                                                       tolmoAcceptEncodingSetContentCoding,
                                                       tolmoAcceptEncodingDelContentCoding,
                                                       "Deflate",
                                                       "deflate",
                                                       "*",
                                                       { { nullptr, coding, "contentCoding" },
                                                         { "", coding, "tolmoContentCodingOk( contentCoding )" },
                                                         { "a b", coding, "tolmoContentCodingOk( contentCoding )" } } },
                             Create );
    test::ExpectNumberField( test::NumberField<Value>{ tolmoAcceptEncodingHasQvalue, tolmoAcceptEncodingQvalue,
                                                       tolmoAcceptEncodingSetQvalue, tolmoAcceptEncodingDelQvalue, 1000,
                                                       "tolmoQvalueOk( qvalue )" },
                             Create );
    test::ExpectGenericParams<Value>( Create );
}

TEST_F( AcceptEncoding, FieldHidesGenericParameter )
{
    auto acceptEncoding = Decode( "gzip;q=x;z" );
    tolmoAcceptEncodingSetQvalue( acceptEncoding.Address(), 1000 );
    EXPECT_EQ( Encode( acceptEncoding ), "gzip;q=1.000;z" );
    EXPECT_EQ( test::Generic<Value>( acceptEncoding ), ";q=x;z" );
    tolmoAcceptEncodingDelQvalue( acceptEncoding.Address() );
    EXPECT_EQ( Encode( acceptEncoding ), "gzip;q=x;z" );
}

TEST_F( AcceptEncoding, CompareOrder )
{
    test::ExpectAscending<Value>( { "*", "*;z", "*;q=0", "a", "a;z", "a;q=0", "a;q=0;z", "a;q=0.5", "b" } );
    EXPECT_LT( tolmoAcceptEncodingCompare( Create().Get(), Decode( "*" ).Get() ), 0 ); // absent is in front of all
    EXPECT_TRUE( tolmoAcceptEncodingEquals( Decode( "A;x;y" ).Get(), Decode( "a;y;x" ).Get() ) );
}

TEST_F( AcceptEncoding, Huge )
{
    test::ExpectHuge<Value>( "gzip;q=0.500" );
    EXPECT_EQ( Encode( Decode( std::string( 1000000, 'A' ) ) ), std::string( 1000000, 'a' ) );
}

TEST_F( AcceptEncoding, DecodeOfEncodeIsTheSameText )
{
    test::Draw draw( 3261 );
    for ( int i = 0; i < 2000; ++i ) {
        auto acceptEncoding = Create();
        if ( draw.Perhaps() ) {
            tolmoAcceptEncodingSetContentCoding( acceptEncoding.Address(), draw.One( { "GZip", "*", "x-y" } ).Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoAcceptEncodingSetQvalue( acceptEncoding.Address(), draw.Below( 1001 ) );
        }
        tolmoAcceptEncodingSetGenericParams( acceptEncoding.Address(), draw.Params().Get() );
        test::ExpectDecodes<Value>( acceptEncoding );
        const auto text = Encode( acceptEncoding );
        if ( tolmoAcceptEncodingHasContentCoding( acceptEncoding.Get() ) ) { // a star that comes in is a coding
            EXPECT_TRUE( tolmoAcceptEncodingEquals( Decode( text ).Get(), acceptEncoding.Get() ) ) << text;
        }
        auto changed = Ref::Share( acceptEncoding.Get() );
        tolmoAcceptEncodingDelContentCoding( changed.Address() );
        tolmoAcceptEncodingDelQvalue( changed.Address() );
        EXPECT_EQ( Encode( acceptEncoding ), text );
    }
}

} // namespace
