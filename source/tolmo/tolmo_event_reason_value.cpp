/* Reasons of a subscription state (RFC 6665 section 8.4). */
#include <tolmo/tolmo_event_reason_value.h>

#include <tolmo/tolmo_scalar.hpp>
#include <tolmo/tolmo_token.h>

KoBool tolmoEventReasonValueOk( KoString eventReasonValue )
{
    KO_REQUIRE( eventReasonValue );
    return tolmo::IsWhole( eventReasonValue, tolmo::skip::EventReasonValue );
}

KoString tolmoEventReasonValueNormalize( KoString eventReasonValue )
{
    KO_REQUIRE( eventReasonValue );
    return tolmoTokenNormalize( eventReasonValue );
}
