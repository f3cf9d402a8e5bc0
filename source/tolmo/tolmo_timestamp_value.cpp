/* Values of a Timestamp header (RFC 3261 section 25.1). */
#include <tolmo/tolmo_timestamp_value.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoTimestampValueOk( KoString timestampValue )
{
    KO_REQUIRE( timestampValue );
    return tolmo::IsWhole( timestampValue, tolmo::skip::TimestampValue );
}
