/* Privacy types (RFC 3323 section 4.2). */
#ifndef TOLMO_PRIV_VALUE_H
#define TOLMO_PRIV_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a privacy type.
 *
 *     priv-value = token
 *
 * @param privValue shared, the caller keeps its reference.
 * @pre privValue
 */
KO_API KoBool tolmoPrivValueOk( KoString privValue );

/**
 * The normal form of a privacy type: small letters.
 *
 * @param privValue shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoPrivValueOk( privValue )
 */
KO_API KoString tolmoPrivValueNormalize( KoString privValue );

KO_END_DECLS

#endif
