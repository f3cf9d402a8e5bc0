/* The header Route (RFC 3261 section 20.34): the hops that a message has yet to pass. */
#include <tolmo/tolmo_header_route.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( Route, Route, "Route" )
TOLMO_ITEM_LIST_TYPE( Route, TOLMO_HEADER_ROUTE )
TOLMO_VALUE_LIST( Route, Route, Route, route )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderRoute> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Route, tolmoHeaderRouteCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Route, Route )
