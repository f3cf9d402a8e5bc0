/* The header Allow-Events (RFC 6665 section 8.2.2). */
#include <tolmo/tolmo_header_allow_events.h>

#include <tolmo/tolmo_event_type.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( AllowEvents, AllowEvents, "Allow-Events" )
TOLMO_TOKEN_SET_TYPE( AllowEvents, TOLMO_HEADER_ALLOW_EVENTS )
TOLMO_TOKEN_SET( AllowEvents, EventType, eventType, tolmo::AsTheyStand, tolmo::skip::Comma, ',' )
TOLMO_TOKEN_SET_CSTR_FORMS( AllowEvents, EventType )
TOLMO_HEADER_OPERATIONS( AllowEvents, AllowEvents )
