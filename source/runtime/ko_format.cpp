/* Text from format directives, and the text of numbers. */
#include <runtime/ko_string.h>

#include <runtime/ko_string.hpp>

#include <algorithm>

namespace {

/** The text of a number: blanks, a minus sign, zeros, digits. */
class IntText {
public:
    IntText( KoInt value, KoInt base, KoInt width, KoInt flags ) : negative( value < 0 )
    {
        // The magnitude of the least number is no KoInt.
        auto rest = static_cast<uint64_t>( value );
        rest = negative ? 0 - rest : rest;
        const auto divisor = static_cast<uint64_t>( base );
        const char *const alphabet = flags & KO_FORMAT_CAPITALS ? "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"
                                                                : "0123456789abcdefghijklmnopqrstuvwxyz";
        do {
            const uint64_t quotient = base == 10 ? rest / 10 : rest / divisor; // by a constant it is no division
            digits[--first] = alphabet[rest - quotient * divisor];
            rest = quotient;
        } while ( rest );
        const KoInt padding = std::max<KoInt>( 0, width - DigitCount() );
        ( flags & KO_FORMAT_ZEROS ? zeros : blanks ) = padding;
    }

    [[nodiscard]] KoInt Length() const { return blanks + negative + zeros + DigitCount(); }

    KoChar *Write( KoChar *to ) const
    {
        to = Fill( to, ' ', blanks );
        to = Fill( to, '-', negative );
        to = Fill( to, '0', zeros );
        ko::CopyChars( to, digits + first, DigitCount() );
        return to + DigitCount();
    }

private:
    static constexpr KoInt most = 64; // digits, in base 2

    [[nodiscard]] KoInt DigitCount() const { return most - first; }

    static KoChar *Fill( KoChar *to, KoChar ch, KoInt count )
    {
        for ( KoInt i = 0; i < count; ++i ) {
            to[i] = ch;
        }
        return to + count;
    }

    KoChar digits[most];
    KoInt first = most;
    KoInt negative;
    KoInt zeros = 0;
    KoInt blanks = 0;
};

/** How `%i` writes its number. */
struct IntDirective {
    KoInt base = 10;
    KoInt width = 0;
    KoInt flags = 0;
};

template <class Unit>
class Directives {
public:
    Directives( const Unit *format, KoInt length ) : at( format ), end( format + length ) {}

    [[nodiscard]] bool AtEnd() const { return at == end; }

    /** Takes what stands before the next directive. */
    KoInt TakeText()
    {
        const Unit *const start = at;
        while ( at < end && *at != '%' ) {
            ++at;
        }
        return at - start;
    }

    [[nodiscard]] bool At( char wanted ) const { return at < end && *at == static_cast<Unit>( wanted ); }

    bool Take( char wanted )
    {
        const bool here = At( wanted );
        at += here;
        return here;
    }

    bool TakeInt( IntDirective *directive )
    {
        if ( Take( '^' ) ) {
            directive->flags |= KO_FORMAT_CAPITALS;
        }
        if ( Take( '0' ) ) {
            directive->flags |= KO_FORMAT_ZEROS;
            if ( !TakeNumber( &directive->width ) ) {
                return false;
            }
        }
        if ( Take( '!' ) && !( TakeNumber( &directive->base ) && directive->base >= 2 && directive->base <= 36 ) ) {
            return false;
        }
        return Take( 'i' );
    }

    [[nodiscard]] const Unit *Place() const { return at; }

private:
    /** One to three digits. */
    bool TakeNumber( KoInt *number )
    {
        const Unit *const start = at;
        for ( *number = 0; at < end && at - start < 3 && *at >= '0' && *at <= '9'; ++at ) {
            *number = *number * 10 + ( *at - '0' );
        }
        return at > start;
    }

    const Unit *at;
    const Unit *end;
};

/** Gives the pieces of a formatted text to a sink, in their order. */
template <class Unit, class Sink>
void Format( const Unit *format, KoInt length, va_list arguments, Sink *sink )
{
    Directives<Unit> directives( format, length );
    for ( ;; ) {
        const Unit *const text = directives.Place();
        sink->Text( text, directives.TakeText() );
        if ( directives.AtEnd() ) {
            return;
        }
        const Unit *const percent = directives.Place();
        directives.Take( '%' );
        if ( directives.Take( '%' ) ) {
            sink->Text( percent, 1 );
            continue;
        }
        const bool taken = directives.Take( '~' );
        if ( taken || directives.At( 's' ) ) {
            const bool known = directives.Take( 's' );
            KO_REQUIRE_AS( known, "directive" );
            const KoString string = va_arg( arguments, KoString );
            KO_REQUIRE( string );
            sink->String( string, taken );
            continue;
        }
        IntDirective directive;
        const bool known = directives.TakeInt( &directive );
        KO_REQUIRE_AS( known, "directive" );
        sink->Int( IntText( va_arg( arguments, KoInt ), directive.base, directive.width, directive.flags ) );
    }
}

struct LengthSink {
    KoInt length = 0;

    template <class Unit>
    void Text( const Unit *units, KoInt count )
    {
        length += ko::DecodedLength( units, count );
    }
    void Int( const IntText &text ) { length += text.Length(); }
    void String( KoString s, bool ) { length += s->length; }
};

struct WriteSink {
    KoChar *to;

