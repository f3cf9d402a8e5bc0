/* International domain names: UTS #46, with the bidi rule of RFC 5893 and the joiner rules of RFC 5892. */
#include <address/wen_dns.h>

#include <address/wen_address.h>
#include <address/wen_punycode.hpp>
#include <address/wen_unicode.hpp>
#include <runtime/ko_inner.hpp>

namespace wen {
namespace {

constexpr int labelLimit = 63; // characters of a label in ASCII form (RFC 1035, section 2.3.4)
constexpr int nameLimit = WEN_DNS_NAME_LIMIT - 1;
constexpr int prefixLength = 4; // xn--
// A label whose ASCII form fits has at most labelLimit characters, of which each decomposes to at most four.
static_assert( normaliseLimit == 4 * labelLimit );

bool IsAscii( const KoChar *chs, int length )
{
    for ( int i = 0; i < length; ++i ) {
        if ( chs[i] >= 0x80 ) {
            return false;
        }
    }
    return true;
}

KoChar ToSmall( KoChar ch )
{
    return ch >= 'A' && ch <= 'Z' ? ch | 0x20 : ch;
}

bool IsAlphanum( KoChar ch )
{
    const KoChar small = ch | 0x20;
    return ( ch >= '0' && ch <= '9' ) || ( small >= 'a' && small <= 'z' );
}

bool IsHexDigit( KoChar ch )
{
    const KoChar small = ch | 0x20;
    return ( ch >= '0' && ch <= '9' ) || ( small >= 'a' && small <= 'f' );
}

bool HasPrefix( const KoChar *chs, KoInt length )
{
    return length >= prefixLength && ToSmall( chs[0] ) == 'x' && ToSmall( chs[1] ) == 'n' && chs[2] == '-' &&
           chs[3] == '-';
}

/** True when a text is a whole host of the grammar of SIP (RFC 3261, section 25.1, with escapes in labels). */
bool IsHost( const KoChar *chs, KoInt length )
{
    if ( length > 2 && chs[0] == '[' && chs[length - 1] == ']' ) {
        return wen___SkipIpV6Address( chs + 1, length - 2 ) == length - 2;
    }
    // What stands in front of the place: nothing or a dot, a hyphen, another character of a label.
    enum { Begin, Hyphen, Label } before = Begin;
    for ( KoInt at = 0; at < length; ++at ) {
        if ( IsAlphanum( chs[at] ) ) {
            before = Label;
        } else if ( chs[at] == '.' && before == Label ) {
            before = Begin;
        } else if ( chs[at] == '-' && before != Begin ) {
            before = Hyphen;
        } else if ( chs[at] == '%' && length - at > 2 && IsHexDigit( chs[at + 1] ) && IsHexDigit( chs[at + 2] ) ) {
            at += 2;
            before = Label;
        } else {
            return false;
        }
    }
    return length > 0 && before != Hyphen;
}

/** One form of a name, as far as it is built. */
struct Form {
    KoChar chs[WEN_DNS_NAME_LIMIT];
    int length = 0;

    bool Add( const KoChar *from, int count )
    {
        if ( count > nameLimit - length ) {
            return false;
        }
        memcpy( chs + length, from, static_cast<size_t>( count ) * sizeof( KoChar ) );
        length += count;
        return true;
    }

    // A dot may be the last character of a name that is as long as can be.
    void AddDot() { chs[length++] = '.'; }
};

/** True when a joiner stands where it may (RFC 5892, appendix A.1 and A.2). */
bool JoinerOk( const KoChar *chs, int length, int at )
{
    constexpr KoChar nonJoiner = 0x200C;
    constexpr int virama = 9; // a combining class
    if ( at > 0 && PropertiesOf( chs[at - 1] ).combiningClass == virama ) {
        return true;
    }
    if ( chs[at] != nonJoiner ) {
        return false;
    }
    int before = at - 1;
    while ( before >= 0 && PropertiesOf( chs[before] ).joining == Joining::T ) {
        --before;
    }
    int behind = at + 1;
    while ( behind < length && PropertiesOf( chs[behind] ).joining == Joining::T ) {
        ++behind;
    }
    if ( before < 0 || behind == length ) {
        return false;
    }
    const Joining left = PropertiesOf( chs[before] ).joining;
    const Joining right = PropertiesOf( chs[behind] ).joining;
    return ( left == Joining::L || left == Joining::D ) && ( right == Joining::R || right == Joining::D );
}

/** A set of bidi classes. */
template <class... Classes>
constexpr unsigned Set( Classes... classes )
{
    return ( ( 1u << static_cast<unsigned>( classes ) ) | ... );
}

constexpr unsigned rightToLeft = Set( Bidi::R, Bidi::AL, Bidi::AN );

/** What the bidi rule needs to know of a label. */
struct BidiLabel {
    unsigned first = 0; // each a set: of the first character, of the last that is no mark, of all
    unsigned last = 0;
    unsigned all = 0;

