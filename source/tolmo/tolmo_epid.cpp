/* Endpoint identifiers, the parameter `epid` of From and To. */
#include <tolmo/tolmo_epid.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoEpidOk( KoString epid )
{
    KO_REQUIRE( epid );
    return tolmo::IsWhole( epid, tolmo::skip::Epid );
}
