/*
 * The answer to a request (RFC 3261 section 8.2.6): a response that has the request's Via, From, To with a tag, Call-ID
 * and CSeq. Reads a request from standard input, writes a 200 to standard output.
 */
#include <tolmo/tolmo.h>

#include <stdio.h>

/* Copies a raw header as it is, if the request has it. */
static void copyHeader( TolmoMessage request, TolmoMessage *response, const char *name )
{
    TolmoMessageHeader header = tolmoMessageHeaderCstr( request, name, -1 );
    if ( header ) {
        tolmoMessageSetHeader( response, header );
        tolmoMessageHeaderRelease( header );
    }
}

/* The To of the answer: that of the request, with this side's tag unless it has one. False when it does not decode. */
static int answerTo( TolmoMessage request, TolmoMessage *response )
{
    TolmoHeaderTo to = tolmoHeaderToTryDecodeFromMessage( request );
    if ( !to ) {
        return 0;
    }
    if ( !tolmoHeaderToHasTag( to ) ) {
        KoString tag = koStringCreateFromCstr( "a6c85cf", -1 );
        tolmoHeaderToSetTag( &to, tag );
        koStringRelease( tag );
    }
    tolmoHeaderToEncodeToMessage( to, response );
    tolmoHeaderToRelease( to );
    return 1;
}

static KoBuffer readAll( FILE *file )
{
    KoBuffer bytes = koBufferCreate();
    char block[4096];
    for ( size_t count; ( count = fread( block, 1, sizeof block, file ) ) > 0; ) {
        koBufferAppendBytes( &bytes, block, (KoInt)count );
    }
    return bytes;
}

int main( void )
{
    koModuleStart( tolmoModule() );
    KoBuffer bytes = readAll( stdin );
    TolmoMessage request = tolmoMessageTryDecode( bytes );
    koBufferRelease( bytes );
    int status = 1;
    if ( request && tolmoMessageIsRequest( request ) ) {
        TolmoVersion version = tolmoVersionCreateSip20();
        TolmoMessage response = tolmoMessageCreateResponse( version, 200 );
        tolmoVersionRelease( version );
        copyHeader( request, &response, "Via" );
        copyHeader( request, &response, "From" );
        if ( answerTo( request, &response ) ) {
            copyHeader( request, &response, "Call-ID" );
            copyHeader( request, &response, "CSeq" );
            KoBuffer encoded = tolmoMessageEncode( response );
            fwrite( koBufferBacking( encoded ), 1, (size_t)koBufferLength( encoded ), stdout );
            koBufferRelease( encoded );
            status = 0;
        }
        tolmoMessageRelease( response );
    }
    if ( request ) {
        tolmoMessageRelease( request );
    }
    koModuleStop( tolmoModule() );
    if ( status ) {
        fputs( "no request that can be answered\n", stderr );
    }
    return status;
}
