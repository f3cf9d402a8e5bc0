/* Descriptions of a server (RFC 3261 section 25.1). */
#ifndef TOLMO_SERVER_H
#define TOLMO_SERVER_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a description of a server.
 *
 *     server = server-val *( LWS server-val )
 *     server-val = token [ SLASH token ] / comment
 *
 * A comment takes the whitespace behind it, so that nothing can follow it.
 *
 * @param server shared, the caller keeps its reference.
 * @pre server
 */
KO_API KoBool tolmoServerOk( KoString server );

KO_END_DECLS

#endif
