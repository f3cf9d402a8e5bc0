/* Privacy of a Diversion (RFC 5806). */
#include <tolmo/tolmo_diversion_privacy.h>

#include <tolmo/tolmo_diversion_word.hpp>

KoBool tolmoDiversionPrivacyOk( KoString privacy )
{
    KO_REQUIRE( privacy );
    return tolmo::IsWhole( privacy, tolmo::skip::DiversionPrivacy );
}

KoString tolmoDiversionPrivacyNormalize( KoString privacy )
{
    KO_REQUIRE( privacy );
    return tolmo::Lowered( privacy );
}

KoString tolmo___DiversionPrivacyEncode( KoString privacy )
{
    KO_REQUIRE( privacy );
    return tolmo::EncodeDiversionWord( privacy );
}

KoString tolmo___DiversionPrivacyTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeDiversionWord( chs, length );
}
