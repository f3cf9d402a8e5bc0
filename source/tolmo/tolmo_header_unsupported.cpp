/* The header Unsupported (RFC 3261 section 20.40). */
#include <tolmo/tolmo_header_unsupported.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( Unsupported, Unsupported, "Unsupported" )
TOLMO_TOKEN_SET_TYPE( Unsupported, TOLMO_HEADER_UNSUPPORTED )
TOLMO_TOKEN_SET( Unsupported, OptionTag, optionTag, tolmo::Folded, tolmo::skip::Comma, ',' )
TOLMO_HEADER_OPERATIONS( Unsupported, Unsupported )
