/* Descriptions of a user agent (RFC 3261 section 25.1). */
#ifndef TOLMO_USER_AGENT_H
#define TOLMO_USER_AGENT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a description of a user agent.
 *
 *     user-agent = server-val *( LWS server-val )
 *     server-val = token [ SLASH token ] / comment
 *
 * A comment takes the whitespace behind it, so that nothing can follow it.
 *
 * @param userAgent shared, the caller keeps its reference.
 * @pre userAgent
 */
KO_API KoBool tolmoUserAgentOk( KoString userAgent );

KO_END_DECLS

#endif
