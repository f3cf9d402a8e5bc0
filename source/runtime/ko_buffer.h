/* Buffers: sequences of bytes, immutable unless unique; and the road between bytes and characters. */
#ifndef KO_BUFFER_H
#define KO_BUFFER_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * A buffer is one block: this head and, right behind it, room for `capacity` bytes. The bytes begin at `offset` of that
 * room, so that deletion from the front costs nothing.
 */
struct ko___Buffer {
    struct ko___Obj head;
    KoInt length;
    KoInt offset;
    KoInt capacity;
};

/** Handle of a buffer. */
typedef struct ko___Buffer *KoBuffer;

/** @name Sort, casts, references
 * @{ */

/** The sort of buffers. */
KO_API KoSort koBufferSort( void );

/**
 * Casts an object to a buffer. Changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 * @pre !obj || koObjSort( obj ) == koBufferSort()
 */
KO_API KoBuffer koBufferFrom( KoObj obj );

/**
 * Casts a buffer to an object. Changes no count.
 *
 * @param b shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 */
KO_API KoObj koBufferObj( KoBuffer b );

/**
 * Adds a reference.
 *
 * @param b shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre b
 */
KO_API KoBuffer koBufferRetain( KoBuffer b );

/**
 * Drops a reference; the last one ends the buffer.
 *
 * @param b taken over.
 * @pre b
 */
KO_API void koBufferRelease( KoBuffer b );

/** @} */

/** @name Creation and reading
 * @{ */

/**
 * An empty buffer.
 *
 * @return new reference.
 */
KO_API KoBuffer koBufferCreate( void );

/**
 * A buffer with a copy of bytes.
 *
 * @param bytes The bytes; may be null when the length is 0.
 * @param length Their number, or -1 for bytes that end before a zero byte.
 * @return new reference; never null, also when there are no bytes.
 * @pre bytes || length == 0
 * @pre length >= -1
 */
KO_API KoBuffer koBufferCreateFromBytesCopy( const void *bytes, KoInt length );

/**
 * A buffer whose bytes are not set, for code that fills it at once.
 *
 * @param length The number of bytes.
 * @return new reference, with a count of 1 also when the length is 0.
 * @pre length >= 0
 */
KO_API KoBuffer ko___BufferCreateOfLength( KoInt length );

/**
 * The number of bytes.
 *
 * @param b shared, the caller keeps its reference.
 * @pre b
 */
KO_API KoInt koBufferLength( KoBuffer b );

/**
 * The bytes, valid as long as the buffer lives and is not changed.
 *
 * @param b shared, the caller keeps its reference.
 * @pre b
 */
KO_API const uint8_t *koBufferBacking( KoBuffer b );

/**
 * How many more bytes the buffer can take: the largest KoInt less its length.
 *
 * @param b shared, the caller keeps its reference.
 * @pre b
 */
KO_API KoInt koBufferSpace( KoBuffer b );

/**
 * A buffer with a range of another one.
 *
 * @param b shared, the caller keeps its reference.
 * @param offset Where the range begins.
 * @param length Its length, or -1 for up to the end.
 * @return new reference; the buffer itself when the range is all of it.
 * @pre b
 * @pre offset >= 0 && offset <= koBufferLength( b )
 * @pre length >= -1 && length <= koBufferLength( b ) - offset
 */
KO_API KoBuffer koBufferRead( KoBuffer b, KoInt offset, KoInt length );

/** @} */

/** @name Changing
 * Appending is amortised linear in what is appended. What is appended may be the buffer itself, or some of its bytes.
 * @{ */

/**
 * Appends a buffer.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @pre b
 * @pre *b
 * @pre other
 */
KO_API void koBufferAppend( KoBuffer *b, KoBuffer other );

/**
 * Appends one byte.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param byte The byte.
 * @pre b
 * @pre *b
 */
KO_API void koBufferAppendByte( KoBuffer *b, uint8_t byte );

/**
 * Appends bytes.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param bytes The bytes; may be null when the length is 0.
 * @param length Their number, or -1 for bytes that end before a zero byte.
 * @pre b
 * @pre *b
 * @pre bytes || length == 0
 * @pre length >= -1
 */
