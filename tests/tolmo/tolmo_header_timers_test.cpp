/* The headers that tell spans of seconds: Session-Expires, Min-SE, Retry-After, Subscription-State. */
#include "tolmo_header_fields_test.h"

namespace {

using test::null;
using test::Own;
using test::Str;
using test::Take;

constexpr char deltaSecondsOk[] = "tolmoDeltaSecondsOk( deltaSeconds )";

class Timers : public test::TolmoFixture {};

struct SessionExpires {
    TEST_HEADER_AS_VALUE( SessionExpires, "session_expires", "Session-Expires" )
    TEST_HEADER_PARAMS( SessionExpires )
};
const test::HeaderType<TolmoHeaderSessionExpires> sessionExpires =
    TEST_HEADER( SessionExpires, "session_expires", "Session-Expires" );

struct MinSe {
    TEST_HEADER_AS_VALUE( MinSe, "min_se", "Min-Se" )
    TEST_HEADER_PARAMS( MinSe )
};
const test::HeaderType<TolmoHeaderMinSe> minSe = TEST_HEADER( MinSe, "min_se", "Min-Se" );

struct RetryAfter {
    TEST_HEADER_AS_VALUE( RetryAfter, "retry_after", "Retry-After" )
    TEST_HEADER_PARAMS( RetryAfter )
};
const test::HeaderType<TolmoHeaderRetryAfter> retryAfter = TEST_HEADER( RetryAfter, "retry_after", "Retry-After" );

struct SubscriptionState {
    TEST_HEADER_AS_VALUE( SubscriptionState, "subscription_state", "Subscription-State" )
    TEST_HEADER_PARAMS( SubscriptionState )
};
const test::HeaderType<TolmoHeaderSubscriptionState> subscriptionState =
    TEST_HEADER( SubscriptionState, "subscription_state", "Subscription-State" );

// What Session-Expires, Min-SE and Retry-After share: the number, and that what no semicolon opens is ignored.
const test::Row numberRows[] = {
    { "1800", "1800" },
    { "0", "0" },
    { "007", "7" },
    { "9223372036854775807", "9223372036854775807" },
    { "9223372036854775808", null }, // does not fit
    { "99999999999999999999", null },
    { "00000000000000000000000000001", "1" },
    { "", null },
    { " ", null },
    { " 1800", null },
    { "x", null },
    { "-1", null },
    { "+1", null },
    { ";x", null },
    { "\u0661", null }, // a digit, but none of ASCII
    { "1800abc", "1800" },
    { "1800 abc", "1800" },
    { "1800 ", "1800" },
    { "1800, 90;x", "1800" },
    { "1800.5", "1800" },
    { "1800;x", "1800;x" },
    { "1800 ; X = 1 ; y = \"a,b\"", "1800;x=1;y=\"a,b\"" },
    { "1800;x;y=1;x=2", "1800;x=2;y=1" },
    { "1800;x y", "1800;x" },
    { "1800;x=1, 90", "1800;x=1" },
    { "1800;x=1@y;z", "1800;x=1" },
    { "1800;x=[::1]:5060", "1800;x=[::1]" },
    { "1800;x=\"y\"z", "1800;x=\"y\"" },
    // A semicolon without a parameter voids it all.
    { "1800;", null },
    { "1800 ; ", null },
    { "1800;;x", null },
    { "1800;x;", null },
    { "1800;x=", null },
    { "1800;x=\"y", null },
    { "1800;=1", null },
    { "1800;\u00FC", null },
};

/* Session-Expires */

TEST_F( Timers, SessionExpiresSingleValue )
{
    test::ExpectSingleValue( sessionExpires, "1800;refresher=uas", "soon" );
    const auto compact = test::Received( "x: 60;Refresher=UAC\r\n" );
    EXPECT_EQ( test::Encode( sessionExpires, Own( tolmoHeaderSessionExpiresTryDecodeFromMessage( compact.Get() ) ) ),
               "60;refresher=uac" );
}

TEST_F( Timers, SessionExpiresCreate )
{
    const auto hdr = Own( tolmoHeaderSessionExpiresCreate( 1800 ) );
    EXPECT_EQ( tolmoHeaderSessionExpiresDeltaSeconds( hdr.Get() ), 1800 );
    EXPECT_FALSE( tolmoHeaderSessionExpiresHasRefresher( hdr.Get() ) );
    EXPECT_EQ( test::Generic<SessionExpires>( hdr ), "" );
    EXPECT_ABORT( tolmoHeaderSessionExpiresCreate( -1 ), SessionExpires::path, deltaSecondsOk );
}

TEST_F( Timers, SessionExpiresFields )
{
    const auto create = [] { return Own( tolmoHeaderSessionExpiresCreate( 1800 ) ); };
    test::ExpectSecondsField<SessionExpires>( { nullptr, tolmoHeaderSessionExpiresDeltaSeconds,
                                                tolmoHeaderSessionExpiresSetDeltaSeconds, nullptr, deltaSecondsOk },
                                              create );
    test::ExpectStringField<SessionExpires>( { tolmoHeaderSessionExpiresHasRefresher,
                                               tolmoHeaderSessionExpiresRefresher,
                                               tolmoHeaderSessionExpiresSetRefresher,
                                               tolmoHeaderSessionExpiresDelRefresher,
                                               "UAS",
                                               "uas",
                                               "uac",
                                               { { nullptr, "source/tolmo/tolmo_refresher.cpp", "refresher" },
                                                 { "", SessionExpires::path, "tolmoRefresherOk( refresher )" },
                                                 { "uacx", SessionExpires::path, "tolmoRefresherOk( refresher )" },
                                                 { "both", SessionExpires::path, "tolmoRefresherOk( refresher )" } } },
                                             create );
    test::ExpectGenericParams<SessionExpires>( create );
}

const test::Row sessionExpiresRows[] = {
    { "1800;refresher=uas", "1800;refresher=uas" },
    { "1800;REFRESHER = UaC", "1800;refresher=uac" },
    { "1800;x;refresher=uas;y", "1800;refresher=uas;x;y" },
    { "1800;refresher=uac;refresher=uas", "1800;refresher=uas" },
    { "1800, 90;refresher=uas", "1800" },
    { "1800;refresher=uas, 90;refresher=uac", "1800;refresher=uas" },
    { "1800;refresher=uacx", "1800;refresher=uac" }, // three characters are good, and the rest is ignored
    { "1800;refresher=uas;", null },
    // What does not fit the field is a generic parameter.
    { "1800;refresher=both", "1800;refresher=both" },
    { "1800;refresher", "1800;refresher" },
    { "1800;refresher=\"uas\"", "1800;refresher=\"uas\"" },
    { "1800;refreshers=uas", "1800;refreshers=uas" },
    { "1800;refresher=", null },
    // One that did not fit is hidden while there is one that did.
    { "1800;refresher=both;x;refresher=uas", "1800;refresher=uas;x" },
    { "1800;refresher=uas;refresher=both", "1800;refresher=uas" },
};

TEST_F( Timers, SessionExpiresRows )
{
    for ( const auto &row : numberRows ) {
        test::ExpectRow( sessionExpires, row );
    }
    for ( const auto &row : sessionExpiresRows ) {
        test::ExpectRow( sessionExpires, row );
    }
    auto hdr = test::Decode<SessionExpires>( "1800;refresher=UAS;refresher=both;x" );
    EXPECT_EQ( Take( tolmoHeaderSessionExpiresRefresher( hdr.Get() ) ), "uas" );
    EXPECT_EQ( test::Generic<SessionExpires>( hdr ), ";refresher=both;x" );
    tolmoHeaderSessionExpiresDelRefresher( hdr.Address() ); // and what it hid goes out
    EXPECT_EQ( test::Encode<SessionExpires>( hdr ), "1800;refresher=both;x" );
}

TEST_F( Timers, SessionExpiresCompareOrder )
{
    test::ExpectAscending<SessionExpires>(
        { "1", "1;x", "1;refresher=uac", "1;refresher=uac;x", "1;refresher=uas", "2", "10" } );
}

/* Min-SE */

TEST_F( Timers, MinSeSingleValue )
{
    test::ExpectSingleValue( minSe, "90;x", "90;" );
}

TEST_F( Timers, MinSeFields )
{
    const auto create = [] { return Own( tolmoHeaderMinSeCreate( 90 ) ); };
    EXPECT_EQ( test::Encode<MinSe>( create() ), "90" );
    EXPECT_ABORT( tolmoHeaderMinSeCreate( -1 ), MinSe::path, deltaSecondsOk );
    test::ExpectSecondsField<MinSe>(
        { nullptr, tolmoHeaderMinSeDeltaSeconds, tolmoHeaderMinSeSetDeltaSeconds, nullptr, deltaSecondsOk }, create );
    test::ExpectGenericParams<MinSe>( create );
}

TEST_F( Timers, MinSeRows )
{
    for ( const auto &row : numberRows ) {
        test::ExpectRow( minSe, row );
    }
    test::ExpectRow( minSe, { "90;refresher=UAC", "90;refresher=UAC" } ); // like any other
    EXPECT_EQ( test::Generic<MinSe>( test::Decode<MinSe>( "90;A=b" ) ), ";a=b" );
}

TEST_F( Timers, MinSeCompareOrder )
{
    test::ExpectAscending<MinSe>( { "1", "1;x", "1;y", "2", "10" } );
}

/* Retry-After */

TEST_F( Timers, RetryAfterSingleValue )
{
    test::ExpectSingleValue( retryAfter, "5 (x);duration=6", "5 (x);" );
}

TEST_F( Timers, RetryAfterFields )
{
    const auto create = [] { return Own( tolmoHeaderRetryAfterCreate( 5 ) ); };
    EXPECT_EQ( test::Encode<RetryAfter>( create() ), "5" );
    EXPECT_ABORT( tolmoHeaderRetryAfterCreate( -1 ), RetryAfter::path, deltaSecondsOk );
    test::ExpectSecondsField<RetryAfter>(
        { nullptr, tolmoHeaderRetryAfterDeltaSeconds, tolmoHeaderRetryAfterSetDeltaSeconds, nullptr, deltaSecondsOk },
        create );
    test::ExpectSecondsField<RetryAfter>( { tolmoHeaderRetryAfterHasDuration, tolmoHeaderRetryAfterDuration,
                                            tolmoHeaderRetryAfterSetDuration, tolmoHeaderRetryAfterDelDuration,
                                            "tolmoDeltaSecondsOk( duration )" },
                                          create );
    test::ExpectGenericParams<RetryAfter>( create );
}

const test::Row retryAfterRows[] = {
    { "18000;duration=3600", "18000;duration=3600" },
    { "120 (I'm in a meeting)", "120" }, // the comment has no field
    { "5(x)", "5" },
    { "5 (a (b) \\) c) ; DURATION = 06", "5;duration=6" },
    { "5 (x) y;z", "5" },
    { "5 (x)(y);z", "5" }, // one comment
    { "5 (x", "5" },       // one that is not closed is ignored with the rest
    { "5 (x;duration=6", "5" },
    { "5 (x);", null },
    { "5;x;duration=6;y", "5;duration=6;x;y" },
    { "5;x (c)", "5;x" },
    { "5;duration=6 (c);x", "5;duration=6" },
    { "5;duration=6;duration=0", "5;duration=0" },
    { "5;duration=6x", "5;duration=6" },
    { "5;duration=9223372036854775807", "5;duration=9223372036854775807" },
    // What does not fit the field is a generic parameter.
    { "5;duration=9223372036854775808", "5;duration=9223372036854775808" },
    { "5;duration=99999999999999999999;x", "5;duration=99999999999999999999;x" },
    { "5;duration=x", "5;duration=x" },
    { "5;duration=-1", "5;duration=-1" },
    { "5;duration=\"6\"", "5;duration=\"6\"" },
    { "5;duration", "5;duration" },
    { "5;durations=6", "5;durations=6" },
    // One that did not fit is hidden while there is one that did.
    { "5;duration=x;y;duration=6", "5;duration=6;y" },
    { "5;duration=6;duration=x", "5;duration=6" },
};

TEST_F( Timers, RetryAfterRows )
{
    for ( const auto &row : numberRows ) {
        test::ExpectRow( retryAfter, row );
    }
    for ( const auto &row : retryAfterRows ) {
        test::ExpectRow( retryAfter, row );
    }
    const auto hdr = test::Decode<RetryAfter>( "5 (x);duration=99999999999999999999" );
    EXPECT_FALSE( tolmoHeaderRetryAfterHasDuration( hdr.Get() ) );
    EXPECT_EQ( test::Generic<RetryAfter>( hdr ), ";duration=99999999999999999999" );
}

TEST_F( Timers, RetryAfterCompareOrder )
{
    test::ExpectAscending<RetryAfter>( { "1", "1;x", "1;duration=0", "1;duration=0;x", "1;duration=5", "2", "10" } );
}

TEST_F( Timers, RetryAfterHugeComment )
{
    const std::string open( 100000, '(' );
    const std::string close( 100000, ')' );
    EXPECT_EQ( test::Recode( retryAfter, "5" + open + close + ";x" ), "5;x" );
    EXPECT_EQ( test::Recode( retryAfter, "5" + open + ";x" ), "5" );
}

/* Subscription-State */

TEST_F( Timers, SubscriptionStateSingleValue )
{
    test::ExpectSingleValue( subscriptionState, "active;expires=60", "active expires=60" );
}

TEST_F( Timers, SubscriptionStateCreate )
{
    const auto state = Str( "Active" );
    const auto hdr = Own( tolmoHeaderSubscriptionStateCreate( state.Get() ) );
    EXPECT_EQ( Take( tolmoHeaderSubscriptionStateSubstateValue( hdr.Get() ) ), "active" );
    EXPECT_EQ( test::Text( state ), "Active" );
    EXPECT_FALSE( tolmoHeaderSubscriptionStateHasReason( hdr.Get() ) );
    EXPECT_FALSE( tolmoHeaderSubscriptionStateHasExpires( hdr.Get() ) );
    EXPECT_FALSE( tolmoHeaderSubscriptionStateHasRetryAfter( hdr.Get() ) );
    EXPECT_EQ( test::Generic<SubscriptionState>( hdr ), "" );
    EXPECT_ABORT( tolmoHeaderSubscriptionStateCreate( nullptr ), "source/tolmo/tolmo_substate_value.cpp",
                  "substateValue" );
    EXPECT_ABORT( tolmoHeaderSubscriptionStateCreate( Str( "a b" ).Get() ), SubscriptionState::path,
                  "tolmoSubstateValueOk( substateValue )" );
}

TEST_F( Timers, SubscriptionStateFields )
{
    const auto create = [] { return Own( tolmoHeaderSubscriptionStateCreate( Str( "a" ).Get() ) ); };
    const char *const path = SubscriptionState::path;
    test::ExpectStringField<SubscriptionState>(
        { nullptr,
          tolmoHeaderSubscriptionStateSubstateValue,
          tolmoHeaderSubscriptionStateSetSubstateValue,
          nullptr,
          "Pending",
          "pending",
          "terminated",
          { { nullptr, "source/tolmo/tolmo_substate_value.cpp", "substateValue" },
            { "", path, "tolmoSubstateValueOk( substateValue )" },
            { "a;b", path, "tolmoSubstateValueOk( substateValue )" } } },
        create );
    test::ExpectStringField<SubscriptionState>(
        { tolmoHeaderSubscriptionStateHasReason,
          tolmoHeaderSubscriptionStateReason,
          tolmoHeaderSubscriptionStateSetReason,
          tolmoHeaderSubscriptionStateDelReason,
          "NoResource",
          "noresource",
          "timeout",
          { { nullptr, "source/tolmo/tolmo_event_reason_value.cpp", "eventReasonValue" },
            { "", path, "tolmoEventReasonValueOk( reason )" },
            { "a b", path, "tolmoEventReasonValueOk( reason )" } } },
        create );
    test::ExpectSecondsField<SubscriptionState>(
        { tolmoHeaderSubscriptionStateHasExpires, tolmoHeaderSubscriptionStateExpires,
          tolmoHeaderSubscriptionStateSetExpires, tolmoHeaderSubscriptionStateDelExpires,
          "tolmoDeltaSecondsOk( expires )" },
        create );
    test::ExpectSecondsField<SubscriptionState>(
        { tolmoHeaderSubscriptionStateHasRetryAfter, tolmoHeaderSubscriptionStateRetryAfter,
          tolmoHeaderSubscriptionStateSetRetryAfter, tolmoHeaderSubscriptionStateDelRetryAfter,
          "tolmoDeltaSecondsOk( retryAfter )" },
        create );
    test::ExpectGenericParams<SubscriptionState>( create );
}

// A copy, and so a header that was shared when it was changed, has lost the generic parameters.
TEST_F( Timers, SubscriptionStateCopyHasNoParams )
{
    const char *const params = "source/tolmo/tolmo_generic_params.cpp";
    const auto hdr = test::Decode<SubscriptionState>( "active;reason=a;expires=1;retry-after=2;x" );
    const auto copy = Own( tolmoHeaderSubscriptionStateCreateFrom( hdr.Get() ) );
    EXPECT_EQ( Take( tolmoHeaderSubscriptionStateSubstateValue( copy.Get() ) ), "active" );
    EXPECT_EQ( Take( tolmoHeaderSubscriptionStateReason( copy.Get() ) ), "a" );
    EXPECT_EQ( tolmoHeaderSubscriptionStateExpires( copy.Get() ), 1 );
    EXPECT_EQ( tolmoHeaderSubscriptionStateRetryAfter( copy.Get() ), 2 );
    EXPECT_EQ( tolmoHeaderSubscriptionStateGenericParams( copy.Get() ), nullptr );
    EXPECT_LT( tolmoHeaderSubscriptionStateCompare( copy.Get(), hdr.Get() ), 0 ); // null first
    EXPECT_GT( tolmoHeaderSubscriptionStateCompare( hdr.Get(), copy.Get() ), 0 );
    EXPECT_TRUE( tolmoHeaderSubscriptionStateEquals(
        copy.Get(), Own( tolmoHeaderSubscriptionStateCreateFrom( copy.Get() ) ).Get() ) );
    auto msg = test::Received( "" );
    EXPECT_ABORT( tolmoHeaderSubscriptionStateEncode( copy.Get() ), params, "params" );
    EXPECT_ABORT( tolmoHeaderSubscriptionStateToString( copy.Get() ), params, "params" );
    EXPECT_ABORT( tolmoHeaderSubscriptionStateStore( copy.Get() ), params, "params" );
    EXPECT_ABORT( tolmoHeaderSubscriptionStateEncodeToMessage( copy.Get(), msg.Address() ), params, "params" );

    using Handle = TolmoHeaderSubscriptionState;
    const auto word = Str( "b" );
    const std::function<void( Handle * )> changes[] = {
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateSetSubstateValue( h, word.Get() ); },
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateSetReason( h, word.Get() ); },
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateDelReason( h ); },
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateSetExpires( h, 9 ); },
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateDelExpires( h ); },
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateSetRetryAfter( h, 9 ); },
        [&]( Handle *h ) { tolmoHeaderSubscriptionStateDelRetryAfter( h ); },
    };
    for ( const auto &change : changes ) {
        auto shared = KoRef<Handle>::Share( hdr.Get() );
        change( shared.Address() );
        EXPECT_EQ( tolmoHeaderSubscriptionStateGenericParams( shared.Get() ), nullptr );
        EXPECT_ABORT( tolmoHeaderSubscriptionStateEncode( shared.Get() ), params, "params" );
        EXPECT_EQ( test::Encode<SubscriptionState>( hdr ), "active;reason=a;expires=1;retry-after=2;x" );
        change( shared.Address() ); // alone now: the set stays away
        EXPECT_EQ( tolmoHeaderSubscriptionStateGenericParams( shared.Get() ), nullptr );
    }

    // With a new set it goes out again.
    auto shared = KoRef<Handle>::Share( hdr.Get() );
    tolmoHeaderSubscriptionStateSetExpires( shared.Address(), 9 );
    tolmoHeaderSubscriptionStateSetGenericParams( shared.Address(), test::ParamsOf( ";y" ).Get() );
    EXPECT_EQ( test::Encode<SubscriptionState>( shared ), "active;reason=a;expires=9;retry-after=2;y" );
    // And a header that is alone keeps it.
    auto alone = test::Decode<SubscriptionState>( "active;x" );
    tolmoHeaderSubscriptionStateSetExpires( alone.Address(), 9 );
    EXPECT_EQ( test::Encode<SubscriptionState>( alone ), "active;expires=9;x" );
}

