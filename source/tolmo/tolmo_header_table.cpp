/* The headers of a message, in their order: as they were received, or as objects that a caller has set. */
#include <tolmo/tolmo_header_table.hpp>

#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_wide.hpp>

#include <runtime/ko_dict.h>

#include <algorithm>
#include <bit>
#include <utility>

namespace tolmo {
namespace {

// What RecognizeName, the search for a colon, and copies in blocks may read behind a piece of the text.
constexpr KoInt padding = 32;
static_assert( padding >= longestKnownName && padding >= wideStep );

constexpr ko___Sort decodedHeadSort = TOLMO_SORT( "TOLMO_DECODED_HEAD", nullptr, nullptr, nullptr );

void FreeTable( KoObj obj )
{
    auto *const table = reinterpret_cast<HeaderTable *>( obj );
    for ( KoInt i = 0; i < table->count; ++i ) {
        if ( const TolmoMessageHeader header = table->Entries()[i].Object() ) {
            ko___Release( tolmoMessageHeaderObj( header ) );
        }
    }
    if ( table->decoded ) {
        ko___Release( &table->decoded->head );
    }
    if ( table->index.slots ) {
        koMemFree( table->index.slots );
    }
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

/** The name of an entry that is not known, if it is still raw. */
const uint8_t *RawName( HeaderTable *table, const HeaderEntry &entry )
{
    return table->decoded->Text() + entry.name;
}

uint32_t HashOf( HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.isObject ) {
        return HashName( ko::Chars( entry.header->name ), entry.header->name->length );
    }
    return HashName( RawName( table, entry ), entry.nameLength );
}

/** True when a name that is not known is that of an entry. `Char` is a byte or a character. */
template <class Char>
bool HasName( HeaderTable *table, const HeaderEntry &entry, const Char *name, KoInt length )
{
    const auto same = [=]( const auto *other ) { return std::equal( name, name + length, other ); };
    if ( entry.IsKnown() ) {
        return false;
    }
    if ( entry.isObject ) {
        return entry.header->name->length == length && same( ko::Chars( entry.header->name ) );
    }
    return entry.nameLength == length && same( RawName( table, entry ) );
}

/** The entry of a name that is not known. */
template <class Char>
HeaderEntry *FindByName( HeaderTable *table, const Char *name, KoInt length )
{
    HeaderEntry *const entries = table->Entries();
    if ( table->index.slots ) {
        const uint32_t mask = table->index.mask;
        for ( uint32_t at = HashName( name, length ) & mask; const uint32_t place = table->index.slots[at];
              at = ( at + 1 ) & mask ) {
            if ( HasName( table, entries[place - 1], name, length ) ) {
                return entries + place - 1;
            }
        }
        return nullptr;
    }
    for ( KoInt i = 0; i < table->count; ++i ) {
        if ( HasName( table, entries[i], name, length ) ) {
            return entries + i;
        }
    }
    return nullptr;
}

void AddToIndex( HeaderTable *table, KoInt place )
{
    const uint32_t mask = table->index.mask;
    uint32_t at = HashOf( table, table->Entries()[place] ) & mask;
    while ( table->index.slots[at] ) {
        at = ( at + 1 ) & mask;
    }
    table->index.slots[at] = static_cast<uint32_t>( place ) + 1;
}

/** Makes the index of a table's entries anew, with room for as many more. A small table has none. */
void MakeIndex( HeaderTable *table )
{
    koMemFree( table->index.slots );
    table->index = {};
    if ( table->count <= indexedFrom ) {
        return;
    }
    const size_t size = std::bit_ceil( 2 * static_cast<size_t>( table->count ) );
    table->index.mask = static_cast<uint32_t>( size - 1 );
    table->index.slots = static_cast<uint32_t *>( koMemAllocN( static_cast<KoInt>( size ), sizeof( uint32_t ) ) );
    memset( table->index.slots, 0, size * sizeof( uint32_t ) );
    for ( KoInt place = 0; place < table->count; ++place ) {
        if ( !table->Entries()[place].IsKnown() ) {
            AddToIndex( table, place );
        }
    }
}

/** Closes the gaps of a large table. As half of it are gaps by then, a deletion costs no more than its share. */
void DropDeleted( HeaderTable *table )
{
    HeaderEntry *const entries = table->Entries();
    table->count = std::remove_if( entries, entries + table->count,
                                   []( const HeaderEntry &e ) { return e.IsKnown( deletedName ); } ) -
                   entries;
    table->deleted = 0;
    for ( KoInt i = 0; i < table->count; ++i ) {
        if ( entries[i].IsKnown() ) {
            table->known[entries[i].name] = static_cast<uint32_t>( i + 1 );
        }
    }
    MakeIndex( table );
}

/** The same table once more. */
HeaderTable *CopyTable( HeaderTable *table )
{
    HeaderTable *const copy = CreateHeaderTable( table->count + 4, Share( table->decoded ) ).Leak();
    copy->count = table->count;
    copy->deleted = table->deleted;
    memcpy( static_cast<void *>( copy->Entries() ), table->Entries(),
            static_cast<size_t>( table->count ) * sizeof( HeaderEntry ) );
    memcpy( copy->known, table->known, sizeof copy->known );
    for ( KoInt i = 0; i < table->count; ++i ) {
        Retained( table->Entries()[i].Object() );
    }
    MakeIndex( copy );
    return copy;
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
    memset( static_cast<void *>( &table->head + 1 ), 0, sizeof *table - sizeof table->head );
    table->decoded = decoded.Leak();
    table->capacity = capacity;
    return Adopt( table );
}

HeaderTable *GrowTable( HeaderTable *table )
{
    // While a head is decoded, all its lines may have names of their own; two tables at a time would be too much then.
    const KoInt lines = table->decoded ? table->decoded->capacity : 0;
    const KoInt capacity = koIntMax( table->capacity + table->capacity / 2 + 8, lines );
    HeaderTable *const grown = CreateHeaderTable( capacity, {} ).Leak();
    std::swap( grown->decoded, table->decoded );
    std::swap( grown->count, table->count );
    std::swap( grown->deleted, table->deleted );
    std::swap( grown->index, table->index );
    memcpy( grown->known, table->known, sizeof grown->known );
    memcpy( static_cast<void *>( grown->Entries() ), table->Entries(),
            static_cast<size_t>( grown->count ) * sizeof( HeaderEntry ) );
    ko___Release( &table->head );
    return grown;
}

void IndexLast( HeaderTable *table )
{
    // An index that is filled to three quarters gives way to a larger one.
    if ( table->index.slots && table->count <= table->index.mask / 4 * 3 ) {
        AddToIndex( table, table->count - 1 );
    } else {
        MakeIndex( table );
    }
}

HeaderEntry *FindEntry( HeaderTable *table, const HeaderKey &key )
{
    return key.known != unknownName ? FindEntry( table, key.known )
                                    : FindByName( table, key.name.chs, key.name.length );
}

HeaderEntry *FindUnknownEntry( HeaderTable *table, const uint8_t *name, KoInt length )
{
    return FindByName( table, name, length );
}

KoRef<TolmoMessageHeader> HeaderOf( HeaderTable *table, const HeaderEntry &entry )
{
    if ( entry.isObject ) {
        return Share( entry.header );
    }
    DecodedHead *const decoded = table->decoded;
    auto lines = Adopt( koVectorCreate() );
    decoded->ForEach( entry.lines, [&]( const RawLine &line ) {
        AppendString( *lines.Address(), WideString( decoded->Text() + line.offset, line.length ) );
        return true;
    } );
    auto name = entry.IsKnown() ? Share( KnownNameString( static_cast<NameId>( entry.name ) ) )
                                : WideString( RawName( table, entry ), entry.nameLength );
    return CreateMessageHeader( std::move( name ), std::move( lines ) );
}

void SetHeader( HeaderTable **table, KoRef<TolmoMessageHeader> header )
{
    MakeUnique( table, CopyTable );
    const HeaderKey key( header.Get()->name );
    HeaderEntry *const entry = FindEntry( *table, key );
    if ( !entry ) {
        HeaderEntry added{ .header = header.Leak(), .name = key.known, .isObject = 1, .nameLength = 0 };
        if ( key.known == unknownName ) {
            added.nameLength = 1; // the true one is the object's
        }
        AppendEntry( table, added );
        return;
    }
    const KoRef<TolmoMessageHeader> old = Adopt( entry->Object() );
    entry->header = header.Leak();
    entry->isObject = 1;
}

void DeleteHeader( HeaderTable **table, const HeaderKey &key )
{
    if ( !FindEntry( *table, key ) ) {
        return;
    }
    MakeUnique( table, CopyTable );
    HeaderTable *const own = *table;
    HeaderEntry *const entry = FindEntry( own, key );
    const KoRef<TolmoMessageHeader> old = Adopt( entry->Object() );
    if ( key.known != unknownName ) {
        own->known[key.known] = 0;
    }
    if ( !own->index.slots ) {
        const KoInt place = entry - own->Entries();
        --own->count;
        memmove( static_cast<void *>( entry ), entry + 1,
                 static_cast<size_t>( own->count - place ) * sizeof( HeaderEntry ) );
        for ( uint32_t &known : own->known ) {
            known -= known > place;
        }
        return;
    }
    *entry = { .header = nullptr, .name = deletedName, .isObject = 0, .nameLength = 0 };
    ++own->deleted;
    if ( own->deleted > own->count / 2 ) {
        DropDeleted( own );
    }
}

} // namespace tolmo
