/* The header P-Asserted-Identity (RFC 3325 section 9.1): who has sent a message, as a trusted network knows it. */
#include <tolmo/tolmo_header_p_asserted_identity.h>

#include <tolmo/tolmo_identity_list.hpp>

TOLMO_HEADER_NAME( PAssertedIdentity, PAssertedIdentity, "P-Asserted-Identity" )
TOLMO_ITEM_LIST_TYPE( PAssertedIdentity, TOLMO_HEADER_P_ASSERTED_IDENTITY )
TOLMO_IDENTITY_LIST( PAssertedIdentity )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderPAssertedIdentity> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::IdentityValue, tolmoHeaderPAssertedIdentityCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( PAssertedIdentity, PAssertedIdentity )
