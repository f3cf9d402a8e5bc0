/* Date and time of day, read as UTC: proleptic Gregorian, years 1 to 9999. */
#ifndef KO_TIME_H
#define KO_TIME_H

#include <runtime/ko_object.h>

KO_BEGIN_DECLS

/** Handle of a time. */
typedef struct ko___Time *KoTime;

/** @name Sort, casts, references
 * As for strings. @{ */
KO_API KoSort koTimeSort( void );
KO_API KoTime koTimeFrom( KoObj obj );
KO_API KoObj koTimeObj( KoTime time );
KO_API KoTime koTimeRetain( KoTime time );
KO_API void koTimeRelease( KoTime time );
/** @} */

/** A new unset time, which is not valid: all fields are 0. */
KO_API KoTime koTimeCreate( void );
/** The present time in UTC, in whole seconds. */
KO_API KoTime koTimeNow( void );

/** @name Fields
 * Year in full, month 1 to 12, day 1 to 31, hour 0 to 23, minute and second from 0. The setters check nothing. @{ */
KO_API KoInt koTimeYear( KoTime time );
KO_API KoInt koTimeMonth( KoTime time );
KO_API KoInt koTimeDay( KoTime time );
KO_API KoInt koTimeHour( KoTime time );
KO_API KoInt koTimeMinute( KoTime time );
KO_API KoInt koTimeSecond( KoTime time );
KO_API void koTimeSetYear( KoTime *time, KoInt value );
KO_API void koTimeSetMonth( KoTime *time, KoInt value );
KO_API void koTimeSetDay( KoTime *time, KoInt value );
KO_API void koTimeSetHour( KoTime *time, KoInt value );
KO_API void koTimeSetMinute( KoTime *time, KoInt value );
KO_API void koTimeSetSecond( KoTime *time, KoInt value );
/** @} */

/** True when the fields form a real date and time; second 60 only at 23:59 on the last day of a month. */
KO_API KoBool koTimeValid( KoTime time );
/** 0 for Monday to 6 for Sunday; -1 for a time that is not valid. */
KO_API KoInt koTimeWeekday( KoTime time );
/** Negative, 0, positive, field by field from the year down. */
KO_API KoInt koTimeCompare( KoTime a, KoTime b );

KO_END_DECLS

#endif
