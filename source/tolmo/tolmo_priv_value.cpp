/* Privacy types (RFC 3323 section 4.2). */
#include <tolmo/tolmo_priv_value.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoPrivValueOk( KoString privValue )
{
    KO_REQUIRE( privValue );
    return tolmo::IsWhole( privValue, tolmo::skip::PrivValue );
}

KoString tolmoPrivValueNormalize( KoString privValue )
{
    KO_REQUIRE( tolmoPrivValueOk( privValue ) );
    return tolmo::Lowered( privValue );
}
