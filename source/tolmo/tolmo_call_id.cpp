/* Call identifiers (RFC 3261 section 25.1). */
#include <tolmo/tolmo_call_id.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoCallIdOk( KoString callId )
{
    KO_REQUIRE( callId );
    return tolmo::IsWhole( callId, tolmo::skip::CallId );
}
