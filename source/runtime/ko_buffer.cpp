/* Buffers: sequences of bytes, immutable unless unique. */
#include <runtime/ko_buffer.h>

#include <runtime/ko_create.hpp>
#include <runtime/ko_inner.hpp>

#include <cstring>

namespace {

constexpr KoInt largest = INT64_MAX;

KoInt Compare( KoObj objA, KoObj objB )
{
    const auto a = reinterpret_cast<KoBuffer>( objA );
    const auto b = reinterpret_cast<KoBuffer>( objB );
    const KoInt common = koIntMin( a->length, b->length );
    if ( common > 0 ) {
        if ( const int order = memcmp( ko::Bytes( a ), ko::Bytes( b ), static_cast<size_t>( common ) ) ) {
            return order;
        }
    }
    return a->length < b->length ? -1 : a->length > b->length;
}

const ko___Sort bufferSort = KO_SORT( &ko::runtimeModule, "KO_BUFFER", nullptr, Compare, nullptr );
// What every empty buffer is: none keeps a block without bytes.
const ko___Buffer emptyBuffer = { { &bufferSort, KO_COUNT_CONSTANT, 0 }, 0, 0, 0 };

KoBuffer Empty()
{
    return const_cast<KoBuffer>( &emptyBuffer );
}

void Copy( uint8_t *to, const uint8_t *from, KoInt length )
{
    if ( length > 0 ) {
        memcpy( to, from, static_cast<size_t>( length ) );
    }
}

/** The number of bytes: the length that was given, or for -1 that up to a zero byte. */
KoInt BytesLength( const void *bytes, KoInt length )
{
    return length < 0 ? static_cast<KoInt>( strlen( static_cast<const char *>( bytes ) ) ) : length;
}

/** A new buffer with a copy of bytes and room for `capacity` bytes or some more. */
KoBuffer CreateWithBytes( const uint8_t *bytes, KoInt length, KoInt capacity )
{
    const size_t size = sizeof( ko___Buffer ) + static_cast<size_t>( capacity );
    const auto [obj, usable] = ko::CreateObject( size, &bufferSort );
    const auto b = reinterpret_cast<KoBuffer>( obj );
    b->length = length;
    b->offset = 0;
    b->capacity = static_cast<KoInt>( usable - sizeof( ko___Buffer ) );
    Copy( ko::Bytes( b ), bytes, length );
    return b;
}

KoBuffer CreateFromBytes( const uint8_t *bytes, KoInt length )
{
    return length > 0 ? CreateWithBytes( bytes, length, length ) : Empty();
}

/** Appends bytes, which may be the buffer's own. */
void Append( KoBuffer *b, const uint8_t *bytes, KoInt length )
{
    if ( length == 0 ) {
        return;
    }
    const KoBuffer old = *b;
    const bool unique = ko___IsUnique( &old->head );
    if ( unique && length <= old->capacity - old->offset - old->length ) {
        Copy( ko::Bytes( old ) + old->length, bytes, length );
        old->length += length;
        return;
    }
    KO_REQUIRE_MESSAGE( length <= largest / 4 - old->length, "out of memory", "block" );
    const KoInt need = old->length + length;
    *b = CreateWithBytes( ko::Bytes( old ), old->length, unique ? koIntMax( need, 2 * old->length ) : need );
    Copy( ko::Bytes( *b ) + old->length, bytes, length );
    ( *b )->length = need;
    ko___Release( &old->head );
}

/** Appends a range of another buffer, which may be the same one. */
void AppendRange( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length )
{
    if ( ( *b )->length == 0 && length == other->length ) {
        // What there is stands in the other buffer already. (What is replaced is the constant: it needs no release.)
        ko___Retain( &other->head );
        *b = other;
        return;
    }
    Append( b, ko::Bytes( other ) + offset, length );
}

/** Keeps a range that is inside the buffer. */
void Keep( KoBuffer *b, KoInt offset, KoInt length )
{
    const KoBuffer old = *b;
    if ( length == old->length ) {
        return;
    }
    if ( length > 0 && ko___IsUnique( &old->head ) ) {
        old->offset += offset;
        old->length = length;
        return;
    }
    *b = CreateFromBytes( ko::Bytes( old ) + offset, length );
    ko___Release( &old->head );
}

} // namespace

