/*
 * The headers of a message, in their order: as they were received, or as objects that a caller has set.
 *
 * A message that was decoded keeps the bytes of its head once, and for each line the place of its value. A raw header
 * becomes an object when somebody asks for it, and anew each time, so that threads which share a message share no state
 * that changes. A header that was set is kept as the object that it is.
 */
#ifndef TOLMO_HEADER_TABLE_HPP
#define TOLMO_HEADER_TABLE_HPP

#include <runtime/ko_index.hpp>
#include <tolmo/tolmo_header_name.hpp>
#include <tolmo/tolmo_message_header.hpp>
#include <tolmo/tolmo_walk.hpp>

namespace tolmo {

/** The value of a received line. */
struct RawLine {
    KoInt offset; // into the text
    KoInt length; // in bytes
    KoInt next;   // the next line of the same name; 0 behind the last, as no line follows itself
};

/** A head as it was received, but for folds and the spelling of names. It does not change once it is decoded. */
struct DecodedHead {
    ko___Obj head;
    KoInt capacity; // of lines; behind them stands the text

    RawLine *Lines() { return reinterpret_cast<RawLine *>( this + 1 ); }
    uint8_t *Text() { return reinterpret_cast<uint8_t *>( Lines() + capacity ); }
};

/** A head with room for so many lines and bytes, and for what RecognizeName reads behind them. */
KoRef<DecodedHead *> CreateDecodedHead( KoInt lines, KoInt bytes );

/** The header of one name. */
struct HeaderEntry {
    TolmoMessageHeader header; // null: the lines are those of the decoded head
    KoInt firstLine;
    KoInt lastLine;
    KoInt nameOffset; // of a received name that is not known
    uint64_t nameLength : 48;
    uint64_t known : 16; // a NameId
};

/** What a header is looked up by: a name in normal form. */
struct HeaderKey {
    NameId known;
    Text name; // where the name is not known

    HeaderKey( NameId id ) : known( id ) {}
    explicit HeaderKey( KoString normal )
        : known( RecognizeName( ko::Chars( normal ), normal->length ) ), name( normal )
    {
    }
};

/** What stands in place of the NameId of an entry that was deleted from a large table: it is left out everywhere. */
inline constexpr NameId deletedName = 0xFFFE;
static_assert( knownNameCount <= deletedName && deletedName != unknownName );

struct HeaderTable {
    ko___Obj head;
    DecodedHead *decoded; // may be null
    KoInt count;          // the deleted entries included
    KoInt deleted;
    KoInt capacity;
    ko::Index index; // there once the table is large

    HeaderEntry *Entries() { return reinterpret_cast<HeaderEntry *>( this + 1 ); }
};

/** A table without entries. `decoded` may be null. */
KoRef<HeaderTable *> CreateHeaderTable( KoInt capacity, KoRef<DecodedHead *> decoded );

/** Appends an entry whose name is not in the table yet. The table must be the caller's alone; it may be replaced. */
HeaderEntry *AppendEntry( HeaderTable **table, const HeaderEntry &entry );

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
