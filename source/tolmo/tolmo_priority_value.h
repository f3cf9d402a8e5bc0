/* Priorities (RFC 3261 section 25.1). */
#ifndef TOLMO_PRIORITY_VALUE_H
#define TOLMO_PRIORITY_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a priority.
 *
 *     priority-value = token
 *
 * @param priority shared, the caller keeps its reference.
 * @pre priority
 */
KO_API KoBool tolmoPriorityValueOk( KoString priority );

/**
 * The normal form of a priority: small letters.
 *
 * @param priority shared, the caller keeps its reference.
 * @return new reference.
 * @pre priority
 * @pre tolmoTokenOk( token )
 */
KO_API KoString tolmoPriorityValueNormalize( KoString priority );

KO_END_DECLS

#endif
