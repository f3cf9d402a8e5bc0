/* Handlings of a body, the parameter `handling` (RFC 3261 section 25.1). */
#include <tolmo/tolmo_handling.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoHandlingOk( KoString handling )
{
    KO_REQUIRE( handling );
    return tolmo::IsWhole( handling, tolmo::skip::Handling );
}

KoString tolmoHandlingNormalize( KoString handling )
{
    KO_REQUIRE( tolmoHandlingOk( handling ) );
    return tolmo::Lowered( handling );
}
