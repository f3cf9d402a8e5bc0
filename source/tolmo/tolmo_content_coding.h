/* Content codings (RFC 3261 section 25.1). */
#ifndef TOLMO_CONTENT_CODING_H
#define TOLMO_CONTENT_CODING_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a content coding: any token, `*` too.
 *
 *     content-coding = token
 *
 * @param contentCoding shared, the caller keeps its reference.
 * @pre contentCoding
 */
KO_API KoBool tolmoContentCodingOk( KoString contentCoding );

/**
 * The normal form of a content coding: small letters.
 *
 * @param contentCoding shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoContentCodingOk( contentCoding )
 */
KO_API KoString tolmoContentCodingNormalize( KoString contentCoding );

KO_END_DECLS

#endif
