/* Messages out of a byte stream (RFC 3261 section 18.3). */
#include <tolmo/tolmo_message_stream_decoder.h>

#include <tolmo/tolmo_message.hpp>

struct tolmo___MessageStreamDecoder {
    ko___Obj head;
    KoBool error;
    KoBuffer buffer;
    TolmoMessage message; // its head is decoded, its body is not there yet
    KoInt offset;         // how far the search for the empty line has come; with a message, where its body begins
    KoInt contentLength;  // of the message
};

namespace {

using Decoder = tolmo___MessageStreamDecoder;
using AllFields =
    tolmo::Fields<&Decoder::error, &Decoder::buffer, &Decoder::message, &Decoder::offset, &Decoder::contentLength>;
static_assert( tolmo::namesAllFields<Decoder, AllFields> );

TOLMO_FREE( MessageStreamDecoder, decoder, AllFields )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_MESSAGE_STREAM_DECODER =
    TOLMO_SORT( "TOLMO_MESSAGE_STREAM_DECODER", Free, nullptr, nullptr );
TOLMO_STANDARD_OPERATIONS( MessageStreamDecoder, TOLMO_MESSAGE_STREAM_DECODER )

namespace {

/** The keep-alive of RFC 5626 section 3.5.1 and what peers put between messages: whole CR LF pairs. */
void SkipLineEnds( TolmoMessageStreamDecoder decoder )
{
    const uint8_t *const bytes = ko::Bytes( decoder->buffer );
    KoInt skipped = 0;
    while ( decoder->buffer->length - skipped >= 2 && bytes[skipped] == 0x0D && bytes[skipped + 1] == 0x0A ) {
        skipped += 2;
    }
    if ( skipped > 0 ) {
        koBufferDelLeading( &decoder->buffer, skipped );
    }
}

/** Looks for the end of a head, and decodes it. False is an error. */
bool TakeHead( TolmoMessageStreamDecoder decoder )
{
    const uint8_t *const bytes = ko::Bytes( decoder->buffer );
    const KoInt length = decoder->buffer->length;
    const KoInt end = tolmo::FindHeadEnd( bytes, decoder->offset, length );
    if ( end < 0 ) {
        // No byte is looked at twice, but for the three with which the empty line may have begun.
        decoder->offset = koIntMax( decoder->offset, length - 3 );
        return true;
    }
    const auto fragment = tolmo::DecodeHead( bytes, end + 2, &decoder->contentLength );
    if ( !fragment || decoder->contentLength == -1 ||
         tolmoMessageFragmentIsNeitherRequestNorResponse( fragment.Get() ) ) {
        return false;
    }
    decoder->message = tolmoMessageCreate( fragment.Get() );
    decoder->offset = end + 4;
    return true;
}

/** The message, once its body is there. */
TolmoMessage TakeMessage( TolmoMessageStreamDecoder decoder )
{
    if ( decoder->buffer->length - decoder->offset < decoder->contentLength ) {
        return nullptr;
    }
    auto message = tolmo::Adopt( decoder->message );
    decoder->message = nullptr;
    const auto body = tolmo::Adopt( koBufferRead( decoder->buffer, decoder->offset, decoder->contentLength ) );
    tolmoMessageSetBody( message.Address(), body.Get() );
    koBufferDelLeading( &decoder->buffer, decoder->offset + decoder->contentLength );
    decoder->offset = 0;
    return message.Leak();
}

} // namespace

TolmoMessageStreamDecoder tolmoMessageStreamDecoderCreate( void )
{
    auto decoder = tolmo::CreateObject<Decoder>( &tolmo___sort_TOLMO_MESSAGE_STREAM_DECODER );
    decoder.Get()->buffer = koBufferCreate();
    return decoder.Leak();
}

KoBool tolmoMessageStreamDecoderWrite( TolmoMessageStreamDecoder decoder, KoBuffer buffer )
{
    KO_REQUIRE( decoder );
    if ( decoder->error ) {
        return KO_FALSE;
    }
    koBufferAppend( &decoder->buffer, buffer );
    return KO_TRUE;
}

KoBool tolmoMessageStreamDecoderWriteLeading( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt length )
{
    KO_REQUIRE( decoder );
    if ( decoder->error ) {
        return KO_FALSE;
    }
    koBufferAppendLeading( &decoder->buffer, buffer, length );
    return KO_TRUE;
}

KoBool tolmoMessageStreamDecoderWriteTrailing( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt length )
{
    KO_REQUIRE( decoder );
    if ( decoder->error ) {
        return KO_FALSE;
    }
    koBufferAppendTrailing( &decoder->buffer, buffer, length );
    return KO_TRUE;
}

KoBool tolmoMessageStreamDecoderWriteInner( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt offset,
                                            KoInt length )
{
    KO_REQUIRE( decoder );
    if ( decoder->error ) {
        return KO_FALSE;
    }
    koBufferAppendInner( &decoder->buffer, buffer, offset, length );
    return KO_TRUE;
}

KoBool tolmoMessageStreamDecoderWriteOuter( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt offset,
                                            KoInt length )
{
    KO_REQUIRE( decoder );
    if ( decoder->error ) {
        return KO_FALSE;
    }
    koBufferAppendOuter( &decoder->buffer, buffer, offset, length );
    return KO_TRUE;
}

TolmoMessage tolmoMessageStreamDecoderRead( TolmoMessageStreamDecoder decoder )
{
    KO_REQUIRE( decoder );
    if ( decoder->error ) {
        return nullptr;
    }
    if ( !decoder->message ) {
        if ( decoder->offset == 0 ) {
            SkipLineEnds( decoder );
        }
        if ( !TakeHead( decoder ) ) {
            decoder->error = KO_TRUE;
            return nullptr;
        }
    }
    return decoder->message ? TakeMessage( decoder ) : nullptr;
}

KoBool tolmoMessageStreamDecoderError( TolmoMessageStreamDecoder decoder )
{
    KO_REQUIRE( decoder );
    return decoder->error;
}

KoInt tolmoMessageStreamDecoderLength( TolmoMessageStreamDecoder decoder )
{
    KO_REQUIRE( decoder );
    return koBufferLength( decoder->buffer );
}

KoInt tolmoMessageStreamDecoderSpace( TolmoMessageStreamDecoder decoder )
{
    KO_REQUIRE( decoder );
    return koBufferSpace( decoder->buffer );
}
