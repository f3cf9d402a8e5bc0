/* One item of an Accept header: a media range (RFC 3261 section 20.1). */
#include <tolmo/tolmo_accept.h>

#include <tolmo/tolmo_accept_params.hpp>
#include <tolmo/tolmo_media_subtype.h>
#include <tolmo/tolmo_media_type.h>

namespace skip = tolmo::skip;

struct tolmo___Accept {
    ko___Obj head;
    KoString mediaType; // in small letters, as the next one; null: all of them
    KoString mediaSubtype;
    TolmoGenericParams genericParams;
    KoInt qvalue;
};

namespace {

using Accept = tolmo___Accept;
using AllFields = tolmo::Fields<&Accept::mediaType, &Accept::mediaSubtype, &Accept::genericParams, &Accept::qvalue>;
static_assert( tolmo::namesAllFields<Accept, AllFields> );
using ComparedFields =
    tolmo::Fields<&Accept::mediaType, &Accept::mediaSubtype, &Accept::qvalue, &Accept::genericParams>;

TOLMO_FREE( Accept, accept, AllFields )
TOLMO_COMPARE( Accept, acceptA, acceptB, ComparedFields )

KoString ToString( KoObj obj )
{
    return tolmo___AcceptEncode( tolmoAcceptFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_ACCEPT = TOLMO_SORT( "TOLMO_ACCEPT", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( Accept, TOLMO_ACCEPT )
TOLMO_CREATE_FROM( Accept, AllFields )

TolmoAccept tolmoAcceptCreate( void )
{
    auto accept = tolmo::CreateObject<Accept>( &tolmo___sort_TOLMO_ACCEPT );
    accept.Get()->genericParams = tolmo::EmptyParams();
    accept.Get()->qvalue = -1;
    return accept.Leak();
}

KoBool tolmoAcceptHasMediaType( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return accept->mediaType != nullptr;
}

KoString tolmoAcceptMediaType( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return tolmo::Retained( accept->mediaType );
}

// The check is the normaliser's, behind the copy: that is meant.
void tolmoAcceptSetMediaType( TolmoAccept *accept, KoString mediaType )
{
    KO_REQUIRE_HANDLE( accept );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    tolmo::Store( ( *accept )->mediaType, tolmo::Adopt( tolmoMediaTypeNormalize( mediaType ) ) );
}

void tolmoAcceptDelMediaType( TolmoAccept *accept )
{
    KO_REQUIRE_HANDLE( accept );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    tolmo::Store( ( *accept )->mediaType, {} );
}

KoBool tolmoAcceptHasMediaSubtype( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return accept->mediaSubtype != nullptr;
}

KoString tolmoAcceptMediaSubtype( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return tolmo::Retained( accept->mediaSubtype );
}

// The check is the normaliser's here, too.
void tolmoAcceptSetMediaSubtype( TolmoAccept *accept, KoString mediaSubtype )
{
    KO_REQUIRE_HANDLE( accept );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    tolmo::Store( ( *accept )->mediaSubtype, tolmo::Adopt( tolmoMediaSubtypeNormalize( mediaSubtype ) ) );
}

void tolmoAcceptDelMediaSubtype( TolmoAccept *accept )
{
    KO_REQUIRE_HANDLE( accept );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    tolmo::Store( ( *accept )->mediaSubtype, {} );
}

KoBool tolmoAcceptHasQvalue( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return accept->qvalue != -1;
}

KoInt tolmoAcceptQvalue( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return accept->qvalue;
}

void tolmoAcceptSetQvalue( TolmoAccept *accept, KoInt qvalue )
{
    KO_REQUIRE_HANDLE( accept );
    KO_REQUIRE( tolmoQvalueOk( qvalue ) );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    ( *accept )->qvalue = qvalue;
}

void tolmoAcceptDelQvalue( TolmoAccept *accept )
{
    KO_REQUIRE_HANDLE( accept );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    ( *accept )->qvalue = -1;
}

TolmoGenericParams tolmoAcceptGenericParams( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    return tolmo::Retained( accept->genericParams );
}

void tolmoAcceptSetGenericParams( TolmoAccept *accept, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( accept );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( accept, tolmoAcceptCreateFrom );
    tolmo::Store( ( *accept )->genericParams, tolmo::Share( genericParams ) );
}

// media-range [ ";q=" qvalue ] generic-params
KoString tolmo___AcceptEncode( TolmoAccept accept )
{
    KO_REQUIRE( accept );
    tolmo::Builder text;
    if ( accept->mediaType ) {
        text.Add( accept->mediaType );
        text.Add( '/' );
    } else {
        text.Add( "*/" );
    }
    if ( accept->mediaType && accept->mediaSubtype ) {
        text.Add( accept->mediaSubtype );
    } else {
        text.Add( '*' ); // a subtype without a type is no fault, and is not written
    }
    tolmo::AddAcceptParams( text, accept->qvalue, accept->genericParams );
    return text.Finish();
}

namespace {

/** A type or a subtype into a field, or a star, which leaves it null. */
template <class Skip>
bool TakeTypeOrStar( tolmo::Walk &w, Skip skipType, KoString &field )
{
    if ( w.Need( skipType ) ) {
        tolmo::Store( field, w.Last().CopyLowered() );
        return true;
    }
    return w.Need( skip::Char, '*' );
}

} // namespace

// media-range generic-params
TolmoAccept tolmo___AcceptTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    auto accept = tolmo::Adopt( tolmoAcceptCreate() );
    TolmoAccept range = accept.Get();
    const bool good = TakeTypeOrStar( w, skip::MediaType, range->mediaType ) && w.Need( skip::Slash ) &&
                      TakeTypeOrStar( w, skip::MediaSubtype, range->mediaSubtype ) &&
                      ( range->mediaType || !range->mediaSubtype ) && // no subtype of all types
                      tolmo::TakeAcceptParams( w, range->qvalue, range->genericParams );
    return good ? accept.Leak() : nullptr;
}
