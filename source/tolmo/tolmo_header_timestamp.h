/* The header Timestamp (RFC 3261 section 20.38). */
#ifndef TOLMO_HEADER_TIMESTAMP_H
#define TOLMO_HEADER_TIMESTAMP_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Timestamp header. */
typedef struct tolmo___HeaderTimestamp *TolmoHeaderTimestamp;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderTimestampSort( void );
KO_API KoObj tolmoHeaderTimestampObj( TolmoHeaderTimestamp hdr );
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampFrom( KoObj obj );
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampRetain( TolmoHeaderTimestamp hdr );
KO_API void tolmoHeaderTimestampRelease( TolmoHeaderTimestamp hdr );
KO_API KoInt tolmoHeaderTimestampCompare( TolmoHeaderTimestamp a, TolmoHeaderTimestamp b );
KO_API KoBool tolmoHeaderTimestampEquals( TolmoHeaderTimestamp a, TolmoHeaderTimestamp b );
KO_API KoString tolmoHeaderTimestampToString( TolmoHeaderTimestamp hdr );
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampCreateFrom( TolmoHeaderTimestamp source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderTimestampEncode( TolmoHeaderTimestamp hdr );
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderTimestampEncodeToMessage( TolmoHeaderTimestamp hdr, TolmoMessage *msg );
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderTimestampPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderTimestampRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderTimestampStore( TolmoHeaderTimestamp hdr );
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampTryRestore( KoStore store );
KO_API void tolmo___HeaderTimestampStartup( void );
KO_API void tolmo___HeaderTimestampShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param timestampValue shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoTimestampValueOk( timestampValue )
 */
KO_API TolmoHeaderTimestamp tolmoHeaderTimestampCreate( KoString timestampValue );

/** The time stamp with its optional delay. @return new reference. @pre hdr */
KO_API KoString tolmoHeaderTimestampTimestampValue( TolmoHeaderTimestamp hdr );

/**
 * Sets the time stamp with its optional delay.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param timestampValue shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoTimestampValueOk( timestampValue )
 */
KO_API void tolmoHeaderTimestampSetTimestampValue( TolmoHeaderTimestamp *hdr, KoString timestampValue );

KO_END_DECLS

#endif
