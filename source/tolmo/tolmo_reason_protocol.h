/* Protocols of a Reason (RFC 3326 section 2). */
#ifndef TOLMO_REASON_PROTOCOL_H
#define TOLMO_REASON_PROTOCOL_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a protocol of a Reason; its case matters.
 *
 *     protocol = token
 *
 * @param protocol shared, the caller keeps its reference.
 * @pre token
 */
KO_API KoBool tolmoReasonProtocolOk( KoString protocol );

KO_END_DECLS

#endif
