/* A list of parameters, `;name=value;name`, at most one of a name (RFC 3261 section 7.3.1). */
#include <tolmo/tolmo_generic_params.h>

#include <runtime/ko_dict.hpp>
#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_generic_param.hpp>
#include <tolmo/tolmo_params.hpp>

#include <algorithm>

namespace skip = tolmo::skip;

struct tolmo___GenericParams {
    ko___Obj head;
    KoDict params; // from the name to the parameter
};

namespace {

using AllFields = tolmo::Fields<&tolmo___GenericParams::params>;
static_assert( tolmo::namesAllFields<tolmo___GenericParams, AllFields> );

TOLMO_FREE( GenericParams, params, AllFields )
TOLMO_COMPARE( GenericParams, paramsA, paramsB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___GenericParamsEncode( tolmoGenericParamsFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_GENERIC_PARAMS =
    TOLMO_SORT( "TOLMO_GENERIC_PARAMS", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( GenericParams, TOLMO_GENERIC_PARAMS )
TOLMO_CREATE_FROM( GenericParams, AllFields )

namespace {

// Kept as long as the process, so that a caller may hold it beyond the stop of the module.
TolmoGenericParams keptEmpty = nullptr;
TolmoGenericParams empty = nullptr;

/** The parameter of a name in any case, or null. */
KoRef<TolmoGenericParam> Find( TolmoGenericParams params, KoString name )
{
    const auto normal = tolmo::Adopt( tolmoGenericParamNameNormalize( name ) );
    return tolmo::Adopt( reinterpret_cast<TolmoGenericParam>( koDictStringKey( params->params, normal.Get() ) ) );
}

void Set( TolmoGenericParams params, TolmoGenericParam param )
{
    koDictSetStringKey( &params->params, param->name, tolmoGenericParamObj( param ) );
}

bool IsName( KoString s, std::string_view ascii )
{
    return std::equal( ascii.begin(), ascii.end(), ko::Chars( s ), ko::Chars( s ) + s->length );
}

} // namespace

void tolmo::StartParams()
{
    if ( !keptEmpty ) {
        keptEmpty = tolmoGenericParamsCreate();
        ko___ObjMakeConstant( tolmoGenericParamsObj( keptEmpty ) );
    }
    empty = keptEmpty;
}

void tolmo::StopParams()
{
    FreeField( empty );
}

TolmoGenericParams tolmo::EmptyParams()
{
    return Retained( empty );
}

TolmoGenericParams tolmoGenericParamsCreate( void )
{
    auto params = tolmo::CreateObject<tolmo___GenericParams>( &tolmo___sort_TOLMO_GENERIC_PARAMS );
    params.Get()->params = koDictCreate();
    return params.Leak();
}

KoInt tolmoGenericParamsLength( TolmoGenericParams params )
{
    KO_REQUIRE( params );
    return koDictLength( params->params );
}

KoVector tolmoGenericParamsParamsVector( TolmoGenericParams params )
{
    KO_REQUIRE( params );
    return koDictValuesVector( params->params );
}

void tolmoGenericParamsSetParamsVector( TolmoGenericParams *params, KoVector vector )
{
    KO_REQUIRE_HANDLE( params );
    KO_REQUIRE( vector );
    tolmo::MakeUnique( params, tolmoGenericParamsCreateFrom );
    koDictClear( &( *params )->params );
    const KoInt length = koVectorLength( vector );
    for ( KoInt i = 0; i < length; ++i ) {
        const auto obj = tolmo::Adopt( koVectorObjAt( vector, i ) );
        tolmoGenericParamsSetParam( params, tolmoGenericParamFrom( obj.Get() ) );
    }
}

KoBool tolmoGenericParamsHasParam( TolmoGenericParams params, KoString name )
{
    KO_REQUIRE( params );
    return static_cast<bool>( Find( params, name ) );
}

KoBool tolmoGenericParamsHasParamCstr( TolmoGenericParams params, const char *chs, KoInt length )
{
    return tolmoGenericParamsHasParam( params, tolmo::FromCstr( chs, length ).Get() );
}

KoBool tolmoGenericParamsHasParamWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length )
{
    return tolmoGenericParamsHasParam( params, tolmo::FromWcstr( chs, length ).Get() );
}

TolmoGenericParam tolmoGenericParamsParam( TolmoGenericParams params, KoString name )
{
    KO_REQUIRE( params );
    return Find( params, name ).Leak();
}

TolmoGenericParam tolmoGenericParamsParamCstr( TolmoGenericParams params, const char *chs, KoInt length )
{
    return tolmoGenericParamsParam( params, tolmo::FromCstr( chs, length ).Get() );
}

TolmoGenericParam tolmoGenericParamsParamWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length )
{
    return tolmoGenericParamsParam( params, tolmo::FromWcstr( chs, length ).Get() );
}

KoInt tolmoGenericParamsParamValueType( TolmoGenericParams params, KoString name )
{
    KO_REQUIRE( params );
    const auto param = Find( params, name );
    return param ? tolmoGenericParamValueType( param.Get() ) : -1;
}

KoInt tolmoGenericParamsParamValueTypeCstr( TolmoGenericParams params, const char *chs, KoInt length )
{
    return tolmoGenericParamsParamValueType( params, tolmo::FromCstr( chs, length ).Get() );
}

KoInt tolmoGenericParamsParamValueTypeWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length )
{
    return tolmoGenericParamsParamValueType( params, tolmo::FromWcstr( chs, length ).Get() );
}

KoString tolmoGenericParamsParamValueNormalized( TolmoGenericParams params, KoString name )
{
    KO_REQUIRE( params );
    const auto param = Find( params, name );
    return param ? tolmoGenericParamValueNormalized( param.Get() ) : nullptr;
}

KoString tolmoGenericParamsParamValueNormalizedCstr( TolmoGenericParams params, const char *chs, KoInt length )
{
    return tolmoGenericParamsParamValueNormalized( params, tolmo::FromCstr( chs, length ).Get() );
}

KoString tolmoGenericParamsParamValueNormalizedWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length )
{
    return tolmoGenericParamsParamValueNormalized( params, tolmo::FromWcstr( chs, length ).Get() );
}

