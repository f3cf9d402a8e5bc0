/* Screenings of a Diversion (RFC 5806). */
#include <tolmo/tolmo_diversion_screen.h>

#include <tolmo/tolmo_diversion_word.hpp>

KoBool tolmoDiversionScreenOk( KoString screen )
{
    KO_REQUIRE( screen );
    return tolmo::IsWhole( screen, tolmo::skip::DiversionScreen );
}

KoString tolmoDiversionScreenNormalize( KoString screen )
{
    KO_REQUIRE( screen );
    return tolmo::Lowered( screen );
}

KoString tolmo___DiversionScreenEncode( KoString screen )
{
    KO_REQUIRE( screen );
    return tolmo::EncodeDiversionWord( screen );
}

KoString tolmo___DiversionScreenTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeDiversionWord( chs, length );
}
