/* The header Retry-After (RFC 3261 section 20.33). */
#ifndef TOLMO_HEADER_RETRY_AFTER_H
#define TOLMO_HEADER_RETRY_AFTER_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Retry-After header. */
typedef struct tolmo___HeaderRetryAfter *TolmoHeaderRetryAfter;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoHeaderRetryAfterSort( void );
KO_API KoObj tolmoHeaderRetryAfterObj( TolmoHeaderRetryAfter hdr );
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterFrom( KoObj obj );
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterRetain( TolmoHeaderRetryAfter hdr );
KO_API void tolmoHeaderRetryAfterRelease( TolmoHeaderRetryAfter hdr );
KO_API KoInt tolmoHeaderRetryAfterCompare( TolmoHeaderRetryAfter a, TolmoHeaderRetryAfter b );
KO_API KoBool tolmoHeaderRetryAfterEquals( TolmoHeaderRetryAfter a, TolmoHeaderRetryAfter b );
KO_API KoString tolmoHeaderRetryAfterToString( TolmoHeaderRetryAfter hdr );
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterCreateFrom( TolmoHeaderRetryAfter source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. What stands
 * behind the parameters, without a semicolon, is ignored. The comment that may stand behind the
 * seconds is ignored, too. @{ */
KO_API TolmoMessageHeader tolmoHeaderRetryAfterEncode( TolmoHeaderRetryAfter hdr );
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderRetryAfterEncodeToMessage( TolmoHeaderRetryAfter hdr, TolmoMessage *msg );
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderRetryAfterPresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderRetryAfterRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderRetryAfterStore( TolmoHeaderRetryAfter hdr );
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterTryRestore( KoStore store );
KO_API void tolmo___HeaderRetryAfterStartup( void );
KO_API void tolmo___HeaderRetryAfterShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @return new reference.
 * @pre tolmoDeltaSecondsOk( deltaSeconds )
 */
KO_API TolmoHeaderRetryAfter tolmoHeaderRetryAfterCreate( KoInt deltaSeconds );

/** @name Seconds
 * Always there.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoDeltaSecondsOk( deltaSeconds ) @{ */
KO_API KoInt tolmoHeaderRetryAfterDeltaSeconds( TolmoHeaderRetryAfter hdr );
KO_API void tolmoHeaderRetryAfterSetDeltaSeconds( TolmoHeaderRetryAfter *hdr, KoInt deltaSeconds );
/** @} */

/** @name Parameter duration
 * Optional: seconds; -1 when absent.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @pre hdr, for a change then *hdr
 * @pre tolmoDeltaSecondsOk( duration ) @{ */
KO_API KoBool tolmoHeaderRetryAfterHasDuration( TolmoHeaderRetryAfter hdr );
KO_API KoInt tolmoHeaderRetryAfterDuration( TolmoHeaderRetryAfter hdr );
KO_API void tolmoHeaderRetryAfterSetDuration( TolmoHeaderRetryAfter *hdr, KoInt duration );
KO_API void tolmoHeaderRetryAfterDelDuration( TolmoHeaderRetryAfter *hdr );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderRetryAfterGenericParams( TolmoHeaderRetryAfter hdr );
KO_API void tolmoHeaderRetryAfterSetGenericParams( TolmoHeaderRetryAfter *hdr, TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
