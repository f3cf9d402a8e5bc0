/* Protocol names (RFC 3261 section 25.1). */
#include <tolmo/tolmo_protocol_name.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoProtocolNameOk( KoString protocolName )
{
    KO_REQUIRE( protocolName );
    return tolmo::IsWhole( protocolName, tolmo::skip::ProtocolName );
}

KoString tolmoProtocolNameNormalize( KoString protocolName )
{
    KO_REQUIRE( tolmoProtocolNameOk( protocolName ) );
    return tolmo::Raised( protocolName );
}
