/* The header CSeq (RFC 3261 section 20.16). */
#include <tolmo/tolmo_header_cseq.h>

#include <tolmo/tolmo_cseq.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_method.h>
#include <tolmo/tolmo_scalar.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderCseq {
    ko___Obj head;
    KoInt cseq;
    KoString method; // in its case
};

namespace {

using HeaderCseq = tolmo___HeaderCseq;
using AllFields = tolmo::Fields<&HeaderCseq::cseq, &HeaderCseq::method>;
static_assert( tolmo::namesAllFields<HeaderCseq, AllFields> );

TOLMO_FREE( HeaderCseq, hdr, AllFields )
TOLMO_COMPARE( HeaderCseq, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Cseq )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_CSEQ = TOLMO_SORT( "TOLMO_HEADER_CSEQ", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderCseq, TOLMO_HEADER_CSEQ )
TOLMO_CREATE_FROM( HeaderCseq, AllFields )
TOLMO_HEADER_NAME( Cseq, Cseq, "Cseq" )

namespace {

/** A header of parts that are good. */
KoRef<TolmoHeaderCseq> Create( KoInt cseq, KoRef<KoString> method )
{
    auto hdr = tolmo::CreateObject<HeaderCseq>( &tolmo___sort_TOLMO_HEADER_CSEQ );
    hdr.Get()->cseq = cseq;
    hdr.Get()->method = method.Leak();
    return hdr;
}

} // namespace

TolmoHeaderCseq tolmoHeaderCseqCreate( KoInt cseq, KoString method )
{
    KO_REQUIRE( tolmoCseqOk( cseq ) );
    KO_REQUIRE( tolmoMethodOk( method ) );
    return Create( cseq, tolmo::Share( method ) ).Leak();
}

KoInt tolmoHeaderCseqCseq( TolmoHeaderCseq hdr )
{
    KO_REQUIRE( hdr );
    return hdr->cseq;
}

void tolmoHeaderCseqSetCseq( TolmoHeaderCseq *hdr, KoInt cseq )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoCseqOk( cseq ) );
    tolmo::MakeUnique( hdr, tolmoHeaderCseqCreateFrom );
    ( *hdr )->cseq = cseq;
}

KoString tolmoHeaderCseqMethod( TolmoHeaderCseq hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->method );
}

void tolmoHeaderCseqSetMethod( TolmoHeaderCseq *hdr, KoString method )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoMethodOk( method ) );
    tolmo::MakeUnique( hdr, tolmoHeaderCseqCreateFrom );
    tolmo::Store( ( *hdr )->method, tolmo::Share( method ) );
}

void tolmoHeaderCseqSetMethodCstr( TolmoHeaderCseq *hdr, const char *chs, KoInt length )
{
    tolmoHeaderCseqSetMethod( hdr, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoHeaderCseqSetMethodWcstr( TolmoHeaderCseq *hdr, const uint16_t *chs, KoInt length )
{
    tolmoHeaderCseqSetMethod( hdr, tolmo::FromWcstr( chs, length ).Get() );
}

TolmoMessageHeader tolmoHeaderCseqEncode( TolmoHeaderCseq hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName,
                                 tolmo::Adopt( koStringCreateFromFormatCstr( "%i %s", -1, hdr->cseq, hdr->method ) ) );
}

namespace {

// CSeq = 1*DIGIT LWS Method
KoRef<TolmoHeaderCseq> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    KoInt cseq = -1;
    if ( !tolmo::TakeNumber( w, tolmoCseqOk, cseq ) || !w.Need( skip::Lws ) || !w.Need( skip::Method ) || !w.AtEnd() ) {
        return {};
    }
    return Create( cseq, w.Last().Copy() );
}

KoRef<TolmoHeaderCseq> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Cseq, Cseq )
