/* The header Date (RFC 3261 section 20.17). */
#ifndef TOLMO_HEADER_DATE_H
#define TOLMO_HEADER_DATE_H

#include <runtime/ko_time.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Date header. */
typedef struct tolmo___HeaderDate *TolmoHeaderDate;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderDateSort( void );
KO_API KoObj tolmoHeaderDateObj( TolmoHeaderDate hdr );
KO_API TolmoHeaderDate tolmoHeaderDateFrom( KoObj obj );
KO_API TolmoHeaderDate tolmoHeaderDateRetain( TolmoHeaderDate hdr );
KO_API void tolmoHeaderDateRelease( TolmoHeaderDate hdr );
KO_API KoInt tolmoHeaderDateCompare( TolmoHeaderDate a, TolmoHeaderDate b );
KO_API KoBool tolmoHeaderDateEquals( TolmoHeaderDate a, TolmoHeaderDate b );
KO_API KoString tolmoHeaderDateToString( TolmoHeaderDate hdr );
KO_API TolmoHeaderDate tolmoHeaderDateCreateFrom( TolmoHeaderDate source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderDateEncode( TolmoHeaderDate hdr );
KO_API TolmoHeaderDate tolmoHeaderDateTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderDateEncodeToMessage( TolmoHeaderDate hdr, TolmoMessage *msg );
KO_API TolmoHeaderDate tolmoHeaderDateTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderDatePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderDateRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderDateStore( TolmoHeaderDate hdr );
KO_API TolmoHeaderDate tolmoHeaderDateTryRestore( KoStore store );
KO_API void tolmo___HeaderDateStartup( void );
KO_API void tolmo___HeaderDateShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param tm shared, the caller keeps its reference: a time in UTC. That it is valid is not tested.
 * @return new reference.
 * @pre tm
 */
KO_API TolmoHeaderDate tolmoHeaderDateCreate( KoTime tm );

/** A new header with the present time. @return new reference. */
KO_API TolmoHeaderDate tolmoHeaderDateCreateFromCurrentTime( void );

/** @name Time
 * In UTC. Encoding needs a month from 1 to 12. The getter returns a new reference; what the setter gets is shared, the
 * caller keeps its reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tm @{ */
KO_API KoTime tolmoHeaderDateTime( TolmoHeaderDate hdr );
KO_API void tolmoHeaderDateSetTime( TolmoHeaderDate *hdr, KoTime tm );
/** @} */

KO_END_DECLS

#endif
