/* One item of a User-to-User header. */
#include "tolmo_value_test.h"

namespace {

using test::Own;
using test::Str;
using test::Take;

struct Functions {
    TEST_VALUE_FUNCTIONS( UuiValue, "tolmo_uui_value", "value" )
};

class UuiValue : public test::TolmoFixture {};

constexpr auto decode = test::Decode<Functions>;
constexpr auto encode = test::Encode<Functions>;
constexpr auto path = Functions::path;

KoRef<TolmoUuiValue> Create( std::string_view uuiData )
{
    return Own( tolmoUuiValueCreate( Str( uuiData ).Get() ) );
}

TEST_F( UuiValue, StandardOperations )
{
    const auto value = decode( "00;encoding=hex;purpose=a;content=b;x" );
    test::ExpectStandardOperations<Functions>( value.Get(), "TOLMO_UUI_VALUE", path, "value", "valueA", "valueB" );
    EXPECT_EQ( Take( tolmoUuiValueToString( value.Get() ) ), "00;encoding=hex;purpose=a;content=b;x" );
}

constexpr char dataOk[] = "tolmoTokenOk( uuiData ) || tolmoQuotableStringOk( uuiData )";

TEST_F( UuiValue, Create )
{
    const auto data = Str( "00aA" );
    const auto value = Own( tolmoUuiValueCreate( data.Get() ) );
    EXPECT_EQ( Own( tolmoUuiValueUuiData( value.Get() ) ).Get(), data.Get() );
    EXPECT_FALSE( tolmoUuiValueHasEncoding( value.Get() ) );
    EXPECT_FALSE( tolmoUuiValueHasPurpose( value.Get() ) );
    EXPECT_FALSE( tolmoUuiValueHasContent( value.Get() ) );
    EXPECT_EQ( test::Generic<Functions>( value ), "" );
    EXPECT_ABORT( tolmoUuiValueCreate( nullptr ), "source/tolmo/tolmo_token.cpp", "token" );
    EXPECT_ABORT( tolmoUuiValueCreate( Str( "a\nb" ).Get() ), path, dataOk );
    EXPECT_ABORT( tolmoUuiValueCreate( Str( "a\rb" ).Get() ), path, dataOk );
}

TEST_F( UuiValue, Fields )
{
    const auto create = [] { return Create( "00" ); };
    const char *const token = "source/tolmo/tolmo_token.cpp";
    test::ExpectStringField<Functions>( { nullptr,
                                          tolmoUuiValueUuiData,
                                          tolmoUuiValueSetUuiData,
                                          nullptr,
                                          "Ab",
                                          "Ab",
                                          "a \"b\"",
                                          { { nullptr, token, "token" }, { "a\r\nb", path, dataOk } } },
                                        create );
    test::ExpectStringField<Functions>( { tolmoUuiValueHasEncoding,
                                          tolmoUuiValueEncoding,
                                          tolmoUuiValueSetEncoding,
                                          tolmoUuiValueDelEncoding,
                                          "HEX",
                                          "HEX",
                                          "hex",
                                          { { nullptr, token, "token" },
                                            { "", path, "tolmoTokenOk( encoding )" },
                                            { "a b", path, "tolmoTokenOk( encoding )" } } },
                                        create );
    test::ExpectStringField<Functions>( { tolmoUuiValueHasPurpose,
                                          tolmoUuiValuePurpose,
                                          tolmoUuiValueSetPurpose,
                                          tolmoUuiValueDelPurpose,
                                          "ISDN",
                                          "ISDN",
                                          "isdn-uui",
                                          { { nullptr, token, "token" },
                                            { "", path, "tolmoTokenOk( purpose )" },
                                            { "\"a\"", path, "tolmoTokenOk( purpose )" } } },
                                        create );
    test::ExpectStringField<Functions>( { tolmoUuiValueHasContent,
                                          tolmoUuiValueContent,
                                          tolmoUuiValueSetContent,
                                          tolmoUuiValueDelContent,
                                          "Isdn",
                                          "Isdn",
                                          "x",
                                          { { nullptr, token, "token" },
                                            { "", path, "tolmoTokenOk( content )" },
                                            { "a;", path, "tolmoTokenOk( content )" } } },
                                        create );
    test::ExpectGenericParams<Functions>( create );
}

// Data that is no token does not go out.
TEST_F( UuiValue, DataThatIsNoToken )
{
    for ( const char *data : { "", "a b", "\"a\"", "\u00FC", "a;b=c" } ) {
        auto value = Create( data );
        EXPECT_EQ( encode( value ), "" ) << data;
        tolmoUuiValueSetPurpose( value.Address(), Str( "b" ).Get() );
        tolmoUuiValueSetGenericParams( value.Address(), test::ParamsOf( ";x" ).Get() );
        EXPECT_EQ( encode( value ), ";purpose=b;x" ) << data;
        EXPECT_EQ( encode( decode( encode( value ) ) ), "(null)" ) << data;
        EXPECT_EQ( Take( tolmoUuiValueUuiData( value.Get() ) ), data );
    }
}

const test::ValueRow rows[] = {
    { "00aa11;encoding=hex", "00aa11;encoding=hex" },
    { "00AA11;ENCODING=HEX;Purpose=isdn", "00AA11;encoding=HEX;purpose=isdn" },
    { "00", "00" },
    { "not-hex!", "not-hex!" }, // nobody looks into it
    { "00 ; encoding = hex ; X = \"a,b\"", "00;encoding=hex;x=\"a,b\"" },
    { "00;x;content=a;purpose=b;y;encoding=c", "00;encoding=c;purpose=b;content=a;x;y" },
    { "00;encoding=a;encoding=b", "00;encoding=b" },
    { "", "(null)" },
    { " 00", "(null)" },
    { "00 ", "(null)" },
    { "00;", "(null)" },
    { "00;encoding=hex;", "(null)" },
    { "00;;x", "(null)" },
    { "00, 01", "(null)" },
    { ";encoding=hex", "(null)" },
    { "\u00FC", "(null)" },
    { "00;encoding=a b", "(null)" },
    { "00;content=a@b", "(null)" }, // a good beginning is taken, and then a semicolon has to follow
    // Data in quotes is refused here, though it is an item of the list.
    { "\"abc\"", "(null)" },
    { "\"abc\";encoding=hex", "(null)" },
    { " \"abc\"", "(null)" },
    // What does not fit a field is a generic parameter.
    { "00;encoding=\"hex\"", "00;encoding=\"hex\"" },
    { "00;encoding", "00;encoding" },
    { "00;encodings=1", "00;encodings=1" },
    { "00;purpose=[::1]", "00;purpose=[::1]" },
    { "00;content=", "(null)" },
    // One that did not fit is hidden while there is one that did.
    { "00;encoding=\"a\";x;encoding=b", "00;encoding=b;x" },
    { "00;purpose=b;purpose=\"a\"", "00;purpose=b" },
    { "00;content;content=a", "00;content=a" },
};

TEST_F( UuiValue, Rows )
{
    test::ExpectRows<Functions>( rows );
}

TEST_F( UuiValue, QuotedDataIsAnItemOfTheList )
{
    const test::Exact chs( "\"abc\";encoding=hex" );
    EXPECT_EQ( tolmo___SkipUuiValue( chs.Chars(), chs.Length() ), chs.Length() );
}

TEST_F( UuiValue, DecodedFields )
{
    auto value = decode( "00aA;Content=C;encoding=E;PURPOSE=P;encoding=\"x\"" );
    EXPECT_EQ( Take( tolmoUuiValueUuiData( value.Get() ) ), "00aA" );
    EXPECT_EQ( Take( tolmoUuiValueEncoding( value.Get() ) ), "E" );
    EXPECT_EQ( Take( tolmoUuiValuePurpose( value.Get() ) ), "P" );
    EXPECT_EQ( Take( tolmoUuiValueContent( value.Get() ) ), "C" );
    EXPECT_EQ( test::Generic<Functions>( value ), ";encoding=\"x\"" );
    tolmoUuiValueDelEncoding( value.Address() );
    EXPECT_EQ( encode( value ), "00aA;purpose=P;content=C;encoding=\"x\"" );
}

TEST_F( UuiValue, CompareOrder )
{
    test::ExpectAscending<Functions>( { "A", "a", "a;x", "a;content=a", "a;content=b", "a;purpose=a",
                                        "a;purpose=a;content=a", "a;purpose=b", "a;encoding=A", "a;encoding=a", "b" } );
    EXPECT_TRUE( tolmoUuiValueEquals( decode( "a;X;y=B" ).Get(), decode( "a;y=b;x" ).Get() ) ); // as parameters do
}

TEST_F( UuiValue, Huge )
{
    test::ExpectHuge<Functions>( "00;encoding=hex" );
    const std::string data( 100000, 'a' );
    EXPECT_EQ( encode( decode( data ) ), data );
}

TEST_F( UuiValue, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 312 );
    for ( int i = 0; i < 2000; ++i ) {
        auto value = Own( tolmoUuiValueCreate( draw.One( { "00", "aA", "-" } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoUuiValueSetEncoding( value.Address(), draw.One( { "hex", "HEX" } ).Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoUuiValueSetPurpose( value.Address(), draw.One( { "a", "B" } ).Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoUuiValueSetContent( value.Address(), draw.One( { "c", "D" } ).Get() );
        }
        tolmoUuiValueSetGenericParams( value.Address(), draw.Params().Get() );
        test::ExpectDecodes<Functions>( value );
        EXPECT_TRUE( tolmoUuiValueEquals( decode( encode( value ) ).Get(), value.Get() ) );
    }
}

} // namespace
