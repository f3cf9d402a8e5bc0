/* The header Via (RFC 3261 section 20.42): the list of the hops that a message took. */
#include <tolmo/tolmo_header_via.h>

#include <tolmo/tolmo_item_list.hpp>

struct tolmo___HeaderVia {
    ko___Obj head;
    KoVector items; // the texts of the items
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderVia::items>;
static_assert( tolmo::namesAllFields<tolmo___HeaderVia, AllFields> );

TOLMO_FREE( HeaderVia, hdr, AllFields )
TOLMO_COMPARE( HeaderVia, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Via )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_VIA = TOLMO_SORT( "TOLMO_HEADER_VIA", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderVia, TOLMO_HEADER_VIA )
TOLMO_CREATE_FROM( HeaderVia, AllFields )
TOLMO_HEADER_NAME( Via, Via, "Via" )

TolmoHeaderVia tolmoHeaderViaCreate( void )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderVia>( &tolmo___sort_TOLMO_HEADER_VIA );
    hdr.Get()->items = koVectorCreate();
    return hdr.Leak();
}

TOLMO_VALUE_LIST_READING( Via, Via, Via )
TOLMO_VALUE_LIST_CHANGING( Via, Via, Via, via )
TOLMO_ITEM_LIST_DELETING( Via, Via )
TOLMO_ITEM_LIST_CLEARING( Via, tolmoHeaderViaClearVias )

TolmoMessageHeader tolmoHeaderViaEncode( TolmoHeaderVia hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::ItemPerLineHeader( headerName, hdr->items );
}

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderVia> Decode( const tolmo::Lines &lines )
{
    auto hdr = tolmo::Adopt( tolmoHeaderViaCreate() );
    return tolmo::CutToVector( lines, tolmo::skip::Via, hdr.Get()->items ) ? std::move( hdr ) : KoRef<TolmoHeaderVia>();
}

} // namespace

TOLMO_HEADER_OPERATIONS( Via, Via )
