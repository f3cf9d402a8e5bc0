/* Reason phrases: any text, with escapes on the wire (RFC 3261 section 25.1). */
#include <tolmo/tolmo_reason_phrase.h>

#include <runtime/ko_inner.hpp>
#include <tolmo/tolmo_char.h>
#include <tolmo/tolmo_char.hpp>

namespace {

bool IsEscaped( KoChar ch )
{
    return ch >= 0 && ch < 0x80 && !tolmo::Is( ch, tolmo::charReserved | tolmo::charUnreserved | tolmo::charLws );
}

} // namespace

KoBool tolmoReasonPhraseOk( KoString reasonPhrase )
{
    KO_REQUIRE( reasonPhrase );
    return KO_TRUE;
}

KoString tolmo___ReasonPhraseEncode( KoString reasonPhrase )
{
    KO_REQUIRE( reasonPhrase );
    const KoChar *const chs = ko::Chars( reasonPhrase );
    const KoInt length = reasonPhrase->length;
    KoInt escapes = 0;
    for ( KoInt i = 0; i < length; ++i ) {
        escapes += IsEscaped( chs[i] );
    }
    const KoString encoded = ko___StringCreateOfLength( length + 2 * escapes );
    KoChar *to = ko::Chars( encoded );
    for ( KoInt i = 0; i < length; ++i ) {
        if ( IsEscaped( chs[i] ) ) {
            *to++ = '%';
            *to++ = "0123456789ABCDEF"[chs[i] >> 4];
            *to++ = "0123456789ABCDEF"[chs[i] & 15];
        } else {
            *to++ = chs[i];
        }
    }
    return encoded;
}

KoString tolmo___ReasonPhraseDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    const KoString phrase = ko___StringCreateOfLength( length );
    KoChar *const begin = ko::Chars( phrase );
    KoChar *to = begin;
    for ( KoInt i = 0; i < length; ++i ) {
        KoInt high = 0;
        KoInt low = 0;
        if ( chs[i] == '%' && length - i > 2 && tolmo___CharIsHexdig( chs[i + 1], &high ) &&
             tolmo___CharIsHexdig( chs[i + 2], &low ) ) {
            *to++ = static_cast<KoChar>( high * 16 + low );
            i += 2;
        } else {
            *to++ = chs[i];
        }
    }
    phrase->length = to - begin;
    return phrase;
}
