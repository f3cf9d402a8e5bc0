/* The header Via (RFC 3261 section 20.42): the list of the hops that a message took. */
#include <tolmo/tolmo_header_via.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( Via, Via, "Via" )
TOLMO_ITEM_LIST_TYPE( Via, TOLMO_HEADER_VIA )
TOLMO_VALUE_LIST( Via, Via, Via, via )

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderVia> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLines( lines, tolmo::skip::Via, tolmoHeaderViaCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Via, Via )
