/* Items of list headers: cut out of lines, printed on lines. What value lists, token lists and token sets share. */
#ifndef TOLMO_ITEM_LIST_HPP
#define TOLMO_ITEM_LIST_HPP

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_skip.hpp>

namespace tolmo {

/**
 * Cuts a line into items by the grammar of the item: `item *( separator item )`, nothing on an empty line. There is no
 * tolerance for empty items, and whitespace behind the last item is none of it. `take` gets the text of each item. False
 * when the line holds anything else.
 */
template <class Separator, class Item, class Take>
bool CutLine( Text line, Separator separator, Item item, Take take )
{
    Walk w( line );
    while ( !w.AtEnd() ) {
        if ( ( w.Place() > 0 && !w.Need( separator ) ) || !w.Need( item ) ) {
            return false;
        }
        take( w.Last() );
    }
    return true;
}

/** Cuts all lines into items. */
template <class Separator, class Item, class Take>
bool CutItems( const Lines &lines, Separator separator, Item item, Take take )
{
    return lines.ForEach( [&]( Text line ) { return CutLine( line, separator, item, take ); } );
}

/** What takes an item into a vector of strings. */
inline auto AppendTo( KoVector &items )
{
    return [&]( Text text ) { AppendString( items, text.Copy() ); };
}

/** Cuts all lines into a vector of strings at commas. */
template <class Item>
bool CutToVector( const Lines &lines, Item item, KoVector &items )
{
    return CutItems( lines, skip::Comma, item, AppendTo( items ) );
}

/** What a value list is decoded with: the items of all lines, in the empty list that `create` makes. */
template <class Header, class Item>
KoRef<Header> DecodeLines( const Lines &lines, Item item, Header ( *create )( void ) )
{
    auto hdr = Adopt( create() );
    return CutToVector( lines, item, hdr.Get()->items ) ? std::move( hdr ) : KoRef<Header>();
}

/** The same where a raw header without lines gives null. */
template <class Header, class Item>
KoRef<Header> DecodeSomeLines( const Lines &lines, Item item, Header ( *create )( void ) )
{
    return lines.Empty() ? KoRef<Header>() : DecodeLines( lines, item, create );
}

/** A raw header with one line for each item. Every item can be a line: its vector is shared as it is. */
inline TolmoMessageHeader ItemPerLineHeader( NameId name, KoVector items )
{
    return CreateMessageHeader( Share( KnownNameString( name ) ), Share( items ) ).Leak();
}

} // namespace tolmo

/**
 * The type of a list header, which has one field: `items`, a vector of the texts of the items. With its sort, which
 * compares text by text, its standard operations, and tolmoHeaderXCreate, an empty list.
 */
