/* The header Service-Route (RFC 3608): the path that a registrar tells for requests to come. */
#include <tolmo/tolmo_header_service_route.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( ServiceRoute, ServiceRoute, "Service-Route" )
TOLMO_ITEM_LIST_TYPE( ServiceRoute, TOLMO_HEADER_SERVICE_ROUTE )
TOLMO_VALUE_LIST( ServiceRoute, Route, Route, route )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderServiceRoute> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Route, tolmoHeaderServiceRouteCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ServiceRoute, ServiceRoute )
