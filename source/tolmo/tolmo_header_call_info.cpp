/* The header Call-Info (RFC 3261 section 20.9): where more on a party is. */
#include <tolmo/tolmo_header_call_info.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( CallInfo, CallInfo, "Call-Info" )
TOLMO_ITEM_LIST_TYPE( CallInfo, TOLMO_HEADER_CALL_INFO )
TOLMO_VALUE_LIST( CallInfo, CallInfo, CallInfo, callInfo )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderCallInfo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::CallInfo, tolmoHeaderCallInfoCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( CallInfo, CallInfo )
