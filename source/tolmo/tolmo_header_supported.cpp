/* The header Supported (RFC 3261 section 20.37). */
#include <tolmo/tolmo_header_supported.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderSupported {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderSupported::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderSupported, AllFields> );

TOLMO_FREE( HeaderSupported, hdr, AllFields )
TOLMO_COMPARE( HeaderSupported, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Supported )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_SUPPORTED =
    TOLMO_SORT( "TOLMO_HEADER_SUPPORTED", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderSupported, TOLMO_HEADER_SUPPORTED )
TOLMO_CREATE_FROM( HeaderSupported, AllFields )
TOLMO_HEADER_NAME( Supported, Supported, "Supported" )

TOLMO_TOKEN_SET_CREATE( Supported, TOLMO_HEADER_SUPPORTED )
TOLMO_TOKEN_SET_READING( Supported, OptionTag )
TOLMO_TOKEN_SET_CHANGING( Supported, OptionTag, optionTag, tolmo::Folded )
TOLMO_TOKEN_SET_CSTR_FORMS( Supported, OptionTag )
TOLMO_TOKEN_SET_CODING( Supported, tolmo::skip::OptionTag, tolmo::skip::Comma, ',', tolmo::Folded )
TOLMO_HEADER_OPERATIONS( Supported, Supported )
