/* The header Require (RFC 3261 section 20.32). */
#include <tolmo/tolmo_header_require.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderRequire {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderRequire::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderRequire, AllFields> );

TOLMO_FREE( HeaderRequire, hdr, AllFields )
TOLMO_COMPARE( HeaderRequire, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Require )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_REQUIRE =
    TOLMO_SORT( "TOLMO_HEADER_REQUIRE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderRequire, TOLMO_HEADER_REQUIRE )
TOLMO_CREATE_FROM( HeaderRequire, AllFields )
TOLMO_HEADER_NAME( Require, Require, "Require" )

TOLMO_TOKEN_SET_CREATE( Require, TOLMO_HEADER_REQUIRE )
TOLMO_TOKEN_SET_READING( Require, OptionTag )
TOLMO_TOKEN_SET_CHANGING( Require, OptionTag, optionTag, tolmo::Folded )
TOLMO_TOKEN_SET_CSTR_FORMS( Require, OptionTag )
TOLMO_TOKEN_SET_CODING( Require, tolmo::skip::OptionTag, tolmo::skip::Comma, ',', tolmo::Folded )
TOLMO_HEADER_OPERATIONS( Require, Require )
