/* The header Service-Route (RFC 3608). */
#ifndef TOLMO_HEADER_SERVICE_ROUTE_H
#define TOLMO_HEADER_SERVICE_ROUTE_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_route.h>

KO_BEGIN_DECLS

/** Handle of a Service-Route header. */
typedef struct tolmo___HeaderServiceRoute *TolmoHeaderServiceRoute;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderServiceRouteSort( void );
KO_API KoObj tolmoHeaderServiceRouteObj( TolmoHeaderServiceRoute hdr );
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteFrom( KoObj obj );
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteRetain( TolmoHeaderServiceRoute hdr );
KO_API void tolmoHeaderServiceRouteRelease( TolmoHeaderServiceRoute hdr );
KO_API KoInt tolmoHeaderServiceRouteCompare( TolmoHeaderServiceRoute a, TolmoHeaderServiceRoute b );
KO_API KoBool tolmoHeaderServiceRouteEquals( TolmoHeaderServiceRoute a, TolmoHeaderServiceRoute b );
KO_API KoString tolmoHeaderServiceRouteToString( TolmoHeaderServiceRoute hdr );
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteCreateFrom( TolmoHeaderServiceRoute source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoRoute over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderServiceRouteEncode( TolmoHeaderServiceRoute hdr );
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderServiceRouteEncodeToMessage( TolmoHeaderServiceRoute hdr, TolmoMessage *msg );
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderServiceRoutePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderServiceRouteRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderServiceRouteStore( TolmoHeaderServiceRoute hdr );
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteTryRestore( KoStore store );
KO_API void tolmo___HeaderServiceRouteStartup( void );
KO_API void tolmo___HeaderServiceRouteShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderServiceRoute tolmoHeaderServiceRouteCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderServiceRouteRoutesLength( TolmoHeaderServiceRoute hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoRoute tolmoHeaderServiceRouteTryDecodeRouteAt( TolmoHeaderServiceRoute hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param route shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre route (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderServiceRouteSetRouteAt( TolmoHeaderServiceRoute *hdr, KoInt index, TolmoRoute route );
KO_API void tolmoHeaderServiceRouteInsertRoute( TolmoHeaderServiceRoute *hdr, KoInt index, TolmoRoute route );
KO_API void tolmoHeaderServiceRoutePrependRoute( TolmoHeaderServiceRoute *hdr, TolmoRoute route );
KO_API void tolmoHeaderServiceRouteAppendRoute( TolmoHeaderServiceRoute *hdr, TolmoRoute route );
KO_API void tolmoHeaderServiceRouteDelRouteAt( TolmoHeaderServiceRoute *hdr, KoInt index );
KO_API void tolmoHeaderServiceRouteClearRoutes( TolmoHeaderServiceRoute *hdr );
/** @} */

KO_END_DECLS

#endif
