/* One item of a Diversion header. */
#include "tolmo_value_test.h"

namespace {

using test::Str;

struct Value {
    TEST_VALUE_FUNCTIONS( Diversion, "tolmo_diversion", "diversion" )
};

using Ref = KoRef<TolmoDiversion>;
constexpr auto Decode = test::Decode<Value>;
constexpr auto Encode = test::Encode<Value>;
constexpr char path[] = "source/tolmo/tolmo_diversion.cpp";
constexpr char null[] = "(null)";

Ref Create()
{
    return test::Own( tolmoDiversionCreate( Str( "sip:a" ).Get() ) );
}

class Diversion : public test::TolmoFixture {};

// Without a compare and a to-string function: that is meant.
TEST_F( Diversion, StandardOperations )
{
    const auto diversion = Decode( "A <sip:a>;reason=r;counter=1;limit=2;privacy=p;screen=s;x" );
    const TolmoDiversion object = diversion.Get();
    const KoSort sort = Value::Sort();
    EXPECT_EQ( sort->name, std::string( "TOLMO_DIVERSION" ) );
    EXPECT_EQ( koObjSort( Value::Obj( object ) ), sort );
    EXPECT_EQ( sort->compare, nullptr );
    EXPECT_EQ( sort->toString, nullptr );
    EXPECT_EQ( Value::From( Value::Obj( object ) ), object );
    EXPECT_EQ( Value::From( nullptr ), nullptr );
    EXPECT_EQ( test::Take( Value::ToString( object ) ), "<TOLMO_DIVERSION>" ); // not the wire text

    const auto copy = test::Own( Value::CreateFrom( object ) );
    EXPECT_EQ( Encode( copy ), Encode( diversion ) );
    EXPECT_TRUE( Value::Equals( object, object ) );
    EXPECT_FALSE( Value::Equals( object, copy.Get() ) ); // the same text, another object
    EXPECT_FALSE( Value::Equals( object, nullptr ) );
    EXPECT_TRUE( Value::Equals( nullptr, nullptr ) );
    EXPECT_EQ( Value::Compare( object, object ), 0 );
    EXPECT_EQ( Value::Compare( object, copy.Get() ) < 0, Value::Compare( copy.Get(), object ) > 0 );

    const auto string = Str( "another sort" );
    EXPECT_ABORT_MESSAGE( Value::From( koStringObj( string.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_DIVERSION" );
    EXPECT_ABORT_MESSAGE( Value::Retain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( Value::Release( nullptr ), "stdfunc release", path, "obj" );
    EXPECT_ABORT_MESSAGE( Value::Compare( nullptr, object ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( Value::Compare( object, nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT_MESSAGE( Value::ToString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT( Value::CreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT( sort->free( nullptr ), path, "diversion" );
}

TEST_F( Diversion, Create )
{
    const auto iri = Str( "sip:a" );
    const auto name = Str( "" );
    const auto diversion = test::Own( tolmoDiversionCreateWithDisplayName( iri.Get(), name.Get() ) );
    EXPECT_EQ( test::Own( tolmoDiversionIri( diversion.Get() ) ).Get(), iri.Get() );
    EXPECT_EQ( test::Own( tolmoDiversionDisplayName( diversion.Get() ) ).Get(), name.Get() );
    EXPECT_EQ( Encode( diversion ), "\"\" <sip:a>" );
    EXPECT_EQ( Encode( Create() ), "<sip:a>" );
    EXPECT_FALSE( tolmoDiversionHasDisplayName( Create().Get() ) );

    EXPECT_ABORT( tolmoDiversionCreate( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( tolmoDiversionCreate( Str( "a" ).Get() ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoDiversionCreateWithDisplayName( Str( "a" ).Get(), nullptr ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoDiversionCreateWithDisplayName( iri.Get(), nullptr ), "source/tolmo/tolmo_display_name.cpp",
                  "displayName" );
    EXPECT_ABORT( tolmoDiversionCreateWithDisplayName( iri.Get(), Str( "\r" ).Get() ), path,
                  "tolmoDisplayNameOk( displayName )" );
}

const test::ValueRow rows[] = {
    { "<sip:host1>", "<sip:host1>" },
    { "sip:host1;counter=3", "<sip:host1>;counter=3" }, // a bare address, which no list hands to the decoder
    { "sip:host1?a=b;limit=1", "<sip:host1?a=b>;limit=1" },
    { "A  B <sip:a>;x", "\"A B\" <sip:a>;x" },
    { "\"\"<sip:a>", "\"\" <sip:a>" },
    { "", null },
    { "<>", null },
    { "<sip:a", null },
    { "<a>", null },
    { "A", null },
    { "A sip:a", null },
    { "<sip:a>x", null },
    { "<sip:a>;", null },
    { "<sip:a>;x ", null },
    { "<sip:a>;;x", null },
    { "<sip:a>,<sip:b>", null },

    // counter and limit
    { "<sip:host1>;counter=3", "<sip:host1>;counter=3" },
    { "<sip:host1>;counter=07", "<sip:host1>;counter=7" },
    { "<sip:host1>;Counter = 99", "<sip:host1>;counter=99" },
    { "<sip:host1>;counter=0", "<sip:host1>;counter=0" },
    { "<sip:host1>;counter=1;counter=2", "<sip:host1>;counter=2" },
    { "<sip:host1>;counter=x", "<sip:host1>;counter=x" }, // generic
    { "<sip:host1>;counter=-1", "<sip:host1>;counter=-1" },
    { "<sip:host1>;counter=\"1\"", "<sip:host1>;counter=\"1\"" },
    { "<sip:host1>;counter", "<sip:host1>;counter" },
    { "<sip:host1>;counter=1;counter=x", "<sip:host1>;counter=1" }, // the field hides the generic one
    { "<sip:host1>;counterx=1", "<sip:host1>;counterx=1" },
    { "<sip:host1>;counter=123", null }, // two digits are taken, and behind them is no semicolon
    { "<sip:host1>;counter=0.5", null },
    { "<sip:host1>;counter=1x", null },
    { "<sip:host1>;counter=", null },
    { "<sip:host1>;limit=99", "<sip:host1>;limit=99" },
    { "<sip:host1>;LIMIT=00", "<sip:host1>;limit=0" },
    { "<sip:host1>;limit=x", "<sip:host1>;limit=x" },
    { "<sip:host1>;limit=100", null },

    // words
    { "<sip:host1>;Reason=USER-BUSY", "<sip:host1>;reason=user-busy" },
    { "<sip:host1>;privacy=Full", "<sip:host1>;privacy=full" },
    { "<sip:host1>;SCREEN = Yes", "<sip:host1>;screen=yes" },
    { "<sip:host1>;reason=a;reason=B", "<sip:host1>;reason=b" },
    { "<sip:host1>;reason", "<sip:host1>;reason" },
    { "<sip:host1>;reason=a;reason", "<sip:host1>;reason=a" },
    { "<sip:host1>;reason=[::1]", "<sip:host1>;reason=[::1]" }, // generic
    { "<sip:host1>;reasonx=A", "<sip:host1>;reasonx=A" },
    { "<sip:host1>;reason=", null }, // neither parser takes it
    { "<sip:host1>;reason=\"a", null },
    { "<sip:host1>;reason=a b", null },
    { "<sip:host1>;screen=\"a\"b", null },

    // The quotes of a word are gone, and what goes out is another text.
    { "<sip:host1>;reason=\"User-Busy\"", "<sip:host1>;reason=user-busy" },
    { "<sip:host1>;reason=\"Time of Day\"", "<sip:host1>;reason=time of day", null },
    { "<sip:host1>;reason=\"\"", "<sip:host1>;reason=", null },
    { "<sip:host1>;privacy=\"a;x\"", "<sip:host1>;privacy=a;x" },
    { "<sip:host1>;screen=\"\\\"A\\\"\"", "<sip:host1>;screen=\"a\"", "<sip:host1>;screen=a" },
    { "<sip:host1>;reason=\"\u00C4\u0394\"", "<sip:host1>;reason=\u00E4\u03B4", null }, // any small letters
    { "<sip:a>;reason=\"x, <sip:evil>;counter=9\"", "<sip:a>;reason=x, <sip:evil>;counter=9", null },

    // one order
    { "<sip:host1>;screen=yes;reason=a", "<sip:host1>;reason=a;screen=yes" },
    { "<sip:a>;z=1;screen=s;privacy=p;limit=2;counter=1;reason=r;y",
      "<sip:a>;reason=r;counter=1;limit=2;privacy=p;screen=s;z=1;y" },
    { "<sip:host1>;A=B;c=\"d\";e=[::1];a=2", "<sip:host1>;a=2;c=\"d\";e=[::1]" },
};

TEST_F( Diversion, Rows )
{
    test::ExpectRows<Value>( rows );
}

TEST_F( Diversion, DecodedFields )
{
    const auto diversion = Decode( "\"Al\" <sip:a@xn--bcher-kva.example>;counter=07;limit=x;reason=\"Time of Day\";"
                                   "privacy=\"\";screen=YES" );
    EXPECT_EQ( test::Take( tolmoDiversionIri( diversion.Get() ) ), "sip:a@b\u00FCcher.example" );
    EXPECT_EQ( test::Take( tolmoDiversionDisplayName( diversion.Get() ) ), "Al" );
    EXPECT_EQ( tolmoDiversionCounter( diversion.Get() ), 7 );
    EXPECT_FALSE( tolmoDiversionHasLimit( diversion.Get() ) );
    EXPECT_EQ( test::Take( tolmoDiversionReason( diversion.Get() ) ), "time of day" );
    EXPECT_FALSE( tolmoDiversionReasonOk( test::Own( tolmoDiversionReason( diversion.Get() ) ).Get() ) );
    EXPECT_TRUE( tolmoDiversionHasPrivacy( diversion.Get() ) );
    EXPECT_EQ( test::Take( tolmoDiversionPrivacy( diversion.Get() ) ), "" );
    EXPECT_EQ( test::Take( tolmoDiversionScreen( diversion.Get() ) ), "yes" );
    EXPECT_EQ( test::Generic<Value>( diversion ), ";limit=x" );
}

TEST_F( Diversion, Fields )
{
    const test::StringField<Value> fields[] = { { nullptr,
                                                  tolmoDiversionIri,
                                                  tolmoDiversionSetIri,
                                                  nullptr,
                                                  "tel:1",
                                                  "tel:1",
                                                  "SIP:\u00FC",
                                                  { { nullptr, "source/tolmo/tolmo_iri.cpp", "iri" },
                                                    { "", path, "tolmoIriOk( iri )" } } },
                                                { tolmoDiversionHasDisplayName,
                                                  tolmoDiversionDisplayName,
                                                  tolmoDiversionSetDisplayName,
                                                  tolmoDiversionDelDisplayName,
                                                  "",
                                                  "",
                                                  "A  B",
                                                  { { nullptr, "source/tolmo/tolmo_display_name.cpp", "displayName" },
                                                    { "a\nb", path, "tolmoDisplayNameOk( displayName )" } } },
                                                // Of the words only null is refused.
                                                { tolmoDiversionHasReason,
                                                  tolmoDiversionReason,
                                                  tolmoDiversionSetReason,
                                                  tolmoDiversionDelReason,
                                                  "No Answer",
                                                  "no answer",
                                                  "",
                                                  { { nullptr, path, "reason" } } },
                                                { tolmoDiversionHasPrivacy,
                                                  tolmoDiversionPrivacy,
                                                  tolmoDiversionSetPrivacy,
                                                  tolmoDiversionDelPrivacy,
                                                  "\u00C4;",
                                                  "\u00E4;",
                                                  "\"off\"",
                                                  { { nullptr, path, "privacy" } } },
                                                { tolmoDiversionHasScreen,
                                                  tolmoDiversionScreen,
                                                  tolmoDiversionSetScreen,
                                                  tolmoDiversionDelScreen,
                                                  "NO",
                                                  "no",
                                                  "a\r\nb",
                                                  { { nullptr, path, "screen" } } } };
    for ( const auto &field : fields ) {
        test::ExpectStringField( field, Create );
    }
    test::ExpectNumberField( test::NumberField<Value>{ tolmoDiversionHasCounter, tolmoDiversionCounter,
                                                       tolmoDiversionSetCounter, tolmoDiversionDelCounter, 99,
                                                       "tolmoDiversionCounterOk( counter )" },
                             Create );
    test::ExpectNumberField( test::NumberField<Value>{ tolmoDiversionHasLimit, tolmoDiversionLimit,
                                                       tolmoDiversionSetLimit, tolmoDiversionDelLimit, 99,
                                                       "tolmoDiversionLimitOk( limit )" },
                             Create );
    test::ExpectGenericParams<Value>( Create );
}

TEST_F( Diversion, FieldHidesGenericParameter )
{
    const struct {
        std::string_view param;
        std::string_view out;
        void ( *set )( TolmoDiversion * );
        void ( *del )( TolmoDiversion * );
    } hidden[] = {
        { ";reason=x", ";reason=a", []( auto d ) { tolmoDiversionSetReason( d, Str( "A" ).Get() ); },
          tolmoDiversionDelReason },
        { ";counter=x", ";counter=7", []( auto d ) { tolmoDiversionSetCounter( d, 7 ); }, tolmoDiversionDelCounter },
        { ";limit=x", ";limit=7", []( auto d ) { tolmoDiversionSetLimit( d, 7 ); }, tolmoDiversionDelLimit },
        { ";privacy=x", ";privacy=a", []( auto d ) { tolmoDiversionSetPrivacy( d, Str( "A" ).Get() ); },
          tolmoDiversionDelPrivacy },
        { ";screen=x", ";screen=a", []( auto d ) { tolmoDiversionSetScreen( d, Str( "A" ).Get() ); },
          tolmoDiversionDelScreen },
    };
    for ( const auto &row : hidden ) {
        auto diversion = Create();
        tolmoDiversionSetGenericParams( diversion.Address(), test::ParamsOf( std::string( row.param ) + ";z" ).Get() );
        EXPECT_EQ( Encode( diversion ), "<sip:a>" + std::string( row.param ) + ";z" );
        row.set( diversion.Address() );
        EXPECT_EQ( Encode( diversion ), "<sip:a>" + std::string( row.out ) + ";z" );
        EXPECT_EQ( test::Generic<Value>( diversion ), std::string( row.param ) + ";z" );
        row.del( diversion.Address() );
        EXPECT_EQ( Encode( diversion ), "<sip:a>" + std::string( row.param ) + ";z" );
    }
}

// Who wants quotes on the wire sets them.
TEST_F( Diversion, QuotedWord )
{
    auto diversion = Create();
    tolmoDiversionSetReason( diversion.Address(), Str( "\"Time of Day\"" ).Get() );
    EXPECT_EQ( Encode( diversion ), "<sip:a>;reason=\"time of day\"" );
    EXPECT_EQ( Encode( Decode( Encode( diversion ) ) ), "<sip:a>;reason=time of day" );
}

TEST_F( Diversion, Huge )
{
    test::ExpectHuge<Value>( "<sip:a>;reason=a;counter=1" );
    const std::string word( 1000000, 'a' );
    EXPECT_EQ( Encode( Decode( "<sip:a>;screen=\"" + std::string( 1000000, 'A' ) + "\"" ) ), "<sip:a>;screen=" + word );
    EXPECT_EQ( Encode( Decode( "<sip:a>;counter=" + std::string( 100000, '1' ) ) ), null );
}

TEST_F( Diversion, DecodeOfEncodeIsTheSameText )
{
    test::Draw draw( 5806 );
    const auto word = [&] { return draw.One( { "Unknown", "user-busy", "x" } ); };
    for ( int i = 0; i < 2000; ++i ) {
        auto diversion = Create();
        tolmoDiversionSetIri( diversion.Address(), draw.Iri().Get() );
        if ( draw.Perhaps() ) {
            tolmoDiversionSetDisplayName( diversion.Address(), draw.DisplayName().Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoDiversionSetReason( diversion.Address(), word().Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoDiversionSetCounter( diversion.Address(), draw.Below( 100 ) );
        }
        if ( draw.Perhaps() ) {
            tolmoDiversionSetLimit( diversion.Address(), draw.Below( 100 ) );
        }
        if ( draw.Perhaps() ) {
            tolmoDiversionSetPrivacy( diversion.Address(), word().Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoDiversionSetScreen( diversion.Address(), word().Get() );
        }
        tolmoDiversionSetGenericParams( diversion.Address(), draw.Params().Get() );
        test::ExpectDecodes<Value>( diversion );

        const auto text = Encode( diversion );
        auto changed = Ref::Share( diversion.Get() );
        tolmoDiversionSetCounter( changed.Address(), 100 - 1 );
        tolmoDiversionDelReason( changed.Address() );
        EXPECT_EQ( Encode( diversion ), text );
    }
}

} // namespace
