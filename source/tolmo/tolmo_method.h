/* Methods (RFC 3261 section 25.1). */
#ifndef TOLMO_METHOD_H
#define TOLMO_METHOD_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a method; its case matters.
 *
 *     Method = token
 *
 * @param method shared, the caller keeps its reference.
 * @pre method
 */
KO_API KoBool tolmoMethodOk( KoString method );

KO_END_DECLS

#endif
