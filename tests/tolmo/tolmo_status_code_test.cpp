#include "test.h"

#include <tolmo/tolmo_status_code.h>

#include <map>

namespace {

class StatusCode : public test::Fixture {};

constexpr char path[] = "source/tolmo/tolmo_status_code.cpp";
constexpr char ok[] = "tolmoStatusCodeOk( sc )";

const std::map<KoInt, std::string_view> phrases = { { 100, "Trying" },
                                                    { 180, "Ringing" },
                                                    { 181, "Call is being forwarded" },
                                                    { 182, "Queued" },
                                                    { 183, "Session progress" },
                                                    { 200, "OK" },
                                                    { 202, "Accepted" },
                                                    { 300, "Multiple choices" },
                                                    { 301, "Moved permanently" },
                                                    { 302, "Moved temporarily" },
                                                    { 305, "Use proxy" },
                                                    { 380, "Alternative service" },
                                                    { 400, "Bad request" },
                                                    { 401, "Unauthorized" },
                                                    { 402, "Payment required" },
                                                    { 403, "Forbidden" },
                                                    { 404, "Not found" },
                                                    { 405, "Method not allowed" },
                                                    { 406, "Not acceptable" },
                                                    { 407, "Proxy authentication required" },
                                                    { 408, "Request timeout" },
                                                    { 409, "Conflict" },
                                                    { 410, "Gone" },
                                                    { 412, "Length required" },
                                                    { 413, "Request entity too large" },
                                                    { 414, "Request-URI too long" },
                                                    { 415, "Unsupported media type" },
                                                    { 416, "Unsupported URI scheme" },
                                                    { 420, "Bad extension" },
                                                    { 421, "Extension required" },
                                                    { 422, "Session interval too small" },
                                                    { 423, "Interval too brief" },
                                                    { 424, "Bad Location Information" },
                                                    { 429, "Provide referrer identity" },
                                                    { 480, "Temporarily not available" },
                                                    { 481, "Call leg/transaction does not exist" },
                                                    { 482, "Loop detected" },
                                                    { 483, "Too many hops" },
                                                    { 484, "Address incomplete" },
                                                    { 485, "Ambiguous" },
                                                    { 486, "Busy here" },
                                                    { 487, "Request terminated" },
                                                    { 488, "Not acceptable here" },
                                                    { 489, "Bad event" },
                                                    { 491, "Request pending" },
                                                    { 493, "Undecipherable" },
                                                    { 500, "Internal server error" },
                                                    { 501, "Not implemented" },
                                                    { 502, "Bad gateway" },
                                                    { 503, "Service unavailable" },
                                                    { 504, "Server timeout" },
                                                    { 505, "SIP version not supported" },
                                                    { 513, "Message too large" },
                                                    { 580, "Precondition failed" },
                                                    { 600, "Busy everywhere" },
                                                    { 603, "Decline" },
                                                    { 604, "Does not exist anywhere" },
                                                    { 606, "Not acceptable" } };

constexpr KoBool ( *classes[] )( KoInt ) = { tolmoStatusCodeInformational, tolmoStatusCodeSuccess,
                                             tolmoStatusCodeRedirection,   tolmoStatusCodeClientError,
                                             tolmoStatusCodeServerError,   tolmoStatusCodeGlobalFailure };

TEST_F( StatusCode, Ok )
{
    EXPECT_FALSE( tolmoStatusCodeOk( TOLMO_STATUS_CODE_INVALID ) );
    EXPECT_FALSE( tolmoStatusCodeOk( 0 ) );
    EXPECT_FALSE( tolmoStatusCodeOk( 99 ) );
    EXPECT_TRUE( tolmoStatusCodeOk( 100 ) );
    EXPECT_TRUE( tolmoStatusCodeOk( 999 ) );
    EXPECT_FALSE( tolmoStatusCodeOk( 1000 ) );
    EXPECT_EQ( TOLMO_STATUS_CODE_INVALID, -1 );
}

TEST_F( StatusCode, Classes )
{
    for ( KoInt sc = 100; sc <= 999; ++sc ) {
        for ( KoInt i = 0; i < 6; ++i ) {
            EXPECT_EQ( classes[i]( sc ), sc >= 100 * ( i + 1 ) && sc < 100 * ( i + 2 ) ) << sc; // none from 700 on
        }
    }
    for ( const KoInt bad : { 99, 1000, -1 } ) {
        for ( const auto isClass : classes ) {
            EXPECT_ABORT( isClass( bad ), path, ok );
        }
    }
}

TEST_F( StatusCode, ReasonPhrase )
{
    EXPECT_EQ( phrases.size(), 58u );
    for ( KoInt sc = 100; sc <= 999; ++sc ) {
        const auto known = phrases.find( sc );
        EXPECT_EQ( test::Take( tolmoStatusCodeReasonPhrase( sc ) ),
                   known != phrases.end() ? std::string( known->second )
                                          : "Unknown reason \"" + std::to_string( sc ) + "\"" );
    }
    for ( const KoInt bad : { 99, 1000, -1 } ) {
        EXPECT_ABORT( tolmoStatusCodeReasonPhrase( bad ), path, ok );
    }
}

} // namespace
