/* The header Allow-Events (RFC 6665 section 8.2.2). */
#ifndef TOLMO_HEADER_ALLOW_EVENTS_H
#define TOLMO_HEADER_ALLOW_EVENTS_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Allow-Events header. */
typedef struct tolmo___HeaderAllowEvents *TolmoHeaderAllowEvents;

/** @name Standard operations
 * See docs/objects.md. Sets are equal in any order. @{ */
KO_API KoSort tolmoHeaderAllowEventsSort( void );
KO_API KoObj tolmoHeaderAllowEventsObj( TolmoHeaderAllowEvents hdr );
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsFrom( KoObj obj );
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsRetain( TolmoHeaderAllowEvents hdr );
KO_API void tolmoHeaderAllowEventsRelease( TolmoHeaderAllowEvents hdr );
KO_API KoInt tolmoHeaderAllowEventsCompare( TolmoHeaderAllowEvents a, TolmoHeaderAllowEvents b );
KO_API KoBool tolmoHeaderAllowEventsEquals( TolmoHeaderAllowEvents a, TolmoHeaderAllowEvents b );
KO_API KoString tolmoHeaderAllowEventsToString( TolmoHeaderAllowEvents hdr );
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsCreateFrom( TolmoHeaderAllowEvents source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A set of event types over all lines, printed on one line; without a line there is no header, and
 * an empty set prints none. @{ */
KO_API TolmoMessageHeader tolmoHeaderAllowEventsEncode( TolmoHeaderAllowEvents hdr );
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderAllowEventsEncodeToMessage( TolmoHeaderAllowEvents hdr, TolmoMessage *msg );
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderAllowEventsPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderAllowEventsRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderAllowEventsStore( TolmoHeaderAllowEvents hdr );
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsTryRestore( KoStore store );
KO_API void tolmo___HeaderAllowEventsStartup( void );
KO_API void tolmo___HeaderAllowEventsShutdown( void );
/** @} */

/** A new empty set. @return new reference. */
KO_API TolmoHeaderAllowEvents tolmoHeaderAllowEventsCreate( void );

/** @name Reading
 * The words stand in the order of their first setting. Each call returns a new reference.
 * @pre hdr
 * @pre the index is inside the set (the runtime's) @{ */
KO_API KoInt tolmoHeaderAllowEventsEventTypesLength( TolmoHeaderAllowEvents hdr );
KO_API KoString tolmoHeaderAllowEventsEventTypeAt( TolmoHeaderAllowEvents hdr, KoInt index );
KO_API KoVector tolmoHeaderAllowEventsEventTypesVector( TolmoHeaderAllowEvents hdr );
/** @} */

/** @name Test of a word
 * True when the word is in the set; case matters. What is no event type ends the process.
 * @param eventType shared, the caller keeps its reference.
 * @pre hdr
 * @pre tolmoEventTypeOk( eventType ) @{ */
KO_API KoBool tolmoHeaderAllowEventsHasEventType( TolmoHeaderAllowEvents hdr, KoString eventType );
KO_API KoBool tolmoHeaderAllowEventsHasEventTypeCstr( TolmoHeaderAllowEvents hdr, const char *chs, KoInt length );
KO_API KoBool tolmoHeaderAllowEventsHasEventTypeWcstr( TolmoHeaderAllowEvents hdr, const uint16_t *chs, KoInt length );
/** @} */

/** @name Changing
 * Adds or removes a word. One that is there already, or is not there, is no fault.
 * @param hdr address of the caller's handle, which may be replaced.
 * @param eventType shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoEventTypeOk( eventType ) @{ */
KO_API void tolmoHeaderAllowEventsSetEventType( TolmoHeaderAllowEvents *hdr, KoString eventType );
KO_API void tolmoHeaderAllowEventsSetEventTypeCstr( TolmoHeaderAllowEvents *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderAllowEventsSetEventTypeWcstr( TolmoHeaderAllowEvents *hdr, const uint16_t *chs, KoInt length );
KO_API void tolmoHeaderAllowEventsDelEventType( TolmoHeaderAllowEvents *hdr, KoString eventType );
KO_API void tolmoHeaderAllowEventsDelEventTypeCstr( TolmoHeaderAllowEvents *hdr, const char *chs, KoInt length );
KO_API void tolmoHeaderAllowEventsDelEventTypeWcstr( TolmoHeaderAllowEvents *hdr, const uint16_t *chs, KoInt length );
/** @} */

/**
 * Replaces the set by the text forms of the objects of a vector. A text that is no event type ends the process midway.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param vec shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre vec
 * @pre tolmoEventTypeOk( eventType ) for each of them
 */
KO_API void tolmoHeaderAllowEventsSetEventTypesVector( TolmoHeaderAllowEvents *hdr, KoVector vec );

/**
 * Empties the set.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 */
KO_API void tolmoHeaderAllowEventsClearEventTypes( TolmoHeaderAllowEvents *hdr );

KO_END_DECLS

#endif
