/* The frame of the runtime: abort, memory, objects of any sort. */
#include "test.h"

#include <sys/resource.h>

#include <algorithm>
#include <cstring>
#include <thread>

namespace {

constexpr const char *basePath = "source/runtime/ko_base.cpp";
constexpr const char *objectPath = "source/runtime/ko_object.cpp";

/** An object with fields of its own. */
struct Counter {
    ko___Obj head;
    KoInt value;
    int *freed;
};

Counter *CounterOf( KoObj obj )
{
    return reinterpret_cast<Counter *>( obj );
}

void FreeCounter( KoObj obj )
{
    ++*CounterOf( obj )->freed;
}

KoInt CompareCounters( KoObj a, KoObj b )
{
    return CounterOf( a )->value - CounterOf( b )->value;
}

KoString CounterToString( KoObj obj )
{
    return koFormatEncodeInt( CounterOf( obj )->value, 10, 0, 0 );
}

const ko___Sort counterSort = KO_SORT( nullptr, "COUNTER", FreeCounter, CompareCounters, CounterToString );
const ko___Sort bareSort = KO_SORT( nullptr, "BARE", nullptr, nullptr, nullptr );
const ko___Sort otherBareSort = KO_SORT( nullptr, "BARE", nullptr, nullptr, nullptr );

class KoBase : public test::Fixture {};

class KoObject : public test::Fixture {
protected:
    KoObj CreateCounter( KoInt value )
    {
        const KoObj obj = ko___ObjCreate( sizeof( Counter ), &counterSort );
        CounterOf( obj )->value = value;
        CounterOf( obj )->freed = &freed;
        return obj;
    }

    static KoRef<KoObj> Bare( KoSort sort = &bareSort )
    {
        return KoRef<KoObj>::Adopt( ko___ObjCreate( sizeof( ko___Obj ), sort ) );
    }

