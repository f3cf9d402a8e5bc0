/* The header Accept (RFC 3261 section 20.1): the media types that a sender takes. */
#include <tolmo/tolmo_header_accept.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( Accept, Accept, "Accept" )
TOLMO_ITEM_LIST_TYPE( Accept, TOLMO_HEADER_ACCEPT )
TOLMO_VALUE_LIST( Accept, Accept, Accept, accept )

namespace {

// Without a line there is no list. What the skip function counts of an item are its parameters alone, so that each line
// that is not empty is refused, also those of the encoder: that is meant.
KoRef<TolmoHeaderAccept> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Accept, tolmoHeaderAcceptCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Accept, Accept )
