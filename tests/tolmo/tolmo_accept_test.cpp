/* One item of an Accept header. */
#include "tolmo_value_test.h"

namespace {

using test::Str;

struct Value {
    TEST_VALUE_FUNCTIONS( Accept, "tolmo_accept", "accept" )
};

using Ref = KoRef<TolmoAccept>;
constexpr auto Decode = test::Decode<Value>;
constexpr auto Encode = test::Encode<Value>;
constexpr char path[] = "source/tolmo/tolmo_accept.cpp";
constexpr char null[] = "(null)";

Ref Create()
{
    return test::Own( tolmoAcceptCreate() );
}

class Accept : public test::TolmoFixture {};

TEST_F( Accept, StandardOperations )
{
    const auto accept = Decode( "text/html;q=0.7;x" );
    test::ExpectStandardOperations<Value>( accept.Get(), "TOLMO_ACCEPT", path, "accept", "acceptA", "acceptB" );
    EXPECT_EQ( test::Take( tolmoAcceptToString( accept.Get() ) ), "text/html;q=0.700;x" );
}

TEST_F( Accept, Create )
{
    const auto accept = Create();
    EXPECT_FALSE( tolmoAcceptHasMediaType( accept.Get() ) );
    EXPECT_FALSE( tolmoAcceptHasMediaSubtype( accept.Get() ) );
    EXPECT_EQ( tolmoAcceptMediaType( accept.Get() ), nullptr );
    EXPECT_EQ( tolmoAcceptMediaSubtype( accept.Get() ), nullptr );
    EXPECT_EQ( Encode( accept ), "*/*" );
}

const test::ValueRow rows[] = {
    { "*/*", "*/*" },
    { "text/*", "text/*" },
    { "text/plain", "text/plain" },
    { "Text/HTML;q=0.7", "text/html;q=0.700" },
    { "text / plain", "text/plain" },
    { "* /\t*", "*/*" },
    { "**/*", "**/*" }, // a token of two stars is a type
    { "*x/y*", "*x/y*" },
    { "a/**", "a/**" },
    { "application/vnd.3gpp.ussd+xml", "application/vnd.3gpp.ussd+xml" },
    { "", null },
    { "*/plain", null }, // no subtype of all types
    { "*/*x", null },
    { "*", null },
    { "text", null },
    { "text/", null },
    { "/plain", null },
    { "text//plain", null },
    { " text/plain", null },
    { "text/plain ", null },
    { "text/plain,text/html", null },
    { "\"text\"/plain", null },
    { "t\u00E9xt/plain", null },

    // q
    { "text/plain;q=1", "text/plain;q=1.000" },
    { "text/plain ; Q = 0.25", "text/plain;q=0.250" },
    { "*/*;q=0", "*/*;q=0.000" },
    { "a/b;q=1;q=0.2", "a/b;q=0.200" },
    { "a/b;x;q=0.;y=Z", "a/b;q=0.000;x;y=Z" },
    { "a/b;q=2", "a/b;q=2" }, // no q-value: generic
    { "a/b;q", "a/b;q" },
    { "a/b;q=\"\"", "a/b;q=\"\"" },
    { "a/b;q=\"1\"", "a/b;q=\"1\"" },
    { "a/b;q=.5", "a/b;q=.5" },
    { "a/b;quality=1", "a/b;quality=1" },
    { "a/b;q;q=0.5", "a/b;q=0.500" }, // the field hides the generic one
    { "text/plain;q=0.1234", null },  // three decimal places, and then no semicolon
    { "text/plain;q=1.5", null },
    { "text/plain;q=", null },
    { "text/plain;q=0.5 ", null },

    // all others
    { "a/b;level=1;A=[::1];b=\"c;d\";level=2", "a/b;level=2;a=[::1];b=\"c;d\"" },
    { "a/b;", null },
    { "a/b;;x", null },
    { "a/b;=1", null },
    { "a/bx=1", null },
};

TEST_F( Accept, Rows )
{
    test::ExpectRows<Value>( rows );
}

TEST_F( Accept, DecodedFields )
{
    const auto accept = Decode( "Text/HTML;q=0.7;q=9" );
    EXPECT_EQ( test::Take( tolmoAcceptMediaType( accept.Get() ) ), "text" );
    EXPECT_EQ( test::Take( tolmoAcceptMediaSubtype( accept.Get() ) ), "html" );
    EXPECT_EQ( tolmoAcceptQvalue( accept.Get() ), 700 );
    EXPECT_EQ( test::Generic<Value>( accept ), ";q=9" );
    const auto all = Decode( "*/*" );
    EXPECT_FALSE( tolmoAcceptHasMediaType( all.Get() ) );
    EXPECT_FALSE( tolmoAcceptHasMediaSubtype( all.Get() ) );
    EXPECT_TRUE( tolmoAcceptEquals( all.Get(), Create().Get() ) );
    const auto text = Decode( "text/*" );
    EXPECT_TRUE( tolmoAcceptHasMediaType( text.Get() ) );
    EXPECT_FALSE( tolmoAcceptHasMediaSubtype( text.Get() ) );
}

TEST_F( Accept, Fields )
{
    // The checks are those of the normalisers.
    const char type[] = "source/tolmo/tolmo_media_type.cpp";
    const char subtype[] = "source/tolmo/tolmo_media_subtype.cpp";
    const test::StringField<Value> fields[] = { { tolmoAcceptHasMediaType,
                                                  tolmoAcceptMediaType,
                                                  tolmoAcceptSetMediaType,
                                                  tolmoAcceptDelMediaType,
                                                  "TEXT",
                                                  "text",
                                                  "**",
                                                  { { nullptr, type, "mediaType" },
                                                    { "", type, "tolmoMediaTypeOk( mediaType )" },
                                                    { "*", type, "tolmoMediaTypeOk( mediaType )" },
                                                    { "a/b", type, "tolmoMediaTypeOk( mediaType )" } } },
                                                { tolmoAcceptHasMediaSubtype,
                                                  tolmoAcceptMediaSubtype,
                                                  tolmoAcceptSetMediaSubtype,
                                                  tolmoAcceptDelMediaSubtype,
                                                  "Plain",
                                                  "plain",
                                                  "x",
                                                  { { nullptr, subtype, "mediaSubtype" },
                                                    { "", subtype, "tolmoMediaSubtypeOk( mediaSubtype )" },
                                                    { "*", subtype, "tolmoMediaSubtypeOk( mediaSubtype )" } } } };
    for ( const auto &field : fields ) {
        test::ExpectStringField( field, Create );
    }
    test::ExpectNumberField( test::NumberField<Value>{ tolmoAcceptHasQvalue, tolmoAcceptQvalue, tolmoAcceptSetQvalue,
                                                       tolmoAcceptDelQvalue, 1000, "tolmoQvalueOk( qvalue )" },
                             Create );
    test::ExpectGenericParams<Value>( Create );
}

TEST_F( Accept, SubtypeWithoutType )
{
    auto accept = Create();
    tolmoAcceptSetMediaSubtype( accept.Address(), Str( "plain" ).Get() );
    EXPECT_EQ( Encode( accept ), "*/*" );
    EXPECT_TRUE( tolmoAcceptHasMediaSubtype( accept.Get() ) );
    tolmoAcceptSetMediaType( accept.Address(), Str( "text" ).Get() );
    EXPECT_EQ( Encode( accept ), "text/plain" );
    tolmoAcceptDelMediaSubtype( accept.Address() );
    EXPECT_EQ( Encode( accept ), "text/*" );
}

TEST_F( Accept, FieldHidesGenericParameter )
{
    auto accept = Create();
    tolmoAcceptSetGenericParams( accept.Address(), test::ParamsOf( ";q=x;z" ).Get() );
    EXPECT_EQ( Encode( accept ), "*/*;q=x;z" );
    tolmoAcceptSetQvalue( accept.Address(), 7 );
    EXPECT_EQ( Encode( accept ), "*/*;q=0.007;z" );
    tolmoAcceptDelQvalue( accept.Address() );
    EXPECT_EQ( Encode( accept ), "*/*;q=x;z" );
}

TEST_F( Accept, CompareOrder )
{
    test::ExpectAscending<Value>(
        { "*/*", "*/*;z", "*/*;q=0", "a/*;q=1;z", "a/b", "a/b;z", "a/b;q=0", "a/b;q=0;z", "a/b;q=0.5", "a/c", "b/a" } );
    EXPECT_TRUE( tolmoAcceptEquals( Decode( "A/B;x;y" ).Get(), Decode( "a/b;y;x" ).Get() ) );
}

TEST_F( Accept, Huge )
{
    test::ExpectHuge<Value>( "text/plain;q=0.500" );
    std::string text( 1000000, 'A' );
    text += "/b";
    const auto accept = Decode( text );
    EXPECT_EQ( test::Take( tolmoAcceptMediaType( accept.Get() ) ), std::string( 1000000, 'a' ) );
}

TEST_F( Accept, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 3261 );
    for ( int i = 0; i < 2000; ++i ) {
        auto accept = Create();
        if ( draw.Perhaps() ) {
            tolmoAcceptSetMediaType( accept.Address(), draw.One( { "Text", "**", "x-y" } ).Get() );
            if ( draw.Perhaps() ) {
                tolmoAcceptSetMediaSubtype( accept.Address(), draw.One( { "PLAIN", "*.*", "a+b" } ).Get() );
            }
        }
        if ( draw.Perhaps() ) {
            tolmoAcceptSetQvalue( accept.Address(), draw.Below( 1001 ) );
        }
        tolmoAcceptSetGenericParams( accept.Address(), draw.Params().Get() );
        test::ExpectDecodes<Value>( accept, false ); // the skip function counts parameters alone
        const auto text = Encode( accept );
        EXPECT_TRUE( tolmoAcceptEquals( Decode( text ).Get(), accept.Get() ) ) << text;

        auto changed = Ref::Share( accept.Get() );
        tolmoAcceptSetMediaType( changed.Address(), Str( "changed" ).Get() );
        tolmoAcceptDelQvalue( changed.Address() );
        EXPECT_EQ( Encode( accept ), text );
    }
}

} // namespace
