/* The header Content-Disposition (RFC 3261 section 20.11). */
#include <tolmo/tolmo_header_content_disposition.h>

#include <tolmo/tolmo_disposition_type.h>
#include <tolmo/tolmo_handling.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderContentDisposition {
    ko___Obj head;
    KoString dispositionType; // in small letters
    KoString handling;        // in small letters
    TolmoGenericParams genericParams;
};

namespace {

using HeaderContentDisposition = tolmo___HeaderContentDisposition;
using AllFields = tolmo::Fields<&HeaderContentDisposition::dispositionType, &HeaderContentDisposition::handling,
                                &HeaderContentDisposition::genericParams>;
static_assert( tolmo::namesAllFields<HeaderContentDisposition, AllFields> );

TOLMO_FREE( HeaderContentDisposition, hdr, AllFields )
TOLMO_COMPARE( HeaderContentDisposition, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( ContentDisposition )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_CONTENT_DISPOSITION =
    TOLMO_SORT( "TOLMO_HEADER_CONTENT_DISPOSITION", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderContentDisposition, TOLMO_HEADER_CONTENT_DISPOSITION )
TOLMO_CREATE_FROM( HeaderContentDisposition, AllFields )
TOLMO_HEADER_NAME( ContentDisposition, ContentDisposition, "Content-Disposition" )

namespace {

/** A header without parameters, of a type in small letters. */
KoRef<TolmoHeaderContentDisposition> Create( KoRef<KoString> dispositionType )
{
    auto hdr = tolmo::CreateObject<HeaderContentDisposition>( &tolmo___sort_TOLMO_HEADER_CONTENT_DISPOSITION );
    hdr.Get()->dispositionType = dispositionType.Leak();
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr;
}

} // namespace

// It is the normaliser that tests the type.
TolmoHeaderContentDisposition tolmoHeaderContentDispositionCreate( KoString dispositionType )
{
    return Create( tolmo::Adopt( tolmoDispositionTypeNormalize( dispositionType ) ) ).Leak();
}

KoString tolmoHeaderContentDispositionDispositionType( TolmoHeaderContentDisposition hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->dispositionType );
}

// Only the normaliser tests the value, behind the copy on write.
void tolmoHeaderContentDispositionSetDispositionType( TolmoHeaderContentDisposition *hdr, KoString dispositionType )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentDispositionCreateFrom );
    tolmo::Store( ( *hdr )->dispositionType, tolmo::Adopt( tolmoDispositionTypeNormalize( dispositionType ) ) );
}

KoBool tolmoHeaderContentDispositionHasHandling( TolmoHeaderContentDisposition hdr )
{
    KO_REQUIRE( hdr );
    return hdr->handling != nullptr;
}

KoString tolmoHeaderContentDispositionHandling( TolmoHeaderContentDisposition hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->handling );
}

// Only the normaliser tests the value, behind the copy on write.
void tolmoHeaderContentDispositionSetHandling( TolmoHeaderContentDisposition *hdr, KoString handling )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentDispositionCreateFrom );
    tolmo::Store( ( *hdr )->handling, tolmo::Adopt( tolmoHandlingNormalize( handling ) ) );
}

void tolmoHeaderContentDispositionDelHandling( TolmoHeaderContentDisposition *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentDispositionCreateFrom );
    tolmo::Store( ( *hdr )->handling, {} );
}

TolmoGenericParams tolmoHeaderContentDispositionGenericParams( TolmoHeaderContentDisposition hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderContentDispositionSetGenericParams( TolmoHeaderContentDisposition *hdr,
                                                    TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderContentDispositionCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderContentDispositionEncode( TolmoHeaderContentDisposition hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.Add( hdr->dispositionType );
    if ( hdr->handling ) {
        tolmo::AddParamName( text, "handling" );
        text.Add( hdr->handling );
    }
    tolmo::AddParams( text, hdr->genericParams, { tolmo::Hidden( hdr->handling, "handling" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

bool TakeParam( tolmo::Walk &w, TolmoHeaderContentDisposition hdr )
{
    return tolmo::TakeLifted(
               w, "handling", skip::Handling,
               [=]( tolmo::Text value ) { return tolmo::StoreGood( hdr->handling, value.CopyLowered() ); } ) ||
           tolmo::TakeGeneric( w, hdr->genericParams );
}

// disp-type *( SEMI disp-param )
KoRef<TolmoHeaderContentDisposition> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    if ( !w.Need( skip::DispositionType ) ) {
        return {};
    }
    auto hdr = Create( w.Last().CopyLowered() );
    const bool good = tolmo::TakeParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderContentDisposition>();
}

KoRef<TolmoHeaderContentDisposition> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ContentDisposition, ContentDisposition )
