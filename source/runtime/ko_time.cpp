/* Date and time of day in UTC, by the proleptic Gregorian calendar. */
#include <runtime/ko_time.h>

#include <runtime/ko_inner.hpp>

#include <ctime>

struct ko___Time {
    struct ko___Obj head;
    KoInt year;
    KoInt month;
    KoInt day;
    KoInt hour;
    KoInt minute;
    KoInt second;
};

namespace {

using Field = KoInt ko___Time::*;

constexpr Field fields[] = { &ko___Time::year, &ko___Time::month,  &ko___Time::day,
                             &ko___Time::hour, &ko___Time::minute, &ko___Time::second };

constexpr KoInt secondsOfDay = 86400;

constexpr bool IsLeapYear( KoInt year )
{
    return year % 4 == 0 && ( year % 100 != 0 || year % 400 == 0 );
}

constexpr KoInt DaysOfMonth( KoInt year, KoInt month )
{
    constexpr KoInt days[] = { 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
    return days[month - 1] + ( month == 2 && IsLeapYear( year ) );
}

// A year is counted from March here: then the leap day is its last one, and the months' lengths follow one line.

/** The day's number, with 0 for 1 March of the year 0. From the year 1 on. */
constexpr KoInt DayNumber( KoInt year, KoInt month, KoInt day )
{
    const KoInt marchYear = month > 2 ? year : year - 1;
    const KoInt marchMonth = month > 2 ? month - 3 : month + 9;
    return marchYear * 365 + marchYear / 4 - marchYear / 100 + marchYear / 400 + ( 153 * marchMonth + 2 ) / 5 + day - 1;
}

constexpr KoInt dayNumberOfEpoch = DayNumber( 1970, 1, 1 );
static_assert( dayNumberOfEpoch == 719468 );

struct Date {
    KoInt year;
    KoInt month;
    KoInt day;
};

/** The date of a day's number that is not negative. */
constexpr Date DateOf( KoInt number )
{
    const KoInt era = number / 146097; // of 400 years
    const KoInt dayOfEra = number % 146097;
    const KoInt yearOfEra = ( dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096 ) / 365;
    const KoInt dayOfYear = dayOfEra - ( yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 );
    const KoInt marchMonth = ( 5 * dayOfYear + 2 ) / 153;
    const KoInt month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
    return { era * 400 + yearOfEra + ( month <= 2 ), month, dayOfYear - ( 153 * marchMonth + 2 ) / 5 + 1 };
}

static_assert( DateOf( DayNumber( 2000, 2, 29 ) ).day == 29 && DateOf( DayNumber( 2000, 2, 29 ) ).month == 2 );
static_assert( DateOf( dayNumberOfEpoch ).year == 1970 && DateOf( dayNumberOfEpoch - 1 ).year == 1969 );

KoInt Compare( KoObj objA, KoObj objB )
{
    const auto a = reinterpret_cast<KoTime>( objA );
    const auto b = reinterpret_cast<KoTime>( objB );
    for ( const Field field : fields ) {
        if ( a->*field != b->*field ) {
            return a->*field < b->*field ? -1 : 1;
        }
    }
    return 0;
}

/** The text of ISO 8601; of a time that is not valid, its fields in that form. */
KoString ToString( KoObj obj )
{
    const auto time = reinterpret_cast<KoTime>( obj );
    return koStringCreateFromFormatCstr( "%04i-%02i-%02iT%02i:%02i:%02iZ", -1, time->year, time->month, time->day,
                                         time->hour, time->minute, time->second );
}

const ko___Sort timeSort = KO_SORT( &ko::runtimeModule, "KO_TIME", nullptr, Compare, ToString );

void Set( KoTime *time, Field field, KoInt value )
{
    const KoTime old = *time;
    if ( !ko___IsUnique( &old->head ) ) {
        *time = koTimeCreate();
        for ( const Field each : fields ) {
            ( *time )->*each = old->*each;
        }
        ko___Release( &old->head );
    }
    ( *time )->*field = value;
}

} // namespace

KO_TYPE_OPERATIONS( KoTime, koTime, timeSort )

KoTime koTimeCreate( void )
{
    return reinterpret_cast<KoTime>( ko___ObjCreate( sizeof( ko___Time ), &timeSort ) );
}

KoTime koTimeNow( void )
{
    timespec now{};
    clock_gettime( CLOCK_REALTIME, &now );
    const KoInt seconds = now.tv_sec + dayNumberOfEpoch * secondsOfDay;
    const Date date = DateOf( seconds / secondsOfDay );
    const KoInt secondOfDay = seconds % secondsOfDay;
    const KoTime time = koTimeCreate();
    time->year = date.year;
    time->month = date.month;
    time->day = date.day;
    time->hour = secondOfDay / 3600;
    time->minute = secondOfDay / 60 % 60;
    time->second = secondOfDay % 60;
    return time;
}

KoInt koTimeYear( KoTime time )
{
    KO_REQUIRE( time );
    return time->year;
}

KoInt koTimeMonth( KoTime time )
{
    KO_REQUIRE( time );
    return time->month;
}

KoInt koTimeDay( KoTime time )
{
    KO_REQUIRE( time );
    return time->day;
}

KoInt koTimeHour( KoTime time )
{
    KO_REQUIRE( time );
    return time->hour;
}

KoInt koTimeMinute( KoTime time )
{
    KO_REQUIRE( time );
    return time->minute;
}

KoInt koTimeSecond( KoTime time )
{
    KO_REQUIRE( time );
    return time->second;
}

void koTimeSetYear( KoTime *time, KoInt value )
{
    KO_REQUIRE_HANDLE( time );
    Set( time, &ko___Time::year, value );
}

void koTimeSetMonth( KoTime *time, KoInt value )
{
    KO_REQUIRE_HANDLE( time );
    Set( time, &ko___Time::month, value );
}

void koTimeSetDay( KoTime *time, KoInt value )
{
    KO_REQUIRE_HANDLE( time );
    Set( time, &ko___Time::day, value );
}

void koTimeSetHour( KoTime *time, KoInt value )
{
    KO_REQUIRE_HANDLE( time );
    Set( time, &ko___Time::hour, value );
}

void koTimeSetMinute( KoTime *time, KoInt value )
{
    KO_REQUIRE_HANDLE( time );
    Set( time, &ko___Time::minute, value );
}

void koTimeSetSecond( KoTime *time, KoInt value )
{
    KO_REQUIRE_HANDLE( time );
    Set( time, &ko___Time::second, value );
}

KoBool koTimeValid( KoTime time )
{
    KO_REQUIRE( time );
    const bool date = time->year >= 1 && time->year <= 9999 && time->month >= 1 && time->month <= 12 &&
                      time->day >= 1 && time->day <= DaysOfMonth( time->year, time->month );
    if ( !date || time->hour < 0 || time->hour > 23 || time->minute < 0 || time->minute > 59 || time->second < 0 ) {
        return KO_FALSE;
    }
    // Leap seconds are inserted at the end of a month, by UTC.
    const bool leap = time->day == DaysOfMonth( time->year, time->month ) && time->hour == 23 && time->minute == 59;
    return time->second <= ( leap ? 60 : 59 );
}

KoInt koTimeWeekday( KoTime time )
{
    KO_REQUIRE( time );
    // 1 March of the year 0 is a Wednesday.
    return koTimeValid( time ) ? ( DayNumber( time->year, time->month, time->day ) + 2 ) % 7 : -1;
}

KoInt koTimeCompare( KoTime a, KoTime b )
{
    KO_REQUIRE( a );
    KO_REQUIRE( b );
    return Compare( &a->head, &b->head );
}
