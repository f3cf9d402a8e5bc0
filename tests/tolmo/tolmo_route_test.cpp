/* One item of a Route, Record-Route or Service-Route header. */
#include "tolmo_type_test.h"

#include <random>

namespace {

using test::Str;
using test::Text;

class Route : public test::TolmoFixture {};

constexpr char path[] = "source/tolmo/tolmo_route.cpp";
constexpr char null[] = "(null)";

KoRef<TolmoRoute> Decode( std::string_view text )
{
    return test::DecodeWith( tolmo___RouteTryDecode, text );
}

std::string Encode( const KoRef<TolmoRoute> &route )
{
    return route ? test::Take( tolmo___RouteEncode( route.Get() ) ) : null;
}

struct Functions {
    TEST_STANDARD_FUNCTIONS( Route )
};

TEST_F( Route, StandardOperations )
{
    const auto route = Decode( "A <sip:a>;x" );
    test::ExpectStandardOperations<Functions>( route.Get(), "TOLMO_ROUTE", path, "route", "routeA", "routeB" );
    const auto copy = KoRef<TolmoRoute>::Adopt( tolmoRouteCreateFrom( route.Get() ) );
    EXPECT_EQ( Encode( copy ), Encode( route ) );
    EXPECT_EQ( tolmoRouteSort()->toString, nullptr );
    EXPECT_EQ( test::Take( tolmoRouteToString( route.Get() ) ), "<TOLMO_ROUTE>" ); // not the wire text
}

TEST_F( Route, Create )
{
    const auto route = KoRef<TolmoRoute>::Adopt( tolmoRouteCreate( Str( "sip:a" ).Get() ) );
    EXPECT_EQ( test::Take( tolmoRouteIri( route.Get() ) ), "sip:a" );
    EXPECT_FALSE( tolmoRouteHasDisplayName( route.Get() ) );
    EXPECT_EQ( tolmoRouteDisplayName( route.Get() ), nullptr );
    EXPECT_EQ( Encode( route ), "<sip:a>" );
    EXPECT_ABORT( tolmoRouteCreate( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( tolmoRouteCreate( Str( "a" ).Get() ), path, "tolmoIriOk( iri )" );
}

const struct {
    std::string_view text;
    std::string_view out;
} rows[] = { { "<sip:host1;lr>", "<sip:host1;lr>" },   // inside the address
             { "sip:host1;lr", "<sip:host1>;lr" },     // behind it
             { "<sip:a>;X=Y;x=Z;b", "<sip:a>;x=Z;b" }, // the later of one name
             { "<sip:a> ; x = \"y\\z\"", "<sip:a>;x=\"yz\"" },
             { "<sip:a>;q=2;expires=x", "<sip:a>;q=2;expires=x" }, // no parameter has a field
             { "\"A, B\" <sip:a>", "\"A, B\" <sip:a>" },
             { "A  B <sip:a>;x", "\"A B\" <sip:a>;x" },
             { "\"\" <sip:a>", "\"\" <sip:a>" },
             { "<sip:a> ", "<sip:a>" },
             { " <sip:a>", "<sip:a>" },
             { "sip:a ;x", "<sip:a>;x" },
             { "<sip:a@xn--bcher-kva.example;lr>", "<sip:a@xn--bcher-kva.example;lr>" },
             { "", null },
             { "<>", null }, // the conversion refuses the empty text
             { "<>;lr", null },
             { ";lr", null },
             { "<sip:a>;", null }, // a semicolon needs a parameter
             { "sip:a;", null },
             { "<sip:a>;;x", null },
             { "<sip:a>;x ", null },
             { "<sip:a>;x=", null },
             { "<sip:a>x", null },
             { "<sip:a>,<sip:b>", null },
             { "<sip:a", null },
             { "sip:a>", null },
             { "sip:a ", null },
             { " sip:a", null },
             { "A sip:a", null },
             { "A <sip:a", null },
             { "\"A\"", null },
             { "*", null } };

TEST_F( Route, Rows )
{
    for ( const auto &[text, out] : rows ) {
        const auto route = Decode( text );
        EXPECT_EQ( Encode( route ), out ) << "text: " << text;
        if ( route ) {
            EXPECT_TRUE( tolmoRouteEquals( Decode( out ).Get(), route.Get() ) ) << "text: " << text;
        }
        test::DecodeEveryPrefix( tolmo___RouteTryDecode, text );
    }
    EXPECT_EQ( tolmo___RouteTryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( tolmo___RouteTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___RouteTryDecode( nullptr, 1 ), path, "chs || length == 0" );
    EXPECT_ABORT( tolmo___RouteEncode( nullptr ), path, "route" );
}

TEST_F( Route, Fields )
{
    auto route = Decode( "<sip:a>" );
    const TolmoRoute object = route.Get();
    const auto iri = Str( "sip:\u00FC@h" );
    const auto name = Str( "B  \"" );
    tolmoRouteSetIri( route.Address(), iri.Get() );
    tolmoRouteSetDisplayName( route.Address(), name.Get() );
    tolmoRouteSetGenericParams( route.Address(), test::ParamsOf( ";lr" ).Get() );
    EXPECT_EQ( route.Get(), object ); // the only holder: no copy
    EXPECT_EQ( KoRef<KoString>::Adopt( tolmoRouteIri( route.Get() ) ).Get(), iri.Get() );
    EXPECT_EQ( KoRef<KoString>::Adopt( tolmoRouteDisplayName( route.Get() ) ).Get(), name.Get() );
    EXPECT_EQ( tolmoRouteHasDisplayName( route.Get() ), KO_TRUE );
    const std::string out = "\"B \\ \\\"\" <sip:%C3%BC@h>;lr";
    EXPECT_EQ( Encode( route ), out );

    auto copy = KoRef<TolmoRoute>::Share( route.Get() );
    tolmoRouteSetIri( copy.Address(), Str( "sip:c" ).Get() );
    EXPECT_NE( copy.Get(), route.Get() );
    EXPECT_EQ( Encode( copy ), "\"B \\ \\\"\" <sip:c>;lr" );
    copy = KoRef<TolmoRoute>::Share( route.Get() );
    tolmoRouteSetDisplayName( copy.Address(), Str( "" ).Get() );
    EXPECT_EQ( Encode( copy ), "\"\" <sip:%C3%BC@h>;lr" );
    copy = KoRef<TolmoRoute>::Share( route.Get() );
    tolmoRouteDelDisplayName( copy.Address() );
    EXPECT_EQ( tolmoRouteHasDisplayName( copy.Get() ), KO_FALSE );
    EXPECT_EQ( tolmoRouteDisplayName( copy.Get() ), nullptr );
    EXPECT_EQ( Encode( copy ), "<sip:%C3%BC@h>;lr" );
    copy = KoRef<TolmoRoute>::Share( route.Get() );
    auto params = KoRef<TolmoGenericParams>::Adopt( tolmoRouteGenericParams( route.Get() ) );
    tolmoGenericParamsDelParamCstr( params.Address(), "lr", -1 );
    tolmoRouteSetGenericParams( copy.Address(), params.Get() );
    EXPECT_EQ( Encode( copy ), "\"B \\ \\\"\" <sip:%C3%BC@h>" );
    EXPECT_EQ( Encode( route ), out ); // all the while

    TolmoRoute none = nullptr;
    EXPECT_ABORT( tolmoRouteIri( nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteSetIri( nullptr, nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteSetIri( &none, nullptr ), path, "*route" );
    EXPECT_ABORT( tolmoRouteSetIri( route.Address(), Str( "" ).Get() ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoRouteHasDisplayName( nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteDisplayName( nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteSetDisplayName( nullptr, nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteSetDisplayName( &none, nullptr ), path, "*route" );
    EXPECT_ABORT( tolmoRouteSetDisplayName( route.Address(), Str( "\r" ).Get() ), path,
                  "tolmoDisplayNameOk( displayName )" );
    EXPECT_ABORT( tolmoRouteDelDisplayName( nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteDelDisplayName( &none ), path, "*route" );
    EXPECT_ABORT( tolmoRouteGenericParams( nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteSetGenericParams( nullptr, nullptr ), path, "route" );
    EXPECT_ABORT( tolmoRouteSetGenericParams( &none, nullptr ), path, "*route" );
    EXPECT_ABORT( tolmoRouteSetGenericParams( route.Address(), nullptr ), path, "genericParams" );
}

TEST_F( Route, CompareOrder )
{
    const std::string_view ascending[] = { "\"Z\" <sip:a>;z", "<sip:b>",         "<sip:b>;x",     "\"\" <sip:b>",
                                           "\"A\" <sip:b>",   "\"A\" <sip:b>;x", "\"B\" <sip:b>", "<sip:c>" };
    for ( size_t a = 0; a < std::size( ascending ); ++a ) {
        for ( size_t b = 0; b < std::size( ascending ); ++b ) {
            const KoInt order = tolmoRouteCompare( Decode( ascending[a] ).Get(), Decode( ascending[b] ).Get() );
            EXPECT_EQ( order < 0, a < b ) << ascending[a] << " and " << ascending[b];
            EXPECT_EQ( order > 0, a > b ) << ascending[a] << " and " << ascending[b];
        }
    }
    EXPECT_TRUE( tolmoRouteEquals( Decode( "<sip:a>;x;y=A" ).Get(), Decode( "sip:a;Y=a;x" ).Get() ) );
}

TEST_F( Route, DecodeOfEncodeIsEqual )
{
    std::mt19937 random( 35 );
    const auto one = [&]( std::initializer_list<const char *> texts ) {
        return Str( texts.begin()[random() % texts.size()] );
    };
    for ( int i = 0; i < 2000; ++i ) {
        const auto iri = one( { "sip:a", "sip:a;lr?h=v", "tel:+1", "sip:\u00FC@b\u00FCcher.example" } );
        auto route = KoRef<TolmoRoute>::Adopt( tolmoRouteCreate( iri.Get() ) );
        if ( random() % 2 ) {
            tolmoRouteSetDisplayName( route.Address(), one( { "", "A", "a\"\\,;<>  \t", "\u4E2D" } ).Get() );
        }
        if ( random() % 2 ) {
            const auto params = one( { ";a", ";a=B;c=\"d e\"", ";x=[::1];lr" } );
            tolmoRouteSetGenericParams( route.Address(), test::ParamsOf( Text( params ) ).Get() );
        }
        const auto text = Encode( route );
        const auto decoded = Decode( text );
        ASSERT_TRUE( decoded ) << text;
        EXPECT_TRUE( tolmoRouteEquals( decoded.Get(), route.Get() ) ) << text;
        EXPECT_EQ( Encode( decoded ), text );
        const test::Exact chs( text );
        EXPECT_EQ( tolmo___SkipRoute( chs.Chars(), chs.Length() ), chs.Length() ) << text;
    }
}

TEST_F( Route, Huge )
{
    std::string text = "<sip:a>";
    for ( int i = 0; i < 100000; ++i ) {
        text += ";p" + std::to_string( i );
    }
    EXPECT_EQ( Encode( Decode( text ) ), text );
    EXPECT_FALSE( Decode( text + ";" ) );
}

} // namespace
