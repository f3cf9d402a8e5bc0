/* A consumer in C: decodes a message, reads the text of its top Via, lowers Max-Forwards, encodes. */
#include <tolmo/tolmo.h>

#include <stdio.h>
#include <string.h>

static const char request[] = "OPTIONS sip:bob@example.com SIP/2.0\r\n"
                              "v: SIP/2.0/UDP host.example.com;branch=z9hG4bK1\r\n"
                              "Max-Forwards: 70\r\n"
                              "\r\n";

int main( void )
{
    koModuleStart( tolmoModule() );
    KoBuffer bytes = koBufferCreateFromBytesCopy( request, (KoInt)strlen( request ) );
    TolmoMessage msg = tolmoMessageTryDecode( bytes );
    koBufferRelease( bytes );
    if ( !msg ) {
        return 1;
    }
    TolmoMessageHeader via = tolmoMessageHeaderCstr( msg, "Via", -1 );
    KoString line = tolmoMessageHeaderLineAt( via, 0 );
    for ( KoInt i = 0; i < koStringLength( line ); ++i ) {
        putchar( (int)koStringCharAt( line, i ) );
    }
    putchar( '\n' );
    koStringRelease( line );
    tolmoMessageHeaderRelease( via );

    TolmoHeaderMaxForwards hops = tolmoHeaderMaxForwardsTryDecodeFromMessage( msg );
    tolmoHeaderMaxForwardsSetMaxForwards( &hops, tolmoHeaderMaxForwardsMaxForwards( hops ) - 1 );
    tolmoHeaderMaxForwardsEncodeToMessage( hops, &msg );
    tolmoHeaderMaxForwardsRelease( hops );

    KoBuffer encoded = tolmoMessageEncode( msg );
    fwrite( koBufferBacking( encoded ), 1, (size_t)koBufferLength( encoded ), stdout );
    koBufferRelease( encoded );
    tolmoMessageRelease( msg );
    koModuleStop( tolmoModule() );
    return 0;
}
