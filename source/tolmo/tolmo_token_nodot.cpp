/* Tokens without dots (RFC 6665 section 8.4). */
#include <tolmo/tolmo_token_nodot.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoTokenNodotOk( KoString tokenNodot )
{
    KO_REQUIRE( tokenNodot );
    return tolmo::IsWhole( tokenNodot, tolmo::skip::TokenNodot );
}

KoString tolmoTokenNodotNormalize( KoString tokenNodot )
{
    KO_REQUIRE( tolmoTokenNodotOk( tokenNodot ) );
    return tolmo::Lowered( tokenNodot );
}
