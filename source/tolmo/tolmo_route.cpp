/* One item of a Route, Record-Route or Service-Route header: an address and parameters (RFC 3261 section 20.34, RFC 3608). */
#include <tolmo/tolmo_route.h>

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_params.hpp>

struct tolmo___Route {
    ko___Obj head;
    KoString iri;
    KoString displayName;
    TolmoGenericParams genericParams;
};

namespace {

using Route = tolmo___Route;
using AllFields = tolmo::Fields<&Route::iri, &Route::displayName, &Route::genericParams>;
static_assert( tolmo::namesAllFields<Route, AllFields> );

TOLMO_FREE( Route, route, AllFields )
TOLMO_COMPARE( Route, routeA, routeB, AllFields )

} // namespace

// Without a to-string function: that is meant.
static const ko___Sort tolmo___sort_TOLMO_ROUTE = TOLMO_SORT( "TOLMO_ROUTE", Free, Compare, nullptr );
TOLMO_STANDARD_OPERATIONS( Route, TOLMO_ROUTE )
TOLMO_CREATE_FROM( Route, AllFields )

namespace {

/** A route without parameters, of a good address. */
KoRef<TolmoRoute> Create( KoRef<KoString> iri, KoRef<KoString> displayName )
{
    auto route = tolmo::CreateObject<Route>( &tolmo___sort_TOLMO_ROUTE );
    route.Get()->iri = iri.Leak();
    route.Get()->displayName = displayName.Leak();
    route.Get()->genericParams = tolmo::EmptyParams();
    return route;
}

} // namespace

TolmoRoute tolmoRouteCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return Create( tolmo::Share( iri ), {} ).Leak();
}

KoString tolmoRouteIri( TolmoRoute route )
{
    KO_REQUIRE( route );
    return tolmo::Retained( route->iri );
}

void tolmoRouteSetIri( TolmoRoute *route, KoString iri )
{
    KO_REQUIRE_HANDLE( route );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( route, tolmoRouteCreateFrom );
    tolmo::Store( ( *route )->iri, tolmo::Share( iri ) );
}

KoBool tolmoRouteHasDisplayName( TolmoRoute route )
{
    KO_REQUIRE( route );
    return route->displayName != nullptr;
}

KoString tolmoRouteDisplayName( TolmoRoute route )
{
    KO_REQUIRE( route );
    return tolmo::Retained( route->displayName );
}

void tolmoRouteSetDisplayName( TolmoRoute *route, KoString displayName )
{
    KO_REQUIRE_HANDLE( route );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( route, tolmoRouteCreateFrom );
    tolmo::Store( ( *route )->displayName, tolmo::Share( displayName ) );
}

void tolmoRouteDelDisplayName( TolmoRoute *route )
{
    KO_REQUIRE_HANDLE( route );
    tolmo::MakeUnique( route, tolmoRouteCreateFrom );
    tolmo::Store( ( *route )->displayName, {} );
}

TolmoGenericParams tolmoRouteGenericParams( TolmoRoute route )
{
    KO_REQUIRE( route );
    return tolmo::Retained( route->genericParams );
}

void tolmoRouteSetGenericParams( TolmoRoute *route, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( route );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( route, tolmoRouteCreateFrom );
    tolmo::Store( ( *route )->genericParams, tolmo::Share( genericParams ) );
}

// [ display-name ] LAQUOT IRI RAQUOT generic-params
KoString tolmo___RouteEncode( TolmoRoute route )
{
    KO_REQUIRE( route );
    tolmo::Builder text;
    tolmo::AddAddress( text, route->displayName, route->iri );
    tolmo::AddParams( text, route->genericParams, {} );
    return text.Finish();
}

TolmoRoute tolmo___RouteTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    tolmo::Address address;
    if ( !tolmo::TakeAddress( w, address, tolmo::ToSemicolon ) ) {
        return nullptr;
    }
    auto route = Create( std::move( address.iri ), std::move( address.displayName ) );
    return tolmo::TakeParams( w, [&] { return tolmo::TakeGeneric( w, route.Get()->genericParams ); } ) ? route.Leak()
                                                                                                       : nullptr;
}
