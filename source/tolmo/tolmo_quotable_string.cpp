/* Texts that go out as a quoted string (RFC 3261 section 25.1). */
#include <tolmo/tolmo_quotable_string.h>

#include <tolmo/tolmo_quotable_string.hpp>
#include <tolmo/tolmo_scalar.hpp>

namespace {

/** Tells of one character after the other whether a backslash has to stand before it. */
class Escaping {
public:
    bool Escapes( KoChar ch )
    {
        const bool second = blank && ch == ' ';
        blank = ch == ' ' && !second;
        return second || ch < ' ' || ch == '"' || ch == '\\' || ch == 0x7F;
    }

private:
    bool blank = false; // the character before is a blank without a backslash
};

} // namespace

KoBool tolmoQuotableStringOk( KoString quotableString )
{
    KO_REQUIRE( quotableString );
    const KoChar *const backing = ko::Chars( quotableString );
    for ( KoInt i = 0; i < quotableString->length; ++i ) {
        if ( backing[i] == KO_CHAR_CARRIAGE_RETURN || backing[i] == KO_CHAR_LINE_FEED ) {
            return KO_FALSE;
        }
    }
    return KO_TRUE;
}

KoString tolmo___QuotableStringEncode( KoString quotableString )
{
    KO_REQUIRE( quotableString );
    const KoChar *const backing = ko::Chars( quotableString );
    const KoInt length = quotableString->length;
    KoInt escapes = 0;
    Escaping counting;
    for ( KoInt i = 0; i < length; ++i ) {
        KO_REQUIRE( backing[i] != KO_CHAR_CARRIAGE_RETURN && backing[i] != KO_CHAR_LINE_FEED );
        escapes += counting.Escapes( backing[i] );
    }
    const KoString quoted = ko___StringCreateOfLength( length + escapes + 2 );
    KoChar *to = ko::Chars( quoted );
    *to++ = '"';
    Escaping writing;
    for ( KoInt i = 0; i < length; ++i ) {
        if ( writing.Escapes( backing[i] ) ) {
            *to++ = '\\';
        }
        *to++ = backing[i];
    }
    *to = '"';
    return quoted;
}

KoRef<KoString> tolmo::DecodeQuoted( Text quoted )
{
    const KoInt first = skip::Sws( quoted.chs, quoted.length ) + 1;
    const KoInt last = quoted.length - 1;
    auto text = Adopt( ko___StringCreateOfLength( last - first ) );
    KoChar *const begin = ko::Chars( text.Get() );
    KoChar *to = begin;
    for ( KoInt i = first; i < last; ++i ) {
        i += quoted.chs[i] == '\\';
        *to++ = quoted.chs[i];
    }
    text.Get()->length = to - begin;
    return text;
}

KoString tolmo___QuotableStringTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    const tolmo::Text text( chs, length );
    return tolmo::IsWhole( text, tolmo::skip::QuotedString ) ? tolmo::DecodeQuoted( text ).Leak() : nullptr;
}
