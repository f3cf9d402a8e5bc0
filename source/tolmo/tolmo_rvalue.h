/* Resource values (RFC 4412 section 3.1). */
#ifndef TOLMO_RVALUE_H
#define TOLMO_RVALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a resource value: a namespace and a priority.
 *
 *     r-value = token-nodot "." token-nodot
 *
 * @param rvalue shared, the caller keeps its reference.
 * @pre rvalue
 */
KO_API KoBool tolmoRvalueOk( KoString rvalue );

KO_END_DECLS

#endif
