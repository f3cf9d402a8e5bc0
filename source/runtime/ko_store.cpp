/* Stores: trees of named string values and sub-stores, or arrays of them. */
#include <runtime/ko_store.h>

#include <runtime/ko_dict.hpp>
#include <runtime/ko_inner.hpp>
#include <runtime/ko_vector.hpp>

/** A store has either names or items; the other one is null. */
struct ko___Store {
    struct ko___Obj head;
    KoDict names;
    KoVector items;
};

namespace {

extern const ko___Sort storeSort;

/** What holds the entries of a store; null when it was taken out. */
KoObj Contents( KoStore store )
{
    return store->names ? koDictObj( store->names ) : koVectorObj( store->items );
}

/** Takes the contents out of a store that ends with its parent. It has only this one, so that they are there. */
void MoveContents( KoObj entry, KoVector *pending )
{
    if ( entry->sort == &storeSort && ko___IsUnique( entry ) ) {
        const auto store = reinterpret_cast<KoStore>( entry );
        const auto contents = KoRef<KoObj>::Adopt( Contents( store ) );
        koVectorAppendObj( pending, contents.Get() );
        store->names = nullptr;
        store->items = nullptr;
    }
}

/** A tree may be deep: what is in it is laid out flat and freed in a loop, so that the stack does not grow with it. */
void Free( KoObj obj )
{
    const auto store = reinterpret_cast<KoStore>( obj );
    auto pending = KoRef<KoVector>::Adopt( koVectorCreate() );
    for ( auto contents = KoRef<KoObj>::Adopt( Contents( store ) ); contents; ) {
        if ( ko___IsUnique( contents.Get() ) ) {
            if ( contents.Get()->sort == koDictSort() ) {
                const KoDict names = koDictFrom( contents.Get() );
                for ( KoInt i = 0; i < names->length; ++i ) {
                    MoveContents( ko::Entries( names )[i].value, pending.Address() );
                }
            } else {
                const KoVector items = koVectorFrom( contents.Get() );
                for ( KoInt i = 0; i < items->length; ++i ) {
                    MoveContents( ko::At( items, i ), pending.Address() );
                }
            }
        }
        contents = {};
        if ( const KoInt length = pending.Get()->length ) {
            contents = KoRef<KoObj>::Adopt( koVectorObjAt( pending.Get(), length - 1 ) );
            koVectorDelAt( pending.Address(), length - 1 );
        }
    }
}

/** Named stores come before arrays; two of a kind compare by their contents. */
KoInt Compare( KoObj objA, KoObj objB )
{
    const auto a = reinterpret_cast<KoStore>( objA );
    const auto b = reinterpret_cast<KoStore>( objB );
    if ( !a->names != !b->names ) {
        return a->names ? -1 : 1;
    }
    return koObjCompare( Contents( a ), Contents( b ) );
}

const ko___Sort storeSort = KO_SORT( &ko::runtimeModule, "KO_STORE", Free, Compare, nullptr );

KoStore Create( KoDict names, KoVector items )
{
    const auto store = reinterpret_cast<KoStore>( ko___ObjCreate( sizeof( ko___Store ), &storeSort ) );
    store->names = names;
    store->items = items;
    return store;
}

/** Makes the caller's store its own. The copy shares the contents, which are copied when they are changed. */
KoStore Own( KoStore *store )
{
    const KoStore old = *store;
    if ( !ko___IsUnique( &old->head ) ) {
        ko___Retain( Contents( old ) );
        *store = Create( old->names, old->items );
        ko___Release( &old->head );
    }
    return *store;
}

/** Sets a named entry. */
void Set( KoStore *store, KoString key, KoObj value )
{
    // The reference is taken first: a store that is put into itself is shared from here on, and so is copied.
    const auto shared = KoRef<KoObj>::Share( value );
    koDictSetStringKey( &Own( store )->names, key, value );
}

/** Appends an entry to an array. */
void Append( KoStore *store, KoObj value )
{
    const auto shared = KoRef<KoObj>::Share( value );
    koVectorAppendObj( &Own( store )->items, value );
}

/** The named entry if it is of a sort, else null. */
KoObj Value( KoStore store, KoString key, KoSort sort )
{
    auto value = KoRef<KoObj>::Adopt( store->names ? koDictStringKey( store->names, key ) : nullptr );
    return value && value.Get()->sort == sort ? value.Leak() : nullptr;
}

} // namespace

KO_TYPE_OPERATIONS( KoStore, koStore, storeSort )

KoStore koStoreCreate( void )
{
    return Create( koDictCreate(), nullptr );
}

KoStore koStoreCreateArray( void )
{
    return Create( nullptr, koVectorCreate() );
}

KoInt koStoreLength( KoStore store )
{
    KO_REQUIRE( store );
    return store->names ? store->names->length : store->items->length;
}

KoString koStoreValue( KoStore store, KoString key )
{
    KO_REQUIRE( store );
    KO_REQUIRE( key );
    return koStringFrom( Value( store, key, koStringSort() ) );
}

KoStore koStoreStore( KoStore store, KoString key )
{
    KO_REQUIRE( store );
    KO_REQUIRE( key );
    return koStoreFrom( Value( store, key, &storeSort ) );
}

KoString koStoreValueAt( KoStore store, KoInt index )
{
    KO_REQUIRE( store );
    if ( !store->items || index < 0 || index >= store->items->length ) {
        return nullptr;
    }
    const KoObj value = ko::At( store->items, index );
    return value->sort == koStringSort() ? koStringFrom( ko___Retain( value ) ) : nullptr;
}

void koStoreSetValue( KoStore *store, KoString key, KoString value )
{
    KO_REQUIRE_HANDLE( store );
    KO_REQUIRE( key );
    KO_REQUIRE( value );
    KO_REQUIRE( ( *store )->names );
    Set( store, key, &value->head );
}

void koStoreSetStore( KoStore *store, KoString key, KoStore value )
{
    KO_REQUIRE_HANDLE( store );
    KO_REQUIRE( key );
    KO_REQUIRE( value );
    KO_REQUIRE( ( *store )->names );
    Set( store, key, &value->head );
}

void koStoreAppendValue( KoStore *store, KoString value )
{
    KO_REQUIRE_HANDLE( store );
    KO_REQUIRE( value );
    KO_REQUIRE( ( *store )->items );
    Append( store, &value->head );
}

void koStoreAppendStore( KoStore *store, KoStore value )
{
    KO_REQUIRE_HANDLE( store );
    KO_REQUIRE( value );
    KO_REQUIRE( ( *store )->items );
    Append( store, &value->head );
}
