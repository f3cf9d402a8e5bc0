/* Event types (RFC 6665 section 8.4). */
#include <tolmo/tolmo_event_type.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoEventTypeOk( KoString eventType )
{
    KO_REQUIRE( eventType );
    return tolmo::IsWhole( eventType, tolmo::skip::EventType );
}
