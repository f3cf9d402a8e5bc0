/* One item of a Warning header: a code, an agent, a text (RFC 3261 section 20.43). */
#ifndef TOLMO_WARNING_VALUE_H
#define TOLMO_WARNING_VALUE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** Handle of a warning. */
typedef struct tolmo___WarningValue *TolmoWarningValue;

/** @name Standard operations
 * See docs/objects.md. The sort has no to-string function: the text is not that of the wire. @{ */
KO_API KoSort tolmoWarningValueSort( void );
KO_API KoObj tolmoWarningValueObj( TolmoWarningValue wv );
KO_API TolmoWarningValue tolmoWarningValueFrom( KoObj obj );
KO_API TolmoWarningValue tolmoWarningValueRetain( TolmoWarningValue wv );
KO_API void tolmoWarningValueRelease( TolmoWarningValue wv );
KO_API KoInt tolmoWarningValueCompare( TolmoWarningValue a, TolmoWarningValue b );
KO_API KoBool tolmoWarningValueEquals( TolmoWarningValue a, TolmoWarningValue b );
KO_API KoString tolmoWarningValueToString( TolmoWarningValue wv );
KO_API TolmoWarningValue tolmoWarningValueCreateFrom( TolmoWarningValue source );
/** @} */

/** @name Creation
 * With the default text of the code, or with a text of its own. What goes in is shared, the caller keeps its
 * references.
 * @return new reference.
 * @pre tolmoWarnCodeOk( warnCode )
 * @pre tolmoWarnAgentOk( warnAgent )
 * @pre tolmoWarnTextOk( warnText ) @{ */
KO_API TolmoWarningValue tolmoWarningValueCreate( KoInt warnCode, KoString warnAgent );
KO_API TolmoWarningValue tolmoWarningValueCreateWithWarnText( KoInt warnCode, KoString warnAgent, KoString warnText );
/** @} */

/** @name Code
 * Always there: 0 to 999. With `updateWarnText` the text becomes the default text of the new code; without, it stays
 * as it is, whatever it says.
 * @param wv for the setter: address of the caller's handle, which may be replaced.
 * @pre wv, for the setter then *wv
 * @pre tolmoWarnCodeOk( warnCode ) @{ */
KO_API KoInt tolmoWarningValueWarnCode( TolmoWarningValue wv );
KO_API void tolmoWarningValueSetWarnCode( TolmoWarningValue *wv, KoInt warnCode, KoBool updateWarnText );
/** @} */

/** @name Agent
 * Always there: a host, a host and a port, or a token. The getter returns a new reference.
 * @param wv for a setter: address of the caller's handle, which may be replaced.
 * @param warnAgent shared, the caller keeps its reference.
 * @pre wv, for a setter then *wv
 * @pre tolmoWarnAgentOk( warnAgent ) @{ */
KO_API KoString tolmoWarningValueWarnAgent( TolmoWarningValue wv );
KO_API void tolmoWarningValueSetWarnAgent( TolmoWarningValue *wv, KoString warnAgent );
/** @} */

/** @name Text
 * Always there: without quotes and escapes. The getter returns a new reference.
 * @param wv for a setter: address of the caller's handle, which may be replaced.
 * @param warnText shared, the caller keeps its reference.
 * @pre wv, for a setter then *wv
 * @pre tolmoWarnTextOk( warnText ) @{ */
KO_API KoString tolmoWarningValueWarnText( TolmoWarningValue wv );
KO_API void tolmoWarningValueSetWarnText( TolmoWarningValue *wv, KoString warnText );
/** @} */

/** The wire text. A code below 100 goes out with fewer than three digits, and such a text does not decode.
 * @return new reference. @pre wv */
KO_API KoString tolmo___WarningValueEncode( TolmoWarningValue wv );

/**
 * Decodes an item. Alone among the decoders of items it does not look at what follows it: the skip function, by which a
 * list is cut, decides that nothing does.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoWarningValue tolmo___WarningValueTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
