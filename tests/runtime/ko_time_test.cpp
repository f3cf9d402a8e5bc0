/* Date and time: the calendar against that of the C library, and a row for each rule. */
#include "test.h"

#include <ctime>
#include <random>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

/** What the clock of this program shows while it is set; else it shows the time. */
const timespec *pretended = nullptr;

} // namespace

extern "C" __attribute__( ( visibility( "default" ) ) ) int clock_gettime( clockid_t clock, timespec *now ) noexcept
{
    if ( pretended ) {
        *now = *pretended;
        return 0;
    }
    return static_cast<int>( syscall( SYS_clock_gettime, clock, now ) );
}

namespace {

using test::Take;
using Time = KoRef<KoTime>;

constexpr const char *path = "source/runtime/ko_time.cpp";

Time Of( KoInt year, KoInt month, KoInt day, KoInt hour = 0, KoInt minute = 0, KoInt second = 0 )
{
    auto time = Time::Adopt( koTimeCreate() );
    koTimeSetYear( time.Address(), year );
    koTimeSetMonth( time.Address(), month );
    koTimeSetDay( time.Address(), day );
    koTimeSetHour( time.Address(), hour );
    koTimeSetMinute( time.Address(), minute );
    koTimeSetSecond( time.Address(), second );
    return time;
}

class TimeTest : public test::Fixture {};

TEST_F( TimeTest, CastsAndReferences )
{
    const Time time = Of( 2024, 2, 29 );
    EXPECT_EQ( koTimeFrom( koTimeObj( time.Get() ) ), time.Get() );
    EXPECT_EQ( koObjSort( koTimeObj( time.Get() ) ), koTimeSort() );
    EXPECT_EQ( koTimeFrom( nullptr ), nullptr );
    EXPECT_EQ( koTimeObj( nullptr ), nullptr );
    EXPECT_EQ( koTimeRetain( time.Get() ), time.Get() );
    EXPECT_EQ( test::Count( time.Get() ), 2 );
    koTimeRelease( time.Get() );
    EXPECT_EQ( test::Count( time.Get() ), 1 );
    EXPECT_ABORT( koTimeFrom( koStringObj( test::Str( "a" ).Get() ) ), path,
                  "!obj || koObjSort( obj ) == koTimeSort()" );
    EXPECT_ABORT( koTimeRetain( nullptr ), path, "object" );
    EXPECT_ABORT( koTimeRelease( nullptr ), path, "object" );
}

TEST_F( TimeTest, AnUnsetTimeIsNotValid )
{
    const auto time = Time::Adopt( koTimeCreate() );
    EXPECT_FALSE( koTimeValid( time.Get() ) );
    EXPECT_EQ( koTimeWeekday( time.Get() ), -1 );
    EXPECT_EQ( koTimeYear( time.Get() ), 0 );
    EXPECT_EQ( koTimeMonth( time.Get() ), 0 );
    EXPECT_EQ( koTimeDay( time.Get() ), 0 );
}

TEST_F( TimeTest, Fields )
{
    const Time time = Of( 2024, 2, 29, 12, 34, 56 );
    EXPECT_EQ( koTimeYear( time.Get() ), 2024 );
    EXPECT_EQ( koTimeMonth( time.Get() ), 2 );
    EXPECT_EQ( koTimeDay( time.Get() ), 29 );
    EXPECT_EQ( koTimeHour( time.Get() ), 12 );
    EXPECT_EQ( koTimeMinute( time.Get() ), 34 );
    EXPECT_EQ( koTimeSecond( time.Get() ), 56 );
    EXPECT_TRUE( koTimeValid( time.Get() ) );
}

TEST_F( TimeTest, AChangeOfASharedTimeCopies )
{
    struct Row {
        void ( *set )( KoTime *time, KoInt value );
        KoInt ( *get )( KoTime time );
    };
    const Row rows[] = {
        { koTimeSetYear, koTimeYear }, { koTimeSetMonth, koTimeMonth },   { koTimeSetDay, koTimeDay },
        { koTimeSetHour, koTimeHour }, { koTimeSetMinute, koTimeMinute }, { koTimeSetSecond, koTimeSecond },
    };
    for ( const Row &row : rows ) {
        const Time kept = Of( 1, 2, 3, 4, 5, 6 );
        Time time = Time::Share( kept.Get() );
        row.set( time.Address(), INT64_MIN );
        EXPECT_NE( time.Get(), kept.Get() );
        for ( const Row &other : rows ) {
            EXPECT_EQ( other.get( kept.Get() ), &other - rows + 1 );
            EXPECT_EQ( other.get( time.Get() ), &other == &row ? INT64_MIN : &other - rows + 1 );
        }
        const KoTime unique = time.Get();
        row.set( time.Address(), INT64_MAX );
        EXPECT_EQ( time.Get(), unique );
        EXPECT_FALSE( koTimeValid( time.Get() ) );
    }
}

TEST_F( TimeTest, Valid )
{
    struct Row {
        KoInt fields[6];
        bool valid;
    };
    const Row rows[] = {
        { { 1, 1, 1, 0, 0, 0 }, true },
        { { 9999, 12, 31, 23, 59, 59 }, true },
        { { 0, 1, 1, 0, 0, 0 }, false },
        { { -1, 1, 1, 0, 0, 0 }, false },
        { { 10000, 1, 1, 0, 0, 0 }, false },
        { { 2023, 0, 1, 0, 0, 0 }, false },
        { { 2023, 13, 1, 0, 0, 0 }, false },
        { { 2023, 1, 0, 0, 0, 0 }, false },
        { { 2023, 1, 32, 0, 0, 0 }, false },
        { { 2023, 4, 31, 0, 0, 0 }, false },
        { { 2023, 2, 29, 0, 0, 0 }, false },
        { { 2024, 2, 29, 0, 0, 0 }, true },
        { { 1900, 2, 29, 0, 0, 0 }, false }, // a century
        { { 2000, 2, 29, 0, 0, 0 }, true },  // a fourth century
        { { 2023, 1, 1, 24, 0, 0 }, false },
        { { 2023, 1, 1, -1, 0, 0 }, false },
        { { 2023, 1, 1, 23, 60, 0 }, false },
        { { 2023, 1, 1, 23, -1, 0 }, false },
        { { 2023, 1, 1, 23, 59, -1 }, false },
        { { 2023, 1, 1, 23, 59, 60 }, false }, // not the end of a month
        { { 2016, 12, 31, 23, 59, 60 }, true },
        { { 2023, 2, 28, 23, 59, 60 }, true }, // whether there was one is not known
        { { 2024, 2, 28, 23, 59, 60 }, false },
        { { 2024, 2, 29, 23, 59, 60 }, true },
        { { 2016, 12, 31, 22, 59, 60 }, false },
        { { 2016, 12, 31, 23, 58, 60 }, false },
        { { 2016, 12, 31, 23, 59, 61 }, false },
        { { INT64_MAX, INT64_MAX, INT64_MAX, INT64_MAX, INT64_MAX, INT64_MAX }, false },
        { { INT64_MIN, INT64_MIN, INT64_MIN, INT64_MIN, INT64_MIN, INT64_MIN }, false },
    };
    for ( const Row &row : rows ) {
        const Time time =
            Of( row.fields[0], row.fields[1], row.fields[2], row.fields[3], row.fields[4], row.fields[5] );
        EXPECT_EQ( koTimeValid( time.Get() ), row.valid ? KO_TRUE : KO_FALSE )
            << Take( koObjToString( koTimeObj( time.Get() ) ) );
        EXPECT_EQ( koTimeWeekday( time.Get() ) >= 0, row.valid );
    }
}

TEST_F( TimeTest, EveryDayOfTheCalendar )
{
    // From the first day to the last one, which the C library counts from 1970.
    const auto first = static_cast<time_t>( -719162 ) * 86400;
    const auto last = static_cast<time_t>( 2932896 ) * 86400;
    std::mt19937_64 random( 6 );
    const auto check = []( time_t seconds ) {
        tm expected{};
        gmtime_r( &seconds, &expected );
        const KoInt year = expected.tm_year + 1900;
        const Time time =
            Of( year, expected.tm_mon + 1, expected.tm_mday, expected.tm_hour, expected.tm_min, expected.tm_sec );
        ASSERT_TRUE( koTimeValid( time.Get() ) ) << seconds;
        ASSERT_EQ( koTimeWeekday( time.Get() ), ( expected.tm_wday + 6 ) % 7 ) << seconds;
    };
    check( first );
    check( last );
    for ( int i = 0; i < 100000; ++i ) {
        check( first + static_cast<time_t>( random() % static_cast<uint64_t>( last - first ) ) );
    }
    // Both sides of every end of a month.
    for ( int year = 1; year <= 9999; ++year ) {
        for ( int month = 1; month <= 12; ++month ) {
            tm next{};
            next.tm_year = year - 1900;
            next.tm_mon = month; // the month behind, counted from 0
            next.tm_mday = 1;
            const time_t end = timegm( &next ) - 86400;
            check( end );
            tm fields{};
            gmtime_r( &end, &fields );
            ASSERT_FALSE( koTimeValid( Of( year, month, fields.tm_mday + 1 ).Get() ) ) << year << "-" << month;
            ASSERT_TRUE( koTimeValid( Of( year, month, fields.tm_mday, 23, 59, 60 ).Get() ) ) << year << "-" << month;
        }
    }
}

TEST_F( TimeTest, NowIsNow )
{
    const time_t earlier = ::time( nullptr );
    const auto now = Time::Adopt( koTimeNow() );
    const time_t after = ::time( nullptr );
    ASSERT_TRUE( koTimeValid( now.Get() ) );
    tm fields{};
    fields.tm_year = static_cast<int>( koTimeYear( now.Get() ) - 1900 );
    fields.tm_mon = static_cast<int>( koTimeMonth( now.Get() ) - 1 );
    fields.tm_mday = static_cast<int>( koTimeDay( now.Get() ) );
    fields.tm_hour = static_cast<int>( koTimeHour( now.Get() ) );
    fields.tm_min = static_cast<int>( koTimeMinute( now.Get() ) );
    fields.tm_sec = static_cast<int>( koTimeSecond( now.Get() ) );
    const time_t seconds = timegm( &fields );
    EXPECT_GE( seconds, earlier - 1 ) << "the two clocks may differ by a tick";
    EXPECT_LE( seconds, after + 1 );
    EXPECT_EQ( koTimeWeekday( now.Get() ), ( fields.tm_wday + 6 ) % 7 );
}

TEST_F( TimeTest, NowOnEachDayOfThisAge )
{
    std::mt19937 random( 6 );
    for ( int64_t day = 0; day < 366 * 135; ++day ) {
        const timespec instant = { .tv_sec = day * 86400 + static_cast<int64_t>( random() % 86400 ),
                                   .tv_nsec = 999999999 };
        pretended = &instant;
        const auto now = Time::Adopt( koTimeNow() );
        pretended = nullptr;
        tm fields{};
        gmtime_r( &instant.tv_sec, &fields );
        const Time expected = Of( fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour,
                                  fields.tm_min, fields.tm_sec );
        ASSERT_EQ( koTimeCompare( now.Get(), expected.Get() ), 0 ) << asctime( &fields );
    }
}

TEST_F( TimeTest, OrderIsFieldByField )
{
    const Time rows[] = {
        Of( INT64_MIN, 0, 0 ),     Of( 2023, 12, 31, 23, 59, 59 ), Of( 2023, 12, 31, 23, 59, 60 ),
        Of( 2024, 1, 1 ),          Of( 2024, 1, 1, 0, 0, 1 ),      Of( 2024, 1, 1, 0, 1, 0 ),
        Of( 2024, 1, 1, 1, 0, 0 ), Of( 2024, 1, 2, 0, 0, 0 ),      Of( 2024, 2, 1, 0, 0, 0 ),
        Of( 2025, 1, 1, 0, 0, 0 ), Of( INT64_MAX, 0, 0 ),
    };
    for ( const Time &a : rows ) {
        for ( const Time &b : rows ) {
            const KoInt order = koTimeCompare( a.Get(), b.Get() );
            EXPECT_EQ( order < 0, &a < &b );
            EXPECT_EQ( order > 0, &a > &b );
            EXPECT_EQ( koObjCompare( koTimeObj( a.Get() ), koTimeObj( b.Get() ) ), order );
        }
    }
    EXPECT_EQ( koTimeCompare( Of( 2024, 1, 1 ).Get(), Of( 2024, 1, 1 ).Get() ), 0 );
}

TEST_F( TimeTest, Text )
{
    EXPECT_EQ( Take( koObjToString( koTimeObj( Of( 2024, 2, 29, 1, 2, 3 ).Get() ) ) ), "2024-02-29T01:02:03Z" );
    EXPECT_EQ( Take( koObjToString( koTimeObj( Of( 12, 1, 1 ).Get() ) ) ), "0012-01-01T00:00:00Z" );
    EXPECT_EQ( Take( koObjToString( koTimeObj( Of( 12345, 1, 100 ).Get() ) ) ), "12345-01-100T00:00:00Z" );
}

TEST_F( TimeTest, Preconditions )
{
    const Time time = Of( 2024, 1, 1 );
    KoTime null = nullptr;
    EXPECT_ABORT( koTimeYear( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeMonth( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeDay( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeHour( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeMinute( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeSecond( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeSetYear( nullptr, 0 ), path, "time" );
    EXPECT_ABORT( koTimeSetYear( &null, 0 ), path, "*time" );
    EXPECT_ABORT( koTimeSetMonth( nullptr, 0 ), path, "time" );
    EXPECT_ABORT( koTimeSetMonth( &null, 0 ), path, "*time" );
    EXPECT_ABORT( koTimeSetDay( nullptr, 0 ), path, "time" );
    EXPECT_ABORT( koTimeSetDay( &null, 0 ), path, "*time" );
    EXPECT_ABORT( koTimeSetHour( nullptr, 0 ), path, "time" );
    EXPECT_ABORT( koTimeSetHour( &null, 0 ), path, "*time" );
    EXPECT_ABORT( koTimeSetMinute( nullptr, 0 ), path, "time" );
    EXPECT_ABORT( koTimeSetMinute( &null, 0 ), path, "*time" );
    EXPECT_ABORT( koTimeSetSecond( nullptr, 0 ), path, "time" );
    EXPECT_ABORT( koTimeSetSecond( &null, 0 ), path, "*time" );
    EXPECT_ABORT( koTimeValid( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeWeekday( nullptr ), path, "time" );
    EXPECT_ABORT( koTimeCompare( nullptr, nullptr ), path, "a" );
    EXPECT_ABORT( koTimeCompare( time.Get(), nullptr ), path, "b" );
}

} // namespace
