/* The header Resource-Priority (RFC 4412 section 3.1). */
#include <tolmo/tolmo_header_resource_priority.h>

#include <tolmo/tolmo_rvalue.h>
#include <tolmo/tolmo_token_list.hpp>

TOLMO_HEADER_NAME( ResourcePriority, ResourcePriority, "Resource-Priority" )
TOLMO_ITEM_LIST_TYPE( ResourcePriority, TOLMO_HEADER_RESOURCE_PRIORITY )
TOLMO_TOKEN_LIST( ResourcePriority, Rvalue, rvalue )

namespace {

// Without a line the list is empty, unlike in Accept-Resource-Priority: that is meant.
KoRef<TolmoHeaderResourcePriority> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLines( lines, tolmo::skip::Rvalue, tolmoHeaderResourcePriorityCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ResourcePriority, ResourcePriority )
