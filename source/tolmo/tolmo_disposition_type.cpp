/* Disposition types of a body (RFC 3261 section 25.1). */
#include <tolmo/tolmo_disposition_type.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoDispositionTypeOk( KoString dispositionType )
{
    KO_REQUIRE( dispositionType );
    return tolmo::IsWhole( dispositionType, tolmo::skip::DispositionType );
}

KoString tolmoDispositionTypeNormalize( KoString dispositionType )
{
    KO_REQUIRE( tolmoDispositionTypeOk( dispositionType ) );
    return tolmo::Lowered( dispositionType );
}
