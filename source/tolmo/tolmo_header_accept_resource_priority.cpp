/* The header Accept-Resource-Priority (RFC 4412 section 3.2). */
#include <tolmo/tolmo_header_accept_resource_priority.h>

#include <tolmo/tolmo_rvalue.h>
#include <tolmo/tolmo_token_list.hpp>

TOLMO_HEADER_NAME( AcceptResourcePriority, AcceptResourcePriority, "Accept-Resource-Priority" )
TOLMO_ITEM_LIST_TYPE( AcceptResourcePriority, TOLMO_HEADER_ACCEPT_RESOURCE_PRIORITY )
TOLMO_TOKEN_LIST( AcceptResourcePriority, Rvalue, rvalue )

namespace {

// Without a line there is no list, unlike in Resource-Priority: that is meant.
KoRef<TolmoHeaderAcceptResourcePriority> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Rvalue, tolmoHeaderAcceptResourcePriorityCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( AcceptResourcePriority, AcceptResourcePriority )
