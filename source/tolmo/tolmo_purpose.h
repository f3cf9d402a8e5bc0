/* Purposes of further information on a call, the parameter `purpose` (RFC 3261 section 25.1). */
#ifndef TOLMO_PURPOSE_H
#define TOLMO_PURPOSE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a purpose.
 *
 *     purpose = token
 *
 * @param purpose shared, the caller keeps its reference.
 * @pre purpose
 */
KO_API KoBool tolmoPurposeOk( KoString purpose );

/**
 * The normal form of a purpose: small letters.
 *
 * @param purpose shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoPurposeOk( purpose )
 */
KO_API KoString tolmoPurposeNormalize( KoString purpose );

KO_END_DECLS

#endif
