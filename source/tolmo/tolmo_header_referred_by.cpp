/* The header Referred-By (RFC 3892 section 3). */
#include <tolmo/tolmo_header_referred_by.h>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_header_party.hpp>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_sip_clean_msg_id.h>

namespace skip = tolmo::skip;

struct tolmo___HeaderReferredBy {
    ko___Obj head;
    KoString iri;
    KoString displayName; // decoded; null when absent
    KoString cid;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderReferredBy = tolmo___HeaderReferredBy;
using AllFields = tolmo::Fields<&HeaderReferredBy::iri, &HeaderReferredBy::displayName, &HeaderReferredBy::cid,
                                &HeaderReferredBy::genericParams>;
static_assert( tolmo::namesAllFields<HeaderReferredBy, AllFields> );

TOLMO_FREE( HeaderReferredBy, hdr, AllFields )
TOLMO_COMPARE( HeaderReferredBy, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( ReferredBy )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_REFERRED_BY =
    TOLMO_SORT( "TOLMO_HEADER_REFERRED_BY", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderReferredBy, TOLMO_HEADER_REFERRED_BY )
TOLMO_CREATE_FROM( HeaderReferredBy, AllFields )
TOLMO_HEADER_NAME( ReferredBy, ReferredBy, "Referred-By" )

TolmoHeaderReferredBy tolmoHeaderReferredByCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateParty<HeaderReferredBy>( &tolmo___sort_TOLMO_HEADER_REFERRED_BY, tolmo::Share( iri ) ).Leak();
}

KoString tolmoHeaderReferredByIri( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->iri );
}

void tolmoHeaderReferredBySetIri( TolmoHeaderReferredBy *hdr, KoString iri )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReferredByCreateFrom );
    tolmo::Store( ( *hdr )->iri, tolmo::Share( iri ) );
}

KoBool tolmoHeaderReferredByHasDisplayName( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    return hdr->displayName != nullptr;
}

KoString tolmoHeaderReferredByDisplayName( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->displayName );
}

void tolmoHeaderReferredBySetDisplayName( TolmoHeaderReferredBy *hdr, KoString displayName )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReferredByCreateFrom );
    tolmo::Store( ( *hdr )->displayName, tolmo::Share( displayName ) );
}

void tolmoHeaderReferredByDelDisplayName( TolmoHeaderReferredBy *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReferredByCreateFrom );
    tolmo::Store( ( *hdr )->displayName, {} );
}

KoBool tolmoHeaderReferredByHasCid( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    return hdr->cid != nullptr;
}

KoString tolmoHeaderReferredByCid( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->cid );
}

void tolmoHeaderReferredBySetCid( TolmoHeaderReferredBy *hdr, KoString cid )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoSipCleanMsgIdOk( cid ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReferredByCreateFrom );
    tolmo::Store( ( *hdr )->cid, tolmo::Share( cid ) );
}

void tolmoHeaderReferredByDelCid( TolmoHeaderReferredBy *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReferredByCreateFrom );
    tolmo::Store( ( *hdr )->cid, {} );
}

TolmoGenericParams tolmoHeaderReferredByGenericParams( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderReferredBySetGenericParams( TolmoHeaderReferredBy *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderReferredByCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderReferredByEncode( TolmoHeaderReferredBy hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    tolmo::AddAddress( text, hdr->displayName, hdr->iri );
    if ( hdr->cid ) {
        text.Add( ";cid=\"" );
        text.Add( hdr->cid );
        text.Add( '"' );
    }
    tolmo::AddParams( text, hdr->genericParams, { tolmo::Hidden( hdr->cid, "cid" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

// DQUOTE sip-clean-msg-id DQUOTE
KoInt SkipQuotedCid( const KoChar *chs, KoInt length )
{
    tolmo::Walk w( chs, length );
    return w.Taken( w.Need( skip::Char, '"' ) && w.Need( skip::SipCleanMsgId ) && w.Need( skip::Char, '"' ) );
}

// The field has the text between the quotes. A cid without them, or with anything else in them, is a generic parameter.
bool TakeParam( tolmo::Walk &w, TolmoHeaderReferredBy hdr )
{
    const auto storeCid = [=]( tolmo::Text quoted ) {
        return tolmo::StoreText( hdr->cid, { quoted.chs + 1, quoted.length - 2 } );
    };
    return tolmo::TakeLifted( w, "cid", SkipQuotedCid, storeCid ) || tolmo::TakeGeneric( w, hdr->genericParams );
}

KoRef<TolmoHeaderReferredBy> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    auto hdr = tolmo::TakeParty<HeaderReferredBy>( w, &tolmo___sort_TOLMO_HEADER_REFERRED_BY, tolmo::ToSemicolon );
    const bool good = hdr && tolmo::TakeParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderReferredBy>();
}

KoRef<TolmoHeaderReferredBy> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ReferredBy, ReferredBy )
