/* The inside of a dictionary, for code that reads entries without a call and without a reference. Not installed. */
#ifndef KO_DICT_HPP
#define KO_DICT_HPP

#include <runtime/ko_dict.h>
#include <runtime/ko_index.hpp>

/** The entries stand in the order of their positions in an array behind this head, from `first` on. The index, which a
 * small dictionary does not have, tells places in that array. */
struct ko___Dict {
    struct ko___Obj head;
    KoInt length;
    KoInt capacity;
    KoInt first;
    ko::Index index;
};

namespace ko {

struct DictEntry {
    KoString key;
    KoObj value;
};

/** The entries of a dictionary by their positions, lent: valid as long as the dictionary. */
inline DictEntry *Entries( KoDict d )
{
    return reinterpret_cast<DictEntry *>( d + 1 ) + d->first;
}

} // namespace ko

#endif
