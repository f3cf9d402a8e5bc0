/* One item of a Route, Record-Route or Service-Route header: an address and parameters (RFC 3261 section 20.34, RFC 3608). */
#ifndef TOLMO_ROUTE_H
#define TOLMO_ROUTE_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a route. */
typedef struct tolmo___Route *TolmoRoute;

/** @name Standard operations
 * See docs/objects.md. The sort has no to-string function: the wire text comes from tolmo___RouteEncode alone. @{ */
KO_API KoSort tolmoRouteSort( void );
KO_API KoObj tolmoRouteObj( TolmoRoute route );
KO_API TolmoRoute tolmoRouteFrom( KoObj obj );
KO_API TolmoRoute tolmoRouteRetain( TolmoRoute route );
KO_API void tolmoRouteRelease( TolmoRoute route );
KO_API KoInt tolmoRouteCompare( TolmoRoute a, TolmoRoute b );
KO_API KoBool tolmoRouteEquals( TolmoRoute a, TolmoRoute b );
KO_API KoString tolmoRouteToString( TolmoRoute route );
KO_API TolmoRoute tolmoRouteCreateFrom( TolmoRoute source );
/** @} */

/**
 * An address without a display name and without parameters.
 *
 * @param iri shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoIriOk( iri )
 */
KO_API TolmoRoute tolmoRouteCreate( KoString iri );

/** @name Address
 * Always there: an IRI, of any scheme. The getter returns a new reference; what the setter gets is shared, the caller keeps
 * its reference.
 * @param route for the setter: address of the caller's handle, which may be replaced.
 * @pre route, for the setter then *route
 * @pre tolmoIriOk( iri ) @{ */
KO_API KoString tolmoRouteIri( TolmoRoute route );
KO_API void tolmoRouteSetIri( TolmoRoute *route, KoString iri );
/** @} */

/** @name Display name
 * Optional, without quotes and escapes; may be present and empty. It is stored as it is given: the setter shares it, the
 * caller keeps its reference. The getter returns a new reference, or null.
 * @param route for a setter: address of the caller's handle, which may be replaced.
 * @pre route, for a setter then *route
 * @pre tolmoDisplayNameOk( displayName ) @{ */
KO_API KoBool tolmoRouteHasDisplayName( TolmoRoute route );
KO_API KoString tolmoRouteDisplayName( TolmoRoute route );
KO_API void tolmoRouteSetDisplayName( TolmoRoute *route, KoString displayName );
KO_API void tolmoRouteDelDisplayName( TolmoRoute *route );
/** @} */

/** @name Parameters
 * Always there, perhaps empty. Those inside the angle brackets belong to the IRI. The getter returns a new reference; what the setter
 * gets is shared, the caller keeps its reference.
 * @param route for the setter: address of the caller's handle, which may be replaced.
 * @pre route, for the setter then *route
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoRouteGenericParams( TolmoRoute route );
KO_API void tolmoRouteSetGenericParams( TolmoRoute *route, TolmoGenericParams genericParams );
/** @} */

/** The wire text, always in angle brackets. @return new reference. @pre route */
KO_API KoString tolmo___RouteEncode( TolmoRoute route );

/**
 * Decodes exactly one item: `[ display-name ] "<" URI ">"`, or a bare URI, which ends at the first semicolon and which
 * no list takes; then the parameters.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoRoute tolmo___RouteTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
