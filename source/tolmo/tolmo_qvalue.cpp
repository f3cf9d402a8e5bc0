/* Quality values, in thousandths (RFC 3261 section 25.1). */
#include <tolmo/tolmo_qvalue.h>

#include <runtime/ko_inner.hpp>
#include <tolmo/tolmo_char.hpp>

KoBool tolmoQvalueOk( KoInt qvalue )
{
    return qvalue >= 0 && qvalue <= 1000;
}

KoString tolmo___QvalueEncode( KoInt qvalue )
{
    KO_REQUIRE( tolmoQvalueOk( qvalue ) );
    const auto digit = [&]( KoInt unit ) { return static_cast<KoChar>( '0' + qvalue / unit % 10 ); };
    const KoChar chs[] = { digit( 1000 ), '.', digit( 100 ), digit( 10 ), digit( 1 ) };
    return koStringCreateFromCharsCopy( chs, 5 );
}

KoInt tolmo___QvalueTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    // The skip function is no help here: of a number that goes on in a wrong way it takes the part before.
    if ( length == 0 ) {
        return 0;
    }
    if ( length > 5 || ( chs[0] != '0' && chs[0] != '1' ) || ( length > 1 && chs[1] != '.' ) ) {
        return -1;
    }
    KoInt qvalue = ( chs[0] - '0' ) * 1000;
    KoInt unit = 100;
    for ( KoInt i = 2; i < length; ++i ) {
        if ( !tolmo::Is( chs[i], tolmo::charDigit ) ) {
            return -1;
        }
        qvalue += ( chs[i] - '0' ) * unit;
        unit /= 10;
    }
    return qvalue <= 1000 ? qvalue : -1;
}
