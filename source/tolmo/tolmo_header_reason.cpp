/* The header Reason (RFC 3326 section 2): why a request was sent. */
#include <tolmo/tolmo_header_reason.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( Reason, Reason, "Reason" )
TOLMO_ITEM_LIST_TYPE( Reason, TOLMO_HEADER_REASON )
TOLMO_VALUE_LIST( Reason, Reason, Reason, reason )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderReason> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Reason, tolmoHeaderReasonCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Reason, Reason )
