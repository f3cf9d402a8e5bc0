/* The header P-Early-Media (RFC 5009 section 8). */
#include <tolmo/tolmo_header_p_early_media.h>

#include <tolmo/tolmo_em_param.h>
#include <tolmo/tolmo_token_list.hpp>

struct tolmo___HeaderPEarlyMedia {
    ko___Obj head;
    KoVector items; // the words
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderPEarlyMedia::items>;
static_assert( tolmo::namesAllFields<tolmo___HeaderPEarlyMedia, AllFields> );

TOLMO_FREE( HeaderPEarlyMedia, hdr, AllFields )
TOLMO_COMPARE( HeaderPEarlyMedia, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( PEarlyMedia )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_P_EARLY_MEDIA =
    TOLMO_SORT( "TOLMO_HEADER_P_EARLY_MEDIA", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderPEarlyMedia, TOLMO_HEADER_P_EARLY_MEDIA )
TOLMO_CREATE_FROM( HeaderPEarlyMedia, AllFields )
TOLMO_HEADER_NAME( PEarlyMedia, PEarlyMedia, "P-Early-Media" )

TolmoHeaderPEarlyMedia tolmoHeaderPEarlyMediaCreate( void )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderPEarlyMedia>( &tolmo___sort_TOLMO_HEADER_P_EARLY_MEDIA );
    hdr.Get()->items = koVectorCreate();
    return hdr.Leak();
}

TOLMO_TOKEN_LIST_READING( PEarlyMedia, EmParam )
TOLMO_TOKEN_LIST_CHANGING( PEarlyMedia, EmParam, emParam )
TOLMO_ITEM_LIST_DELETING( PEarlyMedia, EmParam )
TOLMO_ITEM_LIST_CLEARING( PEarlyMedia, tolmoHeaderPEarlyMediaClearEmParams )

TolmoMessageHeader tolmoHeaderPEarlyMediaEncode( TolmoHeaderPEarlyMedia hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::ItemPerLineHeader( headerName, hdr->items );
}

namespace {

// Without a line the list is empty.
KoRef<TolmoHeaderPEarlyMedia> Decode( const tolmo::Lines &lines )
{
    auto hdr = tolmo::Adopt( tolmoHeaderPEarlyMediaCreate() );
    const bool good = tolmo::CutToVector( lines, tolmo::skip::EmParam, hdr.Get()->items );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderPEarlyMedia>();
}

} // namespace

TOLMO_HEADER_OPERATIONS( PEarlyMedia, PEarlyMedia )
