/* Content codings (RFC 3261 section 25.1). */
#include <tolmo/tolmo_content_coding.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoContentCodingOk( KoString contentCoding )
{
    KO_REQUIRE( contentCoding );
    return tolmo::IsWhole( contentCoding, tolmo::skip::ContentCoding );
}

KoString tolmoContentCodingNormalize( KoString contentCoding )
{
    KO_REQUIRE( tolmoContentCodingOk( contentCoding ) );
    return tolmo::Lowered( contentCoding );
}