KO_TYPE_OPERATIONS( KoBuffer, koBuffer, bufferSort )

KoBuffer koBufferCreate( void )
{
    return Empty();
}

KoBuffer koBufferCreateFromBytesCopy( const void *bytes, KoInt length )
{
    KO_REQUIRE( bytes || length == 0 );
    KO_REQUIRE( length >= -1 );
    return CreateFromBytes( static_cast<const uint8_t *>( bytes ), BytesLength( bytes, length ) );
}

KoBuffer ko___BufferCreateOfLength( KoInt length )
{
    KO_REQUIRE( length >= 0 );
    const KoBuffer b = CreateWithBytes( nullptr, 0, length );
    b->length = length;
    return b;
}

KoInt koBufferLength( KoBuffer b )
{
    KO_REQUIRE( b );
    return b->length;
}

const uint8_t *koBufferBacking( KoBuffer b )
{
    KO_REQUIRE( b );
    return ko::Bytes( b );
}

KoInt koBufferSpace( KoBuffer b )
{
    KO_REQUIRE( b );
    return largest - b->length;
}

KoBuffer koBufferRead( KoBuffer b, KoInt offset, KoInt length )
{
    KO_REQUIRE( b );
    KO_REQUIRE( offset >= 0 && offset <= koBufferLength( b ) );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( b ) - offset );
    const KoInt count = length < 0 ? b->length - offset : length;
    if ( count == b->length ) {
        ko___Retain( &b->head );
        return b;
    }
    return CreateFromBytes( ko::Bytes( b ) + offset, count );
}

void koBufferAppend( KoBuffer *b, KoBuffer other )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( other );
    AppendRange( b, other, 0, other->length );
}

void koBufferAppendByte( KoBuffer *b, uint8_t byte )
{
    KO_REQUIRE_HANDLE( b );
    Append( b, &byte, 1 );
}

void koBufferAppendBytes( KoBuffer *b, const void *bytes, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( bytes || length == 0 );
    KO_REQUIRE( length >= -1 );
    Append( b, static_cast<const uint8_t *>( bytes ), BytesLength( bytes, length ) );
}

void koBufferAppendLeading( KoBuffer *b, KoBuffer other, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( other );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( other ) );
    AppendRange( b, other, 0, length < 0 ? other->length : length );
}

void koBufferAppendTrailing( KoBuffer *b, KoBuffer other, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( other );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( other ) );
    const KoInt count = length < 0 ? other->length : length;
    AppendRange( b, other, other->length - count, count );
}

void koBufferAppendInner( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( other );
    KO_REQUIRE( offset >= 0 && offset <= koBufferLength( other ) );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( other ) - offset );
    AppendRange( b, other, offset, length < 0 ? other->length - offset : length );
}

void koBufferAppendOuter( KoBuffer *b, KoBuffer other, KoInt offset, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( other );
    KO_REQUIRE( offset >= 0 && offset <= koBufferLength( other ) );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( other ) - offset );
    // Held, because the first step may end the other buffer when both are the same one.
    const auto held = KoRef<KoBuffer>::Share( other );
    const KoInt end = length < 0 ? other->length : offset + length;
    AppendRange( b, other, 0, offset );
    AppendRange( b, other, end, other->length - end );
}

void koBufferDelLeading( KoBuffer *b, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( *b ) );
    const KoInt count = length < 0 ? ( *b )->length : length;
    Keep( b, count, ( *b )->length - count );
}

void koBufferDelOuter( KoBuffer *b, KoInt offset, KoInt length )
{
    KO_REQUIRE_HANDLE( b );
    KO_REQUIRE( offset >= 0 && offset <= koBufferLength( *b ) );
    KO_REQUIRE( length >= -1 && length <= koBufferLength( *b ) - offset );
    Keep( b, offset, length < 0 ? ( *b )->length - offset : length );
}
