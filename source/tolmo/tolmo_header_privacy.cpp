/* The header Privacy (RFC 3323 section 4.2). */
#include <tolmo/tolmo_header_privacy.h>

#include <tolmo/tolmo_priv_value.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( Privacy, Privacy, "Privacy" )
TOLMO_TOKEN_SET_TYPE( Privacy, TOLMO_HEADER_PRIVACY )
TOLMO_TOKEN_SET( Privacy, PrivValue, privValue, tolmo::Folded, tolmo::skip::Semi, ';' )
TOLMO_TOKEN_SET_CSTR_FORMS( Privacy, PrivValue )
TOLMO_HEADER_OPERATIONS( Privacy, Privacy )
