/* The header Rseq (RFC 3262 section 7.1). */
#include <tolmo/tolmo_header_rseq.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_response_num.h>
#include <tolmo/tolmo_scalar.hpp>

struct tolmo___HeaderRseq {
    ko___Obj head;
    KoInt responseNum;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderRseq::responseNum>;
static_assert( tolmo::namesAllFields<tolmo___HeaderRseq, AllFields> );

TOLMO_FREE( HeaderRseq, hdr, AllFields )
TOLMO_COMPARE( HeaderRseq, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Rseq )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_RSEQ = TOLMO_SORT( "TOLMO_HEADER_RSEQ", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderRseq, TOLMO_HEADER_RSEQ )
TOLMO_CREATE_FROM( HeaderRseq, AllFields )
TOLMO_HEADER_NAME( Rseq, Rseq, "Rseq" )

TolmoHeaderRseq tolmoHeaderRseqCreate( KoInt responseNum )
{
    KO_REQUIRE( tolmoResponseNumOk( responseNum ) );
    auto hdr = tolmo::CreateObject<tolmo___HeaderRseq>( &tolmo___sort_TOLMO_HEADER_RSEQ );
    hdr.Get()->responseNum = responseNum;
    return hdr.Leak();
}

KoInt tolmoHeaderRseqResponseNum( TolmoHeaderRseq hdr )
{
    KO_REQUIRE( hdr );
    return hdr->responseNum;
}

void tolmoHeaderRseqSetResponseNum( TolmoHeaderRseq *hdr, KoInt responseNum )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoResponseNumOk( responseNum ) );
    tolmo::MakeUnique( hdr, tolmoHeaderRseqCreateFrom );
    ( *hdr )->responseNum = responseNum;
}

TolmoMessageHeader tolmoHeaderRseqEncode( TolmoHeaderRseq hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( koFormatEncodeInt( hdr->responseNum, 10, 0, 0 ) ) );
}

namespace {

// A whole line of digits, without a sign.
KoRef<TolmoHeaderRseq> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    if ( !w.Need( tolmo::skip::Digits ) || !w.AtEnd() ) {
        return {};
    }
    const KoInt responseNum = tolmo::TryDecodeNumber( line.chs, line.length, INT64_MAX );
    return tolmo::Adopt( tolmoResponseNumOk( responseNum ) ? tolmoHeaderRseqCreate( responseNum ) : nullptr );
}

KoRef<TolmoHeaderRseq> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Rseq, Rseq )
