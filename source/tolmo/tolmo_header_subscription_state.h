/* The header Subscription-State (RFC 6665 section 8.2.3). */
#ifndef TOLMO_HEADER_SUBSCRIPTION_STATE_H
#define TOLMO_HEADER_SUBSCRIPTION_STATE_H

#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/** Handle of a Subscription-State header. */
typedef struct tolmo___HeaderSubscriptionState *TolmoHeaderSubscriptionState;

/** @name Standard operations
 * See docs/objects.md. A copy has all fields but the generic parameters, which it loses: see below. @{ */
KO_API KoSort tolmoHeaderSubscriptionStateSort( void );
KO_API KoObj tolmoHeaderSubscriptionStateObj( TolmoHeaderSubscriptionState hdr );
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateFrom( KoObj obj );
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateRetain( TolmoHeaderSubscriptionState hdr );
KO_API void tolmoHeaderSubscriptionStateRelease( TolmoHeaderSubscriptionState hdr );
KO_API KoInt tolmoHeaderSubscriptionStateCompare( TolmoHeaderSubscriptionState a, TolmoHeaderSubscriptionState b );
KO_API KoBool tolmoHeaderSubscriptionStateEquals( TolmoHeaderSubscriptionState a, TolmoHeaderSubscriptionState b );
KO_API KoString tolmoHeaderSubscriptionStateToString( TolmoHeaderSubscriptionState hdr );
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateCreateFrom( TolmoHeaderSubscriptionState source );
/** @} */

/** @name Header operations
 * See docs/headers.md. A single value: the last line counts, and without a line there is no header. @{ */
KO_API TolmoMessageHeader tolmoHeaderSubscriptionStateEncode( TolmoHeaderSubscriptionState hdr );
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateTryDecode( TolmoMessageHeader header );
KO_API void tolmoHeaderSubscriptionStateEncodeToMessage( TolmoHeaderSubscriptionState hdr, TolmoMessage *msg );
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateTryDecodeFromMessage( TolmoMessage msg );
KO_API KoBool tolmoHeaderSubscriptionStatePresentInMessage( TolmoMessage msg );
KO_API void tolmoHeaderSubscriptionStateRemoveFromMessage( TolmoMessage *msg );
KO_API KoStore tolmoHeaderSubscriptionStateStore( TolmoHeaderSubscriptionState hdr );
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateTryRestore( KoStore store );
KO_API void tolmo___HeaderSubscriptionStateStartup( void );
KO_API void tolmo___HeaderSubscriptionStateShutdown( void );
/** @} */

/**
 * A new header without parameters.
 *
 * @param substateValue shared, the caller keeps its reference; its normal form is stored.
 * @return new reference.
 * @pre tolmoSubstateValueOk( substateValue )
 */
KO_API TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateCreate( KoString substateValue );

/** @name State
 * Always there, in small letters. The getter returns a new reference.
 * @param hdr for a setter: address of the caller's handle, which may be replaced.
 * @param substateValue shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr, for a setter then *hdr
 * @pre tolmoSubstateValueOk( substateValue ) @{ */
KO_API KoString tolmoHeaderSubscriptionStateSubstateValue( TolmoHeaderSubscriptionState hdr );
KO_API void tolmoHeaderSubscriptionStateSetSubstateValue( TolmoHeaderSubscriptionState *hdr, KoString substateValue );
/** @} */

/** @name Parameter reason
 * Optional, in small letters. The getter returns a new reference, or null.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @param reason shared, the caller keeps its reference; its normal form is stored.
 * @pre hdr, for a change then *hdr
 * @pre tolmoEventReasonValueOk( reason ) @{ */
KO_API KoBool tolmoHeaderSubscriptionStateHasReason( TolmoHeaderSubscriptionState hdr );
KO_API KoString tolmoHeaderSubscriptionStateReason( TolmoHeaderSubscriptionState hdr );
KO_API void tolmoHeaderSubscriptionStateSetReason( TolmoHeaderSubscriptionState *hdr, KoString reason );
KO_API void tolmoHeaderSubscriptionStateDelReason( TolmoHeaderSubscriptionState *hdr );
/** @} */

/** @name Parameter expires
 * Optional: seconds; -1 when absent.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @pre hdr, for a change then *hdr
 * @pre tolmoDeltaSecondsOk( expires ) @{ */
KO_API KoBool tolmoHeaderSubscriptionStateHasExpires( TolmoHeaderSubscriptionState hdr );
KO_API KoInt tolmoHeaderSubscriptionStateExpires( TolmoHeaderSubscriptionState hdr );
KO_API void tolmoHeaderSubscriptionStateSetExpires( TolmoHeaderSubscriptionState *hdr, KoInt expires );
KO_API void tolmoHeaderSubscriptionStateDelExpires( TolmoHeaderSubscriptionState *hdr );
/** @} */

/** @name Parameter retry-after
 * Optional: seconds; -1 when absent.
 * @param hdr for a change: address of the caller's handle, which may be replaced.
 * @pre hdr, for a change then *hdr
 * @pre tolmoDeltaSecondsOk( retryAfter ) @{ */
KO_API KoBool tolmoHeaderSubscriptionStateHasRetryAfter( TolmoHeaderSubscriptionState hdr );
KO_API KoInt tolmoHeaderSubscriptionStateRetryAfter( TolmoHeaderSubscriptionState hdr );
KO_API void tolmoHeaderSubscriptionStateSetRetryAfter( TolmoHeaderSubscriptionState *hdr, KoInt retryAfter );
KO_API void tolmoHeaderSubscriptionStateDelRetryAfter( TolmoHeaderSubscriptionState *hdr );
/** @} */

/** @name All other parameters
 * All of them that have no field, and those above whose value did not fit. tolmoHeaderSubscriptionStateCreateFrom
 * leaves them out, and with it every change of a header that was shared: then there are none, the getter returns null,
 * and the header does not encode before it has got a set again. Otherwise the getter returns a new reference.
 * @param hdr for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre hdr, for the setter then *hdr
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoHeaderSubscriptionStateGenericParams( TolmoHeaderSubscriptionState hdr );
KO_API void tolmoHeaderSubscriptionStateSetGenericParams( TolmoHeaderSubscriptionState *hdr,
                                                          TolmoGenericParams genericParams );
/** @} */

KO_END_DECLS

#endif