const test::Row subscriptionStateRows[] = {
    { "active;expires=3600", "active;expires=3600" },
    { "Terminated;REASON=Timeout;Retry-After=010", "terminated;reason=timeout;retry-after=10" },
    { "pending;retry-after=1;x;expires=2;reason=a", "pending;reason=a;expires=2;retry-after=1;x" },
    { "active;expires=0", "active;expires=0" },
    { "active ; X = \"a,b\"", "active;x=\"a,b\"" },
    { "active;reason=a;reason=B", "active;reason=b" },
    { "active;expires=1;expires=2", "active;expires=2" },
    { "", null },
    { " active", null },
    { "active ", null },
    { "active abc", null }, // nothing is ignored here
    { "active;x y", null },
    { "active;expires=1x", null },
    { "active;expires=1 ", null },
    { "active;retry-after=1.5", null },
    { "active;reason=a@b", null },
    { "active, pending", null },
    { "active;", null },
    { "active;;x", null },
    { "active;x;", null },
    { "activ\u00E9", null },
    { ";expires=1", null },
    // What does not fit a field is a generic parameter.
    { "active;expires=9223372036854775807", "active;expires=9223372036854775807" },
    { "active;expires=9223372036854775808", "active;expires=9223372036854775808" },
    { "active;retry-after=99999999999999999999;x", "active;retry-after=99999999999999999999;x" },
    { "active;expires=x", "active;expires=x" },
    { "active;expires=-1", "active;expires=-1" },
    { "active;expires", "active;expires" },
    { "active;reason=\"A\"", "active;reason=\"A\"" },
    { "active;reason", "active;reason" },
    { "active;reasons=A", "active;reasons=A" },
    // One that did not fit is hidden while there is one that did.
    { "active;reason=\"A\";x;reason=b", "active;reason=b;x" },
    { "active;expires=1;expires=x;retry-after=y;retry-after=2", "active;expires=1;retry-after=2" },
};