KO_API void koBufferAppendBytes( KoBuffer *b, const void *bytes, KoInt length );

/**
 * Appends the first bytes of a buffer.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @param length How many, or -1 for all.
 * @pre b
 * @pre *b
 * @pre other
 * @pre length >= -1 && length <= koBufferLength( other )
 */
KO_API void koBufferAppendLeading( KoBuffer *b, KoBuffer other, KoInt length );

/**
 * Appends the last bytes of a buffer.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @param length How many, or -1 for all.
 * @pre b
 * @pre *b
 * @pre other
 * @pre length >= -1 && length <= koBufferLength( other )
 */
KO_API void koBufferAppendTrailing( KoBuffer *b, KoBuffer other, KoInt length );

/**
 * Appends a range of a buffer.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @param offset Where the range begins.
 * @param length Its length, or -1 for up to the end.
 * @pre b
 * @pre *b
 * @pre other
 * @pre offset >= 0 && offset <= koBufferLength( other )
 * @pre length >= -1 && length <= koBufferLength( other ) - offset
 */
KO_API void koBufferAppendInner( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length );

/**
 * Appends all of a buffer but a range.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param other shared, the caller keeps its reference.
 * @param offset Where the range begins.
 * @param length Its length, or -1 for up to the end.
 * @pre b
 * @pre *b
 * @pre other
 * @pre offset >= 0 && offset <= koBufferLength( other )
 * @pre length >= -1 && length <= koBufferLength( other ) - offset
 */
KO_API void koBufferAppendOuter( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length );

/**
 * Removes the first bytes. Constant time on a buffer that is not shared: a stream can be consumed from the front.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param length How many, or -1 for all.
 * @pre b
 * @pre *b
 * @pre length >= -1 && length <= koBufferLength( *b )
 */
KO_API void koBufferDelLeading( KoBuffer *b, KoInt length );

/**
 * Removes all but a range. A range that is all of the buffer changes nothing, not even the handle.
 *
 * @param b address of the caller's handle, which may be replaced.
 * @param offset Where the range begins.
 * @param length Its length, or -1 for up to the end.
 * @pre b
 * @pre *b
 * @pre offset >= 0 && offset <= koBufferLength( *b )
 * @pre length >= -1 && length <= koBufferLength( *b ) - offset
 */
KO_API void koBufferDelOuter( KoBuffer *b, KoInt offset, KoInt length );

/** @} */

/** @name Between bytes and characters
 * @{ */

/** The charset code of UTF-8. */
#define KO_CHARSET_UTF8 44

/**
 * Converts bytes to a string, strictly (RFC 3629): overlong forms, surrogates, values above U+10FFFF and broken
 * sequences give null. U+0000, noncharacters and a byte order mark are characters like any other.
 *
 * @param charset KO_CHARSET_UTF8; nothing else is known.
 * @param b shared, the caller keeps its reference.
 * @param flags 1 (strict).
 * @return new reference, or null when the bytes are not valid in the charset. No bytes give an empty string.
 * @pre charset == KO_CHARSET_UTF8
 * @pre b
 * @pre flags == 1
 */
KO_API KoString koCharsetTryConvertBufferToStringWithFlags( KoInt charset, KoBuffer b, KoInt flags );

/**
 * Converts characters to UTF-8 (RFC 3629). What is no scalar value becomes U+FFFD, so that the output is always valid.
 *
 * @param out Receives the bytes if all of them fit, else it is left alone; may be null when `capacity` is 0.
 * @param capacity Room in `out`.
 * @param chs The characters; may be null when the length is 0.
 * @param length Their number, or -1 when a zero ends them.
 * @param reserved KO_FALSE.
 * @return The number of bytes that the conversion needs, whatever the capacity.
 * @pre out || capacity == 0
 * @pre capacity >= 0
 * @pre chs || length == 0
 * @pre length >= -1
 * @pre !reserved
 */
KO_API KoInt koCharsConvertToUtf8( void *out, KoInt capacity, const KoChar *chs, KoInt length, KoBool reserved );

/** @} */

KO_END_DECLS

#endif