KoString tolmoGenericParamsParamValueNonNormalized( TolmoGenericParams params, KoString name )
{
    KO_REQUIRE( params );
    const auto param = Find( params, name );
    return param ? tolmoGenericParamValueNonNormalized( param.Get() ) : nullptr;
}

KoString tolmoGenericParamsParamValueNonNormalizedCstr( TolmoGenericParams params, const char *chs, KoInt length )
{
    return tolmoGenericParamsParamValueNonNormalized( params, tolmo::FromCstr( chs, length ).Get() );
}

KoString tolmoGenericParamsParamValueNonNormalizedWcstr( TolmoGenericParams params, const uint16_t *chs, KoInt length )
{
    return tolmoGenericParamsParamValueNonNormalized( params, tolmo::FromWcstr( chs, length ).Get() );
}

TolmoGenericParam tolmoGenericParamsParamAt( TolmoGenericParams params, KoInt index )
{
    KO_REQUIRE( params );
    return reinterpret_cast<TolmoGenericParam>( koDictValueAt( params->params, index ) );
}

KoInt tolmoGenericParamsParamValueTypeAt( TolmoGenericParams params, KoInt index )
{
    return tolmoGenericParamValueType( tolmo::Adopt( tolmoGenericParamsParamAt( params, index ) ).Get() );
}

KoString tolmoGenericParamsParamValueNormalizedAt( TolmoGenericParams params, KoInt index )
{
    return tolmoGenericParamValueNormalized( tolmo::Adopt( tolmoGenericParamsParamAt( params, index ) ).Get() );
}

