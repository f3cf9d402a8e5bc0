/* A consumer in C++: decodes a message, reads the text of its top Via, lowers Max-Forwards, encodes. */
#include <tolmo/tolmo.h>

#include <iostream>
#include <string_view>

int main()
{
    const std::string_view request = "OPTIONS sip:bob@example.com SIP/2.0\r\n"
                                     "v: SIP/2.0/UDP host.example.com;branch=z9hG4bK1\r\n"
                                     "Max-Forwards: 70\r\n"
                                     "\r\n";
    const KoModuleScope scope( tolmoModule() );
    const auto bytes =
        KoRef<KoBuffer>::Adopt( koBufferCreateFromBytesCopy( request.data(), static_cast<KoInt>( request.size() ) ) );
    auto msg = KoRef<TolmoMessage>::Adopt( tolmoMessageTryDecode( bytes.Get() ) );
    if ( !msg ) {
        return 1;
    }
    const auto vias = KoRef<TolmoHeaderVia>::Adopt( tolmoHeaderViaTryDecodeFromMessage( msg.Get() ) );
    const auto top = KoRef<TolmoVia>::Adopt( tolmoHeaderViaTryDecodeViaAt( vias.Get(), 0 ) );
    const auto text = KoRef<KoString>::Adopt( tolmoViaToString( top.Get() ) );
    for ( KoInt i = 0; i < koStringLength( text.Get() ); ++i ) {
        std::cout << static_cast<char>( koStringCharAt( text.Get(), i ) );
    }
    std::cout << '\n';

    auto hops = KoRef<TolmoHeaderMaxForwards>::Adopt( tolmoHeaderMaxForwardsTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderMaxForwardsSetMaxForwards( hops.Address(), tolmoHeaderMaxForwardsMaxForwards( hops.Get() ) - 1 );
    tolmoHeaderMaxForwardsEncodeToMessage( hops.Get(), msg.Address() );

    const auto encoded = KoRef<KoBuffer>::Adopt( tolmoMessageEncode( msg.Get() ) );
    std::cout.write( reinterpret_cast<const char *>( koBufferBacking( encoded.Get() ) ),
                     koBufferLength( encoded.Get() ) );
}
