/* The header RAck (RFC 3262 section 7.2). */
#include <tolmo/tolmo_header_rack.h>

#include <tolmo/tolmo_cseq.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_method.h>
#include <tolmo/tolmo_response_num.h>
#include <tolmo/tolmo_scalar.hpp>

namespace skip = tolmo::skip;

struct tolmo___HeaderRack {
    ko___Obj head;
    KoInt responseNum;
    KoInt cseq;
    KoString method; // in its case
};

namespace {

using HeaderRack = tolmo___HeaderRack;
using AllFields = tolmo::Fields<&HeaderRack::responseNum, &HeaderRack::cseq, &HeaderRack::method>;
static_assert( tolmo::namesAllFields<HeaderRack, AllFields> );

TOLMO_FREE( HeaderRack, hdr, AllFields )

// Unlike those of CSeq, methods compare by the string object: by its address as an unsigned number, never by its text. That
// is meant. A header equals its copies, which share the string; two headers decoded from one line differ.
KoInt Compare( KoObj objA, KoObj objB )
{
    const TolmoHeaderRack hdrA = tolmoHeaderRackFrom( objA );
    const TolmoHeaderRack hdrB = tolmoHeaderRackFrom( objB );
    KO_REQUIRE( hdrA );
    KO_REQUIRE( hdrB );
    using Numbers = tolmo::Fields<&HeaderRack::responseNum, &HeaderRack::cseq>;
    if ( const KoInt result = tolmo::CompareFields( hdrA, hdrB, Numbers{} ) ) {
        return result;
    }
    return tolmo::CompareField( reinterpret_cast<uintptr_t>( hdrA->method ),
                                reinterpret_cast<uintptr_t>( hdrB->method ) );
}

TOLMO_HEADER_TO_STRING( Rack )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_RACK = TOLMO_SORT( "TOLMO_HEADER_RACK", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderRack, TOLMO_HEADER_RACK )
TOLMO_CREATE_FROM( HeaderRack, AllFields )
TOLMO_HEADER_NAME( Rack, Rack, "Rack" )

namespace {

/** A header of parts that are good. */
KoRef<TolmoHeaderRack> Create( KoInt responseNum, KoInt cseq, KoRef<KoString> method )
{
    auto hdr = tolmo::CreateObject<HeaderRack>( &tolmo___sort_TOLMO_HEADER_RACK );
    hdr.Get()->responseNum = responseNum;
    hdr.Get()->cseq = cseq;
    hdr.Get()->method = method.Leak();
    return hdr;
}

} // namespace

TolmoHeaderRack tolmoHeaderRackCreate( KoInt responseNum, KoInt cseq, KoString method )
{
    KO_REQUIRE( tolmoResponseNumOk( responseNum ) );
    KO_REQUIRE( tolmoCseqOk( cseq ) );
    KO_REQUIRE( tolmoMethodOk( method ) );
    return Create( responseNum, cseq, tolmo::Share( method ) ).Leak();
}

KoInt tolmoHeaderRackResponseNum( TolmoHeaderRack hdr )
{
    KO_REQUIRE( hdr );
    return hdr->responseNum;
}

void tolmoHeaderRackSetResponseNum( TolmoHeaderRack *hdr, KoInt responseNum )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoResponseNumOk( responseNum ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRackCreateFrom );
    ( *hdr )->responseNum = responseNum;
}

KoInt tolmoHeaderRackCseq( TolmoHeaderRack hdr )
{
    KO_REQUIRE( hdr );
    return hdr->cseq;
}

void tolmoHeaderRackSetCseq( TolmoHeaderRack *hdr, KoInt cseq )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoCseqOk( cseq ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRackCreateFrom );
    ( *hdr )->cseq = cseq;
}

KoString tolmoHeaderRackMethod( TolmoHeaderRack hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->method );
}

void tolmoHeaderRackSetMethod( TolmoHeaderRack *hdr, KoString method )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoMethodOk( method ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRackCreateFrom );
    tolmo::Store( ( *hdr )->method, tolmo::Share( method ) );
}

TolmoMessageHeader tolmoHeaderRackEncode( TolmoHeaderRack hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( koStringCreateFromFormatCstr(
                                                 "%i %i %s", -1, hdr->responseNum, hdr->cseq, hdr->method ) ) );
}

namespace {

// RAck = response-num LWS CSeq-num LWS Method
KoRef<TolmoHeaderRack> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    KoInt responseNum = -1;
    KoInt cseq = -1;
    if ( !tolmo::TakeNumber( w, tolmoResponseNumOk, responseNum ) || !w.Need( skip::Lws ) ||
         !tolmo::TakeNumber( w, tolmoCseqOk, cseq ) || !w.Need( skip::Lws ) || !w.Need( skip::Method ) || !w.AtEnd() ) {
        return {};
    }
    return Create( responseNum, cseq, w.Last().Copy() );
}

KoRef<TolmoHeaderRack> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Rack, Rack )
