/* Status codes and their default reason phrases (RFC 3261 section 21). */
#include <tolmo/tolmo_status_code.h>

namespace {

// The phrases are texts of this library, in sentence case, and meant to differ from the published ones.
const char *DefaultPhrase( KoInt sc )
{
    switch ( sc ) {
    case 100:
        return "Trying";
    case 180:
        return "Ringing";
    case 181:
        return "Call is being forwarded";
    case 182:
        return "Queued";
    case 183:
        return "Session progress";
    case 200:
        return "OK";
    case 202:
        return "Accepted";
    case 300:
        return "Multiple choices";
    case 301:
        return "Moved permanently";
    case 302:
        return "Moved temporarily";
    case 305:
        return "Use proxy";
    case 380:
        return "Alternative service";
    case 400:
        return "Bad request";
    case 401:
        return "Unauthorized";
    case 402:
        return "Payment required";
    case 403:
        return "Forbidden";
    case 404:
        return "Not found";
    case 405:
        return "Method not allowed";
    case 406:
        return "Not acceptable";
    case 407:
        return "Proxy authentication required";
    case 408:
        return "Request timeout";
    case 409:
        return "Conflict";
    case 410:
        return "Gone";
    case 412:
        return "Length required";
    case 413:
        return "Request entity too large";
    case 414:
        return "Request-URI too long";
    case 415:
        return "Unsupported media type";
    case 416:
        return "Unsupported URI scheme";
    case 420:
        return "Bad extension";
    case 421:
        return "Extension required";
    case 422:
        return "Session interval too small";
    case 423:
        return "Interval too brief";
    case 424:
        return "Bad Location Information";
    case 429:
        return "Provide referrer identity";
    case 480:
        return "Temporarily not available";
    case 481:
        return "Call leg/transaction does not exist";
    case 482:
        return "Loop detected";
    case 483:
        return "Too many hops";
    case 484:
        return "Address incomplete";
    case 485:
        return "Ambiguous";
    case 486:
        return "Busy here";
    case 487:
        return "Request terminated";
    case 488:
        return "Not acceptable here";
    case 489:
        return "Bad event";
    case 491:
        return "Request pending";
    case 493:
        return "Undecipherable";
    case 500:
        return "Internal server error";
    case 501:
        return "Not implemented";
    case 502:
        return "Bad gateway";
    case 503:
        return "Service unavailable";
    case 504:
        return "Server timeout";
    case 505:
        return "SIP version not supported";
    case 513:
        return "Message too large";
    case 580:
        return "Precondition failed";
    case 600:
        return "Busy everywhere";
    case 603:
        return "Decline";
    case 604:
        return "Does not exist anywhere";
    case 606:
        return "Not acceptable";
    default:
        return nullptr;
    }
}

} // namespace

KoBool tolmoStatusCodeOk( KoInt sc )
{
    return sc >= 100 && sc <= 999;
}

KoBool tolmoStatusCodeInformational( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    return sc / 100 == 1;
}

KoBool tolmoStatusCodeSuccess( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    return sc / 100 == 2;
}

KoBool tolmoStatusCodeRedirection( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    return sc / 100 == 3;
}

KoBool tolmoStatusCodeClientError( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    return sc / 100 == 4;
}

KoBool tolmoStatusCodeServerError( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    return sc / 100 == 5;
}

KoBool tolmoStatusCodeGlobalFailure( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    return sc / 100 == 6;
}

KoString tolmoStatusCodeReasonPhrase( KoInt sc )
{
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    const char *const phrase = DefaultPhrase( sc );
    return phrase ? koStringCreateFromCstr( phrase, -1 )
                  : koStringCreateFromFormatCstr( "Unknown reason \"%03i\"", -1, sc );
}
