/* Ports (RFC 3261 section 25.1). */
#ifndef TOLMO_PORT_H
#define TOLMO_PORT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a port: 0 to the largest KoInt. There is no limit of 65535 here. */
KO_API KoBool tolmoPortOk( KoInt port );

/**
 * The digits of a port.
 *
 * @return new reference.
 * @pre tolmoPortOk( port )
 */
KO_API KoString tolmo___PortEncode( KoInt port );

/**
 * The port that a text tells; -1 when it is none, or does not fit.
 *
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt tolmo___PortTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
