/* Vectors: sequences of objects by index, held as a gap buffer on a ring. */
#include <runtime/ko_vector.hpp>

#include <runtime/ko_create.hpp>
#include <runtime/ko_inner.hpp>

#include <algorithm>

namespace {

constexpr KoInt firstCapacity = 2;

void Free( KoObj obj )
{
    const auto v = reinterpret_cast<KoVector>( obj );
    for ( KoInt i = 0; i < v->length; ++i ) {
        ko___Release( ko::At( v, i ) );
    }
}

KoInt Compare( KoObj objA, KoObj objB )
{
    const auto a = reinterpret_cast<KoVector>( objA );
    const auto b = reinterpret_cast<KoVector>( objB );
    for ( KoInt i = 0; i < a->length && i < b->length; ++i ) {
        if ( const KoInt order = koObjCompare( ko::At( a, i ), ko::At( b, i ) ) ) {
            return order;
        }
    }
    return a->length < b->length ? -1 : a->length > b->length;
}

KoString ToString( KoObj obj )
{
    const auto v = reinterpret_cast<KoVector>( obj );
    auto text = KoRef<KoString>::Adopt( koStringCreateFromCstr( "[", 1 ) );
    for ( KoInt i = 0; i < v->length; ++i ) {
        if ( i > 0 ) {
            koStringAppendCstr( text.Address(), ", ", 2 );
        }
        koStringAppend( text.Address(), KoRef<KoString>::Adopt( koObjToString( ko::At( v, i ) ) ).Get() );
    }
    koStringAppendChar( text.Address(), ']' );
    return text.Leak();
}

const ko___Sort vectorSort = KO_SORT( &ko::runtimeModule, "KO_VECTOR", Free, Compare, ToString );
const ko___Vector emptyVector = { { &vectorSort, KO_COUNT_CONSTANT, 0 }, 0, 0, 0, 0 };

KoVector Empty()
{
    return const_cast<KoVector>( &emptyVector );
}

/** A slot number that has left the ring on one side comes in on the other. */
KoInt Wrap( KoVector v, KoInt slot )
{
    return slot < 0 ? slot + v->capacity : slot >= v->capacity ? slot - v->capacity : slot;
}

[[gnu::noinline]] void CopyElements( KoVector to, KoVector from )
{
    for ( KoInt i = 0; i < from->length; ++i ) {
        ko::Slots( to )[i] = ko::At( from, i );
    }
}

/** A new vector with room for `need` elements and with those of another one, for which it takes no references. */
KoVector CreateWithElements( KoVector from, KoInt need )
{
    const size_t size = sizeof( ko___Vector ) + static_cast<size_t>( need ) * sizeof( KoObj );
    const auto [obj, usable] = ko::CreateObject( size, &vectorSort );
    const auto v = reinterpret_cast<KoVector>( obj );
    v->capacity = static_cast<KoInt>( ( usable - sizeof( ko___Vector ) ) / sizeof( KoObj ) );
    v->length = from->length;
    v->first = 0;
    v->gap = from->length;
    if ( from->length > 0 ) {
        CopyElements( v, from );
    }
    return v;
}

/** Replaces the caller's vector by one of its own, with room for `need` elements. */
[[gnu::noinline]] KoVector Replace( KoVector *v, KoInt need )
{
    const KoVector old = *v;
    *v = CreateWithElements( old, need );
    if ( ko___IsUnique( &old->head ) ) {
        ko::DiscardObject( &old->head );
        return *v;
    }
    for ( KoInt i = 0; i < old->length; ++i ) {
        ko___Retain( ko::Slots( *v )[i] );
    }
    ko___Release( &old->head );
    return *v;
}

/** Makes the caller's vector its own, with room for one more element. */
KoVector OwnWithRoom( KoVector *v )
{
    const KoVector old = *v;
    const bool unique = ko___IsUnique( &old->head );
    if ( unique && old->length < old->capacity ) {
        return old;
    }
    return Replace( v, std::max( unique ? 2 * old->length : old->length + 1, firstCapacity ) );
}

/** Makes the caller's vector its own. */
KoVector Own( KoVector *v )
{
    return ko___IsUnique( &( *v )->head ) ? *v : Replace( v, ( *v )->length );
}

/** Moves the gap of an own vector in front of the element `to`, the shorter way round. */
void MoveGap( KoVector v, KoInt to )
{
    const KoInt room = v->capacity - v->length;
    const KoInt ahead = to - v->gap + ( to < v->gap ? v->length : 0 );
    const KoInt back = v->length - ahead;
    KoObj *const slots = ko::Slots( v );
    KoInt start = Wrap( v, v->first + v->gap ); // the first slot of the gap
    if ( ahead <= back ) {
        for ( KoInt i = 0; i < ahead; ++i ) {
            slots[start] = slots[Wrap( v, start + room )];
            start = Wrap( v, start + 1 );
        }
    } else {
        for ( KoInt i = 0; i < back; ++i ) {
            start = Wrap( v, start - 1 );
            slots[Wrap( v, start + room )] = slots[start];
        }
    }
    v->gap = to;
    v->first = Wrap( v, start - to );
}

/** Inserts an object in front of an index that is inside the vector or its length. */
void InsertTaken( KoVector *v, KoInt index, KoObj obj )
{
    const KoVector own = OwnWithRoom( v );
    if ( own->gap != index ) {
        MoveGap( own, index );
    }
    ko::Slots( own )[Wrap( own, own->first + index )] = obj;
    own->gap = index + 1;
    ++own->length;
}

void Insert( KoVector *v, KoInt index, KoObj obj )
{
    // The reference is taken first: a vector that is put into itself is shared from here on, and so is copied.
    InsertTaken( v, index, ko___Retain( obj ) );
}

/** Removes a range that is inside the vector. */
void Remove( KoVector *v, KoInt index, KoInt count )
{
    if ( count == 0 ) {
        return;
    }
    if ( count == ( *v )->length ) {
        koVectorClear( v );
        return;
    }
    const KoVector own = Own( v );
    MoveGap( own, index );
    const KoInt start = own->first + index + own->capacity - own->length;
    own->length -= count;
    for ( KoInt i = 0; i < count; ++i ) {
        ko___Release( ko::Slots( own )[Wrap( own, Wrap( own, start ) + i )] );
    }
}

} // namespace

