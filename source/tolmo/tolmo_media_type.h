/* Media types (RFC 3261 section 25.1). */
#ifndef TOLMO_MEDIA_TYPE_H
#define TOLMO_MEDIA_TYPE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a media type: a token, but not the lone `*`.
 *
 *     m-type = token
 *
 * @param mediaType shared, the caller keeps its reference.
 * @pre mediaType
 */
KO_API KoBool tolmoMediaTypeOk( KoString mediaType );

/**
 * The normal form of a media type: small letters.
 *
 * @param mediaType shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoMediaTypeOk( mediaType )
 */
KO_API KoString tolmoMediaTypeNormalize( KoString mediaType );

KO_END_DECLS

#endif
