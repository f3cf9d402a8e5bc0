/*
 * The headers of a message, in their order: as they were received, or as objects that a caller has set.
 *
 * A message that was decoded keeps the bytes of its head once, and for each line the place of its value. A raw header
 * becomes an object when somebody asks for it, and anew each time, so that threads which share a message share no state
 * that changes. A header that was set is kept as the object that it is.
 */
#ifndef TOLMO_HEADER_TABLE_HPP
#define TOLMO_HEADER_TABLE_HPP

#include <tolmo/tolmo_header_name.hpp>
#include <tolmo/tolmo_message_header.hpp>
#include <tolmo/tolmo_walk.hpp>

namespace tolmo {

/** No head is longer: places in it are kept in 32 bits, so that a header line costs little. */
inline constexpr KoInt longestHead = INT32_MAX;

/** The value of a received line. */
struct RawLine {
    uint32_t offset; // into the text
    uint32_t length; // in bytes
    uint32_t next;   // the next line of the same name, unless it is the last
};

/** The lines of one name, as they were received. */
struct RawLines {
    uint32_t first;
    uint32_t last;
};

/** A head as it was received, but for folds and the spelling of names. It does not change once it is decoded. */
struct DecodedHead {
    ko___Obj head;
    KoInt capacity; // of lines; behind them stands the text

    RawLine *Lines() { return reinterpret_cast<RawLine *>( this + 1 ); }
    uint8_t *Text() { return reinterpret_cast<uint8_t *>( Lines() + capacity ); }

    /** Gives the lines of a name to a function, as long as it returns true. True when it always did. */
    template <class Take>
    bool ForEach( RawLines lines, Take take )
    {
        for ( uint32_t i = lines.first; take( Lines()[i] ); i = Lines()[i].next ) {
            if ( i == lines.last ) {
                return true;
            }
        }
        return false;
    }
};

/** A head with room for so many lines and bytes, and for what RecognizeName reads behind them. */
KoRef<DecodedHead *> CreateDecodedHead( KoInt lines, KoInt bytes );

/** The header of one name. */
struct HeaderEntry {
    union {
        TolmoMessageHeader header; // one that was set
        RawLines lines;            // of the decoded head
    };
    uint32_t name; // a NameId; of a received name that is not known, where it stands in the text
    uint32_t isObject : 1;
    uint32_t nameLength : 31; // of a name that is not known; 0: the name is a NameId

    [[nodiscard]] bool IsKnown( NameId id ) const { return name == id && nameLength == 0; }
    [[nodiscard]] bool IsKnown() const { return nameLength == 0; }
    [[nodiscard]] TolmoMessageHeader Object() const { return isObject ? header : nullptr; }
};
static_assert( sizeof( HeaderEntry ) == 16 );

/** What a header is looked up by: a name in normal form. */
struct HeaderKey {
    NameId known;
    Text name; // where the name is not known

    explicit HeaderKey( KoString normal )
        : known( RecognizeName( ko::Chars( normal ), normal->length ) ), name( normal )
    {
    }
};

/** What stands in place of the NameId of an entry that was deleted from a large table: it is left out everywhere. */
inline constexpr NameId deletedName = 0xFFFE;
static_assert( knownNameCount <= deletedName && deletedName != unknownName );

/** Where the entries of a large table are whose names are not known: open addressing, linear probing. */
struct HeaderIndex {
    uint32_t *slots; // the position of an entry and 1; 0 is a free slot
    uint32_t mask;
};

struct HeaderTable {
    ko___Obj head;
    DecodedHead *decoded; // may be null
    KoInt count;          // the deleted entries included
    KoInt deleted;
    KoInt capacity;
    HeaderIndex index;              // without slots while the table is small
    uint32_t known[knownNameCount]; // for each known name the position of its entry and 1, or 0

    HeaderEntry *Entries() { return reinterpret_cast<HeaderEntry *>( this + 1 ); }
};

/** A table without entries. `decoded` may be null. */
KoRef<HeaderTable *> CreateHeaderTable( KoInt capacity, KoRef<DecodedHead *> decoded );

/** Up to this many entries are looked through one by one. */
inline constexpr KoInt indexedFrom = 24;

/** Moves the entries to a new table with more room. */
HeaderTable *GrowTable( HeaderTable *table );

/** Puts the last entry, whose name is not known, into the index of a large table. */
void IndexLast( HeaderTable *table );

/** Appends an entry whose name is not in the table yet. The table must be the caller's alone; it may be replaced. */
inline HeaderEntry *AppendEntry( HeaderTable **table, const HeaderEntry &entry )
{
    if ( ( *table )->count == ( *table )->capacity ) {
        *table = GrowTable( *table );
    }
    HeaderTable *const own = *table;
    HeaderEntry *const appended = own->Entries() + own->count++;
    *appended = entry;
    if ( entry.IsKnown() ) {
        own->known[entry.name] = static_cast<uint32_t>( own->count );
    } else if ( own->count > indexedFrom ) {
        IndexLast( own );
    }
    return appended;
}

/** The entry of a known name, or null. */
inline HeaderEntry *FindEntry( HeaderTable *table, NameId known )
{
    const uint32_t place = table->known[known];
    return place ? table->Entries() + place - 1 : nullptr;
}

/** The entry of a name, or null. */
HeaderEntry *FindEntry( HeaderTable *table, const HeaderKey &key );

/** The same by a received name that is not known, in normal form. */
HeaderEntry *FindUnknownEntry( HeaderTable *table, const uint8_t *name, KoInt length );

/** The header of an entry, made anew where it is still raw. */
KoRef<TolmoMessageHeader> HeaderOf( HeaderTable *table, const HeaderEntry &entry );

/** Sets a header under its own name: the entry of that name keeps its place. Copies a shared table. */
void SetHeader( HeaderTable **table, KoRef<TolmoMessageHeader> header );

/** Removes the header of a name, if it is there. Copies a shared table. */
void DeleteHeader( HeaderTable **table, const HeaderKey &key );

} // namespace tolmo

#endif
