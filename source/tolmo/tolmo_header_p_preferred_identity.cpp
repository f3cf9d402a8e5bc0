/* The header P-Preferred-Identity (RFC 3325 section 9.2): which of its identities a user wants asserted. */
#include <tolmo/tolmo_header_p_preferred_identity.h>

#include <tolmo/tolmo_identity_list.hpp>

TOLMO_HEADER_NAME( PPreferredIdentity, PPreferredIdentity, "P-Preferred-Identity" )
TOLMO_ITEM_LIST_TYPE( PPreferredIdentity, TOLMO_HEADER_P_PREFERRED_IDENTITY )
TOLMO_IDENTITY_LIST( PPreferredIdentity )

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderPPreferredIdentity> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::IdentityValue, tolmoHeaderPPreferredIdentityCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( PPreferredIdentity, PPreferredIdentity )
