/* Media subtypes (RFC 3261 section 25.1). */
#include <tolmo/tolmo_media_subtype.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoMediaSubtypeOk( KoString mediaSubtype )
{
    KO_REQUIRE( mediaSubtype );
    return tolmo::IsWhole( mediaSubtype, tolmo::skip::MediaSubtype );
}

KoString tolmoMediaSubtypeNormalize( KoString mediaSubtype )
{
    KO_REQUIRE( tolmoMediaSubtypeOk( mediaSubtype ) );
    return tolmo::Lowered( mediaSubtype );
}
