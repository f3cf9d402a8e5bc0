/* Hosts: ASCII on the wire, Unicode in the objects (RFC 3261 section 25.1, UTS #46). */
#include <tolmo/tolmo_host.h>

#include <tolmo/tolmo_host.hpp>
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

KoRef<KoString> tolmo::DecodeHost( Text host )
{
    // IDNA processes every text of the host grammar, and returns nearly all of them as they are.
    KoChar unicode[WEN_DNS_NAME_LIMIT];
    const KoInt length = wen___DnsIdnaToUnicode( host.chs, host.length, unicode );
    return length > 0 ? Text( unicode, length ).Copy() : host.Copy();
}

KoString tolmo___HostTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    const tolmo::Text host( chs, length );
    return tolmo::IsWhole( host, tolmo::skip::Host ) ? tolmo::DecodeHost( host ).Leak() : nullptr;
}
