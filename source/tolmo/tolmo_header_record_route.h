/* The header Record-Route (RFC 3261 section 20.30). */
#ifndef TOLMO_HEADER_RECORD_ROUTE_H
#define TOLMO_HEADER_RECORD_ROUTE_H

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_route.h>

KO_BEGIN_DECLS

/** Handle of a Record-Route header. */
typedef struct tolmo___HeaderRecordRoute *TolmoHeaderRecordRoute;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderRecordRouteSort( void );
KO_API KoObj tolmoHeaderRecordRouteObj( TolmoHeaderRecordRoute hdr );
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteFrom( KoObj obj );
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteRetain( TolmoHeaderRecordRoute hdr );
KO_API void tolmoHeaderRecordRouteRelease( TolmoHeaderRecordRoute hdr );
KO_API KoInt tolmoHeaderRecordRouteCompare( TolmoHeaderRecordRoute a, TolmoHeaderRecordRoute b );
KO_API KoBool tolmoHeaderRecordRouteEquals( TolmoHeaderRecordRoute a, TolmoHeaderRecordRoute b );
KO_API KoString tolmoHeaderRecordRouteToString( TolmoHeaderRecordRoute hdr );
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteCreateFrom( TolmoHeaderRecordRoute source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A list of TolmoRoute over all lines; without a line there is none. @{ */
KO_API TolmoMessageHeader tolmoHeaderRecordRouteEncode( TolmoHeaderRecordRoute hdr );
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRecordRouteEncodeToMessage( TolmoHeaderRecordRoute hdr, TolmoMessage *msg );
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRecordRoutePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRecordRouteRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRecordRouteStore( TolmoHeaderRecordRoute hdr );
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteTryRestore( KoStore store );
KO_API void tolmo___HeaderRecordRouteStartup( void );
KO_API void tolmo___HeaderRecordRouteShutdown( void );
/** @} */

/** A new empty list. @return new reference. */
KO_API TolmoHeaderRecordRoute tolmoHeaderRecordRouteCreate( void );

/** The number of items. @pre hdr */
KO_API KoInt tolmoHeaderRecordRouteRoutesLength( TolmoHeaderRecordRoute hdr );

/**
 * Decodes one item. Nothing is kept of it: each call decodes anew.
 *
 * @return new reference; null when the item's text does not decode, which the list's decoder does not preclude.
 * @pre hdr
 * @pre the index is inside the list (the runtime's)
 */
KO_API TolmoRoute tolmoHeaderRecordRouteTryDecodeRouteAt( TolmoHeaderRecordRoute hdr, KoInt index );

/** @name Changing
 * The list keeps a snapshot of the value's text. Insertion is before the item at the index.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param route shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre route (the encoder's)
 * @pre the index is inside the list (the runtime's) @{ */
KO_API void tolmoHeaderRecordRouteSetRouteAt( TolmoHeaderRecordRoute *hdr, KoInt index, TolmoRoute route );
KO_API void tolmoHeaderRecordRouteInsertRoute( TolmoHeaderRecordRoute *hdr, KoInt index, TolmoRoute route );
KO_API void tolmoHeaderRecordRoutePrependRoute( TolmoHeaderRecordRoute *hdr, TolmoRoute route );
KO_API void tolmoHeaderRecordRouteAppendRoute( TolmoHeaderRecordRoute *hdr, TolmoRoute route );
KO_API void tolmoHeaderRecordRouteDelRouteAt( TolmoHeaderRecordRoute *hdr, KoInt index );
KO_API void tolmoHeaderRecordRouteClearRoutes( TolmoHeaderRecordRoute *hdr );
/** @} */

KO_END_DECLS

#endif
