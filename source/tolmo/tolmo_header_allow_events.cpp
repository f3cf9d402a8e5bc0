/* The header Allow-Events (RFC 6665 section 8.2.2). */
#include <tolmo/tolmo_header_allow_events.h>

#include <tolmo/tolmo_event_type.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderAllowEvents {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderAllowEvents::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderAllowEvents, AllFields> );

TOLMO_FREE( HeaderAllowEvents, hdr, AllFields )
TOLMO_COMPARE( HeaderAllowEvents, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( AllowEvents )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_ALLOW_EVENTS =
    TOLMO_SORT( "TOLMO_HEADER_ALLOW_EVENTS", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderAllowEvents, TOLMO_HEADER_ALLOW_EVENTS )
TOLMO_CREATE_FROM( HeaderAllowEvents, AllFields )
TOLMO_HEADER_NAME( AllowEvents, AllowEvents, "Allow-Events" )

TOLMO_TOKEN_SET_CREATE( AllowEvents, TOLMO_HEADER_ALLOW_EVENTS )
TOLMO_TOKEN_SET_READING( AllowEvents, EventType )
TOLMO_TOKEN_SET_CHANGING( AllowEvents, EventType, eventType, tolmo::AsTheyStand )
TOLMO_TOKEN_SET_CSTR_FORMS( AllowEvents, EventType )
TOLMO_TOKEN_SET_CODING( AllowEvents, tolmo::skip::EventType, tolmo::skip::Comma, ',', tolmo::AsTheyStand )
TOLMO_HEADER_OPERATIONS( AllowEvents, AllowEvents )
