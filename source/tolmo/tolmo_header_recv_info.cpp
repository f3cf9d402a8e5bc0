/* The header Recv-Info (RFC 6086 section 9): the info packages that are taken. */
#include <tolmo/tolmo_header_recv_info.h>

#include <tolmo/tolmo_item_list.hpp>

// The constant has the name of that in the unit of Info-Package, with a text of its own.
TOLMO_HEADER_NAME( RecvInfo, InfoPackageType, "Recv-Info" )
TOLMO_ITEM_LIST_TYPE( RecvInfo, TOLMO_HEADER_RECV_INFO )
TOLMO_VALUE_LIST( RecvInfo, InfoPackageType, InfoPackageType, type )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderRecvInfo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::InfoPackageType, tolmoHeaderRecvInfoCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( RecvInfo, InfoPackageType )
