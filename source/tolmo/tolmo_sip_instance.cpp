/* Instance identifiers of a user agent, the parameter `+sip.instance` (RFC 5626 section 4.1). */
#include <tolmo/tolmo_sip_instance.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoSipInstanceOk( KoString sipInstance )
{
    KO_REQUIRE( sipInstance );
    return tolmo::IsWhole( sipInstance, tolmo::skip::SipInstance );
}
