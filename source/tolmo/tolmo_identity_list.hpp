/* What the two lists of identities share: P-Asserted-Identity and P-Preferred-Identity (RFC 3325 section 9). */
#ifndef TOLMO_IDENTITY_LIST_HPP
#define TOLMO_IDENTITY_LIST_HPP

#include <tolmo/tolmo_identity_value.h>
#include <tolmo/tolmo_item_list.hpp>

/**
 * The operations of a list of identities. They differ from those of all other value lists in one point, and that is
 * meant: a value that goes in is encoded, and so tested for null, in front of the copy on write.
 */
#define TOLMO_IDENTITY_LIST( Type )                                                                                    \
    TOLMO_VALUE_LIST_READING( Type, IdentityValue, IdentityValue )                                                     \
    void tolmoHeader##Type##SetIdentityValueAt( TolmoHeader##Type *hdr, KoInt index, TolmoIdentityValue id )           \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        const auto item = tolmo::Adopt( tolmo___IdentityValueEncode( id ) );                                           \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorSetStringAt( &( *hdr )->items, index, item.Get() );                                                    \
    }                                                                                                                  \
    void tolmoHeader##Type##InsertIdentityValue( TolmoHeader##Type *hdr, KoInt index, TolmoIdentityValue id )          \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        const auto item = tolmo::Adopt( tolmo___IdentityValueEncode( id ) );                                           \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorInsertString( &( *hdr )->items, index, item.Get() );                                                   \
    }                                                                                                                  \
    void tolmoHeader##Type##PrependIdentityValue( TolmoHeader##Type *hdr, TolmoIdentityValue id )                      \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        const auto item = tolmo::Adopt( tolmo___IdentityValueEncode( id ) );                                           \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorPrependString( &( *hdr )->items, item.Get() );                                                         \
    }                                                                                                                  \
    void tolmoHeader##Type##AppendIdentityValue( TolmoHeader##Type *hdr, TolmoIdentityValue id )                       \
    {                                                                                                                  \
        KO_REQUIRE_HANDLE( hdr );                                                                                      \
        const auto item = tolmo::Adopt( tolmo___IdentityValueEncode( id ) );                                           \
        tolmo::MakeUnique( hdr, tolmoHeader##Type##CreateFrom );                                                       \
        koVectorAppendString( &( *hdr )->items, item.Get() );                                                          \
    }                                                                                                                  \
    TOLMO_ITEM_LIST_DELETING( Type, IdentityValue )                                                                    \
    TOLMO_ITEM_LIST_CLEARING( Type, tolmoHeader##Type##ClearIdentityValues )                                           \
    TOLMO_ITEM_LIST_ENCODING( Type )

#endif
