/* Items of list headers: cut out of lines, printed on lines. What value lists, token lists and token sets share. */
#ifndef TOLMO_ITEM_LIST_HPP
#define TOLMO_ITEM_LIST_HPP

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_skip.hpp>

namespace tolmo {

/**
 * Cuts all lines into items by the grammar of the item: `item *( separator item )` on each line, nothing on an empty
 * one. There is no tolerance for empty items, and whitespace behind the last item of a line is none of it. `take` gets
 * the text of each item. False when a line holds anything else.
 */
template <class Separator, class Item, class Take>
bool CutItems( const Lines &lines, Separator separator, Item item, Take take )
{
    return lines.ForEach( [&]( Text line ) {
        Walk w( line );
        bool good = true;
        while ( good && !w.AtEnd() ) {
            good = ( w.Place() == 0 || w.Need( separator ) ) && w.Need( item );
            if ( good ) {
                take( w.Last() );
            }
        }
        return good;
    } );
}

/** Cuts all lines into a vector of strings at commas. */
template <class Item>
bool CutToVector( const Lines &lines, Item item, KoVector &items )
{
    return CutItems( lines, skip::Comma, item,
                     [&]( Text text ) { koVectorAppendString( &items, text.Copy().Get() ); } );
}

/** A raw header with one line for each item. */
inline TolmoMessageHeader ItemPerLineHeader( NameId name, KoVector items )
{
    auto header = NewHeader( name );
    const KoInt length = koVectorLength( items );
    for ( KoInt i = 0; i < length; ++i ) {
        tolmoMessageHeaderAppendLine( header.Address(), StringAt( items, i ).Get() );
    }
    return header.Leak();
}

} // namespace tolmo

/*
 * The operations of a value list: a header with a field `items`, a vector of the texts of its items. `Item` is the word
 * that names its operations, `Value` the type of its values, `value` the name of a value argument.
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
        const auto item = tolmo::StringAt( hdr->items, index );                                                        \
        return tolmo___##Value##TryDecode( ko::Chars( item.Get() ), item.Get()->length );                              \
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
        koVectorInsertString( &( *hdr )->items, index, tolmo::Adopt( tolmo___##Value##Encode( value ) ).Get() );       \
    }                                                                                                                  \
    void tolmoHeader##Type##Prepend##Item( TolmoHeader##Type *hdr, Tolmo##Value value )                                \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorPrependString( &( *hdr )->items, tolmo::Adopt( tolmo___##Value##Encode( value ) ).Get() );             \
    }                                                                                                                  \
    void tolmoHeader##Type##Append##Item( TolmoHeader##Type *hdr, Tolmo##Value value )                                 \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorAppendString( &( *hdr )->items, tolmo::Adopt( tolmo___##Value##Encode( value ) ).Get() );              \
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

#endif
