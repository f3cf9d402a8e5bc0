/* Limits of a Diversion (RFC 5806). */
#include <tolmo/tolmo_diversion_limit.h>

#include <tolmo/tolmo_scalar.hpp>

namespace {

constexpr KoInt largest = 99;

} // namespace

KoBool tolmoDiversionLimitOk( KoInt limit )
{
    return limit >= 0 && limit <= largest;
}

KoString tolmo___DiversionLimitEncode( KoInt limit )
{
    KO_REQUIRE( tolmoDiversionLimitOk( limit ) );
    return koFormatEncodeInt( limit, 10, 0, 0 );
}

KoInt tolmo___DiversionLimitTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeNumber( chs, length, largest );
}
