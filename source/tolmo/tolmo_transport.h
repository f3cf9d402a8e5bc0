/* Transports of a Via (RFC 3261 section 25.1). */
#ifndef TOLMO_TRANSPORT_H
#define TOLMO_TRANSPORT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a transport.
 *
 *     transport = token
 *
 * @param transport shared, the caller keeps its reference.
 * @pre transport
 */
KO_API KoBool tolmoTransportOk( KoString transport );

/**
 * The normal form of a transport: small letters.
 *
 * @param transport shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoTransportOk( transport )
 */
KO_API KoString tolmoTransportNormalize( KoString transport );

KO_END_DECLS

#endif
