/* The headers of a message, in their order: as they were received, or as objects that a caller has set. */
#include <tolmo/tolmo_header_table.hpp>

#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_wide.hpp>

#include <runtime/ko_dict.h>

#include <algorithm>
#include <utility>

namespace tolmo {
namespace {

// Up to this many entries are looked through one by one.
constexpr KoInt indexedFrom = 24;

// What RecognizeName, the search for a colon, and copies in blocks may read behind a piece of the text.
constexpr KoInt padding = 32;
static_assert( padding >= longestKnownName );

constexpr ko___Sort decodedHeadSort = TOLMO_SORT( "TOLMO_DECODED_HEAD", nullptr, nullptr, nullptr );

void FreeTable( KoObj obj )
{
    auto *const table = reinterpret_cast<HeaderTable *>( obj );
    for ( KoInt i = 0; i < table->count; ++i ) {
        if ( table->Entries()[i].header ) {
            ko___Release( tolmoMessageHeaderObj( table->Entries()[i].header ) );
        }
    }
    if ( table->decoded ) {
        ko___Release( &table->decoded->head );
    }
    table->index.Free();
}

constexpr ko___Sort headerTableSort = TOLMO_SORT( "TOLMO_HEADER_TABLE", FreeTable, nullptr, nullptr );

/** One hash for a name, as bytes and as characters. */
uint32_t HashName( const KoChar *name, KoInt length )
{
    return static_cast<uint32_t>( ko___CharsHash( name, length ) );
}
uint32_t HashName( const uint8_t *name, KoInt length )
{
    const Wide wide( name, length );
    return HashName( wide.Text().chs, wide.Text().length );
}
uint32_t HashName( NameId known )
{
    const std::string_view name = knownNames[known];
    return HashName( reinterpret_cast<const uint8_t *>( name.data() ), static_cast<KoInt>( name.size() ) );
}

/** The name of an entry that is not known, if it is still raw. */
const uint8_t *RawName( HeaderTable *table, const HeaderEntry &entry )
{
    return table->decoded->Text() + entry.nameOffset;
}

uint32_t HashOf( HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.known != unknownName ) {
        return HashName( static_cast<NameId>( entry.known ) );
    }
    if ( entry.header ) {
        return HashName( ko::Chars( entry.header->name ), entry.header->name->length );
    }
    return HashName( RawName( table, entry ), static_cast<KoInt>( entry.nameLength ) );
}

/** True when a name that is not known is that of an entry. `Char` is a byte or a character. */
template <class Char>
bool HasName( HeaderTable *table, const HeaderEntry &entry, const Char *name, KoInt length )
{
    const auto same = [=]( const auto *other ) { return std::equal( name, name + length, other ); };
    if ( entry.known != unknownName ) {
        return false;
    }
    if ( entry.header ) {
        return entry.header->name->length == length && same( ko::Chars( entry.header->name ) );
    }
    return static_cast<KoInt>( entry.nameLength ) == length && same( RawName( table, entry ) );
}

/** The entry for which `same` holds; `hash` is asked for only where there is an index. */
template <class Hash, class Same>
HeaderEntry *Find( HeaderTable *table, Hash hash, Same same )
{
    HeaderEntry *const entries = table->Entries();
    if ( table->index ) {
        const KoInt found = table->index.Find( hash(), [&]( KoInt i ) { return same( entries[i] ); } );
        return found < 0 ? nullptr : entries + found;
    }
    for ( KoInt i = 0; i < table->count; ++i ) {
        if ( same( entries[i] ) ) {
            return entries + i;
        }
    }
    return nullptr;
}

template <class Char>
HeaderEntry *FindByName( HeaderTable *table, const Char *name, KoInt length )
{
    return Find(
        table, [=] { return HashName( name, length ); },
        [=]( const HeaderEntry &entry ) { return HasName( table, entry, name, length ); } );
}

/** The same table once more, with room for `capacity` entries. */
HeaderTable *Copy( HeaderTable *table, KoInt capacity )
{
    HeaderTable *const copy = CreateHeaderTable( capacity, Share( table->decoded ) ).Leak();
    copy->count = table->count;
    copy->deleted = table->deleted;
    copy->index = table->index ? table->index.Moved( capacity, 0 ) : ko::Index();
    memcpy( static_cast<void *>( copy->Entries() ), table->Entries(),
            static_cast<size_t>( table->count ) * sizeof( HeaderEntry ) );
    for ( KoInt i = 0; i < table->count; ++i ) {
        Retained( table->Entries()[i].header );
    }
    return copy;
}

/** Makes the index of a table's entries. */
void MakeIndex( HeaderTable *table )
{
    table->index.Free();
    table->index = ko::Index::Create( table->capacity );
    for ( KoInt i = 0; i < table->count; ++i ) {
        table->index.Add( HashOf( table, table->Entries()[i] ), i );
    }
}

/** Closes the gaps of a large table. As half of it are gaps by then, a deletion costs no more than its share. */
void DropDeleted( HeaderTable *table )
{
    HeaderEntry *const entries = table->Entries();
    table->count = std::remove_if( entries, entries + table->count,
                                   []( const HeaderEntry &e ) { return e.known == deletedName; } ) -
                   entries;
    table->deleted = 0;
    MakeIndex( table );
}

HeaderTable *CopyTable( HeaderTable *table )
{
    return Copy( table, table->count + 4 );
}

} // namespace

