/* The header Alert-Info (RFC 3261 section 20.4): where other ring tones are. */
#include <tolmo/tolmo_header_alert_info.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( AlertInfo, AlertInfo, "Alert-Info" )
TOLMO_ITEM_LIST_TYPE( AlertInfo, TOLMO_HEADER_ALERT_INFO )
TOLMO_VALUE_LIST( AlertInfo, AlertInfo, AlertInfo, alertInfo )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderAlertInfo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::AlertInfo, tolmoHeaderAlertInfoCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( AlertInfo, AlertInfo )
