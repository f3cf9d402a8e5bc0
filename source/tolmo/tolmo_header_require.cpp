/* The header Require (RFC 3261 section 20.32). */
#include <tolmo/tolmo_header_require.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( Require, Require, "Require" )
TOLMO_TOKEN_SET_TYPE( Require, TOLMO_HEADER_REQUIRE )
TOLMO_TOKEN_SET( Require, OptionTag, optionTag, tolmo::Folded, tolmo::skip::Comma, ',' )
TOLMO_TOKEN_SET_CSTR_FORMS( Require, OptionTag )
TOLMO_HEADER_OPERATIONS( Require, Require )
