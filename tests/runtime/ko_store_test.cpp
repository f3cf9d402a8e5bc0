/* Stores: named ones, arrays, trees. */
#include "test.h"

namespace {

using test::Str;
using test::Take;
using test::Text;
using Store = KoRef<KoStore>;

constexpr const char *path = "source/runtime/ko_store.cpp";

Store Named()
{
    return Store::Adopt( koStoreCreate() );
}

Store Array()
{
    return Store::Adopt( koStoreCreateArray() );
}

void Set( Store &store, std::string_view key, std::string_view value )
{
    koStoreSetValue( store.Address(), Str( key ).Get(), Str( value ).Get() );
}

std::string Value( const Store &store, std::string_view key )
{
    return Take( koStoreValue( store.Get(), Str( key ).Get() ) );
}

Store Sub( const Store &store, std::string_view key )
{
    return Store::Adopt( koStoreStore( store.Get(), Str( key ).Get() ) );
}

std::string ValueAt( const Store &store, KoInt index )
{
    return Take( koStoreValueAt( store.Get(), index ) );
}

class StoreTest : public test::Fixture {};

TEST_F( StoreTest, CastsAndReferences )
{
    const Store store = Named();
    EXPECT_EQ( koStoreFrom( koStoreObj( store.Get() ) ), store.Get() );
    EXPECT_EQ( koObjSort( koStoreObj( store.Get() ) ), koStoreSort() );
    EXPECT_EQ( koStoreFrom( nullptr ), nullptr );
    EXPECT_EQ( koStoreObj( nullptr ), nullptr );
    EXPECT_EQ( koStoreRetain( store.Get() ), store.Get() );
    EXPECT_EQ( test::Count( store.Get() ), 2 );
    koStoreRelease( store.Get() );
    EXPECT_EQ( test::Count( store.Get() ), 1 );
    EXPECT_ABORT( koStoreFrom( koStringObj( Str( "a" ).Get() ) ), path, "!obj || koObjSort( obj ) == koStoreSort()" );
    EXPECT_ABORT( koStoreRetain( nullptr ), path, "object" );
    EXPECT_ABORT( koStoreRelease( nullptr ), path, "object" );
}

TEST_F( StoreTest, NamedValues )
{
    Store store = Named();
    EXPECT_EQ( koStoreLength( store.Get() ), 0 );
    EXPECT_EQ( Value( store, "name" ), "(null)" );
    Set( store, "name", "Via" );
    Set( store, "other", "" );
    EXPECT_EQ( koStoreLength( store.Get() ), 2 );
    EXPECT_EQ( Value( store, "name" ), "Via" );
    EXPECT_EQ( Value( store, "other" ), "" );
    EXPECT_EQ( Value( store, "Name" ), "(null)" );
    Set( store, "name", "To" );
    EXPECT_EQ( Value( store, "name" ), "To" );
    EXPECT_EQ( koStoreLength( store.Get() ), 2 );
    EXPECT_FALSE( Sub( store, "name" ) ) << "a value is no sub-store";
    EXPECT_EQ( ValueAt( store, 0 ), "(null)" ) << "names have no index";
}

TEST_F( StoreTest, ArrayValues )
{
    Store store = Array();
    EXPECT_EQ( koStoreLength( store.Get() ), 0 );
    EXPECT_EQ( ValueAt( store, 0 ), "(null)" );
    koStoreAppendValue( store.Address(), Str( "a" ).Get() );
    koStoreAppendStore( store.Address(), Named().Get() );
    koStoreAppendValue( store.Address(), Str( "" ).Get() );
    EXPECT_EQ( koStoreLength( store.Get() ), 3 );
    EXPECT_EQ( ValueAt( store, 0 ), "a" );
    EXPECT_EQ( ValueAt( store, 1 ), "(null)" ) << "a sub-store is no value";
    EXPECT_EQ( ValueAt( store, 2 ), "" );
    EXPECT_EQ( ValueAt( store, 3 ), "(null)" );
    EXPECT_EQ( ValueAt( store, -1 ), "(null)" );
    EXPECT_EQ( ValueAt( store, INT64_MIN ), "(null)" );
    EXPECT_EQ( ValueAt( store, INT64_MAX ), "(null)" );
    EXPECT_EQ( Value( store, "a" ), "(null)" ) << "an array has no names";
    EXPECT_FALSE( Sub( store, "a" ) );
}

TEST_F( StoreTest, SubStores )
{
    Store lines = Array();
    koStoreAppendValue( lines.Address(), Str( "line 1" ).Get() );
    Store store = Named();
    koStoreSetStore( store.Address(), Str( "lines" ).Get(), lines.Get() );
    koStoreAppendValue( lines.Address(), Str( "line 2" ).Get() );
    EXPECT_EQ( koStoreLength( lines.Get() ), 2 );
    EXPECT_EQ( koStoreLength( Sub( store, "lines" ).Get() ), 1 ) << "it went in as it was";
    EXPECT_EQ( ValueAt( Sub( store, "lines" ), 0 ), "line 1" );
    EXPECT_EQ( Value( store, "lines" ), "(null)" ) << "a sub-store is no value";
    EXPECT_FALSE( Sub( store, "missing" ) );
    Set( store, "lines", "text" );
    EXPECT_EQ( Value( store, "lines" ), "text" );
    EXPECT_FALSE( Sub( store, "lines" ) );
}

TEST_F( StoreTest, AChangeOfASharedStoreCopies )
{
    const auto expectCopy = []( const Store &kept, auto change ) {
        Store store = Store::Share( kept.Get() );
        const KoInt earlier = koStoreLength( kept.Get() );
        change( store );
        EXPECT_NE( store.Get(), kept.Get() );
        EXPECT_EQ( koStoreLength( kept.Get() ), earlier );
        EXPECT_EQ( koStoreLength( store.Get() ), earlier + 1 );
        EXPECT_EQ( test::Count( kept.Get() ), 1 );
        const KoStore unique = store.Get();
        change( store );
        EXPECT_EQ( store.Get(), unique ) << "a store that is not shared stays";
    };
    Store named = Named();
    Set( named, "a", "1" );
    expectCopy( named, []( Store &store ) { Set( store, "b", "2" ); } );
    expectCopy( named, []( Store &store ) { koStoreSetStore( store.Address(), Str( "b" ).Get(), Array().Get() ); } );
    Store array = Array();
    koStoreAppendValue( array.Address(), Str( "1" ).Get() );
    expectCopy( array, []( Store &store ) { koStoreAppendValue( store.Address(), Str( "2" ).Get() ); } );
    expectCopy( array, []( Store &store ) { koStoreAppendStore( store.Address(), Named().Get() ); } );
    EXPECT_EQ( Value( named, "a" ), "1" );
    EXPECT_EQ( ValueAt( array, 0 ), "1" );
}

TEST_F( StoreTest, AStoreMayBePutIntoItself )
{
    Store named = Named();
    Set( named, "a", "1" );
    koStoreSetStore( named.Address(), Str( "self" ).Get(), named.Get() );
    EXPECT_EQ( koStoreLength( named.Get() ), 2 );
    EXPECT_EQ( koStoreLength( Sub( named, "self" ).Get() ), 1 );
    Store array = Array();
    koStoreAppendStore( array.Address(), array.Get() );
    koStoreAppendStore( array.Address(), array.Get() );
    EXPECT_EQ( koStoreLength( array.Get() ), 2 );
}

TEST_F( StoreTest, Order )
{
    const auto order = []( const Store &a, const Store &b ) {
        const KoInt result = koObjCompare( koStoreObj( a.Get() ), koStoreObj( b.Get() ) );
        return result < 0 ? -1 : result > 0;
    };
    Store named = Named();
    Set( named, "a", "1" );
    Set( named, "b", "2" );
    Store reversed = Named();
    Set( reversed, "b", "2" );
    Set( reversed, "a", "1" );
    Store array = Array();
    koStoreAppendValue( array.Address(), Str( "1" ).Get() );
    EXPECT_EQ( order( Named(), Named() ), 0 );
    EXPECT_EQ( order( named, reversed ), 0 );
    EXPECT_EQ( order( Named(), named ), -1 );
    EXPECT_EQ( order( Named(), Array() ), -1 ) << "names before arrays";
    EXPECT_EQ( order( Array(), named ), 1 );
    EXPECT_EQ( order( Array(), array ), -1 );
    EXPECT_EQ( test::Take( koObjToString( koStoreObj( named.Get() ) ) ), "<KO_STORE>" );
}

// Each level of a free that recursed would take its part of the stack, which has some megabytes.
TEST_F( StoreTest, ADeepTreeEnds )
{
    const auto key = Str( "sub" );
    Store store = Named();
    for ( int i = 0; i < 1000000; ++i ) {
        Store outer = i % 2 ? Named() : Array();
        if ( i % 2 ) {
            koStoreSetStore( outer.Address(), key.Get(), store.Get() );
        } else {
            koStoreAppendStore( outer.Address(), store.Get() );
            koStoreAppendValue( outer.Address(), key.Get() );
        }
        store = std::move( outer );
    }
    const Store shared = Sub( store, "sub" );
    ASSERT_TRUE( shared );
    store = {};
    EXPECT_EQ( koStoreLength( shared.Get() ), 2 ) << "what others hold does not end";
}

TEST_F( StoreTest, Preconditions )
{
    const char *const names = "( *store )->names";
    const char *const items = "( *store )->items";
    Store ownedNamed = Named();
    Store ownedArray = Array();
    const auto string = Str( "s" );
    const Store sub = Named();
    KoString s = string.Get();
    KoStore *named = ownedNamed.Address();
    KoStore *array = ownedArray.Address();
    KoStore null = nullptr;
    EXPECT_ABORT( koStoreLength( nullptr ), path, "store" );
    EXPECT_ABORT( koStoreValue( nullptr, nullptr ), path, "store" );
    EXPECT_ABORT( koStoreValue( *named, nullptr ), path, "key" );
    EXPECT_ABORT( koStoreStore( nullptr, nullptr ), path, "store" );
    EXPECT_ABORT( koStoreStore( *named, nullptr ), path, "key" );
    EXPECT_ABORT( koStoreValueAt( nullptr, 0 ), path, "store" );
    EXPECT_ABORT( koStoreSetValue( nullptr, s, s ), path, "store" );
    EXPECT_ABORT( koStoreSetValue( &null, s, s ), path, "*store" );
    EXPECT_ABORT( koStoreSetValue( array, nullptr, nullptr ), path, "key" );
    EXPECT_ABORT( koStoreSetValue( array, s, nullptr ), path, "value" );
    EXPECT_ABORT( koStoreSetValue( array, s, s ), path, names );
    EXPECT_ABORT( koStoreSetStore( nullptr, s, sub.Get() ), path, "store" );
    EXPECT_ABORT( koStoreSetStore( &null, s, sub.Get() ), path, "*store" );
    EXPECT_ABORT( koStoreSetStore( array, nullptr, nullptr ), path, "key" );
    EXPECT_ABORT( koStoreSetStore( array, s, nullptr ), path, "value" );
    EXPECT_ABORT( koStoreSetStore( array, s, sub.Get() ), path, names );
    EXPECT_ABORT( koStoreAppendValue( nullptr, s ), path, "store" );
    EXPECT_ABORT( koStoreAppendValue( &null, s ), path, "*store" );
    EXPECT_ABORT( koStoreAppendValue( named, nullptr ), path, "value" );
    EXPECT_ABORT( koStoreAppendValue( named, s ), path, items );
    EXPECT_ABORT( koStoreAppendStore( nullptr, sub.Get() ), path, "store" );
    EXPECT_ABORT( koStoreAppendStore( &null, sub.Get() ), path, "*store" );
    EXPECT_ABORT( koStoreAppendStore( named, nullptr ), path, "value" );
    EXPECT_ABORT( koStoreAppendStore( named, sub.Get() ), path, items );
}

} // namespace
