/* Priorities (RFC 3261 section 25.1). */
#include <tolmo/tolmo_priority_value.h>

#include <tolmo/tolmo_scalar.hpp>
#include <tolmo/tolmo_token.h>

KoBool tolmoPriorityValueOk( KoString priority )
{
    KO_REQUIRE( priority );
    return tolmo::IsWhole( priority, tolmo::skip::PriorityValue );
}

KoString tolmoPriorityValueNormalize( KoString priority )
{
    KO_REQUIRE( priority );
    return tolmoTokenNormalize( priority );
}
