/* Objects whose block is bigger than their sort tells: made without clearing, and given back without their contents. */
#ifndef KO_CREATE_HPP
#define KO_CREATE_HPP

#include <runtime/ko_memory.hpp>
#include <runtime/ko_object.h>

namespace ko {

/** A new object and the size of its block. Comes in two registers. */
struct NewObject {
    KoObj obj;
    size_t usable;
};

/** CreateObject where the thread has kept no block of that size. */
[[gnu::noinline]] NewObject CreateObjectInNewBlock( size_t size, KoSort sort );

/** A new object with a count of 1 and a block of at least `size` bytes. Only the head is set. */
inline NewObject CreateObject( size_t size, KoSort sort )
{
    const Block block = TakeKept( size );
    if ( __builtin_expect( !block.memory, 0 ) ) {
        return CreateObjectInNewBlock( size, sort );
    }
    const auto obj = static_cast<KoObj>( block.memory );
    obj->sort = sort;
    obj->count = 1; // the block still has its class, from the object before
    return { obj, block.usable };
}

/** Ends an object whose contents live on in another one. */
inline void DiscardObject( KoObj obj )
{
    Free( obj, obj->blockClass );
}

} // namespace ko

#endif
