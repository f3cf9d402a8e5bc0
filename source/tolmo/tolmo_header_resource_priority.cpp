/* The header Resource-Priority (RFC 4412 section 3.1). */
#include <tolmo/tolmo_header_resource_priority.h>

#include <tolmo/tolmo_rvalue.h>
#include <tolmo/tolmo_token_list.hpp>

struct tolmo___HeaderResourcePriority {
    ko___Obj head;
    KoVector items; // the words
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderResourcePriority::items>;
static_assert( tolmo::namesAllFields<tolmo___HeaderResourcePriority, AllFields> );

TOLMO_FREE( HeaderResourcePriority, hdr, AllFields )
TOLMO_COMPARE( HeaderResourcePriority, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( ResourcePriority )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_RESOURCE_PRIORITY =
    TOLMO_SORT( "TOLMO_HEADER_RESOURCE_PRIORITY", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderResourcePriority, TOLMO_HEADER_RESOURCE_PRIORITY )
TOLMO_CREATE_FROM( HeaderResourcePriority, AllFields )
TOLMO_HEADER_NAME( ResourcePriority, ResourcePriority, "Resource-Priority" )

TolmoHeaderResourcePriority tolmoHeaderResourcePriorityCreate( void )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderResourcePriority>( &tolmo___sort_TOLMO_HEADER_RESOURCE_PRIORITY );
    hdr.Get()->items = koVectorCreate();
    return hdr.Leak();
}

TOLMO_TOKEN_LIST_READING( ResourcePriority, Rvalue )
TOLMO_TOKEN_LIST_CHANGING( ResourcePriority, Rvalue, rvalue )
TOLMO_ITEM_LIST_DELETING( ResourcePriority, Rvalue )
TOLMO_ITEM_LIST_CLEARING( ResourcePriority, tolmoHeaderResourcePriorityClearRvalues )

TolmoMessageHeader tolmoHeaderResourcePriorityEncode( TolmoHeaderResourcePriority hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::ItemPerLineHeader( headerName, hdr->items );
}

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderResourcePriority> Decode( const tolmo::Lines &lines )
{
    auto hdr = tolmo::Adopt( tolmoHeaderResourcePriorityCreate() );
    const bool good = tolmo::CutToVector( lines, tolmo::skip::Rvalue, hdr.Get()->items );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderResourcePriority>();
}

} // namespace

TOLMO_HEADER_OPERATIONS( ResourcePriority, ResourcePriority )
