/* The header Unsupported (RFC 3261 section 20.40). */
#include <tolmo/tolmo_header_unsupported.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderUnsupported {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderUnsupported::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderUnsupported, AllFields> );

TOLMO_FREE( HeaderUnsupported, hdr, AllFields )
TOLMO_COMPARE( HeaderUnsupported, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Unsupported )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_UNSUPPORTED =
    TOLMO_SORT( "TOLMO_HEADER_UNSUPPORTED", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderUnsupported, TOLMO_HEADER_UNSUPPORTED )
TOLMO_CREATE_FROM( HeaderUnsupported, AllFields )
TOLMO_HEADER_NAME( Unsupported, Unsupported, "Unsupported" )

TOLMO_TOKEN_SET_CREATE( Unsupported, TOLMO_HEADER_UNSUPPORTED )
TOLMO_TOKEN_SET_READING( Unsupported, OptionTag )
TOLMO_TOKEN_SET_CHANGING( Unsupported, OptionTag, optionTag, tolmo::Folded )
TOLMO_TOKEN_SET_CODING( Unsupported, tolmo::skip::OptionTag, tolmo::skip::Comma, ',', tolmo::Folded )
TOLMO_HEADER_OPERATIONS( Unsupported, Unsupported )
