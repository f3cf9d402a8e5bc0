/* Objects whose block is bigger than their sort tells: made without clearing, and given back without their contents. */
#ifndef KO_CREATE_HPP
#define KO_CREATE_HPP

#include <runtime/ko_memory.hpp>
#include <runtime/ko_object.h>

namespace ko {

/** A new object with a count of 1 and a block of at least `size` bytes, of which `usable` receives the true number.
 * Only the head is set. */
inline KoObj CreateObject( size_t size, KoSort sort, size_t &usable )
{
    const Block block = Allocate( size );
    const auto obj = static_cast<KoObj>( block.memory );
    obj->sort = sort;
    obj->count = 1;
    obj->blockClass = block.blockClass;
    usable = block.Usable( size );
    return obj;
}

/** Ends an object whose contents live on in another one. */
inline void DiscardObject( KoObj obj )
{
    Free( obj, obj->blockClass );
}

} // namespace ko

#endif
