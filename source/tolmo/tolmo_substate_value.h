/* Subscription states (RFC 6665 section 8.4). */
#ifndef TOLMO_SUBSTATE_VALUE_H
#define TOLMO_SUBSTATE_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a subscription state.
 *
 *     substate-value = token
 *
 * @param substateValue shared, the caller keeps its reference.
 * @pre substateValue
 */
KO_API KoBool tolmoSubstateValueOk( KoString substateValue );

/**
 * The normal form of a subscription state: small letters.
 *
 * @param substateValue shared, the caller keeps its reference.
 * @return new reference.
 * @pre substateValue
 * @pre tolmoTokenOk( token )
 */
KO_API KoString tolmoSubstateValueNormalize( KoString substateValue );

KO_END_DECLS

#endif
