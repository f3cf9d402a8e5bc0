/* Buffers: sequences of bytes, immutable unless unique; and the road between bytes and characters. */
#ifndef KO_BUFFER_H
#define KO_BUFFER_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** A buffer is one block: this head and, right behind it, room for `capacity` bytes. The bytes begin at `offset` of that
 * room, so that deletion from the front costs nothing. */
struct ko___Buffer {
    struct ko___Obj head;
    KoInt length;
    KoInt offset;
    KoInt capacity;
};
/** Handle of a buffer. */
typedef struct ko___Buffer *KoBuffer;

/** @name Sort, casts, references
 * As for strings. @{ */
KO_API KoSort koBufferSort( void );
KO_API KoBuffer koBufferFrom( KoObj obj );
KO_API KoObj koBufferObj( KoBuffer b );
KO_API KoBuffer koBufferRetain( KoBuffer b );
KO_API void koBufferRelease( KoBuffer b );
/** @} */

/** @name Creation and reading
 * Creators and koBufferRead return a new reference. A length may be -1: up to the end. @{ */
KO_API KoBuffer koBufferCreate( void );
KO_API KoBuffer koBufferCreateFromBytesCopy( const void *bytes, KoInt length );
KO_API KoInt koBufferLength( KoBuffer b );
KO_API const uint8_t *koBufferBacking( KoBuffer b );
/** How much more the buffer can take: the largest KoInt less its length. */
KO_API KoInt koBufferSpace( KoBuffer b );
KO_API KoBuffer koBufferRead( KoBuffer b, KoInt offset, KoInt length );
/** @} */

/** @name Changing
 * Each takes the address of the caller's handle, which may be replaced. Leading, trailing, inner and outer are ranges of
 * the other buffer; outer is all but the range. @{ */
KO_API void koBufferAppend( KoBuffer *b, KoBuffer other );
KO_API void koBufferAppendByte( KoBuffer *b, uint8_t byte );
KO_API void koBufferAppendBytes( KoBuffer *b, const void *bytes, KoInt length );
KO_API void koBufferAppendLeading( KoBuffer *b, KoBuffer other, KoInt length );
KO_API void koBufferAppendTrailing( KoBuffer *b, KoBuffer other, KoInt length );
KO_API void koBufferAppendInner( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length );
KO_API void koBufferAppendOuter( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length );
/** Amortised constant time: a stream can be consumed from the front. */
KO_API void koBufferDelLeading( KoBuffer *b, KoInt length );
/** Removes all but the range. */
KO_API void koBufferDelOuter( KoBuffer *b, KoInt offset, KoInt length );
/** @} */

/** The charset code of UTF-8. */
#define KO_CHARSET_UTF8 44

/**
 * Converts bytes to a string, strictly: overlong forms, surrogates, values above U+10FFFF and broken sequences give null.
 *
 * @param charset KO_CHARSET_UTF8; nothing else is known.
 * @param flags 1 (strict).
 * @return new reference, or null when the bytes are not valid in the charset.
 */
KO_API KoString koCharsetTryConvertBufferToStringWithFlags( KoInt charset, KoBuffer b, KoInt flags );

/**
 * Converts characters to UTF-8. What is no scalar value becomes U+FFFD, so that the output is always valid.
 *
 * @param out Receives the bytes if they fit; may be null when `capacity` is 0.
 * @param capacity Room in `out`.
 * @param reserved KO_FALSE.
 * @return The number of bytes that the conversion needs, whatever the capacity.
 */
KO_API KoInt koCharsConvertToUtf8( void *out, KoInt capacity, const KoChar *chs, KoInt length, KoBool reserved );

KO_END_DECLS

#endif
