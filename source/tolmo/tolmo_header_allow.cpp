/* The header Allow (RFC 3261 section 20.5). */
#include <tolmo/tolmo_header_allow.h>

#include <tolmo/tolmo_method.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( Allow, Allow, "Allow" )
TOLMO_TOKEN_SET_TYPE( Allow, TOLMO_HEADER_ALLOW )
TOLMO_TOKEN_SET( Allow, Method, method, tolmo::AsTheyStand, tolmo::skip::Comma, ',' )
TOLMO_TOKEN_SET_CSTR_FORMS( Allow, Method )
TOLMO_HEADER_OPERATIONS( Allow, Allow )