    BidiLabel( const KoChar *chs, int length )
    {
        for ( int i = 0; i < length; ++i ) {
            const unsigned one = Set( PropertiesOf( chs[i] ).bidi );
            first = i == 0 ? one : first;
            last = one == Set( Bidi::NSM ) ? last : one;
            all |= one;
        }
    }

    /** The bidi rule of RFC 5893, section 2. */
    [[nodiscard]] bool Ok() const
    {
        constexpr unsigned neutral = Set( Bidi::ES, Bidi::CS, Bidi::ET, Bidi::ON, Bidi::BN, Bidi::NSM );
        if ( first == Set( Bidi::L ) ) {
            return ( all & ~( Set( Bidi::L, Bidi::EN ) | neutral ) ) == 0 && ( last & Set( Bidi::L, Bidi::EN ) ) != 0;
        }
        constexpr unsigned bothNumbers = Set( Bidi::EN, Bidi::AN );
        return ( first & Set( Bidi::R, Bidi::AL ) ) != 0 &&
               ( all & ~( rightToLeft | Set( Bidi::EN ) | neutral ) ) == 0 &&
               ( last & ( rightToLeft | Set( Bidi::EN ) ) ) != 0 && ( all & bothNumbers ) != bothNumbers;
    }
};

/** UTS #46, section 4: a name goes in character by character, both forms come out label by label. */
class Processor {
public:
    Form ascii;
    Form unicode;

    /** False when the name is refused. */
    bool Run( const KoChar *chs, KoInt length )
    {
        for ( KoInt i = 0; i < length; ++i ) {
            KoChar mapped[mappingLimit];
            int count = 1;
            switch ( PropertiesOf( chs[i] ).status ) {
            case Status::Valid:
                mapped[0] = chs[i];
                break;
            case Status::Ignored:
                count = 0;
                break;
            case Status::Mapped:
                count = Map( chs[i], mapped );
                break;
            case Status::Disallowed:
                return false;
            }
            for ( int k = 0; k < count; ++k ) {
                if ( !Take( mapped[k] ) ) {
                    return false;
                }
            }
        }
        const bool ended = labelLength == 0 ? ascii.length > 0 : EndLabel();
        return ended && ( !rightToLeftName || bidiOk );
    }

private:
    KoChar label[normaliseLimit];
    int labelLength = 0;
    bool composed = true; // no character of the label can change in normalisation
    bool rightToLeftName = false;
    bool bidiOk = true;

    bool Take( KoChar ch )
    {
        if ( ch == '.' ) {
            if ( labelLength == 0 || !EndLabel() ) {
                return false;
            }
            ascii.AddDot();
            unicode.AddDot();
            return true;
        }
        if ( labelLength == normaliseLimit ) {
            return false;
        }
        label[labelLength++] = ch;
        const Properties &properties = PropertiesOf( ch );
        composed = composed && properties.composed && properties.combiningClass == 0;
        return true;
    }

    bool EndLabel()
    {
        const int length = composed ? labelLength : Normalise( label, labelLength );
        labelLength = 0;
        composed = true;
        if ( length <= 0 || length > labelLimit ) {
            return false;
        }
        return HasPrefix( label, length ) ? AddEncoded( length ) : AddPlain( length );
    }

    /** Adds a label that is no `xn--` label. */
    bool AddPlain( int length )
    {
        if ( !Check( label, length ) || !unicode.Add( label, length ) ) {
            return false;
        }
        if ( IsAscii( label, length ) ) {
            return ascii.Add( label, length );
        }
        KoChar encoded[labelLimit] = { 'x', 'n', '-', '-' };
        const int count = PunycodeEncode( label, length, encoded + prefixLength, labelLimit - prefixLength );
        return count >= 0 && ascii.Add( encoded, prefixLength + count );
    }

