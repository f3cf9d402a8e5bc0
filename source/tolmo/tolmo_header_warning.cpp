/* The header Warning (RFC 3261 section 20.43): what went wrong with a body. */
#include <tolmo/tolmo_header_warning.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( Warning, Warning, "Warning" )
TOLMO_ITEM_LIST_TYPE( Warning, TOLMO_HEADER_WARNING )
TOLMO_VALUE_LIST_READING( Warning, Warning, WarningValue )

// The changes test the value themselves, in front of the copy on write: only this list does.
void tolmoHeaderWarningSetWarningAt( TolmoHeaderWarning *hdr, KoInt index, TolmoWarningValue warning )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( warning );
    tolmo::MakeUnique( hdr, tolmoHeaderWarningCreateFrom );
    koVectorSetStringAt( &( *hdr )->items, index, tolmo::Adopt( tolmo___WarningValueEncode( warning ) ).Get() );
}

void tolmoHeaderWarningInsertWarning( TolmoHeaderWarning *hdr, KoInt index, TolmoWarningValue warning )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( warning );
    tolmo::MakeUnique( hdr, tolmoHeaderWarningCreateFrom );
    tolmo::InsertString( ( *hdr )->items, index, tolmo::Adopt( tolmo___WarningValueEncode( warning ) ) );
}

void tolmoHeaderWarningPrependWarning( TolmoHeaderWarning *hdr, TolmoWarningValue warning )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( warning );
    tolmo::MakeUnique( hdr, tolmoHeaderWarningCreateFrom );
    tolmo::InsertString( ( *hdr )->items, 0, tolmo::Adopt( tolmo___WarningValueEncode( warning ) ) );
}

void tolmoHeaderWarningAppendWarning( TolmoHeaderWarning *hdr, TolmoWarningValue warning )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( warning );
    tolmo::MakeUnique( hdr, tolmoHeaderWarningCreateFrom );
    tolmo::AppendString( ( *hdr )->items, tolmo::Adopt( tolmo___WarningValueEncode( warning ) ) );
}

TOLMO_ITEM_LIST_DELETING( Warning, Warning )
TOLMO_ITEM_LIST_CLEARING( Warning, tolmoHeaderWarningWarningsClear ) // not ClearWarnings, as the pattern has it
TOLMO_ITEM_LIST_ENCODING( Warning )

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderWarning> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLines( lines, tolmo::skip::WarningValue, tolmoHeaderWarningCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Warning, Warning )
