/* One item of a Contact header: an address and the parameters of a contact (RFC 3261 section 20.10). */
#include <tolmo/tolmo_contact.h>

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_history_info_index.h>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_qvalue.h>
#include <tolmo/tolmo_sip_instance.h>

namespace skip = tolmo::skip;

struct tolmo___Contact {
    ko___Obj head;
    KoString iri;
    KoString displayName;
    TolmoGenericParams genericParams;
    KoInt qvalue;
    KoInt expires;
    KoString rc; // this one and the next two: texts, never numbers
    KoString mp;
    KoString np;
    KoString sipInstance; // with its angle brackets, without quotes
    KoBool sipSrc;
    KoBool sipSrs;
};

namespace {

using Contact = tolmo___Contact;
using AllFields =
    tolmo::Fields<&Contact::iri, &Contact::displayName, &Contact::genericParams, &Contact::qvalue, &Contact::expires,
                  &Contact::rc, &Contact::mp, &Contact::np, &Contact::sipInstance, &Contact::sipSrc, &Contact::sipSrs>;
static_assert( tolmo::namesAllFields<Contact, AllFields> );

// In this order, and without the two flags: contacts that differ in them alone are equal. That is meant.
using ComparedFields =
    tolmo::Fields<&Contact::iri, &Contact::displayName, &Contact::qvalue, &Contact::expires, &Contact::rc, &Contact::mp,
                  &Contact::np, &Contact::sipInstance, &Contact::genericParams>;

TOLMO_FREE( Contact, contact, AllFields )
TOLMO_COMPARE( Contact, contactA, contactB, ComparedFields )

KoString ToString( KoObj obj )
{
    return tolmo___ContactEncode( tolmoContactFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_CONTACT = TOLMO_SORT( "TOLMO_CONTACT", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( Contact, TOLMO_CONTACT )
TOLMO_CREATE_FROM( Contact, AllFields )

namespace {

/** A contact without parameters, of a good address. */
KoRef<TolmoContact> Create( KoRef<KoString> iri, KoRef<KoString> displayName )
{
    auto contact = tolmo::CreateObject<Contact>( &tolmo___sort_TOLMO_CONTACT );
    contact.Get()->iri = iri.Leak();
    contact.Get()->displayName = displayName.Leak();
    contact.Get()->genericParams = tolmo::EmptyParams();
    contact.Get()->qvalue = -1;
    contact.Get()->expires = -1;
    return contact;
}

} // namespace

TolmoContact tolmoContactCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return Create( tolmo::Share( iri ), {} ).Leak();
}

KoString tolmoContactIri( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->iri );
}

void tolmoContactSetIri( TolmoContact *contact, KoString iri )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->iri, tolmo::Share( iri ) );
}

KoBool tolmoContactHasDisplayName( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->displayName != nullptr;
}

KoString tolmoContactDisplayName( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->displayName );
}

void tolmoContactSetDisplayName( TolmoContact *contact, KoString displayName )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->displayName, tolmo::Share( displayName ) );
}

void tolmoContactDelDisplayName( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->displayName, {} );
}

KoBool tolmoContactHasQvalue( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->qvalue != -1;
}

KoInt tolmoContactQvalue( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->qvalue;
}

void tolmoContactSetQvalue( TolmoContact *contact, KoInt qvalue )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoQvalueOk( qvalue ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    ( *contact )->qvalue = qvalue;
}

void tolmoContactDelQvalue( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    ( *contact )->qvalue = -1;
}

KoBool tolmoContactHasExpires( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->expires != -1;
}

KoInt tolmoContactExpires( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->expires;
}

void tolmoContactSetExpires( TolmoContact *contact, KoInt expires )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoDeltaSecondsOk( expires ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    ( *contact )->expires = expires;
}

void tolmoContactDelExpires( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    ( *contact )->expires = -1;
}

KoBool tolmoContactHasRc( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->rc != nullptr;
}

KoString tolmoContactRc( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->rc );
}

void tolmoContactSetRc( TolmoContact *contact, KoString rc )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoHistoryInfoIndexOk( rc ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->rc, tolmo::Share( rc ) );
}

void tolmoContactDelRc( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->rc, {} );
}

KoBool tolmoContactHasMp( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->mp != nullptr;
}

KoString tolmoContactMp( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->mp );
}

void tolmoContactSetMp( TolmoContact *contact, KoString mp )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoHistoryInfoIndexOk( mp ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->mp, tolmo::Share( mp ) );
}

void tolmoContactDelMp( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->mp, {} );
}

KoBool tolmoContactHasNp( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->np != nullptr;
}

KoString tolmoContactNp( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->np );
}

void tolmoContactSetNp( TolmoContact *contact, KoString np )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoHistoryInfoIndexOk( np ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->np, tolmo::Share( np ) );
}

void tolmoContactDelNp( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->np, {} );
}

KoBool tolmoContactHasSipInstance( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->sipInstance != nullptr;
}

KoString tolmoContactSipInstance( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->sipInstance );
}

void tolmoContactSetSipInstance( TolmoContact *contact, KoString sipInstance )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( tolmoSipInstanceOk( sipInstance ) );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->sipInstance, tolmo::Share( sipInstance ) );
}

void tolmoContactDelSipInstance( TolmoContact *contact )
{
    KO_REQUIRE_HANDLE( contact );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->sipInstance, {} );
}

// The setters of the two flags make no copy: they write into the object, whoever shares it. That is meant.

KoBool tolmoContactSipSrc( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->sipSrc;
}

void tolmoContactSetSipSrc( TolmoContact *contact, KoBool sipSrc )
{
    KO_REQUIRE_HANDLE( contact );
    ( *contact )->sipSrc = sipSrc != 0;
}