#define TOLMO_ITEM_LIST_TYPE( Type, SORT )                                                                             \
    struct tolmo___Header##Type {                                                                                      \
        ko___Obj head;                                                                                                 \
        KoVector items;                                                                                                \
    };                                                                                                                 \
    namespace {                                                                                                        \
    using AllFields = tolmo::Fields<&tolmo___Header##Type::items>;                                                     \
    static_assert( tolmo::namesAllFields<tolmo___Header##Type, AllFields> );                                           \
    TOLMO_FREE( Header##Type, hdr, AllFields )                                                                         \
    TOLMO_COMPARE( Header##Type, hdrA, hdrB, AllFields )                                                               \
    TOLMO_HEADER_TO_STRING( Type )                                                                                     \
    }                                                                                                                  \
    static const ko___Sort tolmo___sort_##SORT = TOLMO_SORT( #SORT, Free, Compare, ToString );                         \
    TOLMO_STANDARD_OPERATIONS( Header##Type, SORT )                                                                    \
    TOLMO_CREATE_FROM( Header##Type, AllFields )                                                                       \
    TolmoHeader##Type tolmoHeader##Type##Create( void )                                                                \
    {                                                                                                                  \
        auto hdr = tolmo::CreateObject<tolmo___Header##Type>( &tolmo___sort_##SORT );                                  \
        hdr.Get()->items = koVectorCreate();                                                                           \
        return hdr.Leak();                                                                                             \
    }

/** Encode: a line for each item. */
#define TOLMO_ITEM_LIST_ENCODING( Type )                                                                               \
    TolmoMessageHeader tolmoHeader##Type##Encode( TolmoHeader##Type hdr )                                              \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return tolmo::ItemPerLineHeader( headerName, hdr->items );                                                     \
    }

/*
 * The operations of a value list, over the field `items`. A member of the family that breaks the pattern takes the parts
 * that fit, and writes out the others; one that does not is three lines and its `Decode`:
 *
 *     TOLMO_HEADER_NAME( Via, Via, "Via" )
 *     TOLMO_ITEM_LIST_TYPE( Via, TOLMO_HEADER_VIA )
 *     TOLMO_VALUE_LIST( Via, Via, Via, via )
 *
 * `Item` is the word that names its operations, `Value` the type of its values, `value` the name of a value argument.
 *
 * A value that goes in is encoded at once, behind the copy on write: the list keeps a snapshot of its text. The encoder
 * tests it for null, and the runtime tests the index.
 */

/** ItemsLength and TryDecodeItemAt. */
#define TOLMO_VALUE_LIST_READING( Type, Item, Value )                                                                  \
    KoInt tolmoHeader##Type##Item##sLength( TolmoHeader##Type hdr )                                                    \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return koVectorLength( hdr->items );                                                                           \
    }                                                                                                                  \
    Tolmo##Value tolmoHeader##Type##TryDecode##Item##At( TolmoHeader##Type hdr, KoInt index )                          \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        const KoString item = tolmo::LentStringAt( hdr->items, index );                                                \
        return tolmo___##Value##TryDecode( ko::Chars( item ), item->length );                                          \
    }

/** SetItemAt, InsertItem, PrependItem and AppendItem. */
#define TOLMO_VALUE_LIST_CHANGING( Type, Item, Value, value )                                                          \
    void tolmoHeader##Type##Set##Item##At( TolmoHeader##Type *hdr, KoInt index, Tolmo##Value value )                   \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorSetStringAt( &( *hdr )->items, index, tolmo::Adopt( tolmo___##Value##Encode( value ) ).Get() );        \
    }                                                                                                                  \
    void tolmoHeader##Type##Insert##Item( TolmoHeader##Type *hdr, KoInt index, Tolmo##Value value )                    \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        tolmo::InsertString( ( *hdr )->items, index, tolmo::Adopt( tolmo___##Value##Encode( value ) ) );               \
    }                                                                                                                  \
    void tolmoHeader##Type##Prepend##Item( TolmoHeader##Type *hdr, Tolmo##Value value )                                \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        tolmo::InsertString( ( *hdr )->items, 0, tolmo::Adopt( tolmo___##Value##Encode( value ) ) );                   \
    }                                                                                                                  \
    void tolmoHeader##Type##Append##Item( TolmoHeader##Type *hdr, Tolmo##Value value )                                 \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        tolmo::AppendString( ( *hdr )->items, tolmo::Adopt( tolmo___##Value##Encode( value ) ) );                      \
    }

/** DelItemAt. */
#define TOLMO_ITEM_LIST_DELETING( Type, Item )                                                                         \
    void tolmoHeader##Type##Del##Item##At( TolmoHeader##Type *hdr, KoInt index )                                       \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorDelAt( &( *hdr )->items, index );                                                                      \
    }

/** The clear function, under its name. */
#define TOLMO_ITEM_LIST_CLEARING( Type, operation )                                                                    \
    void operation( TolmoHeader##Type *hdr )                                                                           \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorClear( &( *hdr )->items );                                                                             \
    }

/** All operations of a value list, where none of them breaks the pattern. */
#define TOLMO_VALUE_LIST( Type, Item, Value, value )                                                                   \
    TOLMO_VALUE_LIST_READING( Type, Item, Value )                                                                      \
    TOLMO_VALUE_LIST_CHANGING( Type, Item, Value, value )                                                              \
    TOLMO_ITEM_LIST_DELETING( Type, Item )                                                                             \
    TOLMO_ITEM_LIST_CLEARING( Type, tolmoHeader##Type##Clear##Item##s )                                                \
    TOLMO_ITEM_LIST_ENCODING( Type )

#endif
