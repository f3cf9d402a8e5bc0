/* The header In-Reply-To (RFC 3261 section 20.21). */
#include <tolmo/tolmo_header_in_reply_to.h>

#include <tolmo/tolmo_call_id.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( InReplyTo, InReplyTo, "In-Reply-To" )
TOLMO_TOKEN_SET_TYPE( InReplyTo, TOLMO_HEADER_IN_REPLY_TO )
TOLMO_TOKEN_SET( InReplyTo, CallId, callId, tolmo::AsTheyStand, tolmo::skip::Comma, ',' )
TOLMO_HEADER_OPERATIONS( InReplyTo, InReplyTo )
