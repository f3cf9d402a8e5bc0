/* Protocol names (RFC 3261 section 25.1). */
#ifndef TOLMO_PROTOCOL_NAME_H
#define TOLMO_PROTOCOL_NAME_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a protocol name.
 *
 *     protocol-name = token
 *
 * @param protocolName shared, the caller keeps its reference.
 * @pre protocolName
 */
KO_API KoBool tolmoProtocolNameOk( KoString protocolName );

/**
 * The normal form of a protocol name: capitals.
 *
 * @param protocolName shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoProtocolNameOk( protocolName )
 */
KO_API KoString tolmoProtocolNameNormalize( KoString protocolName );

KO_END_DECLS

#endif
