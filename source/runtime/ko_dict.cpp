/* Dictionaries: maps from strings to objects that keep the order of first setting. */
#include <runtime/ko_dict.hpp>

#include <runtime/ko_create.hpp>
#include <runtime/ko_inner.hpp>
#include <runtime/ko_vector.hpp>

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

using ko::DictEntry;
using ko::Entries;

constexpr KoInt firstCapacity = 4;
// Up to so many entries a look at each of them is faster than a hash.
constexpr KoInt smallLength = 8;
// So many entries are moved one by one when one behind them goes.
constexpr KoInt nearFront = 16;

// So that the room for entries, which is at most about twice as much, stays inside the limit of the index.
constexpr KoInt lengthLimit = ko::Index::limit / 4;

void Free( KoObj obj )
{
    const auto d = reinterpret_cast<KoDict>( obj );
    for ( KoInt i = 0; i < d->length; ++i ) {
        ko___Release( &Entries( d )[i].key->head );
        ko___Release( Entries( d )[i].value );
    }
    d->index.Free();
}

/** The entries of a dictionary in the order of their keys. */
class Sorted {
public:
    explicit Sorted( KoDict d )
        : entries( d->length <= std::ssize( few )
                       ? few
                       : static_cast<const DictEntry **>( koMemAllocN( d->length, sizeof( *entries ) ) ) )
    {
        for ( KoInt i = 0; i < d->length; ++i ) {
            entries[i] = &Entries( d )[i];
        }
        // By heap: no order of the keys, which may be a peer's choice, makes it slower, and nothing recurses.
        const auto before = []( const DictEntry *a, const DictEntry *b ) {
            return koObjCompare( &a->key->head, &b->key->head ) < 0;
        };
        std::make_heap( entries, entries + d->length, before );
        std::sort_heap( entries, entries + d->length, before );
    }
    Sorted( const Sorted & ) = delete;
    Sorted &operator=( const Sorted & ) = delete;
    ~Sorted()
    {
        if ( entries != few ) {
            koMemFree( entries );
        }
    }
    const DictEntry &operator[]( KoInt i ) const { return *entries[i]; }

private:
    const DictEntry *few[16];
    const DictEntry **entries;
};

/** Sets are equal in any order; the order of dictionaries is that of their sorted lists of keys and values. */
KoInt Compare( KoObj objA, KoObj objB )
{
    const auto a = reinterpret_cast<KoDict>( objA );
    const auto b = reinterpret_cast<KoDict>( objB );
    const Sorted sortedA( a );
    const Sorted sortedB( b );
    for ( KoInt i = 0; i < a->length && i < b->length; ++i ) {
        if ( const KoInt keys = koObjCompare( &sortedA[i].key->head, &sortedB[i].key->head ) ) {
            return keys;
        }
        if ( const KoInt values = koObjCompare( sortedA[i].value, sortedB[i].value ) ) {
            return values;
        }
    }
    return a->length < b->length ? -1 : a->length > b->length;
}

const ko___Sort dictSort = KO_SORT( &ko::runtimeModule, "KO_DICT", Free, Compare, nullptr );
const ko___Dict emptyDict = { { &dictSort, KO_COUNT_CONSTANT, 0 }, 0, 0, 0, {} };

KoDict Empty()
{
    return const_cast<KoDict>( &emptyDict );
}

uint32_t Hash( KoString key )
{
    return static_cast<uint32_t>( ko___CharsHash( ko::Chars( key ), key->length ) );
}

/** The hash of a key where the dictionary needs it. */
uint32_t HashFor( KoDict d, KoString key )
{
    return d->index ? Hash( key ) : 0;
}

bool SameKey( KoString a, KoString b )
{
    return a == b || ( a->length == b->length && ko::SameChars( ko::Chars( a ), ko::Chars( b ), a->length ) );
}

