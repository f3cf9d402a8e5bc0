/* The header Accept-Resource-Priority (RFC 4412 section 3.2). */
#include <tolmo/tolmo_header_accept_resource_priority.h>

#include <tolmo/tolmo_rvalue.h>
#include <tolmo/tolmo_token_list.hpp>

struct tolmo___HeaderAcceptResourcePriority {
    ko___Obj head;
    KoVector items; // the words
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderAcceptResourcePriority::items>;
static_assert( tolmo::namesAllFields<tolmo___HeaderAcceptResourcePriority, AllFields> );

TOLMO_FREE( HeaderAcceptResourcePriority, hdr, AllFields )
TOLMO_COMPARE( HeaderAcceptResourcePriority, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( AcceptResourcePriority )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY =
    TOLMO_SORT( "TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderAcceptResourcePriority, TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY )
TOLMO_CREATE_FROM( HeaderAcceptResourcePriority, AllFields )
TOLMO_HEADER_NAME( AcceptResourcePriority, AcceptResourcePriority, "Accept-Resource-Priority" )

TolmoHeaderAcceptResourcePriority tolmoHeaderAcceptResourcePriorityCreate( void )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderAcceptResourcePriority>(
        &tolmo___sort_TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY );
    hdr.Get()->items = koVectorCreate();
    return hdr.Leak();
}

TOLMO_TOKEN_LIST_READING( AcceptResourcePriority, Rvalue )
TOLMO_TOKEN_LIST_CHANGING( AcceptResourcePriority, Rvalue, rvalue )
TOLMO_ITEM_LIST_DELETING( AcceptResourcePriority, Rvalue )
TOLMO_ITEM_LIST_CLEARING( AcceptResourcePriority, tolmoHeaderAcceptResourcePriorityClearRvalues )

TolmoMessageHeader tolmoHeaderAcceptResourcePriorityEncode( TolmoHeaderAcceptResourcePriority hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::ItemPerLineHeader( headerName, hdr->items );
}

namespace {

// Without a line there is no header, unlike Resource-Priority: this is meant.
KoRef<TolmoHeaderAcceptResourcePriority> Decode( const tolmo::Lines &lines )
{
    auto hdr = tolmo::Adopt( tolmoHeaderAcceptResourcePriorityCreate() );
    const bool good = !lines.Empty() && tolmo::CutToVector( lines, tolmo::skip::Rvalue, hdr.Get()->items );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderAcceptResourcePriority>();
}

} // namespace

TOLMO_HEADER_OPERATIONS( AcceptResourcePriority, AcceptResourcePriority )
