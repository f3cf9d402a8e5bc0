/* What IDNA needs to know of characters: status, mapping, normalisation form C (UAX #15), bidi class, joining type. */
#include <address/wen_unicode.hpp>

#include <address/wen_idna_tables.hpp>

#include <cstring>
#include <iterator>

namespace wen {
namespace {

// Hangul syllables are composed by calculation (The Unicode Standard, section 3.12).
constexpr KoChar syllableBase = 0xAC00;
constexpr KoChar leadBase = 0x1100;
constexpr KoChar vowelBase = 0x1161;
constexpr KoChar trailBase = 0x11A7; // one in front of the first: no trail
constexpr KoChar leads = 19;
constexpr KoChar vowels = 21;
constexpr KoChar trails = 28;
constexpr KoChar syllables = leads * vowels * trails;

bool InRange( KoChar ch, KoChar first, KoChar count )
{
    return ch >= first && ch - first < count;
}

/** Index of the first element for which `before` is false; the elements for which it is true stand in front. */
template <class Before>
size_t LowerBound( size_t count, Before before )
{
    size_t begin = 0;
    while ( begin < count ) {
        const size_t middle = begin + ( count - begin ) / 2;
        if ( before( middle ) ) {
            begin = middle + 1;
        } else {
            count = middle;
        }
    }
    return begin;
}

/** The pair that a character decomposes to, or null. */
const Composite *Decompose( KoChar ch )
{
    using tables::composites;
    using tables::decompositions;
    const size_t i = LowerBound( std::size( decompositions ),
                                 [&]( size_t k ) { return composites[decompositions[k]].composite < ch; } );
    if ( i == std::size( decompositions ) || composites[decompositions[i]].composite != ch ) {
        return nullptr;
    }
    return &composites[decompositions[i]];
}

/** The character that two compose to, or -1. */
KoChar Compose( KoChar first, KoChar second )
{
    if ( InRange( first, leadBase, leads ) && InRange( second, vowelBase, vowels ) ) {
        return syllableBase + ( ( first - leadBase ) * vowels + ( second - vowelBase ) ) * trails;
    }
    if ( InRange( first, syllableBase, syllables ) && ( first - syllableBase ) % trails == 0 &&
         InRange( second, trailBase + 1, trails - 1 ) ) {
        return first + ( second - trailBase );
    }
    using tables::composites;
    const size_t i = LowerBound( std::size( composites ), [&]( size_t k ) {
        return composites[k].first != first ? composites[k].first < first : composites[k].second < second;
    } );
    const bool found = i < std::size( composites ) && composites[i].first == first && composites[i].second == second;
    return found ? composites[i].composite : -1;
}

/** A text of bounded length that is decomposed as it grows. */
struct Decomposed {
    KoChar chs[normaliseLimit];
    uint8_t classes[normaliseLimit];
    int length = 0;

    /** Appends a character in canonical order: behind its mark class, in front of higher ones. */
    bool AddOne( KoChar ch )
    {
        if ( length == normaliseLimit ) {
            return false;
        }
        const uint8_t combiningClass = PropertiesOf( ch ).combiningClass;
        int place = length++;
        if ( combiningClass != 0 ) {
            for ( ; place > 0 && classes[place - 1] > combiningClass; --place ) {
                chs[place] = chs[place - 1];
                classes[place] = classes[place - 1];
            }
        }
        chs[place] = ch;
        classes[place] = combiningClass;
        return true;
    }

    bool Add( KoChar ch )
    {
        if ( InRange( ch, syllableBase, syllables ) ) {
            const KoChar index = ch - syllableBase;
            const KoChar trail = index % trails;
            return AddOne( leadBase + index / ( vowels * trails ) ) && AddOne( vowelBase + index / trails % vowels ) &&
                   ( trail == 0 || AddOne( trailBase + trail ) );
        }
        // A composite has one at its first place again: at most three levels, whose second parts come out backwards.
        KoChar seconds[3];
        int levels = 0;
        while ( const Composite *const parts = Decompose( ch ) ) {
            seconds[levels++] = parts->second;
            ch = parts->first;
        }
        if ( !AddOne( ch ) ) {
            return false;
        }
        while ( levels > 0 ) {
            if ( !AddOne( seconds[--levels] ) ) {
                return false;
            }
        }
        return true;
    }
};

} // namespace

const Properties &PropertiesOf( KoChar ch )
{
    const unsigned place = static_cast<unsigned>( KO_CHAR_OK( ch ) ? ch : 0x10FFFF );
    const unsigned inBlock = place & ( ( 1u << tables::blockBits ) - 1 );
    const unsigned block = tables::blocks[place >> tables::blockBits];
    return tables::properties[tables::blockProperties[( block << tables::blockBits ) + inBlock]];
}

int Map( KoChar ch, KoChar *target )
{
    using tables::mappings;
    // The last mapping that does not begin behind the character.
    const Mapping &mapping =
        mappings[LowerBound( std::size( mappings ), [&]( size_t i ) { return mappings[i].first <= ch; } ) - 1];
    if ( mapping.length == 1 ) {
        *target = ch + mapping.value;
    } else {
        memcpy( target, tables::mappingTargets + mapping.value,
                static_cast<size_t>( mapping.length ) * sizeof( KoChar ) );
    }
    return mapping.length;
}

int Normalise( KoChar *chs, int length )
{
    Decomposed text;
    for ( int i = 0; i < length; ++i ) {
        if ( !text.Add( chs[i] ) ) {
            return -1;
        }
    }
    // Composition: each character goes to the last starter unless one of its class or a starter stands between them.
    int count = 0;
    int starter = -1;
    int lastClass = -1; // of what stands between the starter and the end; -1: nothing
    for ( int i = 0; i < text.length; ++i ) {
        const int combiningClass = text.classes[i];
        const KoChar composite = starter >= 0 && lastClass < combiningClass ? Compose( chs[starter], text.chs[i] ) : -1;
        if ( composite >= 0 ) {
            chs[starter] = composite;
            continue;
        }
        if ( combiningClass == 0 ) {
            starter = count;
            lastClass = -1;
        } else {
            lastClass = combiningClass;
        }
        chs[count++] = text.chs[i];
    }
    return count;
}

} // namespace wen
