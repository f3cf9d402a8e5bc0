/* Message identifiers of a referral (RFC 3892 section 3). */
#ifndef TOLMO_SIP_CLEAN_MSG_ID_H
#define TOLMO_SIP_CLEAN_MSG_ID_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a message identifier, without the quotes around it.
 *
 *     sip-clean-msg-id = dot-atom "@" ( dot-atom / host )    ; the longer one
 *
 * @param sipCleanMsgId shared, the caller keeps its reference.
 * @pre sipCleanMsgId
 */
KO_API KoBool tolmoSipCleanMsgIdOk( KoString sipCleanMsgId );

KO_END_DECLS

#endif