TEST_F( Timers, SubscriptionStateRows )
{
    for ( const auto &row : subscriptionStateRows ) {
        test::ExpectRow( subscriptionState, row );
    }
    const auto hdr = test::Decode<SubscriptionState>( "Active;Reason=AbC;expires=x;y" );
    EXPECT_EQ( Take( tolmoHeaderSubscriptionStateReason( hdr.Get() ) ), "abc" );
    EXPECT_FALSE( tolmoHeaderSubscriptionStateHasExpires( hdr.Get() ) );
    EXPECT_EQ( test::Generic<SubscriptionState>( hdr ), ";expires=x;y" );
}

TEST_F( Timers, SubscriptionStateCompareOrder )
{
    test::ExpectAscending<SubscriptionState>( { "a", "a;x", "a;retry-after=1", "a;expires=1",
                                                "a;expires=1;retry-after=0", "a;expires=10", "a;reason=a",
                                                "a;reason=a;expires=0", "a;reason=b", "b" } );
}

/* All of them. */

TEST_F( Timers, Huge )
{
    test::ExpectHuge<SessionExpires>( "1;refresher=uac" );
    test::ExpectHuge<MinSe>( "1" );
    test::ExpectHuge<RetryAfter>( "1;duration=2" );
    test::ExpectHuge<SubscriptionState>( "a;reason=b" );
    std::string digits( 100000, '0' );
    digits.back() = '1';
    EXPECT_EQ( test::Recode( minSe, digits ), "1" );
    digits.front() = '9';
    EXPECT_EQ( test::Recode( minSe, digits ), null );
}