KoRef<DecodedHead *> CreateDecodedHead( KoInt lines, KoInt bytes )
{
    const auto size = static_cast<KoInt>( sizeof( DecodedHead ) + static_cast<size_t>( lines ) * sizeof( RawLine ) );
    auto *const decoded =
        reinterpret_cast<DecodedHead *>( ko___ObjCreateUncleared( size + bytes + padding, &decodedHeadSort ) );
    decoded->capacity = lines;
    memset( decoded->Text() + bytes, 0, padding );
    return Adopt( decoded );
}

KoRef<HeaderTable *> CreateHeaderTable( KoInt capacity, KoRef<DecodedHead *> decoded )
{
    const auto size =
        static_cast<KoInt>( sizeof( HeaderTable ) + static_cast<size_t>( capacity ) * sizeof( HeaderEntry ) );
    auto *const table = reinterpret_cast<HeaderTable *>( ko___ObjCreateUncleared( size, &headerTableSort ) );
    table->decoded = decoded.Leak();
    table->count = 0;
    table->deleted = 0;
    table->capacity = capacity;
    table->index = {};
    return Adopt( table );
}

HeaderEntry *AppendEntry( HeaderTable **table, const HeaderEntry &entry )
{
    HeaderTable *own = *table;
    if ( own->count == own->capacity ) {
        // The entries move and then, as the old table is gone, the index.
        HeaderTable *const grown = CreateHeaderTable( own->capacity + own->capacity / 2 + 8, {} ).Leak();
        std::swap( grown->decoded, own->decoded );
        std::swap( grown->count, own->count );
        grown->deleted = own->deleted;
        memcpy( static_cast<void *>( grown->Entries() ), own->Entries(),
                static_cast<size_t>( grown->count ) * sizeof( HeaderEntry ) );
        ko::Index index = std::exchange( own->index, {} );
        ko___Release( &own->head );
        if ( index ) {
            grown->index = index.Moved( grown->capacity, 0 );
            index.Free();
        }
        *table = own = grown;
    }
    HeaderEntry *const appended = own->Entries() + own->count++;
    *appended = entry;
    if ( own->index ) {
        own->index.Add( HashOf( own, entry ), own->count - 1 );
    } else if ( own->count > indexedFrom ) {
        MakeIndex( own );
    }
    return appended;
}

HeaderEntry *FindEntry( HeaderTable *table, const HeaderKey &key )
{
    if ( key.known == unknownName ) {
        return FindByName( table, key.name.chs, key.name.length );
    }
    return Find(
        table, [&] { return HashName( key.known ); },
        [&]( const HeaderEntry &entry ) { return entry.known == key.known; } );
}

HeaderEntry *FindUnknownEntry( HeaderTable *table, const uint8_t *name, KoInt length )
{
    return FindByName( table, name, length );
}

KoRef<TolmoMessageHeader> HeaderOf( HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.header ) {
        return Share( entry.header );
    }
    DecodedHead *const decoded = table->decoded;
    auto lines = Adopt( koVectorCreate() );
    for ( KoInt i = entry.firstLine;; i = decoded->Lines()[i].next ) {
        const RawLine &line = decoded->Lines()[i];
        AppendString( *lines.Address(), WideString( decoded->Text() + line.offset, line.length ) );
        if ( i == entry.lastLine ) {
            break;
        }
    }
    auto name = entry.known != unknownName
                    ? Share( KnownNameString( entry.known ) )
                    : WideString( RawName( table, entry ), static_cast<KoInt>( entry.nameLength ) );
    return CreateMessageHeader( std::move( name ), std::move( lines ) );
}

void SetHeader( HeaderTable **table, KoRef<TolmoMessageHeader> header )
{
    MakeUnique( table, CopyTable );
    const HeaderKey key( header.Get()->name );
    if ( HeaderEntry *const entry = FindEntry( *table, key ) ) {
        Store( entry->header, std::move( header ) );
        return;
    }
    AppendEntry( table, { .header = header.Leak(),
                          .firstLine = 0,
                          .lastLine = 0,
                          .nameOffset = 0,
                          .nameLength = 0,
                          .known = key.known } );
}

void DeleteHeader( HeaderTable **table, const HeaderKey &key )
{
    if ( !FindEntry( *table, key ) ) {
        return;
    }
    MakeUnique( table, CopyTable );
    HeaderTable *const own = *table;
    HeaderEntry *const entry = FindEntry( own, key );
    const KoInt place = entry - own->Entries();
    if ( own->index ) {
        own->index.Remove( HashOf( own, *entry ), place );
    }
    Store( entry->header, {} );
    if ( !own->index ) {
        --own->count;
        memmove( static_cast<void *>( entry ), entry + 1,
                 static_cast<size_t>( own->count - place ) * sizeof( HeaderEntry ) );
        return;
    }
    entry->known = deletedName;
    ++own->deleted;
    if ( own->deleted > own->count / 2 ) {
        DropDeleted( own );
    }
}

} // namespace tolmo
