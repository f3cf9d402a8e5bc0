/* One item of a User-to-User header: data, and what it is (RFC 7433 section 4.1). */
#include <tolmo/tolmo_uui_value.h>

#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_token.h>

namespace skip = tolmo::skip;

struct tolmo___UuiValue {
    ko___Obj head;
    KoString uuiData;
    KoString encoding;
    KoString purpose;
    KoString content;
    TolmoGenericParams genericParams;
};

namespace {

using UuiValue = tolmo___UuiValue;
using AllFields = tolmo::Fields<&UuiValue::uuiData, &UuiValue::encoding, &UuiValue::purpose, &UuiValue::content,
                                &UuiValue::genericParams>;
static_assert( tolmo::namesAllFields<UuiValue, AllFields> );

TOLMO_FREE( UuiValue, value, AllFields )
TOLMO_COMPARE( UuiValue, valueA, valueB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___UuiValueEncode( tolmoUuiValueFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_UUI_VALUE = TOLMO_SORT( "TOLMO_UUI_VALUE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( UuiValue, TOLMO_UUI_VALUE )
TOLMO_CREATE_FROM( UuiValue, AllFields )

namespace {

// The names of the parameters, for the encoder.
KoString kosEncoding = nullptr;
KoString kosPurpose = nullptr;
KoString kosContent = nullptr;

/** A value without parameters, of data that is good. */
KoRef<TolmoUuiValue> Create( KoRef<KoString> uuiData )
{
    auto value = tolmo::CreateObject<UuiValue>( &tolmo___sort_TOLMO_UUI_VALUE );
    value.Get()->uuiData = uuiData.Leak();
    value.Get()->genericParams = tolmo::EmptyParams();
    return value;
}

} // namespace

void tolmo___UuiValueStartup( void )
{
    tolmo::Start( kosEncoding, "encoding" );
    tolmo::Start( kosPurpose, "purpose" );
    tolmo::Start( kosContent, "content" );
}

void tolmo___UuiValueShutdown( void )
{
    tolmo::Stop( kosEncoding );
    tolmo::Stop( kosPurpose );
    tolmo::Stop( kosContent );
}

TolmoUuiValue tolmoUuiValueCreate( KoString uuiData )
{
    KO_REQUIRE( tolmoTokenOk( uuiData ) || tolmoQuotableStringOk( uuiData ) );
    return Create( tolmo::Share( uuiData ) ).Leak();
}

KoString tolmoUuiValueUuiData( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return tolmo::Retained( value->uuiData );
}

void tolmoUuiValueSetUuiData( TolmoUuiValue *value, KoString uuiData )
{
    KO_REQUIRE_HANDLE( value );
    KO_REQUIRE( tolmoTokenOk( uuiData ) || tolmoQuotableStringOk( uuiData ) );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->uuiData, tolmo::Share( uuiData ) );
}

KoBool tolmoUuiValueHasEncoding( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return value->encoding != nullptr;
}

KoString tolmoUuiValueEncoding( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return tolmo::Retained( value->encoding );
}

void tolmoUuiValueSetEncoding( TolmoUuiValue *value, KoString encoding )
{
    KO_REQUIRE_HANDLE( value );
    KO_REQUIRE( tolmoTokenOk( encoding ) );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->encoding, tolmo::Share( encoding ) );
}

void tolmoUuiValueDelEncoding( TolmoUuiValue *value )
{
    KO_REQUIRE_HANDLE( value );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->encoding, {} );
}

KoBool tolmoUuiValueHasPurpose( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return value->purpose != nullptr;
}

KoString tolmoUuiValuePurpose( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return tolmo::Retained( value->purpose );
}

void tolmoUuiValueSetPurpose( TolmoUuiValue *value, KoString purpose )
{
    KO_REQUIRE_HANDLE( value );
    KO_REQUIRE( tolmoTokenOk( purpose ) );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->purpose, tolmo::Share( purpose ) );
}

void tolmoUuiValueDelPurpose( TolmoUuiValue *value )
{
    KO_REQUIRE_HANDLE( value );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->purpose, {} );
}

KoBool tolmoUuiValueHasContent( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return value->content != nullptr;
}

KoString tolmoUuiValueContent( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return tolmo::Retained( value->content );
}

void tolmoUuiValueSetContent( TolmoUuiValue *value, KoString content )
{
    KO_REQUIRE_HANDLE( value );
    KO_REQUIRE( tolmoTokenOk( content ) );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->content, tolmo::Share( content ) );
}

void tolmoUuiValueDelContent( TolmoUuiValue *value )
{
    KO_REQUIRE_HANDLE( value );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->content, {} );
}

TolmoGenericParams tolmoUuiValueGenericParams( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    return tolmo::Retained( value->genericParams );
}

void tolmoUuiValueSetGenericParams( TolmoUuiValue *value, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( value );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( value, tolmoUuiValueCreateFrom );
    tolmo::Store( ( *value )->genericParams, tolmo::Share( genericParams ) );
}

namespace {

void AddParam( tolmo::Builder &text, KoString name, KoString value )
{
    if ( value ) {
        tolmo::AddParamName( text, name );
        text.Add( value );
    }
}

} // namespace

// Data that is no token is left out, and that is meant: peers know the text of this encoder, and the decoder would not
// take the quoted form.
KoString tolmo___UuiValueEncode( TolmoUuiValue value )
{
    KO_REQUIRE( value );
    tolmo::Builder text;
    if ( tolmoTokenOk( value->uuiData ) ) {
        text.Add( value->uuiData );
    }
    AddParam( text, kosEncoding, value->encoding );
    AddParam( text, kosPurpose, value->purpose );
    AddParam( text, kosContent, value->content );
    tolmo::AddParams( text, value->genericParams,
                      { tolmo::Hidden( value->encoding, "encoding" ), tolmo::Hidden( value->purpose, "purpose" ),
                        tolmo::Hidden( value->content, "content" ) } );
    return text.Finish();
}

namespace {

bool TakeToken( tolmo::Walk &w, std::string_view name, KoString &field )
{
    return tolmo::TakeLifted( w, name, skip::Token,
                              [&]( tolmo::Text value ) { return tolmo::StoreText( field, value ); } );
}

bool TakeParam( tolmo::Walk &w, TolmoUuiValue value )
{
    return TakeToken( w, "encoding", value->encoding ) || TakeToken( w, "purpose", value->purpose ) ||
           TakeToken( w, "content", value->content ) || tolmo::TakeGeneric( w, value->genericParams );
}

} // namespace

// token *( SEMI uui-param )
// Data in quotes is an item of the list, as RFC 7433 has it, but is refused here. The two are not to be brought in
// line.
TolmoUuiValue tolmo___UuiValueTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    if ( !w.Need( skip::Token ) ) {
        return nullptr;
    }
    auto value = Create( w.Last().Copy() );
    return tolmo::TakeParams( w, [&] { return TakeParam( w, value.Get() ); } ) ? value.Leak() : nullptr;
}
