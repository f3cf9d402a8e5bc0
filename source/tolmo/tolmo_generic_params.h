/* A list of parameters, `;name=value;name`, at most one of a name (RFC 3261 section 7.3.1). */
#ifndef TOLMO_GENERIC_PARAMS_H
#define TOLMO_GENERIC_PARAMS_H

#include <runtime/ko_vector.h>
#include <tolmo/tolmo_generic_param.h>

KO_BEGIN_DECLS

/** Handle of a list of parameters. */
typedef struct tolmo___GenericParams *TolmoGenericParams;

/** @name Standard operations
 * See docs/objects.md. Lists compare equal in any order; their text is that of the wire. @{ */
KO_API KoSort tolmoGenericParamsSort( void );
KO_API KoObj tolmoGenericParamsObj( TolmoGenericParams params );
KO_API TolmoGenericParams tolmoGenericParamsFrom( KoObj obj );
KO_API TolmoGenericParams tolmoGenericParamsRetain( TolmoGenericParams params );
KO_API void tolmoGenericParamsRelease( TolmoGenericParams params );
KO_API KoInt tolmoGenericParamsCompare( TolmoGenericParams a, TolmoGenericParams b );
KO_API KoBool tolmoGenericParamsEquals( TolmoGenericParams a, TolmoGenericParams b );
KO_API KoString tolmoGenericParamsToString( TolmoGenericParams params );
KO_API TolmoGenericParams tolmoGenericParamsCreateFrom( TolmoGenericParams source );
/** @} */

/** An empty list. @return new reference. */
KO_API TolmoGenericParams tolmoGenericParamsCreate( void );

/** The number of parameters. @pre params */
KO_API KoInt tolmoGenericParamsLength( TolmoGenericParams params );

/** All parameters in their order, that of first setting. @return new reference: a vector of TolmoGenericParam.
 * @pre params */
KO_API KoVector tolmoGenericParamsParamsVector( TolmoGenericParams params );

/**
 * Replaces all parameters by those of a vector, set one after the other.
 *
 * @param params address of the caller's handle, which may be replaced.
 * @param vector shared, the caller keeps its reference; holds TolmoGenericParam objects and no null.
 * @pre params
 * @pre *params
 * @pre vector
 */
KO_API void tolmoGenericParamsSetParamsVector( TolmoGenericParams *params, KoVector vector );

/** @name By name
 * In any case. A name that is no token ends the process, also in a query: test words that come from outside with
 * tolmoGenericParamNameOk. Getters return a new reference, or null; also null for a parameter that is not there.
 * @pre params
 * @pre tolmoTokenOk( token ) @{ */
KO_API KoBool tolmoGenericParamsHasParam( TolmoGenericParams params, KoString name );
KO_API KoBool tolmoGenericParamsHasParamCstr( TolmoGenericParams params, const char *chs, KoInt length );
KO_API KoBool tolmoGenericParamsHasParamWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length );
KO_API TolmoGenericParam tolmoGenericParamsParam( TolmoGenericParams params, KoString name );
KO_API TolmoGenericParam tolmoGenericParamsParamCstr( TolmoGenericParams params, const char *chs, KoInt length );
KO_API TolmoGenericParam tolmoGenericParamsParamWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length );
/** The type of the value; -1 without a value and without the parameter. */
KO_API KoInt tolmoGenericParamsParamValueType( TolmoGenericParams params, KoString name );
KO_API KoInt tolmoGenericParamsParamValueTypeCstr( TolmoGenericParams params, const char *chs, KoInt length );
KO_API KoInt tolmoGenericParamsParamValueTypeWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length );
KO_API KoString tolmoGenericParamsParamValueNormalized( TolmoGenericParams params, KoString name );
KO_API KoString tolmoGenericParamsParamValueNormalizedCstr( TolmoGenericParams params, const char *chs, KoInt length );
KO_API KoString tolmoGenericParamsParamValueNormalizedWcstr( TolmoGenericParams params, const uint16_t *chs,
                                                             KoInt length );
KO_API KoString tolmoGenericParamsParamValueNonNormalized( TolmoGenericParams params, KoString name );
KO_API KoString tolmoGenericParamsParamValueNonNormalizedCstr( TolmoGenericParams params, const char *chs,
                                                               KoInt length );
KO_API KoString tolmoGenericParamsParamValueNonNormalizedWcstr( TolmoGenericParams params, const uint16_t *chs,
                                                                KoInt length );
/** @} */

/** @name By position
 * @pre params
 * @pre the index is inside the list (the runtime's) @{ */
KO_API TolmoGenericParam tolmoGenericParamsParamAt( TolmoGenericParams params, KoInt index );
KO_API KoInt tolmoGenericParamsParamValueTypeAt( TolmoGenericParams params, KoInt index );
KO_API KoString tolmoGenericParamsParamValueNormalizedAt( TolmoGenericParams params, KoInt index );
KO_API KoString tolmoGenericParamsParamValueNonNormalizedAt( TolmoGenericParams params, KoInt index );
/** @} */

/** @name Changing
 * A parameter that replaces one of its name keeps the place of that one.
 * @param params address of the caller's handle, which may be replaced.
 * @pre params
 * @pre *params @{ */
/** @param param shared, the caller keeps its reference. @pre param */
KO_API void tolmoGenericParamsSetParam( TolmoGenericParams *params, TolmoGenericParam param );
/** @pre tolmoGenericParamNameOk( name ) @pre tolmoGenericParamValueOk( type, value ) */
KO_API void tolmoGenericParamsSetParamValue( TolmoGenericParams *params, KoString name, KoInt type, KoString value );
KO_API void tolmoGenericParamsSetParamValueCstr( TolmoGenericParams *params, const char *chs, KoInt length, KoInt type,
                                                 KoString value );
KO_API void tolmoGenericParamsSetParamValueWcstr( TolmoGenericParams *params, const uint16_t *chs, KoInt length,
                                                  KoInt type, KoString value );
/** A name that is not there is no fault. @pre tolmoTokenOk( token ) */
KO_API void tolmoGenericParamsDelParam( TolmoGenericParams *params, KoString name );
KO_API void tolmoGenericParamsDelParamCstr( TolmoGenericParams *params, const char *chs, KoInt length );
KO_API void tolmoGenericParamsDelParamWcstr( TolmoGenericParams *params, const uint16_t *chs, KoInt length );
/** @} */

/** The wire text: `;` and the parameter for each of them. @return new reference. @pre params */
KO_API KoString tolmo___GenericParamsEncode( TolmoGenericParams params );

/**
 * Decodes a whole list: `;` with whitespace around it and a parameter, as often as they are there. A later parameter
 * replaces an earlier one of its name; a lone `;` at the end is tolerated here.
 *
 * @return new reference, or null.
 * @pre length >= 0
 * @pre chs || length == 0
 */
KO_API TolmoGenericParams tolmo___GenericParamsTryDecode( const KoChar *chs, KoInt length );

KO_END_DECLS

#endif
