/* The header Session-Expires (RFC 4028 section 4). */
#ifndef TOLMO_HEADER_SESSION_EXPIRES_H
#define TOLMO_HEADER_SESSION_EXPIRES_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Session-Expires header. */
typedef struct tolmo___HeaderSessionExpires *TolmoHeaderSessionExpires;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderSessionExpiresSort( void );
KO_API KoObj tolmoHeaderSessionExpiresObj( TolmoHeaderSessionExpires hdr );
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresFrom( KoObj obj );
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresRetain( TolmoHeaderSessionExpires hdr );
KO_API void tolmoHeaderSessionExpiresRelease( TolmoHeaderSessionExpires hdr );
KO_API KoInt tolmoHeaderSessionExpiresCompare( TolmoHeaderSessionExpires a, TolmoHeaderSessionExpires b );
KO_API KoBool tolmoHeaderSessionExpiresEquals( TolmoHeaderSessionExpires a, TolmoHeaderSessionExpires b );
KO_API KoString tolmoHeaderSessionExpiresToString( TolmoHeaderSessionExpires hdr );
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresCreateFrom( TolmoHeaderSessionExpires source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. What stands
 * behind the parameters, without a semicolon, is ignored. @{ */
KO_API TolmoMessageHeader tolmoHeaderSessionExpiresEncode( TolmoHeaderSessionExpires hdr );
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderSessionExpiresEncodeToMessage( TolmoHeaderSessionExpires hdr, TolmoMessage *msg );
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderSessionExpiresPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderSessionExpiresRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderSessionExpiresStore( TolmoHeaderSessionExpires hdr );
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresTryRestore( KoStore store );
KO_API void tolmo___HeaderSessionExpiresStartup( void );
KO_API void tolmo___HeaderSessionExpiresShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @return new reference.
 * @pre tolmoDeltaSecondsOk( deltaSeconds )
 */
KO_API TolmoHeaderSessionExpires tolmoHeaderSessionExpiresCreate( KoInt deltaSeconds );

/** @name Seconds
 * Always there.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDeltaSecondsOk( deltaSeconds ) @{ */
KO_API KoInt tolmoHeaderSessionExpiresDeltaSeconds( TolmoHeaderSessionExpires hdr );
KO_API void tolmoHeaderSessionExpiresSetDeltaSeconds( TolmoHeaderSessionExpires *hdr, KoInt deltaSeconds );
/** @} */

/** @name Parameter refresher
 * Optional: `uac` or `uas`. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param refresher shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr, for a change then *hdr
 * @pre tolmoRefresherOk( refresher ) @{ */
KO_API KoBool tolmoHeaderSessionExpiresHasRefresher( TolmoHeaderSessionExpires hdr );
KO_API KoString tolmoHeaderSessionExpiresRefresher( TolmoHeaderSessionExpires hdr );
KO_API void tolmoHeaderSessionExpiresSetRefresher( TolmoHeaderSessionExpires *hdr, KoString refresher );
KO_API void tolmoHeaderSessionExpiresDelRefresher( TolmoHeaderSessionExpires *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderSessionExpiresGenericParams( TolmoHeaderSessionExpires hdr );
KO_API void tolmoHeaderSessionExpiresSetGenericParams( TolmoHeaderSessionExpires *hdr,
                                                       TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