    /** Adds an `xn--` label, which must be what its own Unicode form is encoded to; ASCII never is. */
    bool AddEncoded( int length )
    {
        KoChar decoded[normaliseLimit];
        const KoChar *const code = label + prefixLength;
        const int codeLength = length - prefixLength;
        const int count = PunycodeDecode( code, codeLength, decoded );
        if ( count <= 0 || IsAscii( decoded, count ) || !Check( decoded, count ) ) {
            return false;
        }
        KoChar normal[normaliseLimit];
        memcpy( normal, decoded, static_cast<size_t>( count ) * sizeof( KoChar ) );
        if ( Normalise( normal, count ) != count || !ko::SameChars( normal, decoded, count ) ) {
            return false;
        }
        KoChar again[labelLimit];
        return PunycodeEncode( decoded, count, again, labelLimit ) == codeLength &&
               ko::SameChars( again, code, codeLength ) && ascii.Add( label, length ) && unicode.Add( decoded, count );
    }

    /** The validity criteria of UTS #46, section 4.1, but normalisation. The bidi rule is only noted. */
    bool Check( const KoChar *chs, int length )
    {
        const bool hyphensInside = length >= prefixLength && chs[2] == '-' && chs[3] == '-';
        if ( hyphensInside || chs[0] == '-' || chs[length - 1] == '-' || PropertiesOf( chs[0] ).mark ) {
            return false;
        }
        for ( int i = 0; i < length; ++i ) {
            const bool joiner = chs[i] == 0x200C || chs[i] == 0x200D;
            if ( PropertiesOf( chs[i] ).status != Status::Valid || ( joiner && !JoinerOk( chs, length, i ) ) ) {
                return false;
            }
        }
        const BidiLabel bidi( chs, length );
        rightToLeftName = rightToLeftName || ( bidi.all & rightToLeft ) != 0;
        bidiOk = bidiOk && bidi.Ok();
        return true;
    }
};

/** True when an `xn--` label begins at a place. */
bool BeginsEncodedLabel( const KoChar *chs, KoInt length, KoInt at )
{
    return HasPrefix( chs + at, length - at ) && ( at == 0 || chs[at - 1] == '.' );
}

/** True when a text has an `xn--` label. One of the two hyphens has an odd place, so that no others are looked at. */
bool HasEncodedLabel( const KoChar *chs, KoInt length )
{
    for ( KoInt i = 3; i < length; i += 2 ) {
        if ( chs[i] == '-' &&
             ( BeginsEncodedLabel( chs, length, i - 3 ) || BeginsEncodedLabel( chs, length, i - 2 ) ) ) {
            return true;
        }
    }
    return false;
}

KoInt Copy( const Form &form, KoChar *out )
{
    ko::CopyChars( out, form.chs, form.length );
    return form.length;
}

} // namespace
} // namespace wen

KoInt wen___DnsIdnaToAscii( const KoChar *chs, KoInt length, KoChar *out )
{
    wen::Processor name;
    return name.Run( chs, length ) ? wen::Copy( name.ascii, out ) : 0;
}

KoInt wen___DnsIdnaToUnicode( const KoChar *chs, KoInt length, KoChar *out )
{
    // The ASCII form has the same length, so longer hosts are not looked at.
    if ( length > WEN_DNS_NAME_LIMIT || !wen::HasEncodedLabel( chs, length ) ) {
        return 0;
    }
    wen::Processor name;
    if ( !name.Run( chs, length ) || name.ascii.length != length ) {
        return 0;
    }
    for ( KoInt i = 0; i < length; ++i ) {
        if ( name.ascii.chs[i] != wen::ToSmall( chs[i] ) ) {
            return 0;
        }
    }
    return wen::Copy( name.unicode, out );
}

KoBool wenDnsIdnaDomainNameOk( KoString name )
{
    KO_REQUIRE( name );
    wen::Processor processor;
    return wen::IsHost( ko::Chars( name ), name->length ) || processor.Run( ko::Chars( name ), name->length );
}

KoString wenDnsIdnaDomainNameToAscii( KoString name )
{
    KO_REQUIRE( name );
    KoChar ascii[WEN_DNS_NAME_LIMIT];
    const KoInt length = wen::IsHost( ko::Chars( name ), name->length )
                             ? 0
                             : wen___DnsIdnaToAscii( ko::Chars( name ), name->length, ascii );
    return length > 0 ? koStringCreateFromCharsCopy( ascii, length ) : koStringRetain( name );
}

KoString wenDnsIdnaDomainNameToUnicode( KoString name )
{
    KO_REQUIRE( name );
    KoChar unicode[WEN_DNS_NAME_LIMIT];
    const KoInt length = wen___DnsIdnaToUnicode( ko::Chars( name ), name->length, unicode );
    return length > 0 ? koStringCreateFromCharsCopy( unicode, length ) : koStringRetain( name );
}
