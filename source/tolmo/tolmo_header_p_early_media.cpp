/* The header P-Early-Media (RFC 5009 section 8). */
#include <tolmo/tolmo_header_p_early_media.h>

#include <tolmo/tolmo_em_param.h>
#include <tolmo/tolmo_token_list.hpp>

TOLMO_HEADER_NAME( PEarlyMedia, PEarlyMedia, "P-Early-Media" )
TOLMO_ITEM_LIST_TYPE( PEarlyMedia, TOLMO_HEADER_P_EARLY_MEDIA )
TOLMO_TOKEN_LIST( PEarlyMedia, EmParam, emParam )

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderPEarlyMedia> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLines( lines, tolmo::skip::EmParam, tolmoHeaderPEarlyMediaCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( PEarlyMedia, PEarlyMedia )
