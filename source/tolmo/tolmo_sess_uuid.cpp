/* Session identifiers (RFC 7989 section 5). */
#include <tolmo/tolmo_sess_uuid.h>

#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_scalar.hpp>

namespace {

KoString nil;

} // namespace

KoBool tolmoSessUuidOk( KoString sessUuid )
{
    KO_REQUIRE( sessUuid );
    return tolmo::IsWhole( sessUuid, tolmo::skip::SessUuid );
}

KoString tlomoSessUuidNil( void )
{
    return tolmo::Retained( nil );
}

KoBool tolmoSessUuidIsNil( KoString sessUuid )
{
    KO_REQUIRE( sessUuid );
    return koStringEquals( sessUuid, nil );
}

void tolmo___SessUuidStartup( void )
{
    tolmo::Start( nil, "00000000000000000000000000000000" );
}

void tolmo___SessUuidShutdown( void )
{
    tolmo::Stop( nil );
}
