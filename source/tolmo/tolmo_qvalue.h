/* Quality values, in thousandths (RFC 3261 section 25.1). */
#ifndef TOLMO_QVALUE_H
#define TOLMO_QVALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** True for a quality value: 0 to 1000 thousandths. */
KO_API KoBool tolmoQvalueOk( KoInt qvalue );

/**
 * The wire form of a quality value, always with three decimal places: `0.500` for 500.
 *
 * @return new reference.
 * @pre tolmoQvalueOk( qvalue )
 */
KO_API KoString tolmo___QvalueEncode( KoInt qvalue );

/**
 * The thousandths that a quality value on the wire tells; -1 when the text is none. The empty text tells 0.
 *
 *     qvalue = ( "0" [ "." *3DIGIT ] ) / ( "1" [ "." *3"0" ] )
 *
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API KoInt tolmo___QvalueTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
