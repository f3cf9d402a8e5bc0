/* The header Accept-Encoding (RFC 3261 section 20.2): the codings that a sender takes. */
#include <tolmo/tolmo_header_accept_encoding.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( AcceptEncoding, AcceptEncoding, "Accept-Encoding" )
TOLMO_ITEM_LIST_TYPE( AcceptEncoding, TOLMO_HEADER_ACCEPT_ENCODING )
TOLMO_VALUE_LIST( AcceptEncoding, AcceptEncoding, AcceptEncoding, acceptEncoding )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderAcceptEncoding> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::AcceptEncoding, tolmoHeaderAcceptEncodingCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( AcceptEncoding, AcceptEncoding )
