/* Protocol versions (RFC 3261 section 25.1). */
#ifndef TOLMO_PROTOCOL_VERSION_H
#define TOLMO_PROTOCOL_VERSION_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a protocol version.
 *
 *     protocol-version = token
 *
 * @param protocolVersion shared, the caller keeps its reference.
 * @pre protocolVersion
 */
KO_API KoBool tolmoProtocolVersionOk( KoString protocolVersion );

/**
 * The normal form of a protocol version: small letters.
 *
 * @param protocolVersion shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoProtocolVersionOk( protocolVersion )
 */
KO_API KoString tolmoProtocolVersionNormalize( KoString protocolVersion );

KO_END_DECLS

#endif
