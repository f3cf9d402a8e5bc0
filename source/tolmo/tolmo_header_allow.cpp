/* The header Allow (RFC 3261 section 20.5). */
#include <tolmo/tolmo_header_allow.h>

#include <tolmo/tolmo_method.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderAllow {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderAllow::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderAllow, AllFields> );

TOLMO_FREE( HeaderAllow, hdr, AllFields )
TOLMO_COMPARE( HeaderAllow, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Allow )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_ALLOW = TOLMO_SORT( "TOLMO_HEADER_ALLOW", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderAllow, TOLMO_HEADER_ALLOW )
TOLMO_CREATE_FROM( HeaderAllow, AllFields )
TOLMO_HEADER_NAME( Allow, Allow, "Allow" )

TOLMO_TOKEN_SET_CREATE( Allow, TOLMO_HEADER_ALLOW )
TOLMO_TOKEN_SET_READING( Allow, Method )
TOLMO_TOKEN_SET_CHANGING( Allow, Method, method, tolmo::AsTheyStand )
TOLMO_TOKEN_SET_CSTR_FORMS( Allow, Method )
TOLMO_TOKEN_SET_CODING( Allow, tolmo::skip::Method, tolmo::skip::Comma, ',', tolmo::AsTheyStand )
TOLMO_HEADER_OPERATIONS( Allow, Allow )
