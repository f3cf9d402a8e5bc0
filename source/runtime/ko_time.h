/* Date and time of day, read as UTC: proleptic Gregorian, years 1 to 9999. */
#ifndef KO_TIME_H
#define KO_TIME_H

#include <runtime/ko_object.h>

KO_BEGIN_DECLS

/** Handle of a time. Its text is that of ISO 8601: `2024-02-29T12:34:56Z`. */
typedef struct ko___Time *KoTime;

/** @name Sort, casts, references
 * @{ */

/** The sort of times. */
KO_API KoSort koTimeSort( void );

/**
 * Casts an object to a time. Changes no count.
 *
 * @param obj shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 * @pre !obj || koObjSort( obj ) == koTimeSort()
 */
KO_API KoTime koTimeFrom( KoObj obj );

/**
 * Casts a time to an object. Changes no count.
 *
 * @param time shared, the caller keeps its reference; may be null.
 * @return The same handle; null for null.
 */
KO_API KoObj koTimeObj( KoTime time );

/**
 * Adds a reference.
 *
 * @param time shared, the caller keeps its reference.
 * @return new reference: the same handle.
 * @pre time
 */
KO_API KoTime koTimeRetain( KoTime time );

/**
 * Drops a reference; the last one ends the time.
 *
 * @param time taken over.
 * @pre time
 */
KO_API void koTimeRelease( KoTime time );

/** @} */

/** @name Creation
 * @{ */

/**
 * An unset time. All its fields are 0, so that it is not valid.
 *
 * @return new reference.
 */
KO_API KoTime koTimeCreate( void );

/**
 * The present time in UTC, in whole seconds.
 *
 * @return new reference.
 */
KO_API KoTime koTimeNow( void );

/** @} */

/** @name Fields
 * The setters check nothing: koTimeValid does.
 * @{ */

/**
 * The year in full.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoInt koTimeYear( KoTime time );

/**
 * The month, 1 to 12.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoInt koTimeMonth( KoTime time );

/**
 * The day of the month, from 1.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoInt koTimeDay( KoTime time );

/**
 * The hour, 0 to 23.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoInt koTimeHour( KoTime time );

/**
 * The minute, 0 to 59.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoInt koTimeMinute( KoTime time );

/**
 * The second, 0 to 60.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoInt koTimeSecond( KoTime time );

/**
 * Sets the year.
 *
 * @param time address of the caller's handle, which may be replaced.
 * @param value Any number.
 * @pre time
 * @pre *time
 */
KO_API void koTimeSetYear( KoTime *time, KoInt value );

/**
 * Sets the month.
 *
 * @param time address of the caller's handle, which may be replaced.
 * @param value Any number.
 * @pre time
 * @pre *time
 */
KO_API void koTimeSetMonth( KoTime *time, KoInt value );

/**
 * Sets the day.
 *
 * @param time address of the caller's handle, which may be replaced.
 * @param value Any number.
 * @pre time
 * @pre *time
 */
KO_API void koTimeSetDay( KoTime *time, KoInt value );

/**
 * Sets the hour.
 *
 * @param time address of the caller's handle, which may be replaced.
 * @param value Any number.
 * @pre time
 * @pre *time
 */
KO_API void koTimeSetHour( KoTime *time, KoInt value );

/**
 * Sets the minute.
 *
 * @param time address of the caller's handle, which may be replaced.
 * @param value Any number.
 * @pre time
 * @pre *time
 */
KO_API void koTimeSetMinute( KoTime *time, KoInt value );

/**
 * Sets the second.
 *
 * @param time address of the caller's handle, which may be replaced.
 * @param value Any number.
 * @pre time
 * @pre *time
 */
KO_API void koTimeSetSecond( KoTime *time, KoInt value );

/** @} */

/** @name What a time is
 * @{ */

/**
 * Tells whether the fields form a real date and time. The second 60 is real at 23:59 on the last day of a month only.
 *
 * @param time shared, the caller keeps its reference.
 * @pre time
 */
KO_API KoBool koTimeValid( KoTime time );

/**
 * The day of the week.
 *
 * @param time shared, the caller keeps its reference.
 * @return 0 for Monday to 6 for Sunday; -1 for a time that is not valid.
 * @pre time
 */
KO_API KoInt koTimeWeekday( KoTime time );

/**
 * Compares two times field by field, from the year down.
 *
 * @param a, b shared, the caller keeps its references.
 * @return Negative, 0 or positive.
 * @pre a
 * @pre b
 */
KO_API KoInt koTimeCompare( KoTime a, KoTime b );

/** @} */

KO_END_DECLS

#endif
