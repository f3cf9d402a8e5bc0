/* Tokens (RFC 3261 section 25.1). */
#include <tolmo/tolmo_token.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoTokenOk( KoString token )
{
    KO_REQUIRE( token );
    return tolmo::IsWhole( token, tolmo::skip::Token );
}

KoString tolmoTokenNormalize( KoString token )
{
    KO_REQUIRE( tolmoTokenOk( token ) );
    return tolmo::Lowered( token );
}
