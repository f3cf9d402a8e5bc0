/* Between bytes and characters: UTF-8 (RFC 3629). */
#include <runtime/ko_buffer.h>

#include <runtime/ko_string.hpp>

namespace {

/** Decodes bytes; returns where the characters end, or null when the bytes are ill-formed. */
KoChar *DecodeAll( KoChar *to, const uint8_t *bytes, KoInt length )
{
    for ( KoInt i = 0; i < length; ) {
        const KoInt ascii = ko::WidenAscii( to, bytes + i, length - i );
        i += ascii;
        to += ascii;
        while ( i < length && bytes[i] >= 0x80 ) {
            const KoInt taken = ko::DecodeUtf8( bytes + i, length - i, to );
            if ( taken < 0 ) {
                return nullptr;
            }
            i += taken;
            ++to;
        }
    }
    return to;
}

/** Encodes what is left behind the first characters, which were ASCII; returns the number of bytes of all. */
[[gnu::noinline]] KoInt EncodeRest( uint8_t *begin, const KoChar *chs, KoInt length, KoInt ascii )
{
    uint8_t *to = begin + ascii;
    for ( KoInt i = ascii; i < length; ) {
        for ( ; i < length && static_cast<uint32_t>( chs[i] ) >= 0x80; ++i ) {
            to += ko::EncodeUtf8( to, chs[i] );
        }
        ascii = ko::NarrowAscii( to, chs + i, length - i );
        i += ascii;
        to += ascii;
    }
    return to - begin;
}

} // namespace

KoString koCharsetTryConvertBufferToStringWithFlags( KoInt charset, KoBuffer b, KoInt flags )
{
    KO_REQUIRE( charset == KO_CHARSET_UTF8 );
    KO_REQUIRE( b );
    KO_REQUIRE( flags == 1 );
    // Nearly all text is ASCII, for which one pass into a character for each byte is right. Counting first costs more
    // than moving the few texts that turn out much shorter.
    auto s = KoRef<KoString>::Adopt( ko::CreateUninitialised( b->length ) );
    KoChar *const chs = ko::Chars( s.Get() );
    const KoChar *const end = DecodeAll( chs, ko::Bytes( b ), b->length );
    if ( !end ) {
        return nullptr;
    }
    ko::Trim( s.Address(), end - chs );
    return s.Leak();
}

KoInt koCharsConvertToUtf8( void *out, KoInt capacity, const KoChar *chs, KoInt length, KoBool reserved )
{
    KO_REQUIRE( out || capacity == 0 );
    KO_REQUIRE( capacity >= 0 );
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    KO_REQUIRE( !reserved );
    const KoInt count = ko::TextLength( chs, length );
    if ( capacity / 4 < count ) { // otherwise every text fits, and need not be counted first
        const KoInt need = ko::Utf8Length( chs, count );
        if ( need > capacity ) {
            return need;
        }
    }
    auto *const begin = static_cast<uint8_t *>( out );
    const KoInt ascii = ko::NarrowAscii( begin, chs, count );
    return ascii == count ? count : EncodeRest( begin, chs, count, ascii );
}
