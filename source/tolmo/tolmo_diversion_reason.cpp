/* Reasons of a Diversion (RFC 5806). */
#include <tolmo/tolmo_diversion_reason.h>

#include <tolmo/tolmo_diversion_word.hpp>

KoBool tolmoDiversionReasonOk( KoString reason )
{
    KO_REQUIRE( reason );
    return tolmo::IsWhole( reason, tolmo::skip::DiversionReason );
}

KoString tolmoDiversionReasonNormalize( KoString reason )
{
    KO_REQUIRE( reason );
    return tolmo::Lowered( reason );
}

KoString tolmo___DiversionReasonEncode( KoString reason )
{
    KO_REQUIRE( reason );
    return tolmo::EncodeDiversionWord( reason );
}

KoString tolmo___DiversionReasonTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeDiversionWord( chs, length );
}