KO_TYPE_OPERATIONS( KoVector, koVector, vectorSort )

KoVector koVectorCreate( void )
{
    return Empty();
}

KoInt koVectorLength( KoVector v )
{
    KO_REQUIRE( v );
    return v->length;
}

KoObj koVectorObjAt( KoVector v, KoInt index )
{
    KO_REQUIRE( v );
    KO_REQUIRE( index >= 0 && index < koVectorLength( v ) );
    return ko___Retain( ko::At( v, index ) );
}

KoBool koVectorContainsOnly( KoVector v, KoSort sort )
{
    KO_REQUIRE( v );
    KO_REQUIRE( sort );
    for ( KoInt i = 0; i < v->length; ++i ) {
        if ( ko::At( v, i )->sort != sort ) {
            return KO_FALSE;
        }
    }
    return KO_TRUE;
}

KoString koVectorToString( KoVector v )
{
    KO_REQUIRE( v );
    return ToString( &v->head );
}

void koVectorAppendString( KoVector *v, KoString s )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( s );
    Insert( v, ( *v )->length, &s->head );
}

void koVectorAppendObj( KoVector *v, KoObj obj )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( obj );
    Insert( v, ( *v )->length, obj );
}

void koVectorPrependString( KoVector *v, KoString s )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( s );
    Insert( v, 0, &s->head );
}

void koVectorInsertString( KoVector *v, KoInt index, KoString s )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( index >= 0 && index <= koVectorLength( *v ) );
    KO_REQUIRE( s );
    Insert( v, index, &s->head );
}

void ko___VectorInsertTaken( KoVector *v, KoInt index, KoObj taken )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( index >= 0 && index <= koVectorLength( *v ) );
    KO_REQUIRE( taken );
    InsertTaken( v, index, taken );
}

void koVectorSetStringAt( KoVector *v, KoInt index, KoString s )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( index >= 0 && index < koVectorLength( *v ) );
    KO_REQUIRE( s );
    ko___Retain( &s->head );
    const KoVector own = Own( v );
    const KoInt slot = own->first + index + ( index >= own->gap ? own->capacity - own->length : 0 );
    KoObj &element = ko::Slots( own )[Wrap( own, slot )];
    const KoObj old = element;
    element = &s->head;
    ko___Release( old );
}

void koVectorDelAt( KoVector *v, KoInt index )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( index >= 0 && index < koVectorLength( *v ) );
    Remove( v, index, 1 );
}

void koVectorDelLeading( KoVector *v, KoInt count )
{
    KO_REQUIRE_HANDLE( v );
    KO_REQUIRE( count >= -1 && count <= koVectorLength( *v ) );
    Remove( v, 0, count < 0 ? koVectorLength( *v ) : count );
}

void koVectorClear( KoVector *v )
{
    KO_REQUIRE_HANDLE( v );
    const KoVector old = *v;
    *v = Empty();
    ko___Release( &old->head );
}
