/* The header Privacy (RFC 3323 section 4.2). */
#include <tolmo/tolmo_header_privacy.h>

#include <tolmo/tolmo_priv_value.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderPrivacy {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderPrivacy::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderPrivacy, AllFields> );

TOLMO_FREE( HeaderPrivacy, hdr, AllFields )
TOLMO_COMPARE( HeaderPrivacy, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Privacy )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_PRIVACY =
    TOLMO_SORT( "TOLMO_HEADER_PRIVACY", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderPrivacy, TOLMO_HEADER_PRIVACY )
TOLMO_CREATE_FROM( HeaderPrivacy, AllFields )
TOLMO_HEADER_NAME( Privacy, Privacy, "Privacy" )

TOLMO_TOKEN_SET_CREATE( Privacy, TOLMO_HEADER_PRIVACY )
TOLMO_TOKEN_SET_READING( Privacy, PrivValue )
TOLMO_TOKEN_SET_CHANGING( Privacy, PrivValue, privValue, tolmo::Folded )
TOLMO_TOKEN_SET_CSTR_FORMS( Privacy, PrivValue )
TOLMO_TOKEN_SET_CODING( Privacy, tolmo::skip::PrivValue, tolmo::skip::Semi, ';', tolmo::Folded )
TOLMO_HEADER_OPERATIONS( Privacy, Privacy )
