/* The header Route (RFC 3261 section 20.34). */
#ifndef TOLMO_HEADER_ROUTE_H
#define TOLMO_HEADER_ROUTE_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_route.h>

KO_BEGIN_DECLS

/** Handle of a Route header. */
typedef struct tolmo___HeaderRoute *TolmoHeaderRoute;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderRouteSort( void );
KO_API KoObj tolmoHeaderRouteObj( TolmoHeaderRoute hdr );
KO_API TolmoHeaderRoute tolmoHeaderRouteFrom( KoObj obj );
KO_API TolmoHeaderRoute tolmoHeaderRouteRetain( TolmoHeaderRoute hdr );
KO_API void tolmoHeaderRouteRelease( TolmoHeaderRoute hdr );
KO_API KoInt tolmoHeaderRouteCompare( TolmoHeaderRoute a, TolmoHeaderRoute b );
KO_API KoBool tolmoHeaderRouteEquals( TolmoHeaderRoute a, TolmoHeaderRoute b );
KO_API KoString tolmoHeaderRouteToString( TolmoHeaderRoute hdr );
KO_API TolmoHeaderRoute tolmoHeaderRouteCreateFrom( TolmoHeaderRoute source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoRoute over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderRouteEncode( TolmoHeaderRoute hdr );
KO_API TolmoHeaderRoute tolmoHeaderRouteTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRouteEncodeToMessage( TolmoHeaderRoute hdr, TolmoMessage *msg );
KO_API TolmoHeaderRoute tolmoHeaderRouteTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRoutePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRouteRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRouteStore( TolmoHeaderRoute hdr );
KO_API TolmoHeaderRoute tolmoHeaderRouteTryRestore( KoStore store );
KO_API void tolmo___HeaderRouteStartup( void );
KO_API void tolmo___HeaderRouteShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderRoute tolmoHeaderRouteCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderRouteRoutesLength( TolmoHeaderRoute hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoRoute tolmoHeaderRouteTryDecodeRouteAt( TolmoHeaderRoute hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param route shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre route (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderRouteSetRouteAt( TolmoHeaderRoute *hdr, KoInt index, TolmoRoute route );
KO_API void tolmoHeaderRouteInsertRoute( TolmoHeaderRoute *hdr, KoInt index, TolmoRoute route );
KO_API void tolmoHeaderRoutePrependRoute( TolmoHeaderRoute *hdr, TolmoRoute route );
KO_API void tolmoHeaderRouteAppendRoute( TolmoHeaderRoute *hdr, TolmoRoute route );
KO_API void tolmoHeaderRouteDelRouteAt( TolmoHeaderRoute *hdr, KoInt index );
KO_API void tolmoHeaderRouteClearRoutes( TolmoHeaderRoute *hdr );
/** @} */

KO_END_DECLS

#endif
