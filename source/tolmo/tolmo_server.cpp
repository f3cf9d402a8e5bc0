/* Descriptions of a server (RFC 3261 section 25.1). */
#include <tolmo/tolmo_server.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoServerOk( KoString server )
{
    KO_REQUIRE( server );
    return tolmo::IsWhole( server, tolmo::skip::Server );
}
