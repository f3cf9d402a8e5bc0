/* The header Expires (RFC 3261 section 20.19). */
#ifndef TOLMO_HEADER_EXPIRES_H
#define TOLMO_HEADER_EXPIRES_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of an Expires header. */
typedef struct tolmo___HeaderExpires *TolmoHeaderExpires;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderExpiresSort( void );
KO_API KoObj tolmoHeaderExpiresObj( TolmoHeaderExpires hdr );
KO_API TolmoHeaderExpires tolmoHeaderExpiresFrom( KoObj obj );
KO_API TolmoHeaderExpires tolmoHeaderExpiresRetain( TolmoHeaderExpires hdr );
KO_API void tolmoHeaderExpiresRelease( TolmoHeaderExpires hdr );
KO_API KoInt tolmoHeaderExpiresCompare( TolmoHeaderExpires a, TolmoHeaderExpires b );
KO_API KoBool tolmoHeaderExpiresEquals( TolmoHeaderExpires a, TolmoHeaderExpires b );
KO_API KoString tolmoHeaderExpiresToString( TolmoHeaderExpires hdr );
KO_API TolmoHeaderExpires tolmoHeaderExpiresCreateFrom( TolmoHeaderExpires source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderExpiresEncode( TolmoHeaderExpires hdr );
KO_API TolmoHeaderExpires tolmoHeaderExpiresTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderExpiresEncodeToMessage( TolmoHeaderExpires hdr, TolmoMessage *msg );
KO_API TolmoHeaderExpires tolmoHeaderExpiresTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderExpiresPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderExpiresRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderExpiresStore( TolmoHeaderExpires hdr );
KO_API TolmoHeaderExpires tolmoHeaderExpiresTryRestore( KoStore store );
KO_API void tolmo___HeaderExpiresStartup( void );
KO_API void tolmo___HeaderExpiresShutdown( void );
/** @} */

/** A new header. @return new reference. @pre tolmoDeltaSecondsOk( deltaSeconds ) */
KO_API TolmoHeaderExpires tolmoHeaderExpiresCreate( KoInt deltaSeconds );

/** The number of seconds after which the message expires, 0 or more. @pre hdr */
KO_API KoInt tolmoHeaderExpiresDeltaSeconds( TolmoHeaderExpires hdr );

/**
 * Sets the number of seconds after which the message expires.
 *
 * @param hdr address of the caller's handle, which may be replaced.
 * @pre hdr
 * @pre *hdr
 * @pre tolmoDeltaSecondsOk( deltaSeconds )
 */
KO_API void tolmoHeaderExpiresSetDeltaSeconds( TolmoHeaderExpires *hdr, KoInt deltaSeconds );

KO_END_DECLS

#endif
