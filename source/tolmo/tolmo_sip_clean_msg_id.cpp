/* Message identifiers of a referral (RFC 3892 section 3). */
#include <tolmo/tolmo_sip_clean_msg_id.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoSipCleanMsgIdOk( KoString sipCleanMsgId )
{
    KO_REQUIRE( sipCleanMsgId );
    return tolmo::IsWhole( sipCleanMsgId, tolmo::skip::SipCleanMsgId );
}