KoBool tolmoContactSipSrs( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return contact->sipSrs;
}

void tolmoContactSetSipSrs( TolmoContact *contact, KoBool sipSrs )
{
    KO_REQUIRE_HANDLE( contact );
    ( *contact )->sipSrs = sipSrs != 0;
}

TolmoGenericParams tolmoContactGenericParams( TolmoContact contact )
{
    KO_REQUIRE( contact );
    return tolmo::Retained( contact->genericParams );
}

void tolmoContactSetGenericParams( TolmoContact *contact, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( contact );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( contact, tolmoContactCreateFrom );
    tolmo::Store( ( *contact )->genericParams, tolmo::Share( genericParams ) );
}

// [ display-name ] LAQUOT IRI RAQUOT *( SEMI contact-params ), the parameters in one order and without whitespace
KoString tolmo___ContactEncode( TolmoContact contact )
{
    KO_REQUIRE( contact );
    tolmo::Builder text;
    tolmo::AddAddress( text, contact->displayName, contact->iri );
    if ( contact->qvalue != -1 ) {
        tolmo::AddParamName( text, "q" );
        text.Take( tolmo___QvalueEncode( contact->qvalue ) );
    }
    if ( contact->expires != -1 ) {
        tolmo::AddParamName( text, "expires" );
        text.Take( tolmo___DeltaSecondsEncode( contact->expires ) );
    }
    if ( contact->rc ) {
        tolmo::AddParamName( text, "rc" );
        text.Add( contact->rc );
    }
    if ( contact->mp ) {
        tolmo::AddParamName( text, "mp" );
        text.Add( contact->mp );
    }
    if ( contact->np ) {
        tolmo::AddParamName( text, "np" );
        text.Add( contact->np );
    }
    if ( contact->sipInstance ) {
        tolmo::AddParamName( text, "+sip.instance" );
        text.Add( '"' );
        text.Add( contact->sipInstance );
        text.Add( '"' );
    }
    if ( contact->sipSrc ) {
        text.Add( ";+sip.src" );
    }
    if ( contact->sipSrs ) {
        text.Add( ";+sip.srs" );
    }
    tolmo::AddParams( text, contact->genericParams,
                      { tolmo::Hidden( contact->qvalue != -1, "q" ), tolmo::Hidden( contact->expires != -1, "expires" ),
                        tolmo::Hidden( contact->rc, "rc" ), tolmo::Hidden( contact->mp, "mp" ),
                        tolmo::Hidden( contact->np, "np" ), tolmo::Hidden( contact->sipInstance, "+sip.instance" ),
                        tolmo::Hidden( contact->sipSrc, "+sip.src" ), tolmo::Hidden( contact->sipSrs, "+sip.srs" ) } );
    return text.Finish();
}

namespace {

// DQUOTE instance-val DQUOTE, without whitespace
KoInt SkipQuotedInstance( const KoChar *chs, KoInt length )
{
    tolmo::Walk w( chs, length );
    return w.Taken( w.Need( skip::Char, '"' ) && w.Need( skip::SipInstance ) && w.Need( skip::Char, '"' ) );
}

bool StoreInstance( KoString &field, tolmo::Text quoted )
{
    return tolmo::StoreText( field, { quoted.chs + 1, quoted.length - 2 } );
}

/** Takes a parameter that has no value, whatever stands behind its name. */
bool TakeFlag( tolmo::Walk &w, std::string_view name, KoBool &field )
{
    if ( !w.Need( skip::Literal, name ) ) {
        return false;
    }
    field = KO_TRUE;
    return true;
}

/** One parameter, by the parsers in their order. */
bool TakeParam( tolmo::Walk &w, TolmoContact contact )
{
    using tolmo::Text;
    return tolmo::TakeLifted( w, "q", skip::Qvalue,
                              [=]( Text value ) {
                                  return tolmo::StoreNumber( contact->qvalue,
                                                             tolmo___QvalueTryDecode( value.chs, value.length ) );
                              } ) ||
           tolmo::TakeLifted( w, "expires", skip::DeltaSeconds,
                              [=]( Text value ) {
                                  return tolmo::StoreNumber( contact->expires,
                                                             tolmo___DeltaSecondsTryDecode( value.chs, value.length ) );
                              } ) ||
           tolmo::TakeLifted( w, "rc", skip::HistoryInfoIndex,
                              [=]( Text value ) { return tolmo::StoreText( contact->rc, value ); } ) ||
           tolmo::TakeLifted( w, "mp", skip::HistoryInfoIndex,
                              [=]( Text value ) { return tolmo::StoreText( contact->mp, value ); } ) ||
           tolmo::TakeLifted( w, "np", skip::HistoryInfoIndex,
                              [=]( Text value ) { return tolmo::StoreText( contact->np, value ); } ) ||
           tolmo::TakeLifted( w, "+sip.instance", SkipQuotedInstance,
                              [=]( Text value ) { return StoreInstance( contact->sipInstance, value ); } ) ||
           TakeFlag( w, "+sip.src", contact->sipSrc ) || TakeFlag( w, "+sip.srs", contact->sipSrs ) ||
           tolmo::TakeGeneric( w, contact->genericParams );
}

} // namespace

TolmoContact tolmo___ContactTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    tolmo::Address address;
    if ( !tolmo::TakeAddress( w, address, tolmo::ToSemicolon ) ) {
        return nullptr;
    }
    auto contact = Create( std::move( address.iri ), std::move( address.displayName ) );
    return tolmo::TakeParams( w, [&] { return TakeParam( w, contact.Get() ); } ) ? contact.Leak() : nullptr;
}
