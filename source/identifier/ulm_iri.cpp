/* Resource identifiers: skip functions and validation (RFC 3987, section 2.2). */
#include <identifier/ulm.h>

#include <address/wen_address.h>
#include <identifier/ulm_iri.hpp>
#include <runtime/ko_inner.hpp>

KoInt ulm___SkipIri( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return ulm::Read( chs, length ).length;
}

KoInt ulm___SkipIpV4Address( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return wen___SkipIpV4Address( chs, length );
}

KoInt ulm___SkipIpV6Address( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return wen___SkipIpV6Address( chs, length );
}

KoInt ulm___SkipPort( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    KoInt value = 0;
    KoInt at = 0;
    for ( ; at < length && chs[at] >= '0' && chs[at] <= '9'; ++at ) {
        if ( __builtin_mul_overflow( value, 10, &value ) || __builtin_add_overflow( value, chs[at] - '0', &value ) ) {
            return 0;
        }
    }
    return at;
}

KoBool ulmGensValidatePart( KoInt part, KoString iri )
{
    KO_REQUIRE( part == 0 );
    KO_REQUIRE( iri );
    return iri->length > 0 && ulm::Read( ko::Chars( iri ), iri->length ).length == iri->length;
}
