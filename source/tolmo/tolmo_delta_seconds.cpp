/* Spans of seconds (RFC 3261 section 25.1). */
#include <tolmo/tolmo_delta_seconds.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoDeltaSecondsOk( KoInt deltaSeconds )
{
    return deltaSeconds >= 0;
}

KoString tolmo___DeltaSecondsEncode( KoInt deltaSeconds )
{
    KO_REQUIRE( tolmoDeltaSecondsOk( deltaSeconds ) );
    return koFormatEncodeInt( deltaSeconds, 10, 0, 0 );
}

KoInt tolmo___DeltaSecondsTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeNumber( chs, length, INT64_MAX );
}
