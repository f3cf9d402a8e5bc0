/* Transports of a Via (RFC 3261 section 25.1). */
#include <tolmo/tolmo_transport.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoTransportOk( KoString transport )
{
    KO_REQUIRE( transport );
    return tolmo::IsWhole( transport, tolmo::skip::Transport );
}

KoString tolmoTransportNormalize( KoString transport )
{
    KO_REQUIRE( tolmoTransportOk( transport ) );
    return tolmo::Lowered( transport );
}
