/* Tokens without dots (RFC 6665 section 8.4). */
#ifndef TOLMO_TOKEN_NODOT_H
#define TOLMO_TOKEN_NODOT_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a whole token without dots.
 *
 *     token-nodot = 1*( alphanum / "-" / "!" / "%" / "*" / "_" / "+" / "`" / "'" / "~" )
 *
 * @param tokenNodot shared, the caller keeps its reference.
 * @pre tokenNodot
 */
KO_API KoBool tolmoTokenNodotOk( KoString tokenNodot );

/**
 * The normal form of a token without dots: small letters.
 *
 * @param tokenNodot shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoTokenNodotOk( tokenNodot )
 */
KO_API KoString tolmoTokenNodotNormalize( KoString tokenNodot );

KO_END_DECLS

#endif
