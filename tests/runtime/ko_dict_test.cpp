/* Dictionaries: a model, positions, the order of dictionaries, large ones. */
#include "test.h"

#include <algorithm>
#include <random>
#include <thread>

namespace {

using test::Str;
using test::Take;
using test::Text;
using Dict = KoRef<KoDict>;
using Pairs = std::vector<std::pair<std::string, std::string>>;

constexpr const char *path = "source/runtime/ko_dict.cpp";

void Set( Dict &d, std::string_view key, std::string_view value )
{
    koDictSetStringKey( d.Address(), Str( key ).Get(), koStringObj( Str( value ).Get() ) );
}

void Del( Dict &d, std::string_view key )
{
    koDictDelStringKey( d.Address(), Str( key ).Get() );
}

/** The value of a key; "(null)" where there is none. Both ways to ask must agree. */
std::string Get( const Dict &d, std::string_view key )
{
    const auto s = Str( key );
    const auto value = KoRef<KoObj>::Adopt( koDictStringKey( d.Get(), s.Get() ) );
    EXPECT_EQ( koDictHasStringKey( d.Get(), s.Get() ), value ? KO_TRUE : KO_FALSE );
    return Text( koStringFrom( value.Get() ) );
}

Dict Of( const Pairs &pairs )
{
    auto d = Dict::Adopt( koDictCreate() );
    for ( const auto &[key, value] : pairs ) {
        Set( d, key, value );
    }
    return d;
}

/** The entries in the order of their positions. All ways to read them must agree. */
Pairs All( const Dict &d )
{
    Pairs pairs;
    const auto keys = KoRef<KoVector>::Adopt( koDictKeysVector( d.Get() ) );
    const auto values = KoRef<KoVector>::Adopt( koDictValuesVector( d.Get() ) );
    EXPECT_EQ( koVectorLength( keys.Get() ), koDictLength( d.Get() ) );
    EXPECT_EQ( koVectorLength( values.Get() ), koDictLength( d.Get() ) );
    for ( KoInt i = 0; i < koDictLength( d.Get() ); ++i ) {
        const auto key = KoRef<KoString>::Adopt( koDictKeyAt( d.Get(), i ) );
        const auto value = KoRef<KoObj>::Adopt( koDictValueAt( d.Get(), i ) );
        EXPECT_EQ( KoRef<KoObj>::Adopt( koVectorObjAt( keys.Get(), i ) ).Get(), koStringObj( key.Get() ) );
        EXPECT_EQ( KoRef<KoObj>::Adopt( koVectorObjAt( values.Get(), i ) ).Get(), value.Get() );
        EXPECT_EQ( KoRef<KoObj>::Adopt( koDictStringKey( d.Get(), key.Get() ) ).Get(), value.Get() );
        pairs.emplace_back( Text( key ), Text( koStringFrom( value.Get() ) ) );
    }
    return pairs;
}

KoInt Sign( KoInt order )
{
    return order < 0 ? -1 : order > 0;
}

KoInt Order( const Dict &a, const Dict &b )
{
    return Sign( koObjCompare( koDictObj( a.Get() ), koDictObj( b.Get() ) ) );
}

/** As many entries as it takes to have an index, and the first positions given. */
Pairs Many( int count )
{
    Pairs pairs;
    for ( int i = 0; i < count; ++i ) {
        pairs.emplace_back( "key" + std::to_string( i * 7919 % 1000003 ), std::to_string( i ) );
    }
    return pairs;
}

class DictTest : public test::Fixture {};

// --- Sort, casts, references

TEST_F( DictTest, CastsAndReferences )
{
    const Dict d = Of( { { "a", "1" } } );
    EXPECT_EQ( koDictFrom( koDictObj( d.Get() ) ), d.Get() );
    EXPECT_EQ( koObjSort( koDictObj( d.Get() ) ), koDictSort() );
    EXPECT_EQ( koDictFrom( nullptr ), nullptr );
    EXPECT_EQ( koDictObj( nullptr ), nullptr );
    EXPECT_EQ( koDictRetain( d.Get() ), d.Get() );
    EXPECT_EQ( test::Count( d.Get() ), 2 );
    koDictRelease( d.Get() );
    EXPECT_EQ( test::Count( d.Get() ), 1 );
    EXPECT_ABORT( koDictFrom( koStringObj( Str( "a" ).Get() ) ), path, "!obj || koObjSort( obj ) == koDictSort()" );
    EXPECT_ABORT( koDictRetain( nullptr ), path, "object" );
    EXPECT_ABORT( koDictRelease( nullptr ), path, "object" );
}

TEST_F( DictTest, HasNoTextOfItsOwn )
{
    EXPECT_EQ( Take( koObjToString( koDictObj( Of( { { "a", "1" } } ).Get() ) ) ), "<KO_DICT>" );
}

// --- Reading

TEST_F( DictTest, TheEmptyDictionaryIsOneConstant )
{
    const Dict a = Of( {} );
    EXPECT_EQ( a.Get(), Of( {} ).Get() );
    EXPECT_EQ( koDictLength( a.Get() ), 0 );
    EXPECT_EQ( Get( a, "" ), "(null)" );
    EXPECT_EQ( All( a ), Pairs{} );
}

TEST_F( DictTest, KeysAreCaseSensitiveAndMayBeEmpty )
{
    const Dict d = Of( { { "", "empty" }, { "a", "small" }, { "A", "capital" }, { "ä", "umlaut" } } );
    EXPECT_EQ( Get( d, "" ), "empty" );
    EXPECT_EQ( Get( d, "a" ), "small" );
    EXPECT_EQ( Get( d, "A" ), "capital" );
    EXPECT_EQ( Get( d, "ä" ), "umlaut" );
    EXPECT_EQ( Get( d, "aa" ), "(null)" );
    EXPECT_EQ( Get( d, std::string_view( "a\0", 2 ) ), "(null)" );
}

TEST_F( DictTest, WhatComesOutHasAReference )
{
    const auto key = Str( "key" );
    const auto value = Str( "value" );
    auto d = Dict::Adopt( koDictCreate() );
    koDictSetStringKey( d.Address(), key.Get(), koStringObj( value.Get() ) );
    EXPECT_EQ( test::Count( key.Get() ), 2 );
    EXPECT_EQ( test::Count( value.Get() ), 2 );
    koObjRelease( koDictStringKey( d.Get(), Str( "key" ).Get() ) );
    koObjRelease( koDictValueAt( d.Get(), 0 ) );
    koStringRelease( koDictKeyAt( d.Get(), 0 ) );
    EXPECT_EQ( test::Count( value.Get() ), 2 );
    koDictDelStringKey( d.Address(), key.Get() );
    EXPECT_EQ( test::Count( key.Get() ), 1 );
    EXPECT_EQ( test::Count( value.Get() ), 1 );
}

// --- Changing

TEST_F( DictTest, PositionsAreThoseOfFirstSetting )
{
    for ( const int more : { 0, 50 } ) { // without and with an index
        Dict d = Of( { { "c", "1" }, { "a", "2" }, { "b", "3" } } );
        for ( const auto &[key, value] : Many( more ) ) {
            Set( d, key, value );
        }
        const auto first = [&] {
            Pairs pairs = All( d );
            pairs.resize( std::min<size_t>( pairs.size(), 3 ) );
            return pairs;
        };
        EXPECT_EQ( first(), ( Pairs{ { "c", "1" }, { "a", "2" }, { "b", "3" } } ) );
        Set( d, "a", "4" );
        EXPECT_EQ( first(), ( Pairs{ { "c", "1" }, { "a", "4" }, { "b", "3" } } ) )
            << "a replaced value keeps its place";
        Del( d, "c" );
        EXPECT_EQ( All( d )[0], ( Pairs::value_type{ "a", "4" } ) );
        Set( d, "c", "5" );
        EXPECT_EQ( All( d ).back(), ( Pairs::value_type{ "c", "5" } ) ) << "deleted and set again is last";
        Del( d, "b" );
        EXPECT_EQ( Get( d, "b" ), "(null)" );
        EXPECT_EQ( Get( d, "a" ), "4" );
        EXPECT_EQ( koDictLength( d.Get() ), 2 + more );
        Del( d, "b" );
        EXPECT_EQ( koDictLength( d.Get() ), 2 + more ) << "a missing key is no fault";
    }
}

TEST_F( DictTest, AReplacedValueKeepsTheKeyObject )
{
    const auto first = Str( "key" );
    const auto second = Str( "key" );
    auto d = Dict::Adopt( koDictCreate() );
    koDictSetStringKey( d.Address(), first.Get(), koStringObj( first.Get() ) );
    koDictSetStringKey( d.Address(), second.Get(), koStringObj( second.Get() ) );
    EXPECT_EQ( KoRef<KoString>::Adopt( koDictKeyAt( d.Get(), 0 ) ).Get(), first.Get() );
    EXPECT_EQ( KoRef<KoObj>::Adopt( koDictValueAt( d.Get(), 0 ) ).Get(), koStringObj( second.Get() ) );
}

TEST_F( DictTest, AKeyIsASnapshot )
{
    auto key = Str( "key" );
    auto d = Dict::Adopt( koDictCreate() );
    koDictSetStringKey( d.Address(), key.Get(), koStringObj( key.Get() ) );
    koStringAppendCstr( key.Address(), "2", 1 );
    EXPECT_EQ( Get( d, "key" ), "key" );
    EXPECT_EQ( Get( d, "key2" ), "(null)" );
}

TEST_F( DictTest, AChangeOfASharedDictionaryCopies )
{
    for ( const int count : { 3, 8, 9, 200 } ) {
        const Pairs pairs = Many( count );
        const auto expectCopy = [&]( const char *name, auto change ) {
            const Dict kept = Of( pairs );
            Dict d = Dict::Share( kept.Get() );
            change( d );
            EXPECT_NE( d.Get(), kept.Get() ) << name;
            EXPECT_EQ( All( kept ), pairs ) << name;
            EXPECT_NE( All( d ), pairs ) << name;
            EXPECT_EQ( test::Count( kept.Get() ), 1 ) << name;
        };
        expectCopy( "set", []( Dict &d ) { Set( d, "new", "x" ); } );
        expectCopy( "replace", [&]( Dict &d ) { Set( d, pairs[1].first, "x" ); } );
        expectCopy( "delete first", [&]( Dict &d ) { Del( d, pairs[0].first ); } );
        expectCopy( "delete", [&]( Dict &d ) { Del( d, pairs[1].first ); } );
        expectCopy( "clear", []( Dict &d ) { koDictClear( d.Address() ); } );
        Dict d = Of( pairs );
        const Dict kept = Dict::Share( d.Get() );
        Del( d, "missing" );
        EXPECT_EQ( d.Get(), kept.Get() ) << "nothing to remove, nothing to copy";
    }
}

TEST_F( DictTest, AChangeOfAUniqueDictionaryStays )
{
    Dict d = Of( { { "a", "1" }, { "b", "2" } } );
    const KoDict earlier = d.Get();
    Set( d, "a", "3" );
    Set( d, "c", "4" );
    Del( d, "a" );
    EXPECT_EQ( d.Get(), earlier );
    EXPECT_EQ( All( d ), ( Pairs{ { "b", "2" }, { "c", "4" } } ) );
}

TEST_F( DictTest, ADictionaryMayBePutIntoItself )
{
    Dict d = Of( { { "a", "1" } } );
    for ( const char *key : { "self", "a" } ) {
        koDictSetStringKey( d.Address(), Str( key ).Get(), koDictObj( d.Get() ) );
    }
    EXPECT_EQ( koDictLength( d.Get() ), 2 );
    const auto inner = KoRef<KoObj>::Adopt( koDictStringKey( d.Get(), Str( "a" ).Get() ) );
    EXPECT_EQ( koDictLength( koDictFrom( inner.Get() ) ), 2 );
}

TEST_F( DictTest, AValueMayBeReplacedByItself )
{
    Dict d = Of( { { "a", "1" } } );
    const KoObj value = koDictValueAt( d.Get(), 0 );
    koObjRelease( value );
    koDictSetStringKey( d.Address(), Str( "a" ).Get(), value );
    EXPECT_EQ( Get( d, "a" ), "1" );
}

TEST_F( DictTest, RandomChangesAgreeWithAModel )
{
    std::mt19937 random( 3 );
    const auto below = [&]( size_t n ) { return static_cast<size_t>( random() % n ); };
    for ( int run = 0; run < 150; ++run ) {
        Pairs model;
        auto d = Dict::Adopt( koDictCreate() );
        Pairs keptModel;
        auto kept = Dict::Share( d.Get() );
        const size_t names = 2 + below( run % 2 ? 10 : 200 );
        const auto find = [&]( const std::string &key ) {
            return std::find_if( model.begin(), model.end(), [&]( const auto &pair ) { return pair.first == key; } );
        };
        const auto erase = [&]( const std::string &key ) {
            Del( d, key );
            if ( const auto at = find( key ); at != model.end() ) {
                model.erase( at );
            }
        };
        bool shrinking = false;
        for ( int step = 0; step < 600; ++step ) {
            const std::string key = std::to_string( below( names ) );
            const std::string value = std::to_string( random() );
            if ( below( 100 ) == 0 ) {
                shrinking = !shrinking;
            }
            switch ( below( 8 ) + ( shrinking ? 2 : 0 ) ) {
            case 0:
            case 1:
            case 2:
            case 3: {
                Set( d, key, value );
                const auto at = find( key );
                at == model.end() ? model.emplace_back( key, value ) : *at = { key, value };
                break;
            }
            case 4:
                erase( key );
                break;
            case 5:
            case 8:
                if ( !model.empty() ) {
                    erase( model.front().first );
                }
                break;
            case 6:
            case 9:
                if ( !model.empty() ) {
                    erase( model.back().first );
                }
                break;
            default:
                kept = Dict::Share( d.Get() );
                keptModel = model;
            }
            ASSERT_EQ( koDictLength( d.Get() ), static_cast<KoInt>( model.size() ) );
            const auto at = find( key );
            ASSERT_EQ( Get( d, key ), at == model.end() ? "(null)" : at->second );
            if ( step % 20 == 0 ) {
                ASSERT_EQ( All( d ), model );
                ASSERT_EQ( All( kept ), keptModel );
            }
        }
    }
}

TEST_F( DictTest, AHundredThousandKeys )
{
    constexpr int count = 100000;
    const Pairs pairs = Many( count );
    Dict d = Of( pairs );
    ASSERT_EQ( All( d ), pairs );
    const auto half = static_cast<size_t>( count / 2 );
    for ( size_t i = 0; i < half; ++i ) {
        Del( d, pairs[i].first );
    }
    ASSERT_EQ( All( d ), Pairs( pairs.begin() + count / 2, pairs.end() ) );
    for ( size_t i = pairs.size(); i-- > half + 1000; ) {
        Del( d, pairs[i].first );
    }
    ASSERT_EQ( All( d ), Pairs( pairs.begin() + count / 2, pairs.begin() + count / 2 + 1000 ) );
    // As a queue: what was large must not stay slow.
    for ( int i = 0; i < count; ++i ) {
        Set( d, std::to_string( i ), "x" );
        koDictDelStringKey( d.Address(), KoRef<KoString>::Adopt( koDictKeyAt( d.Get(), 0 ) ).Get() );
    }
    EXPECT_EQ( koDictLength( d.Get() ), 1000 );
    EXPECT_EQ( Get( d, std::to_string( count - 1 ) ), "x" );
    EXPECT_EQ( Get( d, std::to_string( count - 1001 ) ), "(null)" );
}

// So that a deletion in the middle is linear in what there is, and not in what there was.
TEST_F( DictTest, AShrunkDictionaryMovesToASmallerBlock )
{
    const Pairs pairs = Many( 1000 );
    Dict d = Of( pairs );
    const KoDict large = d.Get();
    size_t length = pairs.size();
    while ( length > 400 ) {
        Del( d, pairs[--length].first );
    }
    EXPECT_EQ( d.Get(), large );
    while ( length > 200 ) {
        Del( d, pairs[--length].first );
    }
    EXPECT_NE( d.Get(), large );
    EXPECT_EQ( All( d ), Pairs( pairs.begin(), pairs.begin() + 200 ) );
}

// A thread sanitizer would see a reader that writes, such as one that makes an index.
TEST_F( DictTest, ThreadsReadOneDictionary )
{
    for ( const int count : { 8, 9, 300 } ) {
        const Pairs pairs = Many( count );
        const Dict shared = Of( pairs );
        std::vector<std::thread> threads;
        for ( int i = 0; i < 3; ++i ) {
            threads.emplace_back( [&] {
                Dict own = Dict::Share( shared.Get() );
                EXPECT_EQ( All( own ), pairs );
                Set( own, "mine", "x" );
                EXPECT_EQ( koDictLength( own.Get() ), count + 1 );
            } );
        }
        for ( std::thread &thread : threads ) {
            thread.join();
        }
        EXPECT_EQ( All( shared ), pairs );
        EXPECT_EQ( test::Count( shared.Get() ), 1 );
    }
}

// --- Order

TEST_F( DictTest, OrderDoesNotSeePositions )
{
    EXPECT_EQ( Order( Of( { { "a", "1" }, { "b", "2" } } ), Of( { { "b", "2" }, { "a", "1" } } ) ), 0 );
    Pairs pairs = Many( 100 );
    const Dict a = Of( pairs );
    std::reverse( pairs.begin(), pairs.end() );
    EXPECT_EQ( Order( a, Of( pairs ) ), 0 );
    pairs[50].second += "x";
    EXPECT_NE( Order( a, Of( pairs ) ), 0 );
}

TEST_F( DictTest, OrderIsThatOfSortedPairs )
{
    struct Row {
        Pairs a;
        Pairs b;
        KoInt order;
    };
    const Row rows[] = {
        { {}, {}, 0 },
        { {}, { { "a", "1" } }, -1 }, // a proper prefix is less
        { { { "b", "1" } }, { { "a", "1" }, { "b", "1" } }, 1 },
        { { { "a", "1" } }, { { "b", "1" }, { "a", "1" } }, -1 },
        { { { "a", "1" } }, { { "a", "2" } }, -1 },
        { { { "b", "1" }, { "a", "9" } }, { { "a", "1" }, { "c", "9" } }, 1 }, // a's value decides before b and c
        { { { "z", "1" }, { "a", "1" } }, { { "a", "1" }, { "y", "2" } }, 1 }, // the key before the value
    };
    for ( const Row &row : rows ) {
        EXPECT_EQ( Order( Of( row.a ), Of( row.b ) ), row.order );
        EXPECT_EQ( Order( Of( row.b ), Of( row.a ) ), -row.order );
    }
}

TEST_F( DictTest, OrderIsTotal )
{
    std::mt19937 random( 4 );
    std::vector<Dict> dicts;
    std::vector<std::vector<std::pair<std::string, std::string>>> sorted;
    for ( int i = 0; i < 60; ++i ) {
        Pairs pairs;
        for ( auto n = random() % 24; n > 0; --n ) {
            pairs.emplace_back( std::string( 1, static_cast<char>( 'a' + random() % 26 ) ),
                                std::string( 1, static_cast<char>( '0' + random() % 2 ) ) );
        }
        dicts.push_back( Of( pairs ) );
        sorted.push_back( All( dicts.back() ) );
        std::sort( sorted.back().begin(), sorted.back().end() );
    }
    for ( size_t i = 0; i < dicts.size(); ++i ) {
        for ( size_t j = 0; j < dicts.size(); ++j ) {
            const KoInt expected = sorted[i] < sorted[j] ? -1 : sorted[j] < sorted[i];
            ASSERT_EQ( Order( dicts[i], dicts[j] ), expected );
        }
    }
}

TEST_F( DictTest, Preconditions )
{
    const char *const inside = "index >= 0 && index < koDictLength( d )";
    Dict owned = Of( { { "a", "1" } } );
    const auto string = Str( "s" );
    KoString s = string.Get();
    const KoObj value = koStringObj( s );
    KoDict *d = owned.Address();
    KoDict null = nullptr;
    EXPECT_ABORT( koDictLength( nullptr ), path, "d" );
    EXPECT_ABORT( koDictHasStringKey( nullptr, nullptr ), path, "d" );
    EXPECT_ABORT( koDictHasStringKey( *d, nullptr ), path, "key" );
    EXPECT_ABORT( koDictStringKey( nullptr, nullptr ), path, "d" );
    EXPECT_ABORT( koDictStringKey( *d, nullptr ), path, "key" );
    EXPECT_ABORT( koDictKeyAt( nullptr, 0 ), path, "d" );
    EXPECT_ABORT( koDictKeyAt( *d, 1 ), path, inside );
    EXPECT_ABORT( koDictKeyAt( *d, -1 ), path, inside );
    EXPECT_ABORT( koDictValueAt( nullptr, 0 ), path, "d" );
    EXPECT_ABORT( koDictValueAt( *d, 1 ), path, inside );
    EXPECT_ABORT( koDictValueAt( *d, -1 ), path, inside );
    EXPECT_ABORT( koDictKeysVector( nullptr ), path, "d" );
    EXPECT_ABORT( koDictValuesVector( nullptr ), path, "d" );
    EXPECT_ABORT( koDictSetStringKey( nullptr, s, value ), path, "d" );
    EXPECT_ABORT( koDictSetStringKey( &null, s, value ), path, "*d" );
    EXPECT_ABORT( koDictSetStringKey( d, nullptr, nullptr ), path, "key" );
    EXPECT_ABORT( koDictSetStringKey( d, s, nullptr ), path, "value" );
    EXPECT_ABORT( koDictDelStringKey( nullptr, s ), path, "d" );
    EXPECT_ABORT( koDictDelStringKey( &null, s ), path, "*d" );
    EXPECT_ABORT( koDictDelStringKey( d, nullptr ), path, "key" );
    EXPECT_ABORT( koDictClear( nullptr ), path, "d" );
    EXPECT_ABORT( koDictClear( &null ), path, "*d" );
}

} // namespace
