/* Agents of a warning (RFC 3261 section 25.1). */
#ifndef TOLMO_WARN_AGENT_H
#define TOLMO_WARN_AGENT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an agent of a warning.
 *
 *     warn-agent = host [ ":" port ] / token    ; a host first: `a_b` is none of them
 *
 * @param warnAgent shared, the caller keeps its reference.
 * @pre warnAgent
 */
KO_API KoBool tolmoWarnAgentOk( KoString warnAgent );

KO_END_DECLS

#endif
