/* Descriptions of a user agent (RFC 3261 section 25.1). */
#include <tolmo/tolmo_user_agent.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoUserAgentOk( KoString userAgent )
{
    KO_REQUIRE( userAgent );
    return tolmo::IsWhole( userAgent, tolmo::skip::UserAgent );
}
