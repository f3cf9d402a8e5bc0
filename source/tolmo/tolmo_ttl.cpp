/* Times to live (RFC 3261 section 25.1). */
#include <tolmo/tolmo_ttl.h>

#include <tolmo/tolmo_scalar.hpp>

namespace {

constexpr KoInt largest = UINT8_MAX;

} // namespace

KoBool tolmoTtlOk( KoInt ttl )
{
    return ttl >= 0 && ttl <= largest;
}

KoString tolmo___TtlEncode( KoInt ttl )
{
    KO_REQUIRE( tolmoTtlOk( ttl ) );
    return koFormatEncodeInt( ttl, 10, 0, 0 );
}

KoInt tolmo___TtlTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeNumber( chs, length, largest );
}
