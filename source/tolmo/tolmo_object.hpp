/* How a type of this library is told once: its fields, and from them its free, copy and compare functions. */
#ifndef TOLMO_OBJECT_HPP
#define TOLMO_OBJECT_HPP

#include <runtime/ko_inner.hpp>
#include <tolmo/tolmo_module.h>

#include <cstddef>
#include <cstring>
#include <type_traits>
#include <utility>

namespace tolmo {

/** Fields of an object type, as pointers to members: Fields<&tolmo___Via::version, &tolmo___Via::transport>. */
template <auto... members>
struct Fields {
    static constexpr size_t count = sizeof...( members );
};

/** Stands for a value of any member in an unevaluated initialiser. */
struct AnyMember {
    template <class Member>
    operator Member() const;
};

template <class Object, size_t... indexes>
consteval bool CanHold( std::index_sequence<indexes...> )
{
    return requires
    {
        Object{ ( static_cast<void>( indexes ), AnyMember{} )... };
    };
}

/** The number of members of an aggregate. */
template <class Object, size_t count = 1>
consteval size_t MemberCount()
{
    if constexpr ( CanHold<Object>( std::make_index_sequence<count + 1>() ) ) {
        return MemberCount<Object, count + 1>();
    } else {
        return count;
    }
}

/** True when a list of fields names every member behind the head. */
template <class Object, class AllFields>
inline constexpr bool namesAllFields = MemberCount<Object>() == AllFields::count + 1;

/** A field that holds an object owns a reference; all others are numbers. */
template <class Field>
inline constexpr bool isHandle = std::is_pointer_v<Field>;

/** A handle with one more reference; null stays null. What a getter returns. */
template <class Handle>
Handle Retained( Handle handle )
{
    if ( handle ) {
        ko___Retain( reinterpret_cast<KoObj>( handle ) );
    }
    return handle;
}

template <class Handle>
KoRef<Handle> Share( Handle handle )
{
    return KoRef<Handle>::Share( handle );
}

template <class Handle>
KoRef<Handle> Adopt( Handle handle )
{
    return KoRef<Handle>::Adopt( handle );
}

/** Puts a new value into a field, and only then drops the old one. */
template <class Handle>
void Store( Handle &field, KoRef<Handle> value )
{
    const Handle old = field;
    field = value.Leak();
    if ( old ) {
        ko___Release( reinterpret_cast<KoObj>( old ) );
    }
}

/** Drops the value of a field and leaves the mark of an ended object: all ones. */
template <class Field>
void FreeField( Field &field )
{
    if constexpr ( isHandle<Field> ) {
        if ( field ) {
            ko___Release( reinterpret_cast<KoObj>( field ) );
        }
        field = reinterpret_cast<Field>( static_cast<intptr_t>( -1 ) );
    }
}

template <class Object, auto... members>
void FreeFields( Object *object, Fields<members...> )
{
    ( FreeField( object->*members ), ... );
}

template <class Field>
Field CopyField( Field field )
{
    if constexpr ( isHandle<Field> ) {
        return Retained( field );
    } else {
        return field;
    }
}

/** A new object of a sort, all fields zero. */
template <class Object>
KoRef<Object *> CreateObject( KoSort sort )
{
    const KoObj obj = ko___ObjCreateUncleared( sizeof( Object ), sort );
    memset( static_cast<void *>( obj + 1 ), 0, sizeof( Object ) - sizeof *obj ); // of a size that is known: some stores
    return Adopt( reinterpret_cast<Object *>( obj ) );
}

/** A new object that shares the object fields of another one and has its numbers. */
template <class Object, auto... members>
Object *CopyObject( Object *source, Fields<members...> )
{
    Object *const copy = CreateObject<Object>( source->head.sort ).Leak();
    ( ( copy->*members = CopyField( source->*members ) ), ... );
    return copy;
}

/** Numbers by value; objects by koObjCompare, null first. */
template <class Field>
KoInt CompareField( Field a, Field b )
{
    if constexpr ( isHandle<Field> ) {
        return koObjCompare( reinterpret_cast<KoObj>( a ), reinterpret_cast<KoObj>( b ) );
    } else {
        return a < b ? -1 : a > b;
    }
}

/** Compares field by field: the first difference decides. */
template <class Object, auto... members>
KoInt CompareFields( Object *a, Object *b, Fields<members...> )
{
    KoInt result = 0;
    static_cast<void>( ( ( ( result = CompareField( a->*members, b->*members ) ) == 0 ) && ... ) );
    return result;
}

/** Copy on write: makes the caller's handle the only one of its object. */
template <class Handle>
void MakeUnique( Handle *address, Handle ( *createFrom )( Handle ) )
{
    const Handle shared = *address;
    if ( !ko___IsUnique( reinterpret_cast<KoObj>( shared ) ) ) {
        *address = createFrom( shared );
        ko___Release( reinterpret_cast<KoObj>( shared ) );
    }
}

} // namespace tolmo