KoInt Seconds( test::Draw &draw )
{
    return draw.Perhaps() ? draw.Below( 4000 ) : INT64_MAX - draw.Below( 3 );
}

TEST_F( Timers, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 58 );
    for ( int i = 0; i < 1000; ++i ) {
        auto expires = Own( tolmoHeaderSessionExpiresCreate( Seconds( draw ) ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderSessionExpiresSetRefresher( expires.Address(), draw.One( { "uac", "UAS" } ).Get() );
        }
        tolmoHeaderSessionExpiresSetGenericParams( expires.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<SessionExpires>( expires );

        auto least = Own( tolmoHeaderMinSeCreate( Seconds( draw ) ) );
        tolmoHeaderMinSeSetGenericParams( least.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<MinSe>( least );

        auto retry = Own( tolmoHeaderRetryAfterCreate( Seconds( draw ) ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderRetryAfterSetDuration( retry.Address(), Seconds( draw ) );
        }
        tolmoHeaderRetryAfterSetGenericParams( retry.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<RetryAfter>( retry );

        auto state = Own( tolmoHeaderSubscriptionStateCreate( draw.One( { "active", "Pending", "x" } ).Get() ) );
        if ( draw.Perhaps() ) {
            tolmoHeaderSubscriptionStateSetReason( state.Address(), draw.One( { "timeout", "Gone" } ).Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoHeaderSubscriptionStateSetExpires( state.Address(), Seconds( draw ) );
        }
        if ( draw.Perhaps() ) {
            tolmoHeaderSubscriptionStateSetRetryAfter( state.Address(), Seconds( draw ) );
        }
        tolmoHeaderSubscriptionStateSetGenericParams( state.Address(), draw.Params().Get() );
        test::ExpectDecodesToEqual<SubscriptionState>( state );
    }
}

} // namespace
