/* Indexes of a History-Info entry (RFC 7044 section 5). */
#ifndef TOLMO_HISTORY_INFO_INDEX_H
#define TOLMO_HISTORY_INFO_INDEX_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is an index: numbers without leading zeros, joined by dots.
 *
 *     index = number *( "." number )
 *     number = "0" / ( %x31-39 *DIGIT )
 *
 * @param index shared, the caller keeps its reference.
 * @pre index
 */
KO_API KoBool tolmoHistoryInfoIndexOk( KoString index );

KO_END_DECLS

#endif
