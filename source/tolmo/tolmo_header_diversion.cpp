/* The header Diversion (RFC 5806): who diverted a call, the last one first. */
#include <tolmo/tolmo_header_diversion.h>

#include <tolmo/tolmo_item_list.hpp>

TOLMO_HEADER_NAME( Diversion, Diversion, "Diversion" )
TOLMO_ITEM_LIST_TYPE( Diversion, TOLMO_HEADER_DIVERSION )
TOLMO_VALUE_LIST_READING( Diversion, Diversion, Diversion )
TOLMO_VALUE_LIST_CHANGING( Diversion, Diversion, Diversion, diversion )
TOLMO_ITEM_LIST_DELETING( Diversion, Diversion )
TOLMO_ITEM_LIST_CLEARING( Diversion, tolmoHeaderDiversionClearDiversions )

// Each line is tested: a diversion takes any text as a word, and prints it as it is, line ends too.
TolmoMessageHeader tolmoHeaderDiversionEncode( TolmoHeaderDiversion hdr )
{
    KO_REQUIRE( hdr );
    auto header = tolmo::NewHeader( headerName );
    const KoInt length = koVectorLength( hdr->items );
    for ( KoInt i = 0; i < length; ++i ) {
        tolmoMessageHeaderAppendLine( header.Address(), tolmo::StringAt( hdr->items, i ).Get() );
    }
    return header.Leak();
}

namespace {

// Without a line there is no list.
KoRef<TolmoHeaderDiversion> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeSomeLines( lines, tolmo::skip::Diversion, tolmoHeaderDiversionCreate );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Diversion, Diversion )
