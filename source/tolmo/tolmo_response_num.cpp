/* Numbers of a reliable response (RFC 3262 section 7.1). */
#include <tolmo/tolmo_response_num.h>

namespace {

constexpr KoInt largest = UINT32_MAX;

} // namespace

KoBool tolmoResponseNumOk( KoInt responseNum )
{
    return responseNum >= 1 && responseNum <= largest;
}

KoBool tolmoResponseNumIncrementOk( KoInt responseNum )
{
    KO_REQUIRE( tolmoResponseNumOk( responseNum ) );
    return responseNum < largest;
}
