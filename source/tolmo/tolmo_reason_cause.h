/* Causes of a Reason (RFC 3326 section 2). */
#ifndef TOLMO_REASON_CAUSE_H
#define TOLMO_REASON_CAUSE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a cause: digits, kept as text with their leading zeros.
 *
 *     cause = 1*DIGIT
 *
 * @param cause shared, the caller keeps its reference.
 * @pre cause
 */
KO_API KoBool tolmoReasonCauseOk( KoString cause );

KO_END_DECLS

#endif
