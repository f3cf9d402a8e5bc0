/* Tokens (RFC 3261 section 25.1). */
#ifndef TOLMO_TOKEN_H
#define TOLMO_TOKEN_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a whole token.
 *
 *     token = 1*( alphanum / "-" / "." / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
 *
 * @param token shared, the caller keeps its reference.
 * @pre token
 */
KO_API KoBool tolmoTokenOk( KoString token );

/**
 * The normal form of a token: small letters.
 *
 * @param token shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoTokenOk( token )
 */
KO_API KoString tolmoTokenNormalize( KoString token );

KO_END_DECLS

#endif
