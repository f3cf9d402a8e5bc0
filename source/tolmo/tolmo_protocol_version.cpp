/* Protocol versions (RFC 3261 section 25.1). */
#include <tolmo/tolmo_protocol_version.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoProtocolVersionOk( KoString protocolVersion )
{
    KO_REQUIRE( protocolVersion );
    return tolmo::IsWhole( protocolVersion, tolmo::skip::ProtocolVersion );
}

KoString tolmoProtocolVersionNormalize( KoString protocolVersion )
{
    KO_REQUIRE( tolmoProtocolVersionOk( protocolVersion ) );
    return tolmo::Lowered( protocolVersion );
}
