/* Hosts: ASCII on the wire, Unicode in the objects (RFC 3261 section 25.1, UTS #46). */
#include <tolmo/tolmo_host.h>

#include <tolmo/tolmo_scalar.hpp>
#include <tolmo/tolmo_skip.h>

KoBool tolmoHostOk( KoString host )
{
    KO_REQUIRE( host );
    if ( tolmo::IsWhole( host, tolmo::skip::Host ) ) {
        return KO_TRUE; // nearly every host: no IDNA
    }
    if ( !wenDnsIdnaDomainNameOk( host ) ) {
        return KO_FALSE;
    }
    const auto ascii = tolmo::Adopt( wenDnsIdnaDomainNameToAscii( host ) );
    return tolmo::IsWhole( ascii.Get(), tolmo::skip::Host );
}

KoString tolmo___HostEncode( KoString host )
{
    KO_REQUIRE( host );
    if ( tolmo::IsWhole( host, tolmo::skip::Host ) ) {
        return tolmo::Retained( host );
    }
    const KoString result = wenDnsIdnaDomainNameToAscii( host );
    const KoInt length = result->length;
    KO_REQUIRE( length && length == tolmo___SkipHost( koStringBacking( result ), length ) );
    return result;
}

KoString tolmo___HostTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    const tolmo::Text text( chs, length );
    if ( !tolmo::IsWhole( text, tolmo::skip::Host ) ) {
        return nullptr;
    }
    const auto host = text.Copy();
    return wenDnsIdnaDomainNameOk( host.Get() ) ? wenDnsIdnaDomainNameToUnicode( host.Get() ) : nullptr;
}
