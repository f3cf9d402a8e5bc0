/* Reference-counted objects: the head of every object, and what works on objects of every sort. */
#include <runtime/ko_object.h>

#include <runtime/ko_create.hpp>
#include <runtime/ko_string.h>

#include <cstring>

namespace ko {

NewObject CreateObjectInNewBlock( size_t size, KoSort sort )
{
    const Block block = Allocate( size );
    const auto obj = static_cast<KoObj>( block.memory );
    obj->sort = sort;
    obj->count = 1;
    obj->blockClass = block.blockClass;
    return { obj, block.usable };
}

} // namespace ko

KoObj ko___ObjCreate( KoInt size, KoSort sort )
{
    const KoObj obj = ko___ObjCreateUncleared( size, sort );
    memset( static_cast<void *>( obj + 1 ), 0, static_cast<size_t>( size ) - sizeof *obj );
    return obj;
}

KoObj ko___ObjCreateUncleared( KoInt size, KoSort sort )
{
    KO_REQUIRE( size >= (KoInt)sizeof( struct ko___Obj ) );
    KO_REQUIRE( sort );
    return ko::CreateObject( static_cast<size_t>( size ), sort ).obj;
}

void ko___ObjFree( KoObj obj )
{
    KO_REQUIRE( obj );
    if ( obj->sort->free ) {
        obj->sort->free( obj );
    }
    ko::DiscardObject( obj );
}

void ko___ObjMakeConstant( KoObj obj )
{
    KO_REQUIRE( obj );
    KO_REQUIRE( obj->count == 1 );
    obj->count = KO_COUNT_CONSTANT;
    ko::UncountObject();
}

KoInt ko___ObjLiveCount( void )
{
    return ko::ObjectCount();
}

KoSort koObjSort( KoObj obj )
{
    KO_REQUIRE( obj );
    return obj->sort;
}

KoObj koObjRetain( KoObj obj )
{
    KO_REQUIRE( obj );
    return ko___Retain( obj );
}

void koObjRelease( KoObj obj )
{
    KO_REQUIRE( obj );
    ko___Release( obj );
}

namespace {

KoInt CompareAddresses( const void *a, const void *b )
{
    const auto left = reinterpret_cast<uintptr_t>( a );
    const auto right = reinterpret_cast<uintptr_t>( b );
    return left < right ? -1 : left > right;
}

} // namespace

KoInt koObjCompare( KoObj a, KoObj b )
{
    if ( a == b ) {
        return 0;
    }
    if ( !a || !b ) {
        return a ? 1 : -1;
    }
    if ( a->sort != b->sort ) {
        const int names = strcmp( a->sort->name, b->sort->name );
        return names ? names : CompareAddresses( a->sort, b->sort );
    }
    return a->sort->compare ? a->sort->compare( a, b ) : CompareAddresses( a, b );
}

KoString koObjToString( KoObj obj )
{
    KO_REQUIRE( obj );
    return obj->sort->toString
               ? obj->sort->toString( obj )
               : koStringCreateFromFormatCstr( "<%~s>", -1, koStringCreateFromCstr( obj->sort->name, -1 ) );
}
