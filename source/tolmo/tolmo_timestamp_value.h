/* Values of a Timestamp header (RFC 3261 section 25.1). */
#ifndef TOLMO_TIMESTAMP_VALUE_H
#define TOLMO_TIMESTAMP_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a time stamp with its optional delay.
 *
 *     timestamp-value = 1*DIGIT [ "." *DIGIT ] [ LWS *DIGIT [ "." *DIGIT ] ]
 *
 * @param timestampValue shared, the caller keeps its reference.
 * @pre timestampValue
 */
KO_API KoBool tolmoTimestampValueOk( KoString timestampValue );

KO_END_DECLS

#endif
