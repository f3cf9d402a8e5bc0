/* The header In-Reply-To (RFC 3261 section 20.21). */
#include <tolmo/tolmo_header_in_reply_to.h>

#include <tolmo/tolmo_call_id.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderInReplyTo {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderInReplyTo::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderInReplyTo, AllFields> );

TOLMO_FREE( HeaderInReplyTo, hdr, AllFields )
TOLMO_COMPARE( HeaderInReplyTo, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( InReplyTo )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_IN_REPLY_TO =
    TOLMO_SORT( "TOLMO_HEADER_IN_REPLY_TO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderInReplyTo, TOLMO_HEADER_IN_REPLY_TO )
TOLMO_CREATE_FROM( HeaderInReplyTo, AllFields )
TOLMO_HEADER_NAME( InReplyTo, InReplyTo, "In-Reply-To" )

TOLMO_TOKEN_SET_CREATE( InReplyTo, TOLMO_HEADER_IN_REPLY_TO )
TOLMO_TOKEN_SET_READING( InReplyTo, CallId )
TOLMO_TOKEN_SET_CHANGING( InReplyTo, CallId, callId, tolmo::AsTheyStand )
TOLMO_TOKEN_SET_CODING( InReplyTo, tolmo::skip::CallId, tolmo::skip::Comma, ',', tolmo::AsTheyStand )
TOLMO_HEADER_OPERATIONS( InReplyTo, InReplyTo )
