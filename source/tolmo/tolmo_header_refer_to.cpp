/* The header Refer-To (RFC 3515 section 2.1). */
#include <tolmo/tolmo_header_refer_to.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_iri.h>

namespace skip = tolmo::skip;

struct tolmo___HeaderReferTo {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    TolmoGenericParams genericParams;
};

namespace {

using HeaderReferTo = tolmo___HeaderReferTo;
using AllFields = tolmo::Fields<&HeaderReferTo::iri, &HeaderReferTo::displayName, &HeaderReferTo::genericParams>;
static_assert( tolmo::namesAllFields<HeaderReferTo, AllFields> );

TOLMO_FREE( HeaderReferTo, hdr, AllFields )
TOLMO_COMPARE( HeaderReferTo, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( ReferTo )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_REFER_TO =
    TOLMO_SORT( "TOLMO_HEADER_REFER_TO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderReferTo, TOLMO_HEADER_REFER_TO )
TOLMO_CREATE_FROM( HeaderReferTo, AllFields )
TOLMO_HEADER_NAME( ReferTo, ReferTo, "Refer-To" )

TolmoHeaderReferTo tolmoHeaderReferToCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderReferTo>( &tolmo___sort_TOLMO_HEADER_REFER_TO, tolmo::Share( iri ) ).Leak();
}

KoString tolmoHeaderReferToIri( TolmoHeaderReferTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderReferToSetIri( TolmoHeaderReferTo *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReferToCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderReferToHasDisplayName( TolmoHeaderReferTo hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderReferToDisplayName( TolmoHeaderReferTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderReferToSetDisplayName( TolmoHeaderReferTo *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReferToCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderReferToDelDisplayName( TolmoHeaderReferTo *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReferToCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

TolmoGenericParams tolmoHeaderReferToGenericParams( TolmoHeaderReferTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderReferToSetGenericParams( TolmoHeaderReferTo *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderReferToCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderReferToEncode( TolmoHeaderReferTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::EncodeParty( hdr ) );
}

namespace {

KoRef<TolmoHeaderReferTo> TakeParty( tolmo::Walk &w, tolmo::Extent bare )
{
    return tolmo::TakeParty<HeaderReferTo>( w, &tolmo___sort_TOLMO_HEADER_REFER_TO, bare );
}

// A bare address ends at its first semicolon, and parameters of the header follow. Where they do not, as in
// `sip:a@b;method=INVITE?Replaces=x`, the line is read once more, with the semicolons left to the address. An address in
// brackets reads the same again, and fails again.
KoRef<TolmoHeaderReferTo> DecodeLine( tolmo::Text line )
{
    tolmo::Walk first( line );
    auto hdr = TakeParty( first, tolmo::ToSemicolon );
    if ( !hdr || tolmo::TakeGenericParams( first, hdr.Get() ) ) {
        return hdr;
    }
    tolmo::Walk second( line );
    hdr = TakeParty( second, tolmo::WholeText );
    return hdr && tolmo::TakeGenericParams( second, hdr.Get() ) ? std::move( hdr ) : KoRef<TolmoHeaderReferTo>();
}

KoRef<TolmoHeaderReferTo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ReferTo, ReferTo )
