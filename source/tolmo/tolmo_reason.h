/* One item of a Reason header: a protocol, a cause, a text (RFC 3326 section 2). */
#ifndef TOLMO_REASON_H
#define TOLMO_REASON_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a reason. */
typedef struct tolmo___Reason *TolmoReason;

/** @name Standard operations
 * See docs/objects.md. The sort has neither a compare function nor a to-string function: two reasons are equal
 * only if they are one object, and the text is not that of the wire. @{ */
KO_API KoSort tolmoReasonSort( void );
KO_API KoObj tolmoReasonObj( TolmoReason reason );
KO_API TolmoReason tolmoReasonFrom( KoObj obj );
KO_API TolmoReason tolmoReasonRetain( TolmoReason reason );
KO_API void tolmoReasonRelease( TolmoReason reason );
KO_API KoInt tolmoReasonCompare( TolmoReason a, TolmoReason b );
KO_API KoBool tolmoReasonEquals( TolmoReason a, TolmoReason b );
KO_API KoString tolmoReasonToString( TolmoReason reason );
KO_API TolmoReason tolmoReasonCreateFrom( TolmoReason source );
/** @} */

/**
 * A new reason with a protocol alone.
 *
 * @param protocol shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoReasonProtocolOk( protocol )
 */
KO_API TolmoReason tolmoReasonCreate( KoString protocol );

/** @name Protocol
 * Always there: a token in its case. The getter returns a new reference.
 * @param reason for a setter: address of the caller's handle, which may be replaced.
 * @param protocol shared, the caller keeps its reference.
 * @pre reason, for a setter then *reason
 * @pre tolmoReasonProtocolOk( protocol ) @{ */
KO_API KoString tolmoReasonProtocol( TolmoReason reason );
KO_API void tolmoReasonSetProtocol( TolmoReason *reason, KoString protocol );
/** @} */

/** @name Parameter cause
 * Optional: digits, kept as text with their leading zeros. The getter returns a new reference, or null.
 * @param reason for a change: address of the caller's handle, which may be replaced.
 * @param cause shared, the caller keeps its reference.
 * @pre reason, for a change then *reason
 * @pre tolmoReasonCauseOk( cause ) @{ */
KO_API KoBool tolmoReasonHasCause( TolmoReason reason );
KO_API KoString tolmoReasonCause( TolmoReason reason );
KO_API void tolmoReasonSetCause( TolmoReason *reason, KoString cause );
KO_API void tolmoReasonDelCause( TolmoReason *reason );
/** @} */

/** @name Parameter text
 * Optional: the text without quotes and escapes; it may be empty. The getter returns a new reference, or null.
 * @param reason for a change: address of the caller's handle, which may be replaced.
 * @param text shared, the caller keeps its reference.
 * @pre reason, for a change then *reason
 * @pre tolmoReasonTextOk( text ) @{ */
KO_API KoBool tolmoReasonHasText( TolmoReason reason );
KO_API KoString tolmoReasonText( TolmoReason reason );
KO_API void tolmoReasonSetText( TolmoReason *reason, KoString text );
KO_API void tolmoReasonDelText( TolmoReason *reason );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param reason for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre reason, for the setter then *reason
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoReasonGenericParams( TolmoReason reason );
KO_API void tolmoReasonSetGenericParams( TolmoReason *reason, TolmoGenericParams genericParams );
/** @} */

/** The wire text: protocol, cause, text in quotes, all other parameters.
 * @return new reference. @pre reason */
KO_API KoString tolmo___ReasonEncode( TolmoReason reason );

/**
 * Decodes exactly one item.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoReason tolmo___ReasonTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