/** The initialiser of a type's sort record. A missing function is nullptr. */
#define TOLMO_SORT( name, free, compare, toString ) KO_SORT( &tolmo___module, name, free, compare, toString )

/** The free function of a type: drops all fields, in order of declaration. */
#define TOLMO_FREE( Type, name, AllFields )                                                                            \
    void Free( KoObj obj )                                                                                             \
    {                                                                                                                  \
        const auto name = tolmo##Type##From( obj );                                                                    \
        KO_REQUIRE_AS( name, #name );                                                                                  \
        tolmo::FreeFields( name, AllFields{} );                                                                        \
    }

/** The compare function of a type, over its compared fields in their order. */
#define TOLMO_COMPARE( Type, nameA, nameB, ComparedFields )                                                            \
    KoInt Compare( KoObj objA, KoObj objB )                                                                            \
    {                                                                                                                  \
        const auto nameA = tolmo##Type##From( objA );                                                                  \
        const auto nameB = tolmo##Type##From( objB );                                                                  \
        KO_REQUIRE_AS( nameA, #nameA );                                                                                \
        KO_REQUIRE_AS( nameB, #nameB );                                                                                \
        return tolmo::CompareFields( nameA, nameB, ComparedFields{} );                                                 \
    }

/**
 * The eight standard operations of a type, which are the same for all of them: tolmoXSort, Obj, From, Retain, Release,
 * Compare, Equals, ToString. Needs the sort record tolmo___sort_SORT in front of it.
 */
#define TOLMO_STANDARD_OPERATIONS( Type, SORT )                                                                        \
    KoSort tolmo##Type##Sort( void )                                                                                   \
    {                                                                                                                  \
        return &tolmo___sort_##SORT;                                                                                   \
    }                                                                                                                  \
    KoObj tolmo##Type##Obj( Tolmo##Type x )                                                                            \
    {                                                                                                                  \
        return reinterpret_cast<KoObj>( x );                                                                           \
    }                                                                                                                  \
    Tolmo##Type tolmo##Type##From( KoObj obj )                                                                         \
    {                                                                                                                  \
        KO_REQUIRE_MESSAGE( !obj || obj->sort == &tolmo___sort_##SORT, "stdfunc from",                                 \
                            "!obj || koObjSort(obj)==&tolmo___sort_" #SORT );                                          \
        return reinterpret_cast<Tolmo##Type>( obj );                                                                   \
    }                                                                                                                  \
    Tolmo##Type tolmo##Type##Retain( Tolmo##Type x )                                                                   \
    {                                                                                                                  \
        KO_REQUIRE_MESSAGE( x, "stdfunc retain", "obj" );                                                              \
        return reinterpret_cast<Tolmo##Type>( ko___Retain( reinterpret_cast<KoObj>( x ) ) );                           \
    }                                                                                                                  \
    void tolmo##Type##Release( Tolmo##Type x )                                                                         \
    {                                                                                                                  \
        KO_REQUIRE_MESSAGE( x, "stdfunc release", "obj" );                                                             \
        ko___Release( reinterpret_cast<KoObj>( x ) );                                                                  \
    }                                                                                                                  \
    KoInt tolmo##Type##Compare( Tolmo##Type a, Tolmo##Type b )                                                         \
    {                                                                                                                  \
        KO_REQUIRE_MESSAGE( a, "stdfunc compare a", "objA" );                                                          \
        KO_REQUIRE_MESSAGE( b, "stdfunc compare b", "objB" );                                                          \
        return koObjCompare( reinterpret_cast<KoObj>( a ), reinterpret_cast<KoObj>( b ) );                             \
    }                                                                                                                  \
    KoBool tolmo##Type##Equals( Tolmo##Type a, Tolmo##Type b )                                                         \
    {                                                                                                                  \
        return koObjCompare( reinterpret_cast<KoObj>( a ), reinterpret_cast<KoObj>( b ) ) == 0;                        \
    }                                                                                                                  \
    KoString tolmo##Type##ToString( Tolmo##Type x )                                                                    \
    {                                                                                                                  \
        KO_REQUIRE_MESSAGE( x, "stdfunc tostring", "obj" );                                                            \
        return koObjToString( reinterpret_cast<KoObj>( x ) );                                                          \
    }

/** The ninth: tolmoXCreateFrom. */
#define TOLMO_CREATE_FROM( Type, AllFields )                                                                           \
    Tolmo##Type tolmo##Type##CreateFrom( Tolmo##Type source )                                                          \
    {                                                                                                                  \
        KO_REQUIRE( source );                                                                                          \
        return tolmo::CopyObject( source, AllFields{} );                                                               \
    }

#endif
