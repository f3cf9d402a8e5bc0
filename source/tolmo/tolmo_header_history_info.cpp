/* The header History-Info (RFC 7044 section 5): the targets that a request had. */
#include <tolmo/tolmo_header_history_info.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( HistoryInfo, HistoryInfo, "History-Info" )
TOLMO_ITEM_LIST_TYPE( HistoryInfo, TOLMO_HEADER_HISTORY_INFO )
TOLMO_VALUE_LIST( HistoryInfo, HistoryInfo, HistoryInfo, hi )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderHistoryInfo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::HistoryInfo, tolmoHeaderHistoryInfoCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( HistoryInfo, HistoryInfo )
