/* Buffers: a model, a row for each rule, and the cost of a stream. */
#include "test.h"

#include <random>

namespace {

using test::Buf;
using test::Bytes;
using test::TakeBytes;
using Buffer = KoRef<KoBuffer>;

constexpr const char *path = "source/runtime/ko_buffer.cpp";

KoInt Order( std::string_view a, std::string_view b )
{
    const KoInt order = koObjCompare( koBufferObj( Buf( a ).Get() ), koBufferObj( Buf( b ).Get() ) );
    return order < 0 ? -1 : order > 0;
}

class BufferTest : public test::Fixture {};

// --- Sort, casts, references

TEST_F( BufferTest, CastsAndReferences )
{
    const auto b = Buf( "abc" );
    EXPECT_EQ( koBufferFrom( koBufferObj( b.Get() ) ), b.Get() );
    EXPECT_EQ( koObjSort( koBufferObj( b.Get() ) ), koBufferSort() );
    EXPECT_EQ( koBufferFrom( nullptr ), nullptr );
    EXPECT_EQ( koBufferObj( nullptr ), nullptr );
    EXPECT_EQ( koBufferRetain( b.Get() ), b.Get() );
    EXPECT_EQ( test::Count( b.Get() ), 2 );
    koBufferRelease( b.Get() );
    EXPECT_EQ( test::Count( b.Get() ), 1 );
    EXPECT_ABORT( koBufferFrom( koStringObj( test::Str( "a" ).Get() ) ), path,
                  "!obj || koObjSort( obj ) == koBufferSort()" );
    EXPECT_ABORT( koBufferRetain( nullptr ), path, "object" );
    EXPECT_ABORT( koBufferRelease( nullptr ), path, "object" );
}

TEST_F( BufferTest, OrderIsByBytes )
{
    EXPECT_EQ( Order( "", "" ), 0 );
    EXPECT_EQ( Order( "", "a" ), -1 );
    EXPECT_EQ( Order( "a", "aa" ), -1 ) << "a proper prefix is less";
    EXPECT_EQ( Order( "b", "aa" ), 1 );
    EXPECT_EQ( Order( "abc", "abc" ), 0 );
    EXPECT_EQ( Order( "\x7f", "\x80" ), -1 ) << "bytes have no sign";
    EXPECT_EQ( Order( std::string_view( "\0a", 2 ), std::string_view( "\0b", 2 ) ), -1 );
}

TEST_F( BufferTest, HasNoTextOfItsOwn )
{
    EXPECT_EQ( test::Take( koObjToString( koBufferObj( Buf( "abc" ).Get() ) ) ), "<KO_BUFFER>" );
}

// --- Creation and reading

TEST_F( BufferTest, Creation )
{
    EXPECT_EQ( TakeBytes( koBufferCreate() ), "" );
    EXPECT_EQ( TakeBytes( koBufferCreateFromBytesCopy( "abc", 2 ) ), "ab" );
    EXPECT_EQ( TakeBytes( koBufferCreateFromBytesCopy( "abc", -1 ) ), "abc" ) << "up to the zero";
    EXPECT_EQ( TakeBytes( koBufferCreateFromBytesCopy( "", -1 ) ), "" );
    EXPECT_EQ( TakeBytes( koBufferCreateFromBytesCopy( "a\0b", 3 ) ), std::string( "a\0b", 3 ) );
    const auto empty = Buffer::Adopt( koBufferCreateFromBytesCopy( nullptr, 0 ) );
    ASSERT_NE( empty.Get(), nullptr ) << "empty is not null";
    EXPECT_EQ( koBufferLength( empty.Get() ), 0 );
    EXPECT_NE( koBufferBacking( empty.Get() ), nullptr );
}

TEST_F( BufferTest, Space )
{
    EXPECT_EQ( koBufferSpace( Buf( "" ).Get() ), INT64_MAX );
    EXPECT_EQ( koBufferSpace( Buf( "abc" ).Get() ), INT64_MAX - 3 );
}

TEST_F( BufferTest, Read )
{
    struct Row {
        KoInt offset;
        KoInt length;
        const char *expected;
    };
    const Row rows[] = {
        { 0, 0, "" },      { 0, 5, "hello" }, { 0, -1, "hello" }, { 1, 3, "ell" },
        { 1, -1, "ello" }, { 5, 0, "" },      { 5, -1, "" },
    };
    const auto b = Buf( "hello" );
    for ( const Row &row : rows ) {
        EXPECT_EQ( TakeBytes( koBufferRead( b.Get(), row.offset, row.length ) ), row.expected )
            << row.offset << ", " << row.length;
    }
    auto whole = Buffer::Adopt( koBufferRead( b.Get(), 0, 5 ) );
    EXPECT_EQ( whole.Get(), b.Get() ) << "all of it is not copied";
    koBufferAppendByte( whole.Address(), '!' );
    EXPECT_EQ( Bytes( b.Get() ), "hello" );
}

// --- Changing

TEST_F( BufferTest, Appending )
{
    const auto other = Buf( "abcdef" );
    struct Row {
        const char *name;
        void ( *append )( KoBuffer *b, KoBuffer other );
        const char *expected;
    };
    const Row rows[] = {
        { "all", []( KoBuffer *b, KoBuffer o ) { koBufferAppend( b, o ); }, "abcdef" },
        { "byte", []( KoBuffer *b, KoBuffer ) { koBufferAppendByte( b, 'x' ); }, "x" },
        { "bytes", []( KoBuffer *b, KoBuffer ) { koBufferAppendBytes( b, "xyz", 2 ); }, "xy" },
        { "bytes up to the zero", []( KoBuffer *b, KoBuffer ) { koBufferAppendBytes( b, "xyz", -1 ); }, "xyz" },
        { "no bytes", []( KoBuffer *b, KoBuffer ) { koBufferAppendBytes( b, nullptr, 0 ); }, "" },
        { "leading", []( KoBuffer *b, KoBuffer o ) { koBufferAppendLeading( b, o, 2 ); }, "ab" },
        { "leading none", []( KoBuffer *b, KoBuffer o ) { koBufferAppendLeading( b, o, 0 ); }, "" },
        { "leading all", []( KoBuffer *b, KoBuffer o ) { koBufferAppendLeading( b, o, -1 ); }, "abcdef" },
        { "trailing", []( KoBuffer *b, KoBuffer o ) { koBufferAppendTrailing( b, o, 2 ); }, "ef" },
        { "trailing none", []( KoBuffer *b, KoBuffer o ) { koBufferAppendTrailing( b, o, 0 ); }, "" },
        { "trailing all", []( KoBuffer *b, KoBuffer o ) { koBufferAppendTrailing( b, o, -1 ); }, "abcdef" },
        { "inner", []( KoBuffer *b, KoBuffer o ) { koBufferAppendInner( b, o, 1, 3 ); }, "bcd" },
        { "inner to the end", []( KoBuffer *b, KoBuffer o ) { koBufferAppendInner( b, o, 4, -1 ); }, "ef" },
        { "inner at the end", []( KoBuffer *b, KoBuffer o ) { koBufferAppendInner( b, o, 6, 0 ); }, "" },
        { "outer", []( KoBuffer *b, KoBuffer o ) { koBufferAppendOuter( b, o, 1, 3 ); }, "aef" },
        { "outer to the end", []( KoBuffer *b, KoBuffer o ) { koBufferAppendOuter( b, o, 4, -1 ); }, "abcd" },
        { "outer of nothing", []( KoBuffer *b, KoBuffer o ) { koBufferAppendOuter( b, o, 3, 0 ); }, "abcdef" },
        { "outer of all", []( KoBuffer *b, KoBuffer o ) { koBufferAppendOuter( b, o, 0, 6 ); }, "" },
    };
    for ( const Row &row : rows ) {
        for ( const char *earlier : { "", "12345" } ) {
            auto b = Buf( earlier );
            row.append( b.Address(), other.Get() );
            EXPECT_EQ( Bytes( b.Get() ), std::string( earlier ) + row.expected ) << row.name;
            EXPECT_EQ( Bytes( other.Get() ), "abcdef" ) << row.name;

            auto shared = Buf( earlier );
            const auto kept = Buffer::Share( shared.Get() );
            row.append( shared.Address(), other.Get() );
            EXPECT_EQ( Bytes( shared.Get() ), std::string( earlier ) + row.expected ) << row.name << ", shared";
            EXPECT_EQ( Bytes( kept.Get() ), earlier ) << row.name << ", shared";
        }
    }
}

TEST_F( BufferTest, ABufferMayBeAppendedToItself )
{
    for ( const size_t size : { size_t{ 0 }, size_t{ 1 }, size_t{ 40 }, size_t{ 1000 } } ) {
        const std::string text( size, 'a' );
        auto b = Buf( text + "z" );
        koBufferAppend( b.Address(), b.Get() );
        EXPECT_EQ( Bytes( b.Get() ), text + "z" + text + "z" );
        auto outer = Buf( "<" + text + ">" );
        koBufferAppendOuter( outer.Address(), outer.Get(), 1, static_cast<KoInt>( size ) );
        EXPECT_EQ( Bytes( outer.Get() ), "<" + text + "><>" );
        auto inner = Buf( "<" + text + ">" );
        koBufferAppendInner( inner.Address(), inner.Get(), 1, static_cast<KoInt>( size ) );
        EXPECT_EQ( Bytes( inner.Get() ), "<" + text + ">" + text );
        auto own = Buf( text + "yz" );
        for ( int i = 0; i < 20; ++i ) {
            koBufferAppendBytes( own.Address(), koBufferBacking( own.Get() ) + size, 2 );
        }
        EXPECT_EQ( koBufferLength( own.Get() ), static_cast<KoInt>( size + 42 ) );
        EXPECT_EQ( Bytes( own.Get() ).substr( size + 38 ), "yzyz" );
    }
}

TEST_F( BufferTest, Deleting )
{
    struct Row {
        const char *name;
        void ( *change )( KoBuffer *b );
        const char *expected;
    };
    const Row rows[] = {
        { "leading none", []( KoBuffer *b ) { koBufferDelLeading( b, 0 ); }, "abcdef" },
        { "leading", []( KoBuffer *b ) { koBufferDelLeading( b, 2 ); }, "cdef" },
        { "leading, the length", []( KoBuffer *b ) { koBufferDelLeading( b, 6 ); }, "" },
        { "leading all", []( KoBuffer *b ) { koBufferDelLeading( b, -1 ); }, "" },
        { "outer", []( KoBuffer *b ) { koBufferDelOuter( b, 1, 3 ); }, "bcd" },
        { "outer to the end", []( KoBuffer *b ) { koBufferDelOuter( b, 4, -1 ); }, "ef" },
        { "outer of nothing", []( KoBuffer *b ) { koBufferDelOuter( b, 3, 0 ); }, "" },
        { "outer of the whole", []( KoBuffer *b ) { koBufferDelOuter( b, 0, 6 ); }, "abcdef" },
        { "outer of all", []( KoBuffer *b ) { koBufferDelOuter( b, 0, -1 ); }, "abcdef" },
    };
    for ( const Row &row : rows ) {
        auto b = Buf( "abcdef" );
        row.change( b.Address() );
        EXPECT_EQ( Bytes( b.Get() ), row.expected ) << row.name;
        koBufferAppendBytes( b.Address(), "gh", 2 );
        EXPECT_EQ( Bytes( b.Get() ), std::string( row.expected ) + "gh" ) << row.name;

        auto shared = Buf( "abcdef" );
        const auto kept = Buffer::Share( shared.Get() );
        row.change( shared.Address() );
        EXPECT_EQ( Bytes( shared.Get() ), row.expected ) << row.name << ", shared";
        EXPECT_EQ( Bytes( kept.Get() ), "abcdef" ) << row.name << ", shared";
    }
}

TEST_F( BufferTest, WhatChangesNothingDoesNotCopy )
{
    auto b = Buf( "abcdef" );
    const auto kept = Buffer::Share( b.Get() );
    koBufferDelOuter( b.Address(), 0, 6 );
    koBufferDelOuter( b.Address(), 0, -1 );
    koBufferDelLeading( b.Address(), 0 );
    koBufferAppendBytes( b.Address(), "x", 0 );
    koBufferAppend( b.Address(), Buf( "" ).Get() );
    EXPECT_EQ( b.Get(), kept.Get() );
    auto empty = Buf( "" );
    koBufferAppend( empty.Address(), kept.Get() );
    EXPECT_EQ( empty.Get(), kept.Get() ) << "all there is stands in the other one already";
    koBufferAppendByte( empty.Address(), '!' );
    EXPECT_EQ( Bytes( kept.Get() ), "abcdef" );
}

TEST_F( BufferTest, AUniqueBufferStaysWhenItHasRoom )
{
    auto b = Buf( std::string( 100, 'a' ) );
    koBufferAppendByte( b.Address(), 'b' );
    const KoBuffer earlier = b.Get();
    koBufferAppendByte( b.Address(), 'c' );
    koBufferDelLeading( b.Address(), 50 );
    koBufferDelOuter( b.Address(), 10, 20 );
    EXPECT_EQ( b.Get(), earlier );
}

TEST_F( BufferTest, RandomChangesAgreeWithAModel )
{
    std::mt19937 random( 2 );
    const auto below = [&]( size_t n ) { return static_cast<size_t>( random() % n ); };
    for ( int run = 0; run < 200; ++run ) {
        std::string model;
        auto b = Buf( "" );
        std::string keptModel;
        auto kept = Buf( "" );
        for ( int step = 0; step < 300; ++step ) {
            const size_t n = model.size();
            const size_t offset = below( n + 1 );
            const size_t length = below( n - offset + 1 );
            const auto at = static_cast<KoInt>( offset );
            const auto count = static_cast<KoInt>( length );
            switch ( below( n > 3000 ? 2 : 9 ) ) {
            case 0:
                koBufferDelLeading( b.Address(), at );
                model.erase( 0, offset );
                break;
            case 1:
                if ( below( 4 ) == 0 ) {
                    koBufferDelOuter( b.Address(), at, count );
                    model = model.substr( offset, length );
                }
                break;
            case 2: {
                const std::string bytes( below( 50 ), static_cast<char>( random() ) );
                koBufferAppendBytes( b.Address(), bytes.data(), static_cast<KoInt>( bytes.size() ) );
                model += bytes;
                break;
            }
            case 3:
                koBufferAppendByte( b.Address(), static_cast<uint8_t>( step ) );
                model += static_cast<char>( step );
                break;
            case 4:
                koBufferAppendInner( b.Address(), b.Get(), at, count );
                model += std::string( model, offset, length );
                break;
            case 5:
                koBufferAppendOuter( b.Address(), b.Get(), at, count );
                model += std::string( model, 0, offset ) + std::string( model, offset + length );
                break;
            case 6:
                koBufferAppend( b.Address(), kept.Get() );
                model += keptModel;
                break;
            case 7:
                kept = Buffer::Share( b.Get() );
                keptModel = model;
                break;
            default:
                ASSERT_EQ( TakeBytes( koBufferRead( b.Get(), at, count ) ), model.substr( offset, length ) );
            }
            ASSERT_EQ( Bytes( b.Get() ), model );
            ASSERT_EQ( Bytes( kept.Get() ), keptModel );
        }
    }
}

// With a copy of the rest at each step this would move 10^13 bytes: the test would run into its time limit.
TEST_F( BufferTest, AStreamIsConsumedFromTheFront )
{
    constexpr KoInt count = 4000000;
    auto b = Buf( "" );
    for ( KoInt i = 0; i < count; ++i ) {
        koBufferAppendByte( b.Address(), static_cast<uint8_t>( i ) );
    }
    for ( KoInt i = 0; i < count; ++i ) {
        koBufferDelLeading( b.Address(), 1 );
        koBufferAppendByte( b.Address(), static_cast<uint8_t>( i ) );
    }
    EXPECT_EQ( koBufferLength( b.Get() ), count );
    while ( koBufferLength( b.Get() ) > 0 ) {
        koBufferDelLeading( b.Address(), 1 );
    }
}

TEST_F( BufferTest, Preconditions )
{
    const char *const range = "length >= -1 && length <= koBufferLength( other ) - offset";
    const char *const offset = "offset >= 0 && offset <= koBufferLength( other )";
    const char *const length = "length >= -1 && length <= koBufferLength( other )";
    auto owned = Buf( "abc" );
    const auto second = Buf( "abc" );
    KoBuffer *b = owned.Address();
    KoBuffer o = second.Get();
    KoBuffer null = nullptr;
    EXPECT_ABORT( koBufferCreateFromBytesCopy( nullptr, 1 ), path, "bytes || length == 0" );
    EXPECT_ABORT( koBufferCreateFromBytesCopy( nullptr, -1 ), path, "bytes || length == 0" );
    EXPECT_ABORT( koBufferCreateFromBytesCopy( "a", -2 ), path, "length >= -1" );
    EXPECT_ABORT( ko___BufferCreateOfLength( -1 ), path, "length >= 0" );
    EXPECT_ABORT( koBufferLength( nullptr ), path, "b" );
    EXPECT_ABORT( koBufferBacking( nullptr ), path, "b" );
    EXPECT_ABORT( koBufferSpace( nullptr ), path, "b" );
    EXPECT_ABORT( koBufferRead( nullptr, 0, 0 ), path, "b" );
    EXPECT_ABORT( koBufferRead( o, -1, 0 ), path, "offset >= 0 && offset <= koBufferLength( b )" );
    EXPECT_ABORT( koBufferRead( o, 4, 0 ), path, "offset >= 0 && offset <= koBufferLength( b )" );
    EXPECT_ABORT( koBufferRead( o, 1, 3 ), path, "length >= -1 && length <= koBufferLength( b ) - offset" );
    EXPECT_ABORT( koBufferRead( o, 1, INT64_MAX ), path, "length >= -1 && length <= koBufferLength( b ) - offset" );
    EXPECT_ABORT( koBufferRead( o, 0, -2 ), path, "length >= -1 && length <= koBufferLength( b ) - offset" );
    EXPECT_ABORT( koBufferAppend( nullptr, o ), path, "b" );
    EXPECT_ABORT( koBufferAppend( &null, o ), path, "*b" );
    EXPECT_ABORT( koBufferAppend( b, nullptr ), path, "other" );
    EXPECT_ABORT( koBufferAppendByte( nullptr, 0 ), path, "b" );
    EXPECT_ABORT( koBufferAppendByte( &null, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferAppendBytes( nullptr, "a", 1 ), path, "b" );
    EXPECT_ABORT( koBufferAppendBytes( &null, "a", 1 ), path, "*b" );
    EXPECT_ABORT( koBufferAppendBytes( b, nullptr, 1 ), path, "bytes || length == 0" );
    EXPECT_ABORT( koBufferAppendBytes( b, "a", -2 ), path, "length >= -1" );
    EXPECT_ABORT_MESSAGE( koBufferAppendBytes( b, "a", INT64_MAX ), "out of memory", path, "block" );
    EXPECT_ABORT( koBufferAppendLeading( nullptr, o, 0 ), path, "b" );
    EXPECT_ABORT( koBufferAppendLeading( &null, o, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferAppendLeading( b, nullptr, 9 ), path, "other" );
    EXPECT_ABORT( koBufferAppendLeading( b, o, 4 ), path, length );
    EXPECT_ABORT( koBufferAppendLeading( b, o, -2 ), path, length );
    EXPECT_ABORT( koBufferAppendTrailing( nullptr, o, 0 ), path, "b" );
    EXPECT_ABORT( koBufferAppendTrailing( &null, o, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferAppendTrailing( b, nullptr, 9 ), path, "other" );
    EXPECT_ABORT( koBufferAppendTrailing( b, o, 4 ), path, length );
    EXPECT_ABORT( koBufferAppendTrailing( b, o, -2 ), path, length );
    EXPECT_ABORT( koBufferAppendInner( nullptr, o, 0, 0 ), path, "b" );
    EXPECT_ABORT( koBufferAppendInner( &null, o, 0, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferAppendInner( b, nullptr, 9, 9 ), path, "other" );
    EXPECT_ABORT( koBufferAppendInner( b, o, 4, 9 ), path, offset );
    EXPECT_ABORT( koBufferAppendInner( b, o, -1, 1 ), path, offset );
    EXPECT_ABORT( koBufferAppendInner( b, o, 3, INT64_MAX ), path, range );
    EXPECT_ABORT( koBufferAppendInner( b, o, 1, -2 ), path, range );
    EXPECT_ABORT( koBufferAppendOuter( nullptr, o, 0, 0 ), path, "b" );
    EXPECT_ABORT( koBufferAppendOuter( &null, o, 0, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferAppendOuter( b, nullptr, 9, 9 ), path, "other" );
    EXPECT_ABORT( koBufferAppendOuter( b, o, 4, 9 ), path, offset );
    EXPECT_ABORT( koBufferAppendOuter( b, o, -1, 1 ), path, offset );
    EXPECT_ABORT( koBufferAppendOuter( b, o, 1, 3 ), path, range );
    EXPECT_ABORT( koBufferAppendOuter( b, o, 1, -2 ), path, range );
    EXPECT_ABORT( koBufferDelLeading( nullptr, 0 ), path, "b" );
    EXPECT_ABORT( koBufferDelLeading( &null, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferDelLeading( b, 4 ), path, "length >= -1 && length <= koBufferLength( *b )" );
    EXPECT_ABORT( koBufferDelLeading( b, -2 ), path, "length >= -1 && length <= koBufferLength( *b )" );
    EXPECT_ABORT( koBufferDelOuter( nullptr, 0, 0 ), path, "b" );
    EXPECT_ABORT( koBufferDelOuter( &null, 0, 0 ), path, "*b" );
    EXPECT_ABORT( koBufferDelOuter( b, 4, 0 ), path, "offset >= 0 && offset <= koBufferLength( *b )" );
    EXPECT_ABORT( koBufferDelOuter( b, -1, 0 ), path, "offset >= 0 && offset <= koBufferLength( *b )" );
    EXPECT_ABORT( koBufferDelOuter( b, 1, 3 ), path, "length >= -1 && length <= koBufferLength( *b ) - offset" );
    EXPECT_ABORT( koBufferDelOuter( b, 1, -2 ), path, "length >= -1 && length <= koBufferLength( *b ) - offset" );
}

} // namespace
