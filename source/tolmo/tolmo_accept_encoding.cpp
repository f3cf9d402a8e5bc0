/* One item of an Accept-Encoding header: a content coding (RFC 3261 section 20.2). */
#include <tolmo/tolmo_accept_encoding.h>

#include <tolmo/tolmo_accept_params.hpp>
#include <tolmo/tolmo_content_coding.h>

struct tolmo___AcceptEncoding {
    ko___Obj head;
    KoString contentCoding; // in small letters; null: all of them
    TolmoGenericParams genericParams;
    KoInt qvalue;
};

namespace {

using AcceptEncoding = tolmo___AcceptEncoding;
using AllFields =
    tolmo::Fields<&AcceptEncoding::contentCoding, &AcceptEncoding::genericParams, &AcceptEncoding::qvalue>;
static_assert( tolmo::namesAllFields<AcceptEncoding, AllFields> );
using ComparedFields =
    tolmo::Fields<&AcceptEncoding::contentCoding, &AcceptEncoding::qvalue, &AcceptEncoding::genericParams>;

TOLMO_FREE( AcceptEncoding, acceptEncoding, AllFields )
TOLMO_COMPARE( AcceptEncoding, aeA, aeB, ComparedFields )

KoString ToString( KoObj obj )
{
    return tolmo___AcceptEncodingEncode( tolmoAcceptEncodingFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_ACCEPT_ENCODING =
    TOLMO_SORT( "TOLMO_ACCEPT_ENCODING", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( AcceptEncoding, TOLMO_ACCEPT_ENCODING )
TOLMO_CREATE_FROM( AcceptEncoding, AllFields )

namespace {

KoRef<TolmoAcceptEncoding> Create( KoRef<KoString> contentCoding )
{
    auto acceptEncoding = tolmo::CreateObject<AcceptEncoding>( &tolmo___sort_TOLMO_ACCEPT_ENCODING );
    acceptEncoding.Get()->contentCoding = contentCoding.Leak();
    acceptEncoding.Get()->genericParams = tolmo::EmptyParams();
    acceptEncoding.Get()->qvalue = -1;
    return acceptEncoding;
}

} // namespace

TolmoAcceptEncoding tolmoAcceptEncodingCreate( void )
{
    return Create( {} ).Leak();
}

TolmoAcceptEncoding tolmoAcceptEncodingCreateWithContentCoding( KoString contentCoding )
{
    return Create( tolmo::Adopt( tolmoContentCodingNormalize( contentCoding ) ) ).Leak();
}

KoBool tolmoAcceptEncodingHasContentCoding( TolmoAcceptEncoding acceptEncoding )
{
    KO_REQUIRE( acceptEncoding );
    return acceptEncoding->contentCoding != nullptr;
}

KoString tolmoAcceptEncodingContentCoding( TolmoAcceptEncoding acceptEncoding )
{
    KO_REQUIRE( acceptEncoding );
    return tolmo::Retained( acceptEncoding->contentCoding );
}

// The check is the normaliser's, behind the copy: that is meant.
void tolmoAcceptEncodingSetContentCoding( TolmoAcceptEncoding *acceptEncoding, KoString contentCoding )
{
    KO_REQUIRE_HANDLE( acceptEncoding );
    tolmo::MakeUnique( acceptEncoding, tolmoAcceptEncodingCreateFrom );
    tolmo::Store( ( *acceptEncoding )->contentCoding, tolmo::Adopt( tolmoContentCodingNormalize( contentCoding ) ) );
}

void tolmoAcceptEncodingDelContentCoding( TolmoAcceptEncoding *acceptEncoding )
{
    KO_REQUIRE_HANDLE( acceptEncoding );
    tolmo::MakeUnique( acceptEncoding, tolmoAcceptEncodingCreateFrom );
    tolmo::Store( ( *acceptEncoding )->contentCoding, {} );
}

KoBool tolmoAcceptEncodingHasQvalue( TolmoAcceptEncoding acceptEncoding )
{
    KO_REQUIRE( acceptEncoding );
    return acceptEncoding->qvalue != -1;
}

KoInt tolmoAcceptEncodingQvalue( TolmoAcceptEncoding acceptEncoding )
{
    KO_REQUIRE( acceptEncoding );
    return acceptEncoding->qvalue;
}

void tolmoAcceptEncodingSetQvalue( TolmoAcceptEncoding *acceptEncoding, KoInt qvalue )
{
    KO_REQUIRE_HANDLE( acceptEncoding );
    KO_REQUIRE( tolmoQvalueOk( qvalue ) );
    tolmo::MakeUnique( acceptEncoding, tolmoAcceptEncodingCreateFrom );
    ( *acceptEncoding )->qvalue = qvalue;
}

void tolmoAcceptEncodingDelQvalue( TolmoAcceptEncoding *acceptEncoding )
{
    KO_REQUIRE_HANDLE( acceptEncoding );
    tolmo::MakeUnique( acceptEncoding, tolmoAcceptEncodingCreateFrom );
    ( *acceptEncoding )->qvalue = -1;
}

TolmoGenericParams tolmoAcceptEncodingGenericParams( TolmoAcceptEncoding acceptEncoding )
{
    KO_REQUIRE( acceptEncoding );
    return tolmo::Retained( acceptEncoding->genericParams );
}

void tolmoAcceptEncodingSetGenericParams( TolmoAcceptEncoding *acceptEncoding, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( acceptEncoding );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( acceptEncoding, tolmoAcceptEncodingCreateFrom );
    tolmo::Store( ( *acceptEncoding )->genericParams, tolmo::Share( genericParams ) );
}

// content-coding [ ";q=" qvalue ] generic-params
KoString tolmo___AcceptEncodingEncode( TolmoAcceptEncoding acceptEncoding )
{
    KO_REQUIRE( acceptEncoding );
    tolmo::Builder text;
    if ( acceptEncoding->contentCoding ) {
        text.Add( acceptEncoding->contentCoding );
    } else {
        text.Add( '*' );
    }
    tolmo::AddAcceptParams( text, acceptEncoding->qvalue, acceptEncoding->genericParams );
    return text.Finish();
}

// content-coding generic-params
// A star is a token, and so a coding like any other: it is kept as one.
TolmoAcceptEncoding tolmo___AcceptEncodingTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    if ( !w.Need( tolmo::skip::ContentCoding ) ) {
        return nullptr;
    }
    auto acceptEncoding = Create( w.Last().CopyLowered() );
    return tolmo::TakeAcceptParams( w, acceptEncoding.Get()->qvalue, acceptEncoding.Get()->genericParams )
               ? acceptEncoding.Leak()
               : nullptr;
}
