/* One item of a Diversion header: who diverted a call, and why (RFC 5806). */
#include <tolmo/tolmo_diversion.h>

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_diversion_counter.h>
#include <tolmo/tolmo_diversion_limit.h>
#include <tolmo/tolmo_diversion_privacy.h>
#include <tolmo/tolmo_diversion_reason.h>
#include <tolmo/tolmo_diversion_screen.h>
#include <tolmo/tolmo_diversion_word.hpp>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_params.hpp>

namespace skip = tolmo::skip;

struct tolmo___Diversion {
    ko___Obj head;
    KoString iri;
    KoString displayName;
    KoString reason; // the words are in small letters
    KoInt counter;
    KoInt limit;
    KoString privacy;
    KoString screen;
    TolmoGenericParams genericParams;
};

namespace {

using Diversion = tolmo___Diversion;
using AllFields = tolmo::Fields<&Diversion::iri, &Diversion::displayName, &Diversion::reason, &Diversion::counter,
                                &Diversion::limit, &Diversion::privacy, &Diversion::screen, &Diversion::genericParams>;
static_assert( tolmo::namesAllFields<Diversion, AllFields> );

TOLMO_FREE( Diversion, diversion, AllFields )

} // namespace

// Without a compare and a to-string function: that is meant.
static const ko___Sort tolmo___sort_TOLMO_DIVERSION = TOLMO_SORT( "TOLMO_DIVERSION", Free, nullptr, nullptr );
TOLMO_STANDARD_OPERATIONS( Diversion, TOLMO_DIVERSION )
TOLMO_CREATE_FROM( Diversion, AllFields )

namespace {

/** A diversion without parameters, of a good address. */
KoRef<TolmoDiversion> Create( KoRef<KoString> iri, KoRef<KoString> displayName )
{
    auto diversion = tolmo::CreateObject<Diversion>( &tolmo___sort_TOLMO_DIVERSION );
    diversion.Get()->iri = iri.Leak();
    diversion.Get()->displayName = displayName.Leak();
    diversion.Get()->counter = -1;
    diversion.Get()->limit = -1;
    diversion.Get()->genericParams = tolmo::EmptyParams();
    return diversion;
}

} // namespace

TolmoDiversion tolmoDiversionCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return Create( tolmo::Share( iri ), {} ).Leak();
}

TolmoDiversion tolmoDiversionCreateWithDisplayName( KoString iri, KoString displayName )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    return Create( tolmo::Share( iri ), tolmo::Share( displayName ) ).Leak();
}

KoString tolmoDiversionIri( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return tolmo::Retained( diversion->iri );
}

void tolmoDiversionSetIri( TolmoDiversion *diversion, KoString iri )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->iri, tolmo::Share( iri ) );
}

KoBool tolmoDiversionHasDisplayName( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->displayName != nullptr;
}

KoString tolmoDiversionDisplayName( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return tolmo::Retained( diversion->displayName );
}

void tolmoDiversionSetDisplayName( TolmoDiversion *diversion, KoString displayName )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->displayName, tolmo::Share( displayName ) );
}

void tolmoDiversionDelDisplayName( TolmoDiversion *diversion )
{
    KO_REQUIRE_HANDLE( diversion );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->displayName, {} );
}

KoBool tolmoDiversionHasReason( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->reason != nullptr;
}

KoString tolmoDiversionReason( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return tolmo::Retained( diversion->reason );
}

// Of the words only null is refused: what the validators accept has its quotes, and what the decoder stores has not.
void tolmoDiversionSetReason( TolmoDiversion *diversion, KoString reason )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( reason );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->reason, tolmo::Adopt( tolmoDiversionReasonNormalize( reason ) ) );
}

void tolmoDiversionDelReason( TolmoDiversion *diversion )
{
    KO_REQUIRE_HANDLE( diversion );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->reason, {} );
}

KoBool tolmoDiversionHasCounter( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->counter != -1;
}

KoInt tolmoDiversionCounter( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->counter;
}

void tolmoDiversionSetCounter( TolmoDiversion *diversion, KoInt counter )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( tolmoDiversionCounterOk( counter ) );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    ( *diversion )->counter = counter;
}

void tolmoDiversionDelCounter( TolmoDiversion *diversion )
{
    KO_REQUIRE_HANDLE( diversion );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    ( *diversion )->counter = -1;
}

KoBool tolmoDiversionHasLimit( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->limit != -1;
}

KoInt tolmoDiversionLimit( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->limit;
}

void tolmoDiversionSetLimit( TolmoDiversion *diversion, KoInt limit )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( tolmoDiversionLimitOk( limit ) );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    ( *diversion )->limit = limit;
}

void tolmoDiversionDelLimit( TolmoDiversion *diversion )
{
    KO_REQUIRE_HANDLE( diversion );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    ( *diversion )->limit = -1;
}

KoBool tolmoDiversionHasPrivacy( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->privacy != nullptr;
}

