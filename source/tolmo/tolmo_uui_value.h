/* One item of a User-to-User header: data, and what it is (RFC 7433 section 4.1). */
#ifndef TOLMO_UUI_VALUE_H
#define TOLMO_UUI_VALUE_H

#include <tolmo/tolmo_generic_params.h>

KO_BEGIN_DECLS

/** Handle of a user-to-user value. */
typedef struct tolmo___UuiValue *TolmoUuiValue;

/** @name Standard operations
 * See docs/objects.md. @{ */
KO_API KoSort tolmoUuiValueSort( void );
KO_API KoObj tolmoUuiValueObj( TolmoUuiValue value );
KO_API TolmoUuiValue tolmoUuiValueFrom( KoObj obj );
KO_API TolmoUuiValue tolmoUuiValueRetain( TolmoUuiValue value );
KO_API void tolmoUuiValueRelease( TolmoUuiValue value );
KO_API KoInt tolmoUuiValueCompare( TolmoUuiValue a, TolmoUuiValue b );
KO_API KoBool tolmoUuiValueEquals( TolmoUuiValue a, TolmoUuiValue b );
KO_API KoString tolmoUuiValueToString( TolmoUuiValue value );
KO_API TolmoUuiValue tolmoUuiValueCreateFrom( TolmoUuiValue source );
/** @} */

/**
 * A new value without parameters.
 *
 * @param uuiData shared, the caller keeps its reference.
 * @return new reference.
 * @pre tolmoTokenOk( uuiData ) || tolmoQuotableStringOk( uuiData )
 */
KO_API TolmoUuiValue tolmoUuiValueCreate( KoString uuiData );

/** @name Data
 * Always there: text that nobody looks into, be it hexadecimal or not. Data that is no token does not go out: see the
 * encoder. The getter returns a new reference.
 * @param value for a setter: address of the caller's handle, which may be replaced.
 * @param uuiData shared, the caller keeps its reference.
 * @pre value, for a setter then *value
 * @pre tolmoTokenOk( uuiData ) || tolmoQuotableStringOk( uuiData ) @{ */
KO_API KoString tolmoUuiValueUuiData( TolmoUuiValue value );
KO_API void tolmoUuiValueSetUuiData( TolmoUuiValue *value, KoString uuiData );
/** @} */

/** @name Parameter encoding
 * Optional: a token in its case, how the data is written. The getter returns a new reference, or null.
 * @param value for a change: address of the caller's handle, which may be replaced.
 * @param encoding shared, the caller keeps its reference.
 * @pre value, for a change then *value
 * @pre tolmoTokenOk( encoding ) @{ */
KO_API KoBool tolmoUuiValueHasEncoding( TolmoUuiValue value );
KO_API KoString tolmoUuiValueEncoding( TolmoUuiValue value );
KO_API void tolmoUuiValueSetEncoding( TolmoUuiValue *value, KoString encoding );
KO_API void tolmoUuiValueDelEncoding( TolmoUuiValue *value );
/** @} */

/** @name Parameter purpose
 * Optional: a token in its case, what it is for. The getter returns a new reference, or null.
 * @param value for a change: address of the caller's handle, which may be replaced.
 * @param purpose shared, the caller keeps its reference.
 * @pre value, for a change then *value
 * @pre tolmoTokenOk( purpose ) @{ */
KO_API KoBool tolmoUuiValueHasPurpose( TolmoUuiValue value );
KO_API KoString tolmoUuiValuePurpose( TolmoUuiValue value );
KO_API void tolmoUuiValueSetPurpose( TolmoUuiValue *value, KoString purpose );
KO_API void tolmoUuiValueDelPurpose( TolmoUuiValue *value );
/** @} */

/** @name Parameter content
 * Optional: a token in its case, what it is. The getter returns a new reference, or null.
 * @param value for a change: address of the caller's handle, which may be replaced.
 * @param content shared, the caller keeps its reference.
 * @pre value, for a change then *value
 * @pre tolmoTokenOk( content ) @{ */
KO_API KoBool tolmoUuiValueHasContent( TolmoUuiValue value );
KO_API KoString tolmoUuiValueContent( TolmoUuiValue value );
KO_API void tolmoUuiValueSetContent( TolmoUuiValue *value, KoString content );
KO_API void tolmoUuiValueDelContent( TolmoUuiValue *value );
/** @} */

/** @name All other parameters
 * Always there, perhaps empty; also those named above whose value did not fit. The getter returns a new reference.
 * @param value for the setter: address of the caller's handle, which may be replaced.
 * @param genericParams shared, the caller keeps its reference.
 * @pre value, for the setter then *value
 * @pre genericParams @{ */
KO_API TolmoGenericParams tolmoUuiValueGenericParams( TolmoUuiValue value );
KO_API void tolmoUuiValueSetGenericParams( TolmoUuiValue *value, TolmoGenericParams genericParams );
/** @} */

/** The wire text: data, encoding, purpose, content, all other parameters. Data that is no token is left out.
 * @return new reference. @pre value */
KO_API KoString tolmo___UuiValueEncode( TolmoUuiValue value );

/**
 * Decodes exactly one item. Quoted data is refused, though tolmo___SkipUuiValue takes it: so a list can hold an item
 * that does not decode.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoUuiValue tolmo___UuiValueTryDecode( const KoChar *chs, KoInt length );

/** @name Start-up and shut-down
 * Make and drop the constants of this unit. Called by the module. @{ */
KO_API void tolmo___UuiValueStartup( void );
KO_API void tolmo___UuiValueShutdown( void );
/** @} */

KO_END_DECLS

#endif
