/* The header Date. */
#include "tolmo_header_party_test.h"

namespace {

using test::Own;

const test::HeaderType<TolmoHeaderDate> date = TEST_HEADER( Date, "date", "Date" );

class Date : public test::TolmoFixture {};

KoRef<KoTime> Time( KoInt year, KoInt month, KoInt day, KoInt hour, KoInt minute, KoInt second )
{
    auto tm = Own( koTimeCreate() );
    koTimeSetYear( tm.Address(), year );
    koTimeSetMonth( tm.Address(), month );
    koTimeSetDay( tm.Address(), day );
    koTimeSetHour( tm.Address(), hour );
    koTimeSetMinute( tm.Address(), minute );
    koTimeSetSecond( tm.Address(), second );
    return tm;
}

TEST_F( Date, SingleValue )
{
    test::ExpectSingleValue( date, "Thu, 21 Feb 2002 13:02:03 GMT", "Fri, 21 Feb 2002 13:02:03 GMT" );
}

// Lines that decode go out as they came in.
const std::string_view good[] = {
    "Thu, 21 Feb 2002 13:02:03 GMT", "Mon, 01 Jan 0001 00:00:00 GMT", "Fri, 31 Dec 9999 23:59:59 GMT",
    "Thu, 01 Jan 1970 00:00:00 GMT", "Tue, 29 Feb 2000 12:00:00 GMT", "Thu, 29 Feb 2024 12:00:00 GMT",
    "Mon, 15 Jan 2024 01:02:03 GMT", "Tue, 13 Feb 2024 01:02:03 GMT", "Wed, 13 Mar 2024 01:02:03 GMT",
    "Thu, 18 Apr 2024 01:02:03 GMT", "Fri, 17 May 2024 01:02:03 GMT", "Sat, 15 Jun 2024 01:02:03 GMT",
    "Sun, 21 Jul 2024 01:02:03 GMT", "Mon, 12 Aug 2024 01:02:03 GMT", "Tue, 17 Sep 2024 01:02:03 GMT",
    "Wed, 16 Oct 2024 01:02:03 GMT", "Thu, 14 Nov 2024 01:02:03 GMT", "Fri, 13 Dec 2024 01:02:03 GMT",
    "Sat, 31 Dec 2016 23:59:60 GMT", // a leap second: only there
};

const std::string_view bad[] = {
    "",
    "Fri, 21 Feb 2002 13:02:03 GMT", // the wrong weekday
    "thu, 21 Feb 2002 13:02:03 GMT",
    "THU, 21 Feb 2002 13:02:03 GMT",
    "Thursday, 21 Feb 2002 13:02:03 GMT",
    "Thu 21 Feb 2002 13:02:03 GMT",
    "Thu,21 Feb 2002 13:02:03 GMT",
    "Thu,  21 Feb 2002 13:02:03 GMT",
    "Thu,\t21 Feb 2002 13:02:03 GMT",
    "Thu , 21 Feb 2002 13:02:03 GMT",
    " Thu, 21 Feb 2002 13:02:03 GMT",
    "21 Feb 2002 13:02:03 GMT",
    "Thu, 7 Feb 2002 13:02:03 GMT", // two digits
    "Thu, 007 Feb 2002 13:02:03 GMT",
    "Thu, +7 Feb 2002 13:02:03 GMT",
    "Thu, -7 Feb 2002 13:02:03 GMT",
    "Thu, 00 Feb 2002 13:02:03 GMT",
    "Thu, 32 Jan 2002 13:02:03 GMT",
    "Thu, 21  Feb 2002 13:02:03 GMT",
    "Thu, 21\tFeb 2002 13:02:03 GMT",
    "Thu, 21Feb 2002 13:02:03 GMT",
    "Thu, 21-Feb-2002 13:02:03 GMT",
    "Thu, 21 feb 2002 13:02:03 GMT",
    "Thu, 21 FEB 2002 13:02:03 GMT",
    "Thu, 21 February 2002 13:02:03 GMT",
    "Thu, 21 02 2002 13:02:03 GMT",
    "Thu, 21 Feb 02 13:02:03 GMT", // four digits
    "Thu, 21 Feb 02002 13:02:03 GMT",
    "Thu, 21 Feb 0000 13:02:03 GMT",
    "Thu, 21 Feb 2002  13:02:03 GMT",
    "Thu, 21 Feb 2002 24:00:00 GMT",
    "Thu, 21 Feb 2002 1:02:03 GMT",
    "Thu, 21 Feb 2002 013:02:03 GMT",
    "Thu, 21 Feb 2002 13:60:03 GMT",
    "Thu, 21 Feb 2002 13:2:03 GMT",
    "Thu, 21 Feb 2002 13.02.03 GMT",
    "Thu, 21 Feb 2002 13:02 GMT",
    "Thu, 21 Feb 2002 13:02:60 GMT", // no time for a leap second
    "Sat, 31 Dec 2016 23:59:61 GMT",
    "Thu, 21 Feb 2002 13:02:62 GMT",
    "Thu, 21 Feb 2002 13:02:3 GMT",
    "Thu, 21 Feb 2002 13:02:003 GMT",
    "Thu, 21 Feb 2002 13:02:03.5 GMT",
    "Thu, 21 Feb 2002 13:02:03",
    "Thu, 21 Feb 2002 13:02:03 ",
    "Thu, 21 Feb 2002 13:02:03GMT",
    "Thu, 21 Feb 2002 13:02:03  GMT",
    "Thu, 21 Feb 2002 13:02:03 gmt",
    "Thu, 21 Feb 2002 13:02:03 UTC",
    "Thu, 21 Feb 2002 13:02:03 EST",
    "Thu, 21 Feb 2002 13:02:03 +0000",
    "Thu, 21 Feb 2002 13:02:03 GMT ",
    "Thu, 21 Feb 2002 13:02:03 GMT+1",
    "Thu, 21 Feb 2002 13:02:03 GMT, Thu, 21 Feb 2002 13:02:03 GMT",
    "Tue, 31 Apr 2001 00:00:00 GMT", // no such days
    "Thu, 29 Feb 2001 00:00:00 GMT",
    "Mon, 29 Feb 1900 00:00:00 GMT",
    "Thu, 30 Feb 2024 00:00:00 GMT",
    "Thu, \u0662\u0661 Feb 2002 13:02:03 GMT",
};

TEST_F( Date, Rows )
{
    for ( const std::string_view line : good ) {
        test::ExpectRow( date, { line, line } );
    }
    for ( const std::string_view line : bad ) {
        test::ExpectRow( date, { line, test::null } );
    }
    // Every weekday but the right one.
    for ( const std::string weekday : { "Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun" } ) {
        EXPECT_EQ( test::Recode( date, weekday + ", 21 Feb 2002 13:02:03 GMT" ) != test::null, weekday == "Thu" );
    }
    EXPECT_EQ( test::Recode( date, "Thu, " + std::string( 100000, '0' ) ), test::null );
}

TEST_F( Date, Fields )
{
    using H = TolmoHeaderDate;
    const auto tm = Time( 2002, 2, 21, 13, 2, 3 );
    auto hdr = Own( tolmoHeaderDateCreate( tm.Get() ) );
    EXPECT_EQ( Own( tolmoHeaderDateTime( hdr.Get() ) ).Get(), tm.Get() ); // shared, not copied
    EXPECT_EQ( test::Encode( date, hdr ), "Thu, 21 Feb 2002 13:02:03 GMT" );
    hdr = test::Decode( date, "Thu, 21 Feb 2002 13:02:03 GMT" );
    EXPECT_EQ( koTimeCompare( Own( tolmoHeaderDateTime( hdr.Get() ) ).Get(), tm.Get() ), 0 );

    // A later change of the caller's time does not reach the header.
    auto changed = Time( 2002, 2, 21, 13, 2, 3 );
    tolmoHeaderDateSetTime( hdr.Address(), changed.Get() );
    koTimeSetHour( changed.Address(), 0 );
    EXPECT_EQ( test::Encode( date, hdr ), "Thu, 21 Feb 2002 13:02:03 GMT" );
    EXPECT_EQ( koTimeHour( changed.Get() ), 0 );

    test::ExpectChanges<H>( date, "Thu, 21 Feb 2002 13:02:03 GMT",
                            { { "Sat, 31 Dec 2016 23:59:60 GMT",
                                []( H *h ) { tolmoHeaderDateSetTime( h, Time( 2016, 12, 31, 23, 59, 60 ).Get() ); } },
                              { "Thu, 21 Feb 2002 13:02:03 GMT", []( H *h ) {
                                   tolmoHeaderDateSetTime( h, Own( tolmoHeaderDateTime( *h ) ).Get() );
                               } } } );

    const std::string &path = date.path;
    EXPECT_ABORT( tolmoHeaderDateCreate( nullptr ), path, "tm" );
    EXPECT_ABORT( tolmoHeaderDateTime( nullptr ), path, "hdr" );
    EXPECT_HANDLE_ABORTS( date, tolmoHeaderDateSetTime, nullptr );
    EXPECT_ABORT( tolmoHeaderDateSetTime( hdr.Address(), nullptr ), path, "tm" );
}

TEST_F( Date, CurrentTime )
{
    const auto earlier = Own( koTimeNow() );
    const auto hdr = Own( tolmoHeaderDateCreateFromCurrentTime() );
    const auto later = Own( koTimeNow() );
    const auto tm = Own( tolmoHeaderDateTime( hdr.Get() ) );
    EXPECT_LE( koTimeCompare( earlier.Get(), tm.Get() ), 0 );
    EXPECT_LE( koTimeCompare( tm.Get(), later.Get() ), 0 );
    test::ExpectRoundTrip( date, hdr );
}

// A header holds any time, and writes its fields as they are.
TEST_F( Date, TimesThatAreNotValid )
{
    const auto encoded = []( const KoRef<KoTime> &tm ) {
        return test::Encode( date, Own( tolmoHeaderDateCreate( tm.Get() ) ) );
    };
    EXPECT_EQ( encoded( Time( 2001, 4, 31, 1, 2, 3 ) ), ", 31 Apr 2001 01:02:03 GMT" ); // it has no weekday
    EXPECT_EQ( encoded( Time( 0, 1, 0, 99, 100, -1 ) ), ", 00 Jan 0000 99:100:-01 GMT" );
    EXPECT_EQ( encoded( Time( 12345, 12, 1, 0, 0, 0 ) ), ", 01 Dec 12345 00:00:00 GMT" );
    for ( const KoInt month : { KoInt( 0 ), KoInt( 13 ), KoInt( -1 ), INT64_MIN, INT64_MAX } ) {
        const auto hdr = Own( tolmoHeaderDateCreate( Time( 2001, month, 1, 0, 0, 0 ).Get() ) );
        EXPECT_TRUE( test::RunInChild( [&] { tolmoHeaderDateEncode( hdr.Get() ); } ).aborted )
            << month; // no name of it
    }
}

TEST_F( Date, Order )
{
    test::ExpectAscending( date, { "Mon, 01 Jan 0001 00:00:00 GMT", "Thu, 21 Feb 2002 13:02:03 GMT",
                                   "Thu, 21 Feb 2002 13:02:04 GMT", "Thu, 21 Feb 2002 13:03:00 GMT",
                                   "Thu, 21 Feb 2002 14:00:00 GMT", "Fri, 22 Feb 2002 00:00:00 GMT",
                                   "Fri, 01 Mar 2002 00:00:00 GMT", "Wed, 01 Jan 2003 00:00:00 GMT" } );
}

TEST_F( Date, Generated )
{
    test::Generator generate( 6 );
    for ( int i = 0; i < 2000; ++i ) {
        const auto part = [&]( size_t below ) { return static_cast<KoInt>( generate.Below( below ) ); };
        const auto hdr = Own( tolmoHeaderDateCreate(
            Time( 1 + part( 9999 ), 1 + part( 12 ), 1 + part( 28 ), part( 24 ), part( 60 ), part( 60 ) ).Get() ) );
        test::ExpectRoundTrip( date, hdr );
    }
}

} // namespace