KoString tolmoDiversionPrivacy( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return tolmo::Retained( diversion->privacy );
}

void tolmoDiversionSetPrivacy( TolmoDiversion *diversion, KoString privacy )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( privacy );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->privacy, tolmo::Adopt( tolmoDiversionPrivacyNormalize( privacy ) ) );
}

void tolmoDiversionDelPrivacy( TolmoDiversion *diversion )
{
    KO_REQUIRE_HANDLE( diversion );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->privacy, {} );
}

KoBool tolmoDiversionHasScreen( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return diversion->screen != nullptr;
}

KoString tolmoDiversionScreen( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return tolmo::Retained( diversion->screen );
}

void tolmoDiversionSetScreen( TolmoDiversion *diversion, KoString screen )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( screen );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->screen, tolmo::Adopt( tolmoDiversionScreenNormalize( screen ) ) );
}

void tolmoDiversionDelScreen( TolmoDiversion *diversion )
{
    KO_REQUIRE_HANDLE( diversion );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->screen, {} );
}

TolmoGenericParams tolmoDiversionGenericParams( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    return tolmo::Retained( diversion->genericParams );
}

void tolmoDiversionSetGenericParams( TolmoDiversion *diversion, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( diversion );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( diversion, tolmoDiversionCreateFrom );
    tolmo::Store( ( *diversion )->genericParams, tolmo::Share( genericParams ) );
}

namespace {

// As it is stored, also if it is no token: the quotes that a word came with are gone, and that is meant.
void AddWord( tolmo::Builder &text, std::string_view name, KoString word )
{
    if ( word ) {
        tolmo::AddParamName( text, name );
        text.Add( word );
    }
}

} // namespace

// [ display-name ] LAQUOT IRI RAQUOT generic-params, the parameters with a field in their order
KoString tolmo___DiversionEncode( TolmoDiversion diversion )
{
    KO_REQUIRE( diversion );
    tolmo::Builder text;
    tolmo::AddAddress( text, diversion->displayName, diversion->iri );
    AddWord( text, "reason", diversion->reason );
    if ( diversion->counter != -1 ) {
        tolmo::AddParamName( text, "counter" );
        text.Take( tolmo___DiversionCounterEncode( diversion->counter ) );
    }
    if ( diversion->limit != -1 ) {
        tolmo::AddParamName( text, "limit" );
        text.Take( tolmo___DiversionLimitEncode( diversion->limit ) );
    }
    AddWord( text, "privacy", diversion->privacy );
    AddWord( text, "screen", diversion->screen );
    tolmo::AddParams(
        text, diversion->genericParams,
        { tolmo::Hidden( diversion->reason, "reason" ), tolmo::Hidden( diversion->counter != -1, "counter" ),
          tolmo::Hidden( diversion->limit != -1, "limit" ), tolmo::Hidden( diversion->privacy, "privacy" ),
          tolmo::Hidden( diversion->screen, "screen" ) } );
    return text.Finish();
}

namespace {

/** A named word, which is kept in small letters. */
bool TakeWord( tolmo::Walk &w, std::string_view name, KoString &field )
{
    return tolmo::TakeLifted( w, name, skip::DiversionReason, [&]( tolmo::Text value ) {
        auto word = tolmo::Adopt( tolmo::TryDecodeDiversionWord( value.chs, value.length ) );
        koStringToLower( word.Address() );
        return tolmo::StoreGood( field, std::move( word ) );
    } );
}

/** One parameter, by the parsers in their order. What the skip functions take, decodes: two digits are at most 99. */
bool TakeParam( tolmo::Walk &w, TolmoDiversion diversion )
{
    return TakeWord( w, "reason", diversion->reason ) ||
           tolmo::TakeLifted( w, "counter", skip::DiversionCounter,
                              [=]( tolmo::Text value ) {
                                  return tolmo::StoreNumber( diversion->counter, tolmo___DiversionCounterTryDecode(
                                                                                     value.chs, value.length ) );
                              } ) ||
           tolmo::TakeLifted( w, "limit", skip::DiversionLimit,
                              [=]( tolmo::Text value ) {
                                  return tolmo::StoreNumber(
                                      diversion->limit, tolmo___DiversionLimitTryDecode( value.chs, value.length ) );
                              } ) ||
           TakeWord( w, "privacy", diversion->privacy ) || TakeWord( w, "screen", diversion->screen ) ||
           tolmo::TakeGeneric( w, diversion->genericParams );
}

} // namespace

TolmoDiversion tolmo___DiversionTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    tolmo::Address address;
    if ( !tolmo::TakeAddress( w, address, tolmo::ToSemicolon ) ) {
        return nullptr;
    }
    auto diversion = Create( std::move( address.iri ), std::move( address.displayName ) );
    return tolmo::TakeParams( w, [&] { return TakeParam( w, diversion.Get() ); } ) ? diversion.Leak() : nullptr;
}