    int freed = 0;
};

// Abort

TEST_F( KoBase, AbortWritesOneLine )
{
    struct Row {
        const char *message;
        KoInt line;
        const char *text;
    };
    const Row rows[] = {
        { "told", 7, "told: some/path.cpp:7: a == b" },
        { nullptr, 7, "some/path.cpp:7: a == b" },
        { nullptr, 1234567890, "some/path.cpp:1234567890: a == b" },
        { nullptr, 0, "some/path.cpp:0: a == b" },
    };
    for ( const Row &row : rows ) {
        const test::Ending ending =
            test::RunInChild( [&] { ko___Abort( row.message, "some/path.cpp", row.line, "a == b" ); } );
        EXPECT_TRUE( ending.aborted );
        EXPECT_EQ( ending.line, row.text );
    }
}

// Small operations

TEST_F( KoBase, MinAndMax )
{
    EXPECT_EQ( koIntMin( -1, 1 ), -1 );
    EXPECT_EQ( koIntMin( 1, -1 ), -1 );
    EXPECT_EQ( koIntMax( -1, 1 ), 1 );
    EXPECT_EQ( koIntMax( 1, -1 ), 1 );
    EXPECT_EQ( koIntMin( INT64_MIN, INT64_MAX ), INT64_MIN );
    EXPECT_EQ( koIntMax( INT64_MIN, INT64_MAX ), INT64_MAX );
    EXPECT_EQ( koIntMax( 3, 3 ), 3 );
}

TEST_F( KoBase, CharOk )
{
    EXPECT_TRUE( KO_CHAR_OK( 0 ) );
    EXPECT_TRUE( KO_CHAR_OK( 0x10FFFF ) );
    EXPECT_FALSE( KO_CHAR_OK( 0x110000 ) );
    EXPECT_FALSE( KO_CHAR_OK( -1 ) );
}

// Memory

TEST_F( KoBase, Blocks )
{
    void *const empty = koMemAllocN( 0, 8 );
    void *const another = koMemAllocN( 8, 0 );
    EXPECT_NE( empty, nullptr );
    EXPECT_NE( another, nullptr );
    EXPECT_NE( empty, another );
    koMemFree( empty );
    koMemFree( another );
    koMemFree( nullptr );

    auto *const numbers = static_cast<KoInt *>( koMemAllocN( 1000, sizeof( KoInt ) ) );
    std::fill_n( numbers, 1000, 7 );
    EXPECT_EQ( std::count( numbers, numbers + 1000, 7 ), 1000 );
    koMemFree( numbers );
}

TEST_F( KoBase, BlocksThatCannotBe )
{
    EXPECT_ABORT( koMemAllocN( -1, 1 ), basePath, "count >= 0" );
    EXPECT_ABORT( koMemAllocN( 1, -1 ), basePath, "size >= 0" );
    EXPECT_ABORT( koMemAllocN( -1, -1 ), basePath, "count >= 0" );
    // A product that overflows must not give a small block.
    EXPECT_ABORT_MESSAGE( koMemAllocN( INT64_MAX, 8 ), "out of memory", basePath, "block" );
    EXPECT_ABORT_MESSAGE( koMemAllocN( KoInt{ 1 } << 62, 4 ), "out of memory", basePath, "block" );
}

// Creation and end

TEST_F( KoObject, NewObjectIsZeroBehindItsHead )
{
    // Blocks are used again: what the first object left must not show in the second.
    const KoObj first = CreateCounter( -1 );
    EXPECT_EQ( test::Count( first ), 1 );
    EXPECT_EQ( koObjSort( first ), &counterSort );
    koObjRelease( first );
    const auto second = KoRef<KoObj>::Adopt( ko___ObjCreate( sizeof( Counter ), &bareSort ) );
    EXPECT_EQ( CounterOf( second.Get() )->value, 0 );
    EXPECT_EQ( CounterOf( second.Get() )->freed, nullptr );
}

TEST_F( KoObject, LastReleaseEnds )
{
    const KoObj obj = CreateCounter( 1 );
    EXPECT_EQ( koObjRetain( obj ), obj );
    EXPECT_EQ( test::Count( obj ), 2 );
    EXPECT_FALSE( ko___IsUnique( obj ) );
    koObjRelease( obj );
    EXPECT_EQ( test::Count( obj ), 1 );
    EXPECT_TRUE( ko___IsUnique( obj ) );
    EXPECT_EQ( freed, 0 );
    koObjRelease( obj );
    EXPECT_EQ( freed, 1 );
}

TEST_F( KoObject, FreeFunctionMayBeMissing )
{
    const KoInt count = ko___ObjLiveCount();
    const KoObj obj = Bare().Leak();
    EXPECT_EQ( ko___ObjLiveCount(), count + 1 );
    koObjRelease( obj );
    EXPECT_EQ( ko___ObjLiveCount(), count );
}

TEST_F( KoObject, OfEverySize )
{
    constexpr KoInt headSize = sizeof( ko___Obj );
    std::vector<KoObj> objs;
    for ( KoInt size = headSize; size < 200000; size += size / 7 + 1 ) {
        const KoObj obj = ko___ObjCreate( size, &bareSort );
        EXPECT_EQ( reinterpret_cast<uintptr_t>( obj ) % 16, 0U );
        const auto *const bytes = reinterpret_cast<const uint8_t *>( obj );
        EXPECT_EQ( std::count( bytes + headSize, bytes + size, 0 ), size - headSize );
        memset( obj + 1, 0xFF, static_cast<size_t>( size - headSize ) );
        objs.push_back( obj );
    }
    for ( const KoObj obj : objs ) {
        EXPECT_EQ( koObjSort( obj ), &bareSort ) << "an object was written over by its neighbour";
        koObjRelease( obj );
    }
}

TEST_F( KoObject, ConstantIsNeitherCountedNorFreed )
{
    static KoObj constant; // stays for ever, where a leak checker finds it
    const KoInt count = ko___ObjLiveCount();
    constant = CreateCounter( 0 );
    ko___ObjMakeConstant( constant );
    EXPECT_EQ( ko___ObjLiveCount(), count );
    EXPECT_EQ( test::Count( constant ), KO_COUNT_CONSTANT );
    EXPECT_EQ( koObjRetain( constant ), constant );
    for ( int i = 0; i < 3; ++i ) {
        koObjRelease( constant );
    }
    EXPECT_EQ( test::Count( constant ), KO_COUNT_CONSTANT );
    EXPECT_FALSE( ko___IsUnique( constant ) );
    EXPECT_EQ( freed, 0 );

    EXPECT_ABORT( ko___ObjMakeConstant( constant ), objectPath, "obj->count == 1" );
    const auto shared = Bare();
    const auto again = KoRef<KoObj>::Share( shared.Get() );
    EXPECT_ABORT( ko___ObjMakeConstant( shared.Get() ), objectPath, "obj->count == 1" );
}

TEST_F( KoObject, LiveCountIsOfAllThreads )
{
    const KoInt count = ko___ObjLiveCount();
    std::vector<KoObj> objs( 100 );
    std::thread( [&] {
        for ( KoObj &obj : objs ) {
            obj = CreateCounter( 0 );
        }
    } ).join();
    EXPECT_EQ( ko___ObjLiveCount(), count + 100 ) << "the thread that made them has ended";
    std::thread( [&] {
        for ( const KoObj obj : objs ) {
            koObjRelease( obj );
        }
        EXPECT_EQ( ko___ObjLiveCount(), count ) << "another one releases them";
    } ).join();
    EXPECT_EQ( ko___ObjLiveCount(), count );
    EXPECT_EQ( freed, 100 );
}

TEST_F( KoObject, CountIsAtomic )
{
    const KoObj obj = CreateCounter( 0 );
    std::vector<std::thread> threads;
    for ( int i = 0; i < 4; ++i ) {
        threads.emplace_back( [obj] {
            for ( int k = 0; k < 20000; ++k ) {
                koObjRetain( obj );
                koObjRelease( obj );
            }
        } );
    }
    for ( std::thread &thread : threads ) {
        thread.join();
    }
    EXPECT_EQ( test::Count( obj ), 1 );
    EXPECT_EQ( freed, 0 );
    koObjRelease( obj );
    EXPECT_EQ( freed, 1 );
}

// Comparison

TEST_F( KoObject, CompareOfOneSort )
{
    const auto one = KoRef<KoObj>::Adopt( CreateCounter( 1 ) );
    const auto two = KoRef<KoObj>::Adopt( CreateCounter( 2 ) );
    const auto alsoTwo = KoRef<KoObj>::Adopt( CreateCounter( 2 ) );
    EXPECT_LT( koObjCompare( one.Get(), two.Get() ), 0 );
    EXPECT_GT( koObjCompare( two.Get(), one.Get() ), 0 );
    EXPECT_EQ( koObjCompare( two.Get(), alsoTwo.Get() ), 0 );
    EXPECT_EQ( koObjCompare( two.Get(), two.Get() ), 0 );
}

TEST_F( KoObject, CompareWithoutFunctionIsIdentityThenAddress )
{
    const auto a = Bare();
    const auto b = Bare();
    EXPECT_EQ( koObjCompare( a.Get(), a.Get() ), 0 );
    const KoInt expected = reinterpret_cast<uintptr_t>( a.Get() ) < reinterpret_cast<uintptr_t>( b.Get() ) ? -1 : 1;
    EXPECT_EQ( koObjCompare( a.Get(), b.Get() ), expected );
    EXPECT_EQ( koObjCompare( b.Get(), a.Get() ), -expected );
}

TEST_F( KoObject, CompareOfTwoSorts )
{
    const auto bare = Bare();
    const auto counter = KoRef<KoObj>::Adopt( CreateCounter( 1 ) );
    EXPECT_LT( koObjCompare( bare.Get(), counter.Get() ), 0 ) << "BARE is before COUNTER";
    EXPECT_GT( koObjCompare( counter.Get(), bare.Get() ), 0 );
    // Two sorts of one name.
    const auto other = Bare( &otherBareSort );
    const KoInt expected =
        reinterpret_cast<uintptr_t>( &bareSort ) < reinterpret_cast<uintptr_t>( &otherBareSort ) ? -1 : 1;
    EXPECT_EQ( koObjCompare( bare.Get(), other.Get() ), expected );
    EXPECT_EQ( koObjCompare( other.Get(), bare.Get() ), -expected );
}

TEST_F( KoObject, CompareOfNull )
{
    const auto obj = Bare();
    EXPECT_EQ( koObjCompare( nullptr, nullptr ), 0 );
    EXPECT_LT( koObjCompare( nullptr, obj.Get() ), 0 );
    EXPECT_GT( koObjCompare( obj.Get(), nullptr ), 0 );
}

// Text

TEST_F( KoObject, ToString )
{
    const auto counter = KoRef<KoObj>::Adopt( CreateCounter( -12 ) );
    EXPECT_EQ( test::Take( koObjToString( counter.Get() ) ), "-12" );
    EXPECT_EQ( test::Take( koObjToString( Bare().Get() ) ), "<BARE>" ) << "no token, so that misuse shows";
    EXPECT_EQ( test::Take( koObjToString( koStringObj( test::Str( "a, b" ).Get() ) ) ), "a, b" );
}

// References of C++

TEST_F( KoObject, Ref )
{
    auto a = KoRef<KoObj>::Adopt( CreateCounter( 1 ) );
    const KoObj handle = a.Get();
    auto b = KoRef<KoObj>::Share( handle );
    EXPECT_EQ( test::Count( handle ), 2 );
    b = std::move( a );
    EXPECT_FALSE( a ); // moved from is null
    EXPECT_EQ( b.Get(), handle );
    EXPECT_EQ( test::Count( handle ), 1 );
    a = KoRef<KoObj>( std::move( b ) );
    EXPECT_EQ( test::Count( handle ), 1 );
    EXPECT_EQ( *a.Address(), handle );
    koObjRelease( a.Leak() );
    EXPECT_EQ( freed, 1 );
    EXPECT_FALSE( KoRef<KoObj>::Share( nullptr ) );
}

TEST_F( KoObject, RefMovedToItself )
{
    auto a = KoRef<KoObj>::Adopt( CreateCounter( 1 ) );
    auto &same = a;
    a = std::move( same );
    EXPECT_EQ( test::Count( a.Get() ), 1 );
    EXPECT_EQ( freed, 0 );
}

// What ends the process

TEST_F( KoObject, Preconditions )
{
    EXPECT_ABORT( ko___ObjCreate( 15, &bareSort ), objectPath, "size >= (KoInt)sizeof( struct ko___Obj )" );
    EXPECT_ABORT( ko___ObjCreate( 15, nullptr ), objectPath, "size >= (KoInt)sizeof( struct ko___Obj )" );
    EXPECT_ABORT( ko___ObjCreate( 16, nullptr ), objectPath, "sort" );
    EXPECT_ABORT( ko___ObjFree( nullptr ), objectPath, "obj" );
    EXPECT_ABORT( ko___ObjMakeConstant( nullptr ), objectPath, "obj" );
    EXPECT_ABORT( koObjSort( nullptr ), objectPath, "obj" );
    EXPECT_ABORT( koObjRetain( nullptr ), objectPath, "obj" );
    EXPECT_ABORT( koObjRelease( nullptr ), objectPath, "obj" );
    EXPECT_ABORT( koObjToString( nullptr ), objectPath, "obj" );
}

#if !defined( __SANITIZE_ADDRESS__ ) && !defined( __SANITIZE_THREAD__ ) && !defined( __clang__ )
// Not under a sanitizer, which has an allocator of its own.
TEST_F( KoObject, ExhaustedMemoryEndsTheProcess )
{
    const auto exhaust = []( KoInt size ) {
        const rlimit little{ 1 << 28, 1 << 28 };
        setrlimit( RLIMIT_AS, &little );
        for ( int i = 0; i < 1000000; ++i ) {
            ko___ObjCreate( size, &bareSort );
        }
    };
    EXPECT_ABORT_MESSAGE( exhaust( 1 << 20 ), "out of memory", "source/runtime/ko_memory.cpp", "block" );
    EXPECT_ABORT_MESSAGE( exhaust( 1 << 15 ), "out of memory", "source/runtime/ko_memory.cpp", "block" );
}
#endif

} // namespace
