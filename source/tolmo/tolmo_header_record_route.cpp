/* The header Record-Route (RFC 3261 section 20.30): the proxies that stay in the path of a dialog. */
#include <tolmo/tolmo_header_record_route.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( RecordRoute, RecordRoute, "Record-Route" )
TOLMO_ITEM_LIST_TYPE( RecordRoute, TOLMO_HEADER_RECORD_ROUTE )
TOLMO_VALUE_LIST( RecordRoute, Route, Route, route )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderRecordRoute> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Route, tolmoHeaderRecordRouteCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( RecordRoute, RecordRoute )
