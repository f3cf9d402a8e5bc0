/* Hop counters (RFC 3261 section 20.22). */
#include <tolmo/tolmo_max_forwards.h>

KoBool tolmoMaxForwardsOk( KoInt maxForwards )
{
    return maxForwards >= 0 && maxForwards <= UINT8_MAX;
}
