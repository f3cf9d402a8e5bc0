/* The header Content-Encoding (RFC 3261 section 20.12). */
#include <tolmo/tolmo_header_content_encoding.h>

#include <runtime/ko_vector.hpp>
#include <tolmo/tolmo_content_coding.h>
#include <tolmo/tolmo_joined_header.hpp>
#include <tolmo/tolmo_token_list.hpp>

TOLMO_HEADER_NAME( ContentEncoding, ContentEncoding, "Content-Encoding" )
TOLMO_ITEM_LIST_TYPE( ContentEncoding, TOLMO_HEADER_CONTENT_ENCODING )
TOLMO_TOKEN_LIST_READING( ContentEncoding, ContentCoding )

KoVector tolmoHeaderContentEncodingContentCodingsVector( TolmoHeaderContentEncoding hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->items );
}

// What goes in is tested by the normaliser, behind the copy on write. One function alone stores the normal form, all
// others the word as it stands: both is meant.

namespace {

void RequireContentCoding( KoString contentCoding )
{
    koStringRelease( tolmoContentCodingNormalize( contentCoding ) );
}

} // namespace

void tolmoHeaderContentEncodingSetContentCodingAt( TolmoHeaderContentEncoding *hdr, KoInt index,
                                                   KoString contentCoding )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentEncodingCreateFrom );
    const auto normal = tolmo::Adopt( tolmoContentCodingNormalize( contentCoding ) );
    koVectorSetStringAt( &( *hdr )->items, index, normal.Get() );
}

void tolmoHeaderContentEncodingInsertContentCoding( TolmoHeaderContentEncoding *hdr, KoInt index,
                                                    KoString contentCoding )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentEncodingCreateFrom );
    RequireContentCoding( contentCoding );
    koVectorInsertString( &( *hdr )->items, index, contentCoding );
}

void tolmoHeaderContentEncodingPrependContentCoding( TolmoHeaderContentEncoding *hdr, KoString contentCoding )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentEncodingCreateFrom );
    RequireContentCoding( contentCoding );
    koVectorPrependString( &( *hdr )->items, contentCoding );
}

void tolmoHeaderContentEncodingAppendContentCoding( TolmoHeaderContentEncoding *hdr, KoString contentCoding )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderContentEncodingCreateFrom );
    RequireContentCoding( contentCoding );
    koVectorAppendString( &( *hdr )->items, contentCoding );
}

TOLMO_ITEM_LIST_DELETING( ContentEncoding, ContentCoding )
TOLMO_ITEM_LIST_CLEARING( ContentEncoding, tolmoHeaderContentEncodingClearContentCodings )

void tolmoHeaderContentEncodingSetContentCodingsVector( TolmoHeaderContentEncoding *hdr, KoVector vec )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( vec );
    tolmoHeaderContentEncodingClearContentCodings( hdr );
    const KoInt length = koVectorLength( vec );
    for ( KoInt i = 0; i < length; ++i ) {
        const auto object = tolmo::Adopt( koVectorObjAt( vec, i ) );
        tolmoHeaderContentEncodingAppendContentCoding( hdr, koStringFrom( object.Get() ) );
    }
}

TolmoMessageHeader tolmoHeaderContentEncodingEncode( TolmoHeaderContentEncoding hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::JoinedHeader( headerName, koVectorLength( hdr->items ), ',',
                                [=]( KoInt i ) { return reinterpret_cast<KoString>( ko::At( hdr->items, i ) ); } );
}

namespace {

// This header is only written. A raw header with a line gives null, whatever the line holds; only one without a line
// decodes, to an empty list. This is meant: nothing is cut here.
KoRef<TolmoHeaderContentEncoding> Decode( const tolmo::Lines &lines )
{
    return tolmo::Adopt( lines.Empty() ? tolmoHeaderContentEncodingCreate() : nullptr );
}

} // namespace

TOLMO_HEADER_OPERATIONS( ContentEncoding, ContentEncoding )
