/* Codes of a warning (RFC 3261 section 20.43). */
#include <tolmo/tolmo_warn_code.h>

namespace {

const char *DefaultText( KoInt warnCode )
{
    switch ( warnCode ) {
    case 300:
        return "Incompatible network protocol";
    case 301:
        return "Incompatible network address formats";
    case 302:
        return "Incompatible transport protocol";
    case 303:
        return "Incompatible bandwidth units";
    case 304:
        return "Media type not available";
    case 305:
        return "Incompatible media format";
    case 306:
        return "Attribute not understood";
    case 307:
        return "Session description parameter not understood";
    case 330:
        return "Multicast not available";
    case 331:
        return "Unicast not available";
    case 370:
        return "Insufficient bandwidth";
    case 399:
        return "Miscellaneous warning";
    default:
        return nullptr;
    }
}

} // namespace

KoBool tolmoWarnCodeOk( KoInt warnCode )
{
    return warnCode >= 0 && warnCode <= 999;
}

KoString tolmoWarnCodeToString( KoInt warnCode )
{
    KO_REQUIRE( tolmoWarnCodeOk( warnCode ) );
    const char *const text = DefaultText( warnCode );
    return text ? koStringCreateFromCstr( text, -1 ) : koStringCreateFromFormatCstr( "Warning \"%03i\"", -1, warnCode );
}

KoString tolmo___WarnCodeEncode( KoInt warnCode )
{
    KO_REQUIRE( tolmoWarnCodeOk( warnCode ) );
    return koFormatEncodeInt( warnCode, 10, 0, 0 );
}

KoInt tolmo___WarnCodeDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    KoInt warnCode = 0;
    KoInt consumed = 0;
    const bool read = koFormatTryDecodeIntChars( chs, length, 10, &warnCode, &consumed );
    KO_REQUIRE( read && consumed == length );
    return warnCode;
}
