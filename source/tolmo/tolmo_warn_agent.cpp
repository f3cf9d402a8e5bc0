/* Agents of a warning (RFC 3261 section 25.1). */
#include <tolmo/tolmo_warn_agent.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoWarnAgentOk( KoString warnAgent )
{
    KO_REQUIRE( warnAgent );
    return tolmo::IsWhole( warnAgent, tolmo::skip::WarnAgent );
}
