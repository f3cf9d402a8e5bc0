/* Subscription states (RFC 6665 section 8.4). */
#include <tolmo/tolmo_substate_value.h>

#include <tolmo/tolmo_scalar.hpp>
#include <tolmo/tolmo_token.h>

KoBool tolmoSubstateValueOk( KoString substateValue )
{
    KO_REQUIRE( substateValue );
    return tolmo::IsWhole( substateValue, tolmo::skip::SubstateValue );
}

KoString tolmoSubstateValueNormalize( KoString substateValue )
{
    KO_REQUIRE( substateValue );
    return tolmoTokenNormalize( substateValue );
}