/** The position of a key, or -1. */
KoInt Find( KoDict d, KoString key, uint32_t hash )
{
    const DictEntry *const entries = Entries( d );
    if ( d->index ) {
        const KoInt place =
            d->index.Find( hash, [&]( KoInt at ) { return SameKey( entries[at - d->first].key, key ); } );
        return place < 0 ? -1 : place - d->first;
    }
    // Most keys are constants: these are found without a look at a character.
    for ( KoInt i = 0; i < d->length; ++i ) {
        if ( entries[i].key == key ) {
            return i;
        }
    }
    for ( KoInt i = 0; i < d->length; ++i ) {
        if ( SameKey( entries[i].key, key ) ) {
            return i;
        }
    }
    return -1;
}

void MoveEntries( DictEntry *to, const DictEntry *from, KoInt count )
{
    if ( count > 0 ) {
        memmove( to, from, static_cast<size_t>( count ) * sizeof( DictEntry ) );
    }
}

/** A new dictionary with room for `need` entries and with those of another one, for which it takes no references. */
KoDict CreateWithEntries( KoDict from, KoInt need )
{
    const size_t size = sizeof( ko___Dict ) + static_cast<size_t>( need ) * sizeof( DictEntry );
    const auto [obj, usable] = ko::CreateObject( size, &dictSort );
    const auto d = reinterpret_cast<KoDict>( obj );
    d->capacity = static_cast<KoInt>( ( usable - sizeof( ko___Dict ) ) / sizeof( DictEntry ) );
    d->length = from->length;
    d->first = 0;
    d->index = from->index ? from->index.Moved( d->capacity, -from->first ) : ko::Index();
    MoveEntries( Entries( d ), Entries( from ), from->length );
    return d;
}

/** Moves the caller's own dictionary to a block with room for `need` entries. */
KoDict Move( KoDict *d, KoInt need )
{
    const KoDict old = *d;
    *d = CreateWithEntries( old, need );
    old->index.Free();
    ko::DiscardObject( &old->head );
    return *d;
}

/** Makes the caller's dictionary its own, with room for `extra` more entries at the end. */
KoDict Own( KoDict *d, KoInt extra )
{
    const KoDict old = *d;
    const KoInt need = old->length + extra;
    if ( ko___IsUnique( &old->head ) ) {
        return need <= old->capacity - old->first ? old : Move( d, koIntMax( need, 2 * old->length ) );
    }
    *d = CreateWithEntries( old, extra > 0 ? koIntMax( need, firstCapacity ) : need );
    for ( KoInt i = 0; i < old->length; ++i ) {
        ko___Retain( &Entries( *d )[i].key->head );
        ko___Retain( Entries( *d )[i].value );
    }
    ko___Release( &old->head );
    return *d;
}

/** The index learns of the entry that was appended; a dictionary that is no more small gets one. */
void AddLastToIndex( KoDict d, uint32_t hash )
{
    if ( d->index ) {
        d->index.Add( hash, d->first + d->length - 1 );
    } else if ( d->length > smallLength ) {
        d->index = ko::Index::Create( d->capacity );
        for ( KoInt i = 0; i < d->length; ++i ) {
            d->index.Add( Hash( Entries( d )[i].key ), d->first + i );
        }
    }
}

} // namespace

KO_TYPE_OPERATIONS( KoDict, koDict, dictSort )

KoDict koDictCreate( void )
{
    return Empty();
}

KoInt koDictLength( KoDict d )
{
    KO_REQUIRE( d );
    return d->length;
}

KoBool koDictHasStringKey( KoDict d, KoString key )
{
    KO_REQUIRE( d );
    KO_REQUIRE( key );
    return Find( d, key, HashFor( d, key ) ) >= 0;
}

KoObj koDictStringKey( KoDict d, KoString key )
{
    KO_REQUIRE( d );
    KO_REQUIRE( key );
    const KoInt index = Find( d, key, HashFor( d, key ) );
    return index < 0 ? nullptr : ko___Retain( Entries( d )[index].value );
}

