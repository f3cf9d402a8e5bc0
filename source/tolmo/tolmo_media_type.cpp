/* Media types (RFC 3261 section 25.1). */
#include <tolmo/tolmo_media_type.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoMediaTypeOk( KoString mediaType )
{
    KO_REQUIRE( mediaType );
    return tolmo::IsWhole( mediaType, tolmo::skip::MediaType );
}

KoString tolmoMediaTypeNormalize( KoString mediaType )
{
    KO_REQUIRE( tolmoMediaTypeOk( mediaType ) );
    return tolmo::Lowered( mediaType );
}
