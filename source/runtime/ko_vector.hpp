/* The inside of a vector, for code that reads elements without a call and without a reference. Not installed. */
#ifndef KO_VECTOR_HPP
#define KO_VECTOR_HPP

#include <runtime/ko_vector.h>

/**
 * A ring of slots behind this head, with all the free room in one place: the gap, in front of the element with the index
 * `gap`. On the ring the place behind the last element is the place in front of the first one, so that a vector grows at
 * both ends without moving anything.
 */
struct ko___Vector {
    struct ko___Obj head;
    KoInt length;
    KoInt capacity;
    KoInt first; // the slot of element 0, or of the gap when that stands in front of it
    KoInt gap;
};

namespace ko {

/** The slots of a vector, which are `capacity` in number. */
inline KoObj *Slots( KoVector v )
{
    return reinterpret_cast<KoObj *>( v + 1 );
}

/** The element at an index that is inside the vector, lent: it is valid as long as the vector. */
inline KoObj At( KoVector v, KoInt index )
{
    const KoInt slot = v->first + index + ( index >= v->gap ? v->capacity - v->length : 0 );
    return Slots( v )[slot >= v->capacity ? slot - v->capacity : slot];
}

} // namespace ko

#endif
