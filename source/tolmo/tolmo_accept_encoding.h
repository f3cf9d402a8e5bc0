/* One item of an Accept-Encoding header: a content coding (RFC 3261 section 20.2). */
#ifndef TOLMO_ACCEPT_ENCODING_H
#define TOLMO_ACCEPT_ENCODING_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of an acceptable coding. */
typedef struct tolmo___AcceptEncoding *TolmoAcceptEncoding;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoAcceptEncodingSort( void );
KO_API KoObj tolmoAcceptEncodingObj( TolmoAcceptEncoding acceptEncoding );
KO_API TolmoAcceptEncoding tolmoAcceptEncodingFrom( KoObj obj );
KO_API TolmoAcceptEncoding tolmoAcceptEncodingRetain( TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoAcceptEncodingRelease( TolmoAcceptEncoding acceptEncoding );
KO_API KoInt tolmoAcceptEncodingCompare( TolmoAcceptEncoding a, TolmoAcceptEncoding b );
KO_API KoBool tolmoAcceptEncodingEquals( TolmoAcceptEncoding a, TolmoAcceptEncoding b );
KO_API KoString tolmoAcceptEncodingToString( TolmoAcceptEncoding acceptEncoding );
KO_API TolmoAcceptEncoding tolmoAcceptEncodingCreateFrom( TolmoAcceptEncoding source );
/** @} */

/** All codings, without parameters. @return new reference. */
KO_API TolmoAcceptEncoding tolmoAcceptEncodingCreate( void );

/**
 * One coding, without parameters.
 *
 * @param contentCoding shared, the caller keeps its reference; its normal form is stored.
 * @return new reference.
 * @pre tolmoContentCodingOk( contentCoding ) (the normaliser's)
 */
KO_API TolmoAcceptEncoding tolmoAcceptEncodingCreateWithContentCoding( KoString contentCoding );

/** @name Coding
 * Absent in what stands for all codings, and goes out as `*`. But a star that was decoded is a coding of that name: the
 * two are not equal. In small letters. The getter returns a new reference, or null; of what the setter gets the normal
 * form is stored.
 * @param acceptEncoding for a setter: address of the caller's handle, which may be replaced.
 * @pre acceptEncoding, for a setter then *acceptEncoding
 * @pre tolmoContentCodingOk( contentCoding ) (the normaliser's, behind the copy on write) @{ */
KO_API KoBool tolmoAcceptEncodingHasContentCoding( TolmoAcceptEncoding acceptEncoding );
KO_API KoString tolmoAcceptEncodingContentCoding( TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoAcceptEncodingSetContentCoding( TolmoAcceptEncoding *acceptEncoding, KoString contentCoding );
KO_API void tolmoAcceptEncodingDelContentCoding( TolmoAcceptEncoding *acceptEncoding );
/** @} */

/** @name Parameter q
 * Optional: thousandths, 0 to 1000; -1 when absent.
 * @param acceptEncoding for a setter: address of the caller's handle, which may be replaced.
 * @pre acceptEncoding, for a setter then *acceptEncoding
 * @pre tolmoQvalueOk( qvalue ) @{ */
KO_API KoBool tolmoAcceptEncodingHasQvalue( TolmoAcceptEncoding acceptEncoding );
KO_API KoInt tolmoAcceptEncodingQvalue( TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoAcceptEncodingSetQvalue( TolmoAcceptEncoding *acceptEncoding, KoInt qvalue );
KO_API void tolmoAcceptEncodingDelQvalue( TolmoAcceptEncoding *acceptEncoding );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference; what
 * the setter gets is shared, the caller keeps its reference.
 * @param acceptEncoding for a setter: address of the caller's handle, which may be replaced.
 * @pre acceptEncoding, for a setter then *acceptEncoding
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoAcceptEncodingGenericParams( TolmoAcceptEncoding acceptEncoding );
KO_API void tolmoAcceptEncodingSetGenericParams( TolmoAcceptEncoding *acceptEncoding,
                                                 TolmoGenericParams genericParams );
/** @} */

/** The wire text: the coding, `q` with three decimal places, then all other parameters. @return new reference.
 * @pre acceptEncoding */
KO_API KoString tolmo___AcceptEncodingEncode( TolmoAcceptEncoding acceptEncoding );

/**
 * Decodes exactly one item.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoAcceptEncoding tolmo___AcceptEncodingTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
