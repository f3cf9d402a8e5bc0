/* One parameter, `name` or `name=value` (RFC 3261 section 25.1, generic-param). */
#ifndef TOLMO_GENERIC_PARAM_H
#define TOLMO_GENERIC_PARAM_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/** @name Types of a value @{ */
/** A token; kept in its case, compared in small letters. */
#define TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN ( (KoInt)0 )
/** A host, in its Unicode form. From the wire only a bracketed IPv6 address comes as one: all others are tokens. */
#define TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST ( (KoInt)1 )
/** A text that stands in quotes on the wire; without quotes and escapes here. */
#define TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING ( (KoInt)2 )
/** True for the three types. */
#define TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type ) ( ( type ) >= 0 && ( type ) <= 2 )
/** @} */

/** Handle of a parameter. */
typedef struct tolmo___GenericParam *TolmoGenericParam;

/** @name Standard operations
 * See docs/objects.md. Parameters compare by name, then type, then normal form of the value; their text is that of the
 * wire. @{ */
KO_API KoSort tolmoGenericParamSort( void );
KO_API KoObj tolmoGenericParamObj( TolmoGenericParam param );
KO_API TolmoGenericParam tolmoGenericParamFrom( KoObj obj );
KO_API TolmoGenericParam tolmoGenericParamRetain( TolmoGenericParam param );
KO_API void tolmoGenericParamRelease( TolmoGenericParam param );
KO_API KoInt tolmoGenericParamCompare( TolmoGenericParam a, TolmoGenericParam b );
KO_API KoBool tolmoGenericParamEquals( TolmoGenericParam a, TolmoGenericParam b );
KO_API KoString tolmoGenericParamToString( TolmoGenericParam param );
KO_API TolmoGenericParam tolmoGenericParamCreateFrom( TolmoGenericParam source );
/** @} */

/** @name Creation
 * A parameter without and with a value. What goes in is shared, the caller keeps its references; the name is stored in
 * small letters, the value as it stands.
 * @return new reference.
 * @pre tolmoGenericParamNameOk( name )
 * @pre tolmoGenericParamValueOk( type, value ) @{ */
KO_API TolmoGenericParam tolmoGenericParamCreate( KoString name );
KO_API TolmoGenericParam tolmoGenericParamCreateCstr( const char *chs, KoInt length );
KO_API TolmoGenericParam tolmoGenericParamCreateWcstr( const uint16_t *chs, KoInt length );
KO_API TolmoGenericParam tolmoGenericParamCreateWithValue( KoString name, KoInt type, KoString value );
KO_API TolmoGenericParam tolmoGenericParamCreateWithValueCstr( const char *chs, KoInt length, KoInt type,
                                                               KoString value );
KO_API TolmoGenericParam tolmoGenericParamCreateWithValueWcstr( const uint16_t *chs, KoInt length, KoInt type,
                                                                KoString value );
/** @} */

/** The name, in small letters. @return new reference. @pre param */
KO_API KoString tolmoGenericParamName( TolmoGenericParam param );

/** @name Renaming
 * @param param address of the caller's handle, which may be replaced.
 * @param name shared, the caller keeps its reference; its normal form is stored.
 * @pre param
 * @pre *param
 * @pre tolmoGenericParamNameOk( name ) @{ */
KO_API void tolmoGenericParamSetName( TolmoGenericParam *param, KoString name );
KO_API void tolmoGenericParamSetNameCstr( TolmoGenericParam *param, const char *chs, KoInt length );
KO_API void tolmoGenericParamSetNameWcstr( TolmoGenericParam *param, const uint16_t *chs, KoInt length );
/** @} */

/** @pre param */
KO_API KoBool tolmoGenericParamHasValue( TolmoGenericParam param );

/** The type of the value; -1 when there is none. @pre param */
KO_API KoInt tolmoGenericParamValueType( TolmoGenericParam param );

/** The value as it stands. @return new reference, or null. @pre param */
KO_API KoString tolmoGenericParamValueNonNormalized( TolmoGenericParam param );

/** The normal form of the value. @return new reference, or null. @pre param */
KO_API KoString tolmoGenericParamValueNormalized( TolmoGenericParam param );

/**
 * Sets the value.
 *
 * @param param address of the caller's handle, which may be replaced.
 * @param value shared, the caller keeps its reference; stored as it stands.
 * @pre param
 * @pre *param
 * @pre tolmoGenericParamValueOk( type, value )
 */
KO_API void tolmoGenericParamSetValue( TolmoGenericParam *param, KoInt type, KoString value );

/** Takes the value away. @param param address of the caller's handle, which may be replaced. @pre param @pre *param */
KO_API void tolmoGenericParamDelValue( TolmoGenericParam *param );

/** Replaces the value, if there is one, by its normal form. @param param address of the caller's handle, which may be
 * replaced. @pre param @pre *param */
KO_API void tolmoGenericParamNormalizeValue( TolmoGenericParam *param );

/** True when a string is a token, so that it can be a name. @pre name */
KO_API KoBool tolmoGenericParamNameOk( KoString name );

/** The normal form of a name: small letters. @return new reference. @pre tolmoTokenOk( token ) */
KO_API KoString tolmoGenericParamNameNormalize( KoString name );

/** True when a string can be a value of a type. @pre TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type ) @pre value */
KO_API KoBool tolmoGenericParamValueOk( KoInt type, KoString value );

/**
 * The normal form of a value: of a token its small letters, of all others the value itself.
 *
 * @return new reference.
 * @pre TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type )
 * @pre value
 * @pre for a token: tolmoTokenOk( token )
 */
KO_API KoString tolmoGenericParamValueNormalize( KoInt type, KoString value );

/** The wire text of a parameter, without a semicolon. @return new reference. @pre param */
KO_API KoString tolmo___GenericParamEncode( TolmoGenericParam param );

/**
 * Decodes exactly one parameter.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoGenericParam tolmo___GenericParamTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
