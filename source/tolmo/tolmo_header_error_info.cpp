/* The header Error-Info (RFC 3261 section 20.18): where more on an error is. */
#include <tolmo/tolmo_header_error_info.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( ErrorInfo, ErrorInfo, "Error-Info" )
TOLMO_ITEM_LIST_TYPE( ErrorInfo, TOLMO_HEADER_ERROR_INFO )
TOLMO_VALUE_LIST( ErrorInfo, ErrorInfo, ErrorInfo, errorInfo )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderErrorInfo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::ErrorInfo, tolmoHeaderErrorInfoCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ErrorInfo, ErrorInfo )
