/* Event types (RFC 6665 section 8.4). */
#ifndef TOLMO_EVENT_TYPE_H
#define TOLMO_EVENT_TYPE_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an event type: a package and its templates.
 *
 *     event-type = token-nodot *( "." token-nodot )
 *
 * @param eventType shared, the caller keeps its reference.
 * @pre eventType
 */
KO_API KoBool tolmoEventTypeOk( KoString eventType );

KO_END_DECLS

#endif
