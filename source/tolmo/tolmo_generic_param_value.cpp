/* The values of parameters, by their types (RFC 3261 section 25.1, gen-value). */
#include <tolmo/tolmo_generic_param.h>

#include <tolmo/tolmo_host.h>
#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_token.h>

KoBool tolmoGenericParamValueOk( KoInt type, KoString value )
{
    KO_REQUIRE( TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
    KO_REQUIRE( value );
    switch ( type ) {
    case TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN:
        return tolmoTokenOk( value );
    case TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST:
        return tolmoHostOk( value );
    default:
        return tolmoQuotableStringOk( value );
    }
}

KoString tolmoGenericParamValueNormalize( KoInt type, KoString value )
{
    KO_REQUIRE( TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
    KO_REQUIRE( value );
    return type == TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN ? tolmoTokenNormalize( value ) : tolmo::Retained( value );
}
