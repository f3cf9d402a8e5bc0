/* The header Call-Id (RFC 3261 section 20.8). */
#ifndef TOLMO_HEADER_CALL_ID_H
#define TOLMO_HEADER_CALL_ID_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Call-Id header. */
typedef struct tolmo___HeaderCallId *TolmoHeaderCallId;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderCallIdSort( void );
KO_API KoObj tolmoHeaderCallIdObj( TolmoHeaderCallId hdr );
KO_API TolmoHeaderCallId tolmoHeaderCallIdFrom( KoObj obj );
KO_API TolmoHeaderCallId tolmoHeaderCallIdRetain( TolmoHeaderCallId hdr );
KO_API void tolmoHeaderCallIdRelease( TolmoHeaderCallId hdr );
KO_API KoInt tolmoHeaderCallIdCompare( TolmoHeaderCallId a, TolmoHeaderCallId b );
KO_API KoBool tolmoHeaderCallIdEquals( TolmoHeaderCallId a, TolmoHeaderCallId b );
KO_API KoString tolmoHeaderCallIdToString( TolmoHeaderCallId hdr );
KO_API TolmoHeaderCallId tolmoHeaderCallIdCreateFrom( TolmoHeaderCallId source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderCallIdEncode( TolmoHeaderCallId hdr );
KO_API TolmoHeaderCallId tolmoHeaderCallIdTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderCallIdEncodeToMessage( TolmoHeaderCallId hdr, TolmoMessage *msg );
KO_API TolmoHeaderCallId tolmoHeaderCallIdTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderCallIdPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderCallIdRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderCallIdStore( TolmoHeaderCallId hdr );
KO_API TolmoHeaderCallId tolmoHeaderCallIdTryRestore( KoStore store );
KO_API void tolmo___HeaderCallIdStartup( void );
KO_API void tolmo___HeaderCallIdShutdown( void );
/** @} */

/**
 * A new header.
 *
 * @param callId shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoCallIdOk( callId )
 */
KO_API TolmoHeaderCallId tolmoHeaderCallIdCreate( KoString callId );

/** The call identifier. @return new reference. @pre hdr */
KO_API KoString tolmoHeaderCallIdCallId( TolmoHeaderCallId hdr );

/**
 * Sets the call identifier.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @param callId shared, the caller keeps its reference.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoCallIdOk( callId )
 */
KO_API void tolmoHeaderCallIdSetCallId( TolmoHeaderCallId *hdr, KoString callId );

KO_END_DECLS

#endif
