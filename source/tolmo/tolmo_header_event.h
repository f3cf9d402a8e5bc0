/* The header Event (RFC 6665 section 8.2.1). */
#ifndef TOLMO_HEADER_EVENT_H
#define TOLMO_HEADER_EVENT_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Event header. */
typedef struct tolmo___HeaderEvent *TolmoHeaderEvent;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderEventSort( void );
KO_API KoObj tolmoHeaderEventObj( TolmoHeaderEvent hdr );
KO_API TolmoHeaderEvent tolmoHeaderEventFrom( KoObj obj );
KO_API TolmoHeaderEvent tolmoHeaderEventRetain( TolmoHeaderEvent hdr );
KO_API void tolmoHeaderEventRelease( TolmoHeaderEvent hdr );
KO_API KoInt tolmoHeaderEventCompare( TolmoHeaderEvent a, TolmoHeaderEvent b );
KO_API KoBool tolmoHeaderEventEquals( TolmoHeaderEvent a, TolmoHeaderEvent b );
KO_API KoString tolmoHeaderEventToString( TolmoHeaderEvent hdr );
KO_API TolmoHeaderEvent tolmoHeaderEventCreateFrom( TolmoHeaderEvent source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderEventEncode( TolmoHeaderEvent hdr );
KO_API TolmoHeaderEvent tolmoHeaderEventTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderEventEncodeToMessage( TolmoHeaderEvent hdr, TolmoMessage *msg );
KO_API TolmoHeaderEvent tolmoHeaderEventTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderEventPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderEventRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderEventStore( TolmoHeaderEvent hdr );
KO_API TolmoHeaderEvent tolmoHeaderEventTryRestore( KoStore store );
KO_API void tolmo___HeaderEventStartup( void );
KO_API void tolmo___HeaderEventShutdown( void );
/** @} */

/** @name Creation
 * A new header without parameters. The type is shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoEventTypeOk( eventType ) @{ */
KO_API TolmoHeaderEvent tolmoHeaderEventCreate( KoString eventType );
KO_API TolmoHeaderEvent tolmoHeaderEventCreateCstr( const char *chs, KoInt length );
KO_API TolmoHeaderEvent tolmoHeaderEventCreateWcstr( const uint16_t *chs, KoInt length );
/** @} */

/** @name Type
 * Always there, in its case: a package, perhaps with templates behind dots. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param eventType shared, the caller keeps its reference.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoEventTypeOk( eventType ) @{ */
KO_API KoString tolmoHeaderEventEventType( TolmoHeaderEvent hdr );
KO_API void tolmoHeaderEventSetEventType( TolmoHeaderEvent *hdr, KoString eventType );
KO_API void tolmoHeaderEventSetEventTypeCstr( TolmoHeaderEvent *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderEventSetEventTypeWcstr( TolmoHeaderEvent *hdr, const uint16_t *chs, KoInt length );
/** @} */

/** @name Parameter id
 * Optional: a token in its case. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param id shared, the caller keeps its reference.
 * @pre hdr, for a change then *hdr
 * @pre tolmoTokenOk( id ) @{ */
KO_API KoBool tolmoHeaderEventHasId( TolmoHeaderEvent hdr );
KO_API KoString tolmoHeaderEventId( TolmoHeaderEvent hdr );
KO_API void tolmoHeaderEventSetId( TolmoHeaderEvent *hdr, KoString id );
KO_API void tolmoHeaderEventDelId( TolmoHeaderEvent *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderEventGenericParams( TolmoHeaderEvent hdr );
KO_API void tolmoHeaderEventSetGenericParams( TolmoHeaderEvent *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
