/*
 * What a stateless proxy does with a request (RFC 3261 section 16): checks and lowers Max-Forwards, takes its own Route
 * away, pushes its Via, and sends the bytes on. Reads a request from standard input, writes to standard output.
 */
#include <tolmo/tolmo.h>

#include <cstdio>
#include <iterator>
#include <string>

namespace {

KoRef<KoString> Literal( const char *text )
{
    return KoRef<KoString>::Adopt( koStringCreateFromCstr( text, -1 ) );
}

/** Lowers the hop counter; false when the request may go no further. A request without one gets 70. */
bool LowerMaxForwards( KoRef<TolmoMessage> &msg )
{
    auto hops = KoRef<TolmoHeaderMaxForwards>::Adopt( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
    if ( !hops && tolmoHeaderMaxForwardsPresentInMessage( msg.Get() ) ) {
        return false; // it is there, but is no number
    }
    const KoInt left = hops ? tolmoHeaderMaxForwardsMaxForwards( hops.Get() ) - 1 : 70;
    if ( left < 0 ) {
        return false;
    }
    hops = KoRef<TolmoHeaderMaxForwards>::Adopt( tolmoHeaderMaxForwardsCreate( left ) );
    tolmoHeaderMaxForwardsEncodeToMessage( hops.Get(), msg.Address() );
    return true;
}

/** Takes the first Route away, which named this proxy. */
bool PopRoute( KoRef<TolmoMessage> &msg )
{
    if ( !tolmoHeaderRoutePresentInMessage( msg.Get() ) ) {
        return true;
    }
    auto routes = KoRef<TolmoHeaderRoute>::Adopt( tolmoHeaderRouteTryDecodeFromMessage( msg.Get() ) );
    if ( !routes || tolmoHeaderRouteRoutesLength( routes.Get() ) == 0 ) {
        return false; // an empty line decodes to an empty list
    }
    tolmoHeaderRouteDelRouteAt( routes.Address(), 0 );
    if ( tolmoHeaderRouteRoutesLength( routes.Get() ) == 0 ) {
        tolmoHeaderRouteRemoveFromMessage( msg.Address() );
    } else {
        tolmoHeaderRouteEncodeToMessage( routes.Get(), msg.Address() );
    }
    return true;
}

/** Puts the proxy's own Via in front of the others. */
bool PushVia( KoRef<TolmoMessage> &msg )
{
    auto vias = KoRef<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    if ( !vias ) {
        return false;
    }
    const auto version = KoRef<TolmoVersion>::Adopt( tolmoVersionCreateSip20() );
    auto via = KoRef<TolmoVia>::Adopt(
        tolmoViaCreateWithPort( version.Get(), Literal( "udp" ).Get(), Literal( "proxy.example.com" ).Get(), 5060 ) );
    tolmoViaSetBranch( via.Address(), Literal( "z9hG4bKproxy1" ).Get() );
    tolmoHeaderViaPrependVia( vias.Address(), via.Get() );
    tolmoHeaderViaEncodeToMessage( vias.Get(), msg.Address() );
    return true;
}

} // namespace

int main()
{
    const KoModuleScope scope( tolmoModule() );
    std::string input;
    for ( int ch = std::getchar(); ch != EOF; ch = std::getchar() ) {
        input += static_cast<char>( ch );
    }
    const auto bytes =
        KoRef<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( input.data(), static_cast<KoInt>( input.size() ) ) );
    auto msg = KoRef<TolmoMessage>::Adopt( tolmoMessageTryDecode( bytes.Get() ) );
    if ( !msg || !tolmoMessageIsRequest( msg.Get() ) ) {
        std::fputs( "no request\n", stderr );
        return 1;
    }
    if ( !LowerMaxForwards( msg ) ) {
        std::fputs( "483 Too many hops\n", stderr );
        return 1;
    }
    if ( !PopRoute( msg ) || !PushVia( msg ) ) {
        std::fputs( "400 Bad request\n", stderr );
        return 1;
    }
    const auto encoded = KoRef<KoBuffer>::Adopt( tolmoMessageEncode( msg.Get() ) );
    std::fwrite( koBufferBacking( encoded.Get() ), 1, static_cast<size_t>( koBufferLength( encoded.Get() ) ), stdout );
}
