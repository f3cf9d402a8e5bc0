/* Endpoint identifiers, the parameter `epid` of From and To. */
#ifndef TOLMO_EPID_H
#define TOLMO_EPID_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an endpoint identifier.
 *
 *     epid = 1*16( token character )
 *
 * @param epid shared, the caller keeps its reference.
 * @pre epid
 */
KO_API KoBool tolmoEpidOk( KoString epid );

KO_END_DECLS

#endif
