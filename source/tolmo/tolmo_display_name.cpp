/* Display names (RFC 3261 section 25.1). */
#include <tolmo/tolmo_display_name.h>

#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_text.hpp>

KoBool tolmoDisplayNameOk( KoString displayName )
{
    KO_REQUIRE( displayName );
    // A name of tokens and whitespace can be quoted too, so that there is no second form to test for.
    return tolmoQuotableStringOk( displayName );
}

void tolmoDisplayNameNormalizeWhitespace( KoString *displayName )
{
    KO_REQUIRE_HANDLE( displayName );
    KO_REQUIRE( tolmoDisplayNameOk( *displayName ) );
    const KoString name = *displayName;
    const KoChar *const chs = ko::Chars( name );
    const auto follows = [&]( KoInt i ) { return i > 0 && tolmo::Is( chs[i - 1], tolmo::charLws ); };
    KoInt i = 0;
    while ( i < name->length && chs[i] != '\t' && !( chs[i] == ' ' && follows( i ) ) ) {
        ++i;
    }
    if ( i == name->length ) {
        return;
    }
    const KoString normal = ko___StringCreateOfLength( name->length );
    KoChar *const begin = ko::Chars( normal );
    ko::CopyChars( begin, chs, i );
    KoChar *to = begin + i;
    for ( ; i < name->length; ++i ) {
        if ( !tolmo::Is( chs[i], tolmo::charLws ) ) {
            *to++ = chs[i];
        } else if ( !follows( i ) ) {
            *to++ = ' ';
        }
    }
    normal->length = to - begin;
    tolmo::Store( *displayName, tolmo::Adopt( normal ) );
}

KoString tolmo___DisplayNameEncode( KoString displayName )
{
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    return tolmo___QuotableStringEncode( displayName );
}

KoString tolmo___DisplayNameTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    const KoString quoted = tolmo___QuotableStringTryDecode( chs, length );
    return quoted ? quoted : tolmo::TryJoinWords( tolmo::Text( chs, length ), tolmo::skip::Token );
}
