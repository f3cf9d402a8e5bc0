/* Counters of a Diversion (RFC 5806). */
#include <tolmo/tolmo_diversion_counter.h>

#include <tolmo/tolmo_scalar.hpp>

namespace {

constexpr KoInt largest = 99;

} // namespace

KoBool tolmoDiversionCounterOk( KoInt counter )
{
    return counter >= 0 && counter <= largest;
}

KoString tolmo___DiversionCounterEncode( KoInt counter )
{
    KO_REQUIRE( tolmoDiversionCounterOk( counter ) );
    return koFormatEncodeInt( counter, 10, 0, 0 );
}

KoInt tolmo___DiversionCounterTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeNumber( chs, length, largest );
}
