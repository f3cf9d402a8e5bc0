/* The header Supported (RFC 3261 section 20.37). */
#include <tolmo/tolmo_header_supported.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( Supported, Supported, "Supported" )
TOLMO_TOKEN_SET_TYPE( Supported, TOLMO_HEADER_SUPPORTED )
TOLMO_TOKEN_SET( Supported, OptionTag, optionTag, tolmo::Folded, tolmo::skip::Comma, ',' )
TOLMO_TOKEN_SET_CSTR_FORMS( Supported, OptionTag )
TOLMO_HEADER_OPERATIONS( Supported, Supported )
