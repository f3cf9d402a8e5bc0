/* Ports (RFC 3261 section 25.1). */
#include <tolmo/tolmo_port.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoPortOk( KoInt port )
{
    return port >= 0;
}

KoString tolmo___PortEncode( KoInt port )
{
    KO_REQUIRE( tolmoPortOk( port ) );
    return koFormatEncodeInt( port, 10, 0, 0 );
}

KoInt tolmo___PortTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeNumber( chs, length, INT64_MAX );
}
