/* The header Reply-To (RFC 3261 section 20.31). */
#include <tolmo/tolmo_header_reply_to.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_iri.h>

struct tolmo___HeaderReplyTo {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    TolmoGenericParams genericParams;
};

namespace {

using HeaderReplyTo = tolmo___HeaderReplyTo;
using AllFields = tolmo::Fields<&HeaderReplyTo::iri, &HeaderReplyTo::displayName, &HeaderReplyTo::genericParams>;
static_assert( tolmo::namesAllFields<HeaderReplyTo, AllFields> );

TOLMO_FREE( HeaderReplyTo, hdr, AllFields )
TOLMO_COMPARE( HeaderReplyTo, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( ReplyTo )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_REPLY_TO =
    TOLMO_SORT( "TOLMO_HEADER_REPLY_TO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderReplyTo, TOLMO_HEADER_REPLY_TO )
TOLMO_CREATE_FROM( HeaderReplyTo, AllFields )
TOLMO_HEADER_NAME( ReplyTo, ReplyTo, "Reply-To" )

TolmoHeaderReplyTo tolmoHeaderReplyToCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderReplyTo>( &tolmo___sort_TOLMO_HEADER_REPLY_TO, tolmo::Share( iri ) ).Leak();
}

KoString tolmoHeaderReplyToIri( TolmoHeaderReplyTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderReplyToSetIri( TolmoHeaderReplyTo *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReplyToCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderReplyToHasDisplayName( TolmoHeaderReplyTo hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderReplyToDisplayName( TolmoHeaderReplyTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderReplyToSetDisplayName( TolmoHeaderReplyTo *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReplyToCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderReplyToDelDisplayName( TolmoHeaderReplyTo *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReplyToCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

TolmoGenericParams tolmoHeaderReplyToGenericParams( TolmoHeaderReplyTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderReplyToSetGenericParams( TolmoHeaderReplyTo *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderReplyToCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderReplyToEncode( TolmoHeaderReplyTo hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::EncodeParty( hdr ) );
}

namespace {

KoRef<TolmoHeaderReplyTo> DecodeLine( tolmo::Text line )
{
    return tolmo::DecodeParty<HeaderReplyTo>( line, &tolmo___sort_TOLMO_HEADER_REPLY_TO );
}

KoRef<TolmoHeaderReplyTo> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ReplyTo, ReplyTo )
