/* One parameter, `name` or `name=value` (RFC 3261 section 25.1, generic-param). */
#include <tolmo/tolmo_generic_param.hpp>

#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_host.h>
#include <tolmo/tolmo_host.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_quotable_string.hpp>
#include <tolmo/tolmo_token.h>

namespace skip = tolmo::skip;

namespace {

using AllFields = tolmo::Fields<&tolmo___GenericParam::name, &tolmo___GenericParam::type, &tolmo___GenericParam::value>;
static_assert( tolmo::namesAllFields<tolmo___GenericParam, AllFields> );

TOLMO_FREE( GenericParam, param, AllFields )

// Name, type, and the normal forms of the values: tokens in any case are equal, all others only to the letter.
KoInt Compare( KoObj objA, KoObj objB )
{
    const TolmoGenericParam paramA = tolmoGenericParamFrom( objA );
    const TolmoGenericParam paramB = tolmoGenericParamFrom( objB );
    KO_REQUIRE( paramA );
    KO_REQUIRE( paramB );
    using Compared = tolmo::Fields<&tolmo___GenericParam::name, &tolmo___GenericParam::type>;
    if ( const KoInt result = tolmo::CompareFields( paramA, paramB, Compared{} ) ) {
        return result;
    }
    const auto valueA = tolmo::Adopt( tolmoGenericParamValueNormalized( paramA ) );
    const auto valueB = tolmo::Adopt( tolmoGenericParamValueNormalized( paramB ) );
    return koObjCompare( koStringObj( valueA.Get() ), koStringObj( valueB.Get() ) );
}

KoString ToString( KoObj obj )
{
    return tolmo___GenericParamEncode( tolmoGenericParamFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_GENERIC_PARAM = TOLMO_SORT( "TOLMO_GENERIC_PARAM", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( GenericParam, TOLMO_GENERIC_PARAM )
TOLMO_CREATE_FROM( GenericParam, AllFields )

namespace {

/** A parameter of parts that are good; `value` is null where `type` is -1. */
KoRef<TolmoGenericParam> Create( KoRef<KoString> name, KoInt type, KoRef<KoString> value )
{
    auto param = tolmo::CreateObject<tolmo___GenericParam>( &tolmo___sort_TOLMO_GENERIC_PARAM );
    param.Get()->name = name.Leak();
    param.Get()->type = type;
    param.Get()->value = value.Leak();
    return param;
}

} // namespace

TolmoGenericParam tolmoGenericParamCreate( KoString name )
{
    KO_REQUIRE( tolmoGenericParamNameOk( name ) );
    return Create( tolmo::Adopt( tolmoGenericParamNameNormalize( name ) ), -1, {} ).Leak();
}

TolmoGenericParam tolmoGenericParamCreateCstr( const char *chs, KoInt length )
{
    return tolmoGenericParamCreate( tolmo::FromCstr( chs, length ).Get() );
}

TolmoGenericParam tolmoGenericParamCreateWcstr( const uint16_t *chs, KoInt length )
{
    return tolmoGenericParamCreate( tolmo::FromWcstr( chs, length ).Get() );
}

TolmoGenericParam tolmoGenericParamCreateWithValue( KoString name, KoInt type, KoString value )
{
    KO_REQUIRE( tolmoGenericParamNameOk( name ) );
    KO_REQUIRE( tolmoGenericParamValueOk( type, value ) );
    return Create( tolmo::Adopt( tolmoGenericParamNameNormalize( name ) ), type, tolmo::Share( value ) ).Leak();
}

TolmoGenericParam tolmoGenericParamCreateWithValueCstr( const char *chs, KoInt length, KoInt type, KoString value )
{
    return tolmoGenericParamCreateWithValue( tolmo::FromCstr( chs, length ).Get(), type, value );
}

TolmoGenericParam tolmoGenericParamCreateWithValueWcstr( const uint16_t *chs, KoInt length, KoInt type, KoString value )
{
    return tolmoGenericParamCreateWithValue( tolmo::FromWcstr( chs, length ).Get(), type, value );
}

KoString tolmoGenericParamName( TolmoGenericParam param )
{
    KO_REQUIRE( param );
    return tolmo::Retained( param->name );
}

void tolmoGenericParamSetName( TolmoGenericParam *param, KoString name )
{
    KO_REQUIRE_HANDLE( param );
    KO_REQUIRE( tolmoGenericParamNameOk( name ) );
    tolmo::MakeUnique( param, tolmoGenericParamCreateFrom );
    tolmo::Store( ( *param )->name, tolmo::Adopt( tolmoGenericParamNameNormalize( name ) ) );
}

void tolmoGenericParamSetNameCstr( TolmoGenericParam *param, const char *chs, KoInt length )
{
    tolmoGenericParamSetName( param, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoGenericParamSetNameWcstr( TolmoGenericParam *param, const uint16_t *chs, KoInt length )
{
    tolmoGenericParamSetName( param, tolmo::FromWcstr( chs, length ).Get() );
}

KoBool tolmoGenericParamHasValue( TolmoGenericParam param )
{
    KO_REQUIRE( param );
    return param->value != nullptr;
}

KoInt tolmoGenericParamValueType( TolmoGenericParam param )
{
    KO_REQUIRE( param );
    return param->type;
}

KoString tolmoGenericParamValueNonNormalized( TolmoGenericParam param )
{
    KO_REQUIRE( param );
    return tolmo::Retained( param->value );
}

KoString tolmoGenericParamValueNormalized( TolmoGenericParam param )
{
    KO_REQUIRE( param );
    return param->value ? tolmoGenericParamValueNormalize( param->type, param->value ) : nullptr;
}

void tolmoGenericParamSetValue( TolmoGenericParam *param, KoInt type, KoString value )
{
    KO_REQUIRE_HANDLE( param );
    KO_REQUIRE( tolmoGenericParamValueOk( type, value ) );
    tolmo::MakeUnique( param, tolmoGenericParamCreateFrom );
    ( *param )->type = type;
    tolmo::Store( ( *param )->value, tolmo::Share( value ) );
}

void tolmoGenericParamDelValue( TolmoGenericParam *param )
{
    KO_REQUIRE_HANDLE( param );
    tolmo::MakeUnique( param, tolmoGenericParamCreateFrom );
    ( *param )->type = -1;
    tolmo::Store( ( *param )->value, {} );
}

void tolmoGenericParamNormalizeValue( TolmoGenericParam *param )
{
    KO_REQUIRE_HANDLE( param );
    if ( !( *param )->value ) {
        return; // nothing happens, not even a copy
    }
    tolmo::MakeUnique( param, tolmoGenericParamCreateFrom );
    tolmo::Store( ( *param )->value, tolmo::Adopt( tolmoGenericParamValueNormalized( *param ) ) );
}

KoBool tolmoGenericParamNameOk( KoString name )
{
    return tolmoTokenOk( name );
}

KoString tolmoGenericParamNameNormalize( KoString name )
{
    return tolmoTokenNormalize( name );
}

void tolmo::AddParam( Builder &text, TolmoGenericParam param )
{
    text.Add( param->name );
    if ( !param->value ) {
        return;
    }
    KO_REQUIRE_MESSAGE( TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( param->type ),
                        "TOLMO_GENERIC_PARAM_VALUE_TYPE not implemented",
                        "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( param->type )" );
    text.Add( '=' );
    switch ( param->type ) {
    case TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN:
        text.Add( param->value );
        break;
    case TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST:
        text.Take( tolmo___HostEncode( param->value ) );
        break;
    default: // TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING
        text.Take( tolmo___QuotableStringEncode( param->value ) );
        break;
    }
}

KoString tolmo___GenericParamEncode( TolmoGenericParam param )
{
    KO_REQUIRE( param );
    tolmo::Builder text;
    tolmo::AddParam( text, param );
    return text.Finish();
}

// generic-param = token [ EQUAL ( token / host / quoted-string ) ]
// The first alternative that is there is taken. A host is a bracketed IPv6 address: all others are tokens.
KoRef<TolmoGenericParam> tolmo::TakeGenericParam( Walk &w )
{
    const KoInt place = w.Place();
    if ( !w.Need( skip::Token ) ) {
        return {};
    }
    auto name = w.Last().CopyLowered();
    if ( !w.Need( skip::Equal ) ) {
        return Create( std::move( name ), -1, {} );
    }
    if ( w.Need( skip::Token ) ) {
        return Create( std::move( name ), TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN, w.Last().Copy() );
    }
    KoInt type = TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST;
    KoRef<KoString> value;
    if ( w.Need( skip::Host ) ) {
        value = DecodeHost( w.Last() );
    } else if ( w.Need( skip::QuotedString ) ) {
        type = TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING;
        value = DecodeQuoted( w.Last() );
    }
    if ( !value ) {
        w.Return( place );
        return {};
    }
    return Create( std::move( name ), type, std::move( value ) );
}

TolmoGenericParam tolmo___GenericParamTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    auto param = tolmo::TakeGenericParam( w );
    return w.AtEnd() ? param.Leak() : nullptr;
}
