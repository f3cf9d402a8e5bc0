/* Tags of From and To (RFC 3261 section 25.1). */
#ifndef TOLMO_TAG_H
#define TOLMO_TAG_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a tag.
 *
 *     tag = token
 *
 * @param tag shared, the caller keeps its reference.
 * @pre token
 */
KO_API KoBool tolmoTagOk( KoString tag );

KO_END_DECLS

#endif
