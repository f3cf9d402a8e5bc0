/* Instance identifiers of a user agent, the parameter `+sip.instance` (RFC 5626 section 4.1). */
#ifndef TOLMO_SIP_INSTANCE_H
#define TOLMO_SIP_INSTANCE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an instance identifier, without the quotes around it.
 *
 *     sip-instance = "<" 1*uric ">"
 *
 * @param sipInstance shared, the caller keeps its reference.
 * @pre sipInstance
 */
KO_API KoBool tolmoSipInstanceOk( KoString sipInstance );

KO_END_DECLS

#endif