KoString koDictKeyAt( KoDict d, KoInt index )
{
    KO_REQUIRE( d );
    KO_REQUIRE( index >= 0 && index < koDictLength( d ) );
    const KoString key = Entries( d )[index].key;
    ko___Retain( &key->head );
    return key;
}

KoObj koDictValueAt( KoDict d, KoInt index )
{
    KO_REQUIRE( d );
    KO_REQUIRE( index >= 0 && index < koDictLength( d ) );
    return ko___Retain( Entries( d )[index].value );
}

KoVector koDictKeysVector( KoDict d )
{
    KO_REQUIRE( d );
    KoVector keys = koVectorCreate();
    for ( KoInt i = 0; i < d->length; ++i ) {
        koVectorAppendString( &keys, Entries( d )[i].key );
    }
    return keys;
}

KoVector koDictValuesVector( KoDict d )
{
    KO_REQUIRE( d );
    KoVector values = koVectorCreate();
    for ( KoInt i = 0; i < d->length; ++i ) {
        koVectorAppendObj( &values, Entries( d )[i].value );
    }
    return values;
}

void koDictSetStringKey( KoDict *d, KoString key, KoObj value )
{
    KO_REQUIRE_HANDLE( d );
    KO_REQUIRE( key );
    KO_REQUIRE( value );
    const uint32_t hash = HashFor( *d, key );
    const KoInt index = Find( *d, key, hash );
    // The reference is taken first: a dictionary that is set into itself is shared from here on, and so is copied.
    ko___Retain( value );
    if ( index >= 0 ) {
        DictEntry &entry = Entries( Own( d, 0 ) )[index];
        const KoObj old = entry.value;
        entry.value = value;
        ko___Release( old );
        return;
    }
    KO_REQUIRE_MESSAGE( ( *d )->length < lengthLimit, "out of memory", "block" );
    ko___Retain( &key->head );
    const KoDict own = Own( d, 1 );
    Entries( own )[own->length] = { key, value };
    ++own->length;
    AddLastToIndex( own, hash );
}

void koDictDelStringKey( KoDict *d, KoString key )
{
    KO_REQUIRE_HANDLE( d );
    KO_REQUIRE( key );
    const uint32_t hash = HashFor( *d, key );
    const KoInt index = Find( *d, key, hash );
    if ( index < 0 ) {
        return;
    }
    if ( ( *d )->length == 1 ) {
        koDictClear( d );
        return;
    }
    KoDict own = Own( d, 0 );
    if ( own->length < own->capacity / 4 && own->index ) {
        // What is linear in the size of the index, stays linear in the length.
        own = Move( d, 2 * own->length );
    }
    const DictEntry removed = Entries( own )[index];
    const KoInt behind = own->length - 1 - index;
    if ( own->index ) {
        own->index.Remove( hash, own->first + index );
    }
    --own->length;
    if ( index <= nearFront && index < behind ) {
        // The few entries in front move up one place, and all others stay where they are.
        for ( KoInt i = index; i-- > 0; ) {
            const DictEntry &moved = Entries( own )[i + 1] = Entries( own )[i];
            if ( own->index ) {
                const uint32_t movedHash = Hash( moved.key );
                own->index.Remove( movedHash, own->first + i );
                own->index.Add( movedHash, own->first + i + 1 );
            }
        }
        ++own->first;
    } else {
        MoveEntries( Entries( own ) + index, Entries( own ) + index + 1, behind );
        if ( own->index && behind > 0 ) {
            own->index.Shift( own->first + index + 1, -1 );
        }
    }
    ko___Release( &removed.key->head );
    ko___Release( removed.value );
}

void koDictClear( KoDict *d )
{
    KO_REQUIRE_HANDLE( d );
    const KoDict old = *d;
    *d = Empty();
    ko___Release( &old->head );
}