KoString tolmoGenericParamsParamValueNonNormalizedAt( TolmoGenericParams params, KoInt index )
{
    return tolmoGenericParamValueNonNormalized( tolmo::Adopt( tolmoGenericParamsParamAt( params, index ) ).Get() );
}

void tolmoGenericParamsSetParam( TolmoGenericParams *params, TolmoGenericParam param )
{
    KO_REQUIRE_HANDLE( params );
    KO_REQUIRE( param );
    tolmo::MakeUnique( params, tolmoGenericParamsCreateFrom );
    Set( *params, param );
}

void tolmoGenericParamsSetParamValue( TolmoGenericParams *params, KoString name, KoInt type, KoString value )
{
    KO_REQUIRE_HANDLE( params );
    const auto param = tolmo::Adopt( tolmoGenericParamCreateWithValue( name, type, value ) );
    tolmoGenericParamsSetParam( params, param.Get() );
}

void tolmoGenericParamsSetParamValueCstr( TolmoGenericParams *params, const char *chs, KoInt length, KoInt type,
                                          KoString value )
{
    tolmoGenericParamsSetParamValue( params, tolmo::FromCstr( chs, length ).Get(), type, value );
}

void tolmoGenericParamsSetParamValueWcstr( TolmoGenericParams *params, const uint16_t *chs, KoInt length, KoInt type,
                                           KoString value )
{
    tolmoGenericParamsSetParamValue( params, tolmo::FromWcstr( chs, length ).Get(), type, value );
}

void tolmoGenericParamsDelParam( TolmoGenericParams *params, KoString name )
{
    KO_REQUIRE_HANDLE( params );
    const auto normal = tolmo::Adopt( tolmoGenericParamNameNormalize( name ) );
    tolmo::MakeUnique( params, tolmoGenericParamsCreateFrom );
    koDictDelStringKey( &( *params )->params, normal.Get() );
}

void tolmoGenericParamsDelParamCstr( TolmoGenericParams *params, const char *chs, KoInt length )
{
    tolmoGenericParamsDelParam( params, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoGenericParamsDelParamWcstr( TolmoGenericParams *params, const uint16_t *chs, KoInt length )
{
    tolmoGenericParamsDelParam( params, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmo::AddParams( Builder &text, TolmoGenericParams params, std::initializer_list<std::string_view> hidden )
{
    KO_REQUIRE( params ); // null in a Subscription-State that was shared when it was changed
    const KoInt length = koDictLength( params->params );
    for ( KoInt i = 0; i < length; ++i ) {
        const ko::DictEntry &entry = ko::Entries( params->params )[i];
        if ( std::none_of( hidden.begin(), hidden.end(), [&]( auto name ) { return IsName( entry.key, name ); } ) ) {
            text.Add( ';' );
            AddParam( text, reinterpret_cast<TolmoGenericParam>( entry.value ) );
        }
    }
}

KoString tolmo___GenericParamsEncode( TolmoGenericParams params )
{
    KO_REQUIRE( params );
    tolmo::Builder text;
    tolmo::AddParams( text, params, {} );
    return text.Finish();
}

bool tolmo::TakeGeneric( Walk &w, TolmoGenericParams &params )
{
    const auto param = TakeGenericParam( w );
    if ( !param ) {
        return false;
    }
    MakeUnique( &params, tolmoGenericParamsCreateFrom );
    Set( params, param.Get() );
    return true;
}

TolmoGenericParams tolmo___GenericParamsTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    auto params = tolmo::Adopt( tolmoGenericParamsCreate() );
    tolmo::Walk w( chs, length );
    // A semicolon that no parameter follows is consumed all the same, so that one at the very end does no harm here.
    while ( w.Need( skip::Semi ) && tolmo::TakeGeneric( w, *params.Address() ) ) {
    }
    return w.AtEnd() ? params.Leak() : nullptr;
}
