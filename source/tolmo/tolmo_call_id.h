/* Call identifiers (RFC 3261 section 25.1). */
#ifndef TOLMO_CALL_ID_H
#define TOLMO_CALL_ID_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a call identifier.
 *
 *     callid = word [ "@" word ]
 *
 * @param callId shared, the caller keeps its reference.
 * @pre callId
 */
KO_API KoBool tolmoCallIdOk( KoString callId );

KO_END_DECLS

#endif
