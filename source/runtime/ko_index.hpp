/* An index of the entries of an array by the hashes of their keys: open addressing, linear probing. Not installed. */
#ifndef KO_INDEX_HPP
#define KO_INDEX_HPP

#include <runtime/ko_base.h>

#include <bit>
#include <cstring>

namespace ko {

/**
 * Maps hashes to positions in an array that its owner keeps; the keys are the owner's. All zeros is an index that is not
 * there. At most half of the slots are taken, and a slot holds 32 bits of the hash, so that next to no key is looked at
 * in vain, and none when slots move. The owner makes it with room for its array, and gives it back with Free.
 */
class Index {
public:
    /** Room and positions stay below this. */
    static constexpr KoInt limit = KoInt{ 1 } << 30;

    /** An empty index with room for `count` positions. */
    [[nodiscard]] static Index Create( KoInt count )
    {
        Index index;
        const uint32_t size = std::bit_ceil( static_cast<uint32_t>( 2 * count ) );
        index.mask = size - 1;
        index.slots = static_cast<Slot *>( koMemAllocN( size, sizeof( Slot ) ) );
        memset( static_cast<void *>( index.slots ), 0, size * sizeof( Slot ) );
        return index;
    }

    /** A new index with room for `count` positions, which holds those of this one moved by a distance. */
    [[nodiscard]] Index Moved( KoInt count, KoInt distance ) const
    {
        Index moved = Create( count );
        for ( size_t at = 0; at <= mask; ++at ) {
            if ( slots[at].place ) {
                moved.Add( slots[at].hash, KoInt{ slots[at].place } - 1 + distance );
            }
        }
        return moved;
    }

    /** True when the index is there. */
    explicit operator bool() const { return slots != nullptr; }

    /** The position with this hash for which `same( position )` holds, or -1. */
    template <class Same>
    KoInt Find( uint32_t hash, Same same ) const
    {
        for ( uint32_t at = hash & mask;; at = ( at + 1 ) & mask ) {
            const Slot slot = slots[at];
            if ( slot.place == 0 ) {
                return -1;
            }
            if ( slot.hash == hash && same( KoInt{ slot.place } - 1 ) ) {
                return KoInt{ slot.place } - 1;
            }
        }
    }

    /** Adds a position that is not there yet. The caller has seen to room. */
    void Add( uint32_t hash, KoInt position )
    {
        uint32_t at = hash & mask;
        while ( slots[at].place ) {
            at = ( at + 1 ) & mask;
        }
        slots[at] = { hash, static_cast<uint32_t>( position ) + 1 };
    }

    /** Removes a position that is there. */
    void Remove( uint32_t hash, KoInt position )
    {
        const auto place = static_cast<uint32_t>( position ) + 1;
        uint32_t hole = hash & mask;
        while ( slots[hole].place != place ) {
            hole = ( hole + 1 ) & mask;
        }
        // What stands behind in the same run and may stand in the hole moves up, so that no run is ever broken.
        for ( uint32_t at = ( hole + 1 ) & mask; slots[at].place; at = ( at + 1 ) & mask ) {
            if ( ( ( at - slots[at].hash ) & mask ) >= ( ( at - hole ) & mask ) ) {
                slots[hole] = slots[at];
                hole = at;
            }
        }
        slots[hole] = {};
    }

    /** Moves the positions from `from` on by a distance. Linear in the size of the index. */
    void Shift( KoInt from, KoInt distance )
    {
        for ( size_t at = 0; at <= mask; ++at ) {
            if ( KoInt{ slots[at].place } > from ) {
                slots[at].place = static_cast<uint32_t>( KoInt{ slots[at].place } + distance );
            }
        }
    }

    void Free() { koMemFree( slots ); }

private:
    struct Slot {
        uint32_t hash;
        uint32_t place; // the position and 1; 0 is a free slot
    };

    Slot *slots = nullptr;
    uint32_t mask = 0;
};

} // namespace ko

#endif
