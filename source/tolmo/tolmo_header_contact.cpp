/* The header Contact (RFC 3261 section 20.10): where its sender is reached, or `*`. */
#include <tolmo/tolmo_header_contact.h>

#include <tolmo/tolmo_item_list.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderContact {
    ko___Obj head;
    KoBool starForm; // then there are no items
    KoVector items;  // the texts of the items
};

namespace {

using HeaderContact = tolmo___HeaderContact;
using AllFields = tolmo::Fields<&HeaderContact::starForm, &HeaderContact::items>;
static_assert( tolmo::namesAllFields<HeaderContact, AllFields> );

// Without the flag: the star form and an empty list are equal, though they encode differently. That is meant.
using ComparedFields = tolmo::Fields<&HeaderContact::items>;

TOLMO_FREE( HeaderContact, hdr, AllFields )
TOLMO_COMPARE( HeaderContact, hdrA, hdrB, ComparedFields )
TOLMO_HEADER_TO_STRING( Contact )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_CONTACT =
    TOLMO_SORT( "TOLMO_HEADER_CONTACT", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderContact, TOLMO_HEADER_CONTACT )
TOLMO_CREATE_FROM( HeaderContact, AllFields )
TOLMO_HEADER_NAME( Contact, Contact, "Contact" )

TolmoHeaderContact tolmoHeaderContactCreate( void )
{
    auto hdr = tolmo::CreateObject<HeaderContact>( &tolmo___sort_TOLMO_HEADER_CONTACT );
    hdr.Get()->items = koVectorCreate();
    return hdr.Leak();
}

KoBool tolmoHeaderContactIsStarForm( TolmoHeaderContact hdr )
{
    KO_REQUIRE( hdr );
    return hdr->starForm;
}

void tolmoHeaderContactSetStarForm( TolmoHeaderContact *hdr, KoBool starForm )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContactCreateFrom );
    koVectorClear( &( *hdr )->items );
    ( *hdr )->starForm = starForm != 0;
}

TOLMO_VALUE_LIST_READING( Contact, Contact, Contact )

// Written out, as a value that goes in ends the star form first.

void tolmoHeaderContactSetContactAt( TolmoHeaderContact *hdr, KoInt index, TolmoContact contact )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContactCreateFrom );
    ( *hdr )->starForm = KO_FALSE;
    koVectorSetStringAt( &( *hdr )->items, index, tolmo::Adopt( tolmo___ContactEncode( contact ) ).Get() );
}

void tolmoHeaderContactInsertContact( TolmoHeaderContact *hdr, KoInt index, TolmoContact contact )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContactCreateFrom );
    ( *hdr )->starForm = KO_FALSE;
    tolmo::InsertString( ( *hdr )->items, index, tolmo::Adopt( tolmo___ContactEncode( contact ) ) );
}

void tolmoHeaderContactPrependContact( TolmoHeaderContact *hdr, TolmoContact contact )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContactCreateFrom );
    ( *hdr )->starForm = KO_FALSE;
    tolmo::InsertString( ( *hdr )->items, 0, tolmo::Adopt( tolmo___ContactEncode( contact ) ) );
}

void tolmoHeaderContactAppendContact( TolmoHeaderContact *hdr, TolmoContact contact )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContactCreateFrom );
    ( *hdr )->starForm = KO_FALSE;
    tolmo::AppendString( ( *hdr )->items, tolmo::Adopt( tolmo___ContactEncode( contact ) ) );
}

// The star form has no item to remove.
TOLMO_ITEM_LIST_DELETING( Contact, Contact )

void tolmoHeaderContactClear( TolmoHeaderContact *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContactCreateFrom );
    ( *hdr )->starForm = KO_FALSE;
    koVectorClear( &( *hdr )->items );
}

TolmoMessageHeader tolmoHeaderContactEncode( TolmoHeaderContact hdr )
{
    KO_REQUIRE( hdr );
    if ( hdr->starForm ) {
        return tolmo::OneLineHeader( headerName, tolmo::Adopt( koStringCreateFromCstr( "*", 1 ) ) );
    }
    return tolmo::ItemPerLineHeader( headerName, hdr->items );
}

namespace {

// STAR / ( contact-param *( COMMA contact-param ) )
// A star is looked for on the first line only, and has to be the only text of all lines. Without a line there is nothing.
KoRef<TolmoHeaderContact> Decode( const tolmo::Lines &lines )
{
    if ( lines.Empty() ) {
        return {};
    }
    auto hdr = tolmo::Adopt( tolmoHeaderContactCreate() );
    bool first = true;
    const bool good = lines.ForEach( [&]( tolmo::Text line ) {
        tolmo::Walk w( line );
        if ( first && w.Need( skip::Star ) ) {
            hdr.Get()->starForm = KO_TRUE;
        }
        first = false;
        return hdr.Get()->starForm
                   ? w.AtEnd()
                   : tolmo::CutLine( line, skip::Comma, skip::Contact, tolmo::AppendTo( hdr.Get()->items ) );
    } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderContact>();
}

} // namespace

TOLMO_HEADER_OPERATIONS( Contact, Contact )
