/* Early-media parameters (RFC 5009). */
#ifndef TOLMO_EM_PARAM_H
#define TOLMO_EM_PARAM_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an early-media parameter.
 *
 *     em-param = token
 *
 * @param emParam shared, the caller keeps its reference.
 * @pre emParam
 */
KO_API KoBool tolmoEmParamOk( KoString emParam );

KO_END_DECLS

#endif
