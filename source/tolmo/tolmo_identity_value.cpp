/* One item of a P-Asserted-Identity or P-Preferred-Identity header: an address without parameters (RFC 3325 section 9). */
#include <tolmo/tolmo_identity_value.h>

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_iri.h>

struct tolmo___IdentityValue {
    ko___Obj head;
    KoString iri;
    KoString displayName;
};

namespace {

using IdentityValue = tolmo___IdentityValue;
using AllFields = tolmo::Fields<&IdentityValue::iri, &IdentityValue::displayName>;
static_assert( tolmo::namesAllFields<IdentityValue, AllFields> );

TOLMO_FREE( IdentityValue, id, AllFields )
// The abort lines of a comparison speak of routes: that is meant.
TOLMO_COMPARE( IdentityValue, routeA, routeB, AllFields )

} // namespace

// Without a to-string function: that is meant.
static const ko___Sort tolmo___sort_TOLMO_IDENTITY_VALUE = TOLMO_SORT( "TOLMO_IDENTITY_VALUE", Free, Compare, nullptr );
TOLMO_STANDARD_OPERATIONS( IdentityValue, TOLMO_IDENTITY_VALUE )
TOLMO_CREATE_FROM( IdentityValue, AllFields )

namespace {

/** An identity of a good address. */
KoRef<TolmoIdentityValue> Create( KoRef<KoString> iri, KoRef<KoString> displayName )
{
    auto id = tolmo::CreateObject<IdentityValue>( &tolmo___sort_TOLMO_IDENTITY_VALUE );
    id.Get()->iri = iri.Leak();
    id.Get()->displayName = displayName.Leak();
    return id;
}

} // namespace

TolmoIdentityValue tolmoIdentityValueCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return Create( tolmo::Share( iri ), {} ).Leak();
}

KoString tolmoIdentityValueIri( TolmoIdentityValue id )
{
    KO_REQUIRE( id );
    return tolmo::Retained( id->iri );
}

void tolmoIdentityValueSetIri( TolmoIdentityValue *id, KoString iri )
{
    KO_REQUIRE_HANDLE( id );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( id, tolmoIdentityValueCreateFrom );
    tolmo::Store( ( *id )->iri, tolmo::Share( iri ) );
}

KoBool tolmoIdentityValueHasDisplayName( TolmoIdentityValue id )
{
    KO_REQUIRE( id );
    return id->displayName != nullptr;
}

KoString tolmoIdentityValueDisplayName( TolmoIdentityValue id )
{
    KO_REQUIRE( id );
    return tolmo::Retained( id->displayName );
}

void tolmoIdentityValueSetDisplayName( TolmoIdentityValue *id, KoString displayName )
{
    KO_REQUIRE_HANDLE( id );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( id, tolmoIdentityValueCreateFrom );
    tolmo::Store( ( *id )->displayName, tolmo::Share( displayName ) );
}

void tolmoIdentityValueDelDisplayName( TolmoIdentityValue *id )
{
    KO_REQUIRE_HANDLE( id );
    tolmo::MakeUnique( id, tolmoIdentityValueCreateFrom );
    tolmo::Store( ( *id )->displayName, {} );
}

// [ display-name ] LAQUOT IRI RAQUOT
KoString tolmo___IdentityValueEncode( TolmoIdentityValue id )
{
    KO_REQUIRE( id );
    tolmo::Builder text;
    tolmo::AddAddress( text, id->displayName, id->iri );
    return text.Finish();
}

TolmoIdentityValue tolmo___IdentityValueTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    tolmo::Address address;
    if ( !tolmo::TakeAddress( w, address, tolmo::ToSemicolon ) || !w.AtEnd() ) {
        return nullptr;
    }
    return Create( std::move( address.iri ), std::move( address.displayName ) ).Leak();
}
