/* The header Min-Expires (RFC 3261 section 20.23). */
#ifndef TOLMO_HEADER_MIN_EXPIRES_H
#define TOLMO_HEADER_MIN_EXPIRES_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Min-Expires header. */
typedef struct tolmo___HeaderMinExpires *TolmoHeaderMinExpires;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderMinExpiresSort( void );
KO_API KoObj tolmoHeaderMinExpiresObj( TolmoHeaderMinExpires hdr );
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresFrom( KoObj obj );
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresRetain( TolmoHeaderMinExpires hdr );
KO_API void tolmoHeaderMinExpiresRelease( TolmoHeaderMinExpires hdr );
KO_API KoInt tolmoHeaderMinExpiresCompare( TolmoHeaderMinExpires a, TolmoHeaderMinExpires b );
KO_API KoBool tolmoHeaderMinExpiresEquals( TolmoHeaderMinExpires a, TolmoHeaderMinExpires b );
KO_API KoString tolmoHeaderMinExpiresToString( TolmoHeaderMinExpires hdr );
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresCreateFrom( TolmoHeaderMinExpires source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderMinExpiresEncode( TolmoHeaderMinExpires hdr );
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderMinExpiresEncodeToMessage( TolmoHeaderMinExpires hdr, TolmoMessage *msg );
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderMinExpiresPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderMinExpiresRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderMinExpiresStore( TolmoHeaderMinExpires hdr );
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresTryRestore( KoStore store );
KO_API void tolmo___HeaderMinExpiresStartup( void );
KO_API void tolmo___HeaderMinExpiresShutdown( void );
/** @} */

/** A new header. @return new reference. @pre tolmoDeltaSecondsOk( deltaSeconds ) */
KO_API TolmoHeaderMinExpires tolmoHeaderMinExpiresCreate( KoInt deltaSeconds );

/** The smallest number of seconds that the server takes, 0 or more. @pre hdr */
KO_API KoInt tolmoHeaderMinExpiresDeltaSeconds( TolmoHeaderMinExpires hdr );

/**
 * Sets the smallest number of seconds that the server takes.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoDeltaSecondsOk( deltaSeconds )
 */
KO_API void tolmoHeaderMinExpiresSetDeltaSeconds( TolmoHeaderMinExpires *hdr, KoInt deltaSeconds );

KO_END_DECLS

#endif
