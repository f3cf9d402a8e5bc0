/* Indexes of a History-Info entry (RFC 7044 section 5). */
#include <tolmo/tolmo_history_info_index.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoHistoryInfoIndexOk( KoString index )
{
    KO_REQUIRE( index );
    return tolmo::IsWhole( index, tolmo::skip::HistoryInfoIndex );
}
