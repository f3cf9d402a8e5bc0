/* Messages out of a byte stream (RFC 3261 section 18.3). */
#ifndef TOLMO_MESSAGE_STREAM_DECODER_H
#define TOLMO_MESSAGE_STREAM_DECODER_H

#include <tolmo/tolmo_message.h>

KO_BEGIN_DECLS

/**
 * Handle of a stream decoder: the one type whose objects change in place. It belongs to one thread at a time, its
 * operations take the handle by value, and there is no copy of it.
 */
typedef struct tolmo___MessageStreamDecoder *TolmoMessageStreamDecoder;

/** @name Standard operations
 * See docs/objects.md. The sort has neither a compare nor a to-string function; there is no CreateFrom. @{ */
KO_API KoSort tolmoMessageStreamDecoderSort( void );
KO_API KoObj tolmoMessageStreamDecoderObj( TolmoMessageStreamDecoder decoder );
KO_API TolmoMessageStreamDecoder tolmoMessageStreamDecoderFrom( KoObj obj );
KO_API TolmoMessageStreamDecoder tolmoMessageStreamDecoderRetain( TolmoMessageStreamDecoder decoder );
KO_API void tolmoMessageStreamDecoderRelease( TolmoMessageStreamDecoder decoder );
KO_API KoInt tolmoMessageStreamDecoderCompare( TolmoMessageStreamDecoder a, TolmoMessageStreamDecoder b );
KO_API KoBool tolmoMessageStreamDecoderEquals( TolmoMessageStreamDecoder a, TolmoMessageStreamDecoder b );
KO_API KoString tolmoMessageStreamDecoderToString( TolmoMessageStreamDecoder decoder );
/** @} */

/** A new decoder. @return new reference. */
KO_API TolmoMessageStreamDecoder tolmoMessageStreamDecoderCreate( void );

/** @name Writing
 * Takes bytes as they arrive; nothing is decoded here. What is written is copied: the whole buffer, its first or last
 * bytes, a range, or all but a range.
 * @return False, with nothing written, after an error.
 * @pre decoder
 * @pre buffer, and the range lies in it (unless there was an error) @{ */
KO_API KoBool tolmoMessageStreamDecoderWrite( TolmoMessageStreamDecoder decoder, KoBuffer buffer );
KO_API KoBool tolmoMessageStreamDecoderWriteLeading( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt length );
KO_API KoBool tolmoMessageStreamDecoderWriteTrailing( TolmoMessageStreamDecoder decoder, KoBuffer buffer,
                                                      KoInt length );
KO_API KoBool tolmoMessageStreamDecoderWriteInner( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt offset,
                                                   KoInt length );
KO_API KoBool tolmoMessageStreamDecoderWriteOuter( TolmoMessageStreamDecoder decoder, KoBuffer buffer, KoInt offset,
                                                   KoInt length );
/** @} */

/**
 * The next complete message. Call until the result is null, then look at tolmoMessageStreamDecoderError. CR LF pairs in
 * front of a message are skipped. `Content-Length` is mandatory, and each message has a body, if an empty one.
 *
 * @return new reference; null when more bytes are needed, and after an error.
 * @pre decoder
 */
KO_API TolmoMessage tolmoMessageStreamDecoderRead( TolmoMessageStreamDecoder decoder );

/** True once a head did not decode. There is no way back: the connection is to be dropped. @pre decoder */
KO_API KoBool tolmoMessageStreamDecoderError( TolmoMessageStreamDecoder decoder );

/** The number of bytes that no message has consumed. Nothing bounds it but the caller. @pre decoder */
KO_API KoInt tolmoMessageStreamDecoderLength( TolmoMessageStreamDecoder decoder );

/** How many more bytes the decoder can take. @pre decoder */
KO_API KoInt tolmoMessageStreamDecoderSpace( TolmoMessageStreamDecoder decoder );

KO_END_DECLS

#endif
