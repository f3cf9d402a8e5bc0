/* Purposes of further information on a call, the parameter `purpose` (RFC 3261 section 25.1). */
#include <tolmo/tolmo_purpose.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoPurposeOk( KoString purpose )
{
    KO_REQUIRE( purpose );
    return tolmo::IsWhole( purpose, tolmo::skip::Purpose );
}

KoString tolmoPurposeNormalize( KoString purpose )
{
    KO_REQUIRE( tolmoPurposeOk( purpose ) );
    return tolmo::Lowered( purpose );
}