    template <class Unit>
    void Text( const Unit *units, KoInt count )
    {
        to = ko::Decode( to, units, count );
    }
    void Int( const IntText &text ) { to = text.Write( to ); }
    void String( KoString s, bool taken )
    {
        ko::CopyChars( to, ko::Chars( s ), s->length );
        to += s->length;
        if ( taken ) {
            koStringRelease( s );
        }
    }
};

/** The number of characters of a formatted text. Leaves the arguments to the writing. */
template <class Unit>
KoInt FormattedLength( const Unit *format, KoInt length, va_list arguments )
{
    LengthSink sink;
    va_list again;
    va_copy( again, arguments );
    Format( format, length, again, &sink );
    va_end( again );
    return sink.length;
}

template <class Unit>
KoString CreateFormatted( const Unit *format, KoInt length, va_list arguments )
{
    const KoString s = ko::CreateUninitialised( FormattedLength( format, length, arguments ) );
    WriteSink sink = { ko::Chars( s ) };
    Format( format, length, arguments, &sink );
    return s;
}

/** The value of a digit in a base; what is not below the base for what is none. */
KoInt DigitValue( KoChar ch, KoInt base )
{
    const KoInt decimal = static_cast<uint32_t>( ch ) - '0';
    if ( decimal < base && decimal < 10 ) {
        return decimal;
    }
    const KoInt letter = ( static_cast<uint32_t>( ch ) | 0x20 ) - 'a';
    return letter < 26 ? letter + 10 : base;
}

} // namespace

KoString koStringCreateFromFormatCstr( const char *format, KoInt length, ... )
{
    KO_REQUIRE( format || length == 0 );
    KO_REQUIRE( length >= -1 );
    va_list arguments;
    va_start( arguments, length );
    const KoString s = CreateFormatted( format, ko::TextLength( format, length ), arguments );
    va_end( arguments );
    return s;
}

KoString koStringCreateFromFormatArgList( KoString format, va_list arguments )
{
    KO_REQUIRE( format );
    return CreateFormatted( ko::Chars( format ), format->length, arguments );
}

KoString koStringCreateFromFormatCstrArgList( const char *format, KoInt length, va_list arguments )
{
    KO_REQUIRE( format || length == 0 );
    KO_REQUIRE( length >= -1 );
    return CreateFormatted( format, ko::TextLength( format, length ), arguments );
}

KoString koStringCreateFromFormatWcstrArgList( const uint16_t *format, KoInt length, va_list arguments )
{
    KO_REQUIRE( format || length == 0 );
    KO_REQUIRE( length >= -1 );
    return CreateFormatted( format, ko::TextLength( format, length ), arguments );
}

void koStringAppendFormatCstr( KoString *s, const char *format, KoInt length, ... )
{
    KO_REQUIRE_HANDLE( s );
    KO_REQUIRE( format || length == 0 );
    KO_REQUIRE( length >= -1 );
    const KoInt formatLength = ko::TextLength( format, length );
    va_list arguments;
    va_start( arguments, length );
    const KoInt more = FormattedLength( format, formatLength, arguments );
    KoRef<KoString> before;
    // The string may be an argument, so it gets its new length last.
    WriteSink sink = { ko::Reserve( s, more, &before ) };
    Format( format, formatLength, arguments, &sink );
    va_end( arguments );
    if ( more > 0 ) {
        ( *s )->length += more;
    }
}

KoBool koStringScanInt( KoString s, KoInt offset, KoInt length, KoInt base, KoInt *value, KoInt *consumed )
{
    KO_REQUIRE( s );
    KO_REQUIRE( offset >= 0 && offset <= koStringLength( s ) );
    KO_REQUIRE( length >= -1 && length <= koStringLength( s ) - offset );
    KO_REQUIRE( base >= 2 && base <= 36 );
    KO_REQUIRE( value );
    KO_REQUIRE( consumed );
    const KoInt count = length < 0 ? s->length - offset : length;
    return koFormatTryDecodeIntChars( ko::Chars( s ) + offset, count, base, value, consumed );
}

KoString koFormatEncodeInt( KoInt value, KoInt base, KoInt width, KoInt flags )
{
    KO_REQUIRE( base >= 2 && base <= 36 );
    KO_REQUIRE( width >= 0 && width <= INT32_MAX );
    KO_REQUIRE( ( flags & ~( KO_FORMAT_CAPITALS | KO_FORMAT_ZEROS ) ) == 0 );
    const IntText text( value, base, width, flags );
    const KoString s = ko::CreateUninitialised( text.Length() );
    text.Write( ko::Chars( s ) );
    return s;
}

KoBool koFormatTryDecodeIntChars( const KoChar *chs, KoInt length, KoInt base, KoInt *value, KoInt *consumed )
{
    KO_REQUIRE( chs || length == 0 );
    KO_REQUIRE( length >= -1 );
    KO_REQUIRE( base >= 2 && base <= 36 );
    KO_REQUIRE( value );
    KO_REQUIRE( consumed );
    const KoInt count = ko::TextLength( chs, length );
    const bool negative = count > 0 && chs[0] == '-';
    KoInt at = negative;
    KoInt number = 0; // kept at or below 0, where the least number is
    for ( ; at < count; ++at ) {
        const KoInt digit = DigitValue( chs[at], base );
        if ( digit >= base ) {
            break;
        }
        if ( __builtin_mul_overflow( number, base, &number ) || __builtin_sub_overflow( number, digit, &number ) ) {
            return KO_FALSE;
        }
    }
    if ( at == negative || ( !negative && number == INT64_MIN ) ) {
        return KO_FALSE;
    }
    *value = negative ? number : -number;
    *consumed = at;
    return KO_TRUE;
}
