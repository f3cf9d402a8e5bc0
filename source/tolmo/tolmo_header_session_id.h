/* The header Session-ID (RFC 7989 section 5). */
#ifndef TOLMO_HEADER_SESSION_ID_H
#define TOLMO_HEADER_SESSION_ID_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Session-ID header. */
typedef struct tolmo___HeaderSessionId *TolmoHeaderSessionId;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderSessionIdSort( void );
KO_API KoObj tolmoHeaderSessionIdObj( TolmoHeaderSessionId hdr );
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdFrom( KoObj obj );
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdRetain( TolmoHeaderSessionId hdr );
KO_API void tolmoHeaderSessionIdRelease( TolmoHeaderSessionId hdr );
KO_API KoInt tolmoHeaderSessionIdCompare( TolmoHeaderSessionId a, TolmoHeaderSessionId b );
KO_API KoBool tolmoHeaderSessionIdEquals( TolmoHeaderSessionId a, TolmoHeaderSessionId b );
KO_API KoString tolmoHeaderSessionIdToString( TolmoHeaderSessionId hdr );
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdCreateFrom( TolmoHeaderSessionId source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. What stands
 * behind the parameters, without a semicolon, is ignored. @{ */
KO_API TolmoMessageHeader tolmoHeaderSessionIdEncode( TolmoHeaderSessionId hdr );
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderSessionIdEncodeToMessage( TolmoHeaderSessionId hdr, TolmoMessage *msg );
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderSessionIdPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderSessionIdRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderSessionIdStore( TolmoHeaderSessionId hdr );
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdTryRestore( KoStore store );
KO_API void tolmo___HeaderSessionIdStartup( void );
KO_API void tolmo___HeaderSessionIdShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @param localUuid shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoSessUuidOk( localUuid )
 */
KO_API TolmoHeaderSessionId tolmoHeaderSessionIdCreate( KoString localUuid );

/** @name Local identifier
 * Always there. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param localUuid shared, the caller keeps its reference.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoSessUuidOk( localUuid ) @{ */
KO_API KoString tolmoHeaderSessionIdLocalUuid( TolmoHeaderSessionId hdr );
KO_API void tolmoHeaderSessionIdSetLocalUuid( TolmoHeaderSessionId *hdr, KoString localUuid );
/** @} */

/** @name Parameter remote
 * Optional: the remote identifier. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param remoteUuid shared, the caller keeps its reference.
 * @pre hdr, for a change then *hdr
 * @pre tolmoSessUuidOk( remoteUuid ) @{ */
KO_API KoBool tolmoHeaderSessionIdHasRemoteUuid( TolmoHeaderSessionId hdr );
KO_API KoString tolmoHeaderSessionIdRemoteUuid( TolmoHeaderSessionId hdr );
KO_API void tolmoHeaderSessionIdSetRemoteUuid( TolmoHeaderSessionId *hdr, KoString remoteUuid );
KO_API void tolmoHeaderSessionIdDelRemoteUuid( TolmoHeaderSessionId *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderSessionIdGenericParams( TolmoHeaderSessionId hdr );
KO_API void tolmoHeaderSessionIdSetGenericParams( TolmoHeaderSessionId *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
