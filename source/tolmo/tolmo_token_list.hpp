/* Token lists: headers with a list of plain words, which are given as they are. */
#ifndef TOLMO_TOKEN_LIST_HPP
#define TOLMO_TOKEN_LIST_HPP

#include <tolmo/tolmo_item_list.hpp>

/*
 * The operations of a token list: a header with a field `items`, a vector of its words. `Item` is the word that names
 * its operations, `item` the name of a word argument. The runtime tests the index. A member that breaks the pattern
 * takes the parts that fit.
 */

/** ItemsLength and ItemAt. */
#define TOLMO_TOKEN_LIST_READING( Type, Item )                                                                         \
    KoInt tolmoHeader##Type##Item##sLength( TolmoHeader##Type hdr )                                                    \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return koVectorLength( hdr->items );                                                                           \
    }                                                                                                                  \
    KoString tolmoHeader##Type##Item##At( TolmoHeader##Type hdr, KoInt index )                                         \
    {                                                                                                                  \
        KO_REQUIRE( hdr );                                                                                             \
        return tolmo::StringAt( hdr->items, index ).Leak();                                                            \
    }

/** SetItemAt, InsertItem, PrependItem and AppendItem: the validator in front of the copy on write. */
#define TOLMO_TOKEN_LIST_CHANGING( Type, Item, item )                                                                  \
    void tolmoHeader##Type##Set##Item##At( TolmoHeader##Type *hdr, KoInt index, KoString item )                        \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorSetStringAt( &( *hdr )->items, index, item );                                                          \
    }                                                                                                                  \
    void tolmoHeader##Type##Insert##Item( TolmoHeader##Type *hdr, KoInt index, KoString item )                         \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorInsertString( &( *hdr )->items, index, item );                                                         \
    }                                                                                                                  \
    void tolmoHeader##Type##Prepend##Item( TolmoHeader##Type *hdr, KoString item )                                     \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorPrependString( &( *hdr )->items, item );                                                               \
    }                                                                                                                  \
    void tolmoHeader##Type##Append##Item( TolmoHeader##Type *hdr, KoString item )                                      \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        KO_REQUIRE( tolmo##Item##Ok( item ) );                                                                         \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorAppendString( &( *hdr )->items, item );                                                                \
    }

/** All of them, over a line for each item. */
#define TOLMO_TOKEN_LIST( Type, Item, item )                                                                           \
    TOLMO_TOKEN_LIST_READING( Type, Item )                                                                             \
    TOLMO_TOKEN_LIST_CHANGING( Type, Item, item )                                                                      \
    TOLMO_ITEM_LIST_DELETING( Type, Item )                                                                             \
    TOLMO_ITEM_LIST_CLEARING( Type, tolmoHeader##Type##Clear##Item##s )                                                \
    TOLMO_ITEM_LIST_ENCODING( Type )

#endif
