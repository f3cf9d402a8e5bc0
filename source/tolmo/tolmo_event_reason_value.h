/* Reasons of a subscription state (RFC 6665 section 8.4). */
#ifndef TOLMO_EVENT_REASON_VALUE_H
#define TOLMO_EVENT_REASON_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a reason of a subscription state.
 *
 *     event-reason-value = token
 *
 * @param eventReasonValue shared, the caller keeps its reference.
 * @pre eventReasonValue
 */
KO_API KoBool tolmoEventReasonValueOk( KoString eventReasonValue );

/**
 * The normal form of a reason of a subscription state: small letters.
 *
 * @param eventReasonValue shared, the caller keeps its reference.
 * @return new reference.
 * @pre eventReasonValue
 * @pre tolmoTokenOk( token )
 */
KO_API KoString tolmoEventReasonValueNormalize( KoString eventReasonValue );

KO_END_DECLS

#endif
