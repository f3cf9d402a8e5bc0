/* Numbers of a CSeq (RFC 3261 section 8.1.1.5). */
#include <tolmo/tolmo_cseq.h>

namespace {

constexpr KoInt largest = INT32_MAX;
constexpr KoInt reserve = 100;

} // namespace

KoBool tolmoCseqOk( KoInt cseq )
{
    return cseq >= 0 && cseq <= largest;
}

KoBool tolmoCseqIncrementOk( KoInt cseq )
{
    KO_REQUIRE( tolmoCseqOk( cseq ) );
    return cseq < largest;
}

KoBool tolmoCseqScarce( KoInt cseq )
{
    KO_REQUIRE( tolmoCseqOk( cseq ) );
    return cseq > largest - reserve;
}
