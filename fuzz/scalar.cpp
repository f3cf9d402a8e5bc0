/*
 * Scalars: a validator says yes where the skip function takes the whole string; a normaliser's result is valid and in
 * normal form; what a decoder gives, its validator takes and its encoder prints so that it decodes to the same.
 */
#include "tables.hpp"

namespace fuzz {
namespace {

void CheckNumber( const Exact &text, KoInt ( *skip )( const KoChar *, KoInt ), KoBool ( *ok )( KoInt ),
                  KoString ( *encode )( KoInt ), KoInt ( *tryDecode )( const KoChar *, KoInt ) )
{
    const KoInt value = tryDecode( text.Chars(), text.Length() );
    CHECK( value >= -1 );
    CHECK( value == -1 || ok( value ) );
    if ( value >= 0 ) {
        CHECK( skip( text.Chars(), text.Length() ) == text.Length() || text.Chars()[0] == '-' ); // -0 is 0
        const Exact printed( Own( encode( value ) ).Get() );
        CHECK( tryDecode( printed.Chars(), printed.Length() ) == value );
    }
}

void CheckQuoted( KoString s, const Exact &text )
{
    const auto decoded = Own( tolmo___QuotableStringTryDecode( text.Chars(), text.Length() ) );
    CHECK( !decoded ==
           ( text.Length() == 0 || tolmo___SkipQuotedString( text.Chars(), text.Length() ) != text.Length() ) );
    CHECK( !decoded || tolmoQuotableStringOk( decoded.Get() ) );
    for ( const KoString plain : { s, decoded.Get() } ) {
        if ( plain && tolmoQuotableStringOk( plain ) ) {
            const Exact printed( Own( tolmo___QuotableStringEncode( plain ) ).Get() );
            CHECK( tolmo___SkipQuotedString( printed.Chars(), printed.Length() ) == printed.Length() );
            CHECK_SAME( Take( tolmo___QuotableStringTryDecode( printed.Chars(), printed.Length() ) ), Text( plain ) );
        }
    }
    CHECK( tolmoReasonTextOk( s ) == tolmoQuotableStringOk( s ) && tolmoWarnTextOk( s ) == tolmoQuotableStringOk( s ) );
}

void CheckDisplayName( KoString s, const Exact &text )
{
    const KoInt taken = tolmo___SkipDisplayName( text.Chars(), text.Length() );
    const Exact element( text.Chars(), taken );
    const auto decoded = Own( tolmo___DisplayNameTryDecode( element.Chars(), taken ) );
    CHECK( decoded && tolmoDisplayNameOk( decoded.Get() ) );
    const Exact printed( Own( tolmo___DisplayNameEncode( decoded.Get() ) ).Get() );
    CHECK_SAME( Take( tolmo___DisplayNameTryDecode( printed.Chars(), printed.Length() ) ), Text( decoded.Get() ) );
    if ( tolmoDisplayNameOk( s ) ) {
        std::string naive;
        for ( const char byte : Text( s ) ) {
            const bool blank = byte == ' ' || byte == '\t';
            if ( !blank || naive.empty() || naive.back() != ' ' ) {
                naive += blank ? ' ' : byte;
            }
        }
        auto name = Own( koStringRetain( s ) );
        tolmoDisplayNameNormalizeWhitespace( name.Address() );
        CHECK_SAME( Text( name.Get() ), naive );
    }
}

void CheckTrimmed( KoBool ( *ok )( KoString ), KoInt ( *skip )( const KoChar *, KoInt ), KoString s, const Exact &text )
{
    const KoInt front = tolmo___SkipLws( text.Chars(), text.Length() );
    const KoInt words = skip( text.Chars() + front, text.Length() - front );
    const KoInt back = tolmo___SkipLws( text.Chars() + front + words, text.Length() - front - words );
    CHECK( ( ok( s ) != KO_FALSE ) == ( front + words + back == text.Length() ) );
}

void CheckHost( KoString s, const Exact &text )
{
    const bool grammar = text.Length() > 0 && tolmo___SkipHost( text.Chars(), text.Length() ) == text.Length();
    const auto decoded = Own( tolmo___HostTryDecode( text.Chars(), text.Length() ) );
    CHECK( grammar == ( decoded.Get() != nullptr ) ); // every text of the grammar decodes
    for ( const KoString host : { s, decoded.Get() } ) {
        if ( host && tolmoHostOk( host ) ) {
            const auto printed = Own( tolmo___HostEncode( host ) );
            const Exact chars( printed.Get() );
            const auto again = Own( tolmo___HostTryDecode( chars.Chars(), chars.Length() ) );
            CHECK( again && tolmoHostOk( again.Get() ) );
            // Text of the grammar is printed as it is, A-labels in any case.
            CHECK_SAME( Lower( Take( tolmo___HostEncode( again.Get() ) ) ), Lower( Text( printed.Get() ) ) );
        }
    }
    CHECK( !grammar || tolmoHostOk( s ) );
    CHECK( !decoded || tolmoHostOk( decoded.Get() ) );
}

} // namespace

void ScalarTarget( std::string_view input )
{
    const auto s = Str( input );
    const Exact text( s.Get() );
    for ( const Validator &scalar : All().validators ) {
        const bool whole = text.Length() > 0 && scalar.skip( text.Chars(), text.Length() ) == text.Length();
        CHECK_TELL( ( scalar.ok( s.Get() ) != KO_FALSE ) == whole, scalar.name );
    }
    for ( const Normalizer &scalar : All().normalizers ) {
        if ( scalar.ok( s.Get() ) ) {
            const std::string before = Text( s.Get() );
            const auto normal = Own( scalar.normalize( s.Get() ) );
            CHECK_SAME( Text( s.Get() ), before );
            CHECK_TELL( scalar.ok( normal.Get() ), scalar.name );
            CHECK_SAME( Take( scalar.normalize( normal.Get() ) ), Text( normal.Get() ) );
        }
    }
    CheckNumber( text, tolmo___SkipDeltaSeconds, tolmoDeltaSecondsOk, tolmo___DeltaSecondsEncode,
                 tolmo___DeltaSecondsTryDecode );
    CheckNumber( text, tolmo___SkipTtl, tolmoTtlOk, tolmo___TtlEncode, tolmo___TtlTryDecode );
    CheckNumber( text, tolmo___SkipPort, tolmoPortOk, tolmo___PortEncode, tolmo___PortTryDecode );
    CheckNumber( text, tolmo___SkipQvalue, tolmoQvalueOk, tolmo___QvalueEncode, tolmo___QvalueTryDecode );
    CheckNumber( text, tolmo___SkipDigits, tolmoDiversionCounterOk, tolmo___DiversionCounterEncode,
                 tolmo___DiversionCounterTryDecode );
    CheckNumber( text, tolmo___SkipDigits, tolmoDiversionLimitOk, tolmo___DiversionLimitEncode,
                 tolmo___DiversionLimitTryDecode );
    CheckQuoted( s.Get(), text );
    CheckDisplayName( s.Get(), text );
    CheckTrimmed( tolmoOrganizationOk, tolmo___SkipOrganization, s.Get(), text );
    CheckTrimmed( tolmoSubjectOk, tolmo___SkipSubject, s.Get(), text );
    CheckHost( s.Get(), text );

    // A reason phrase may be anything.
    const Exact phrase( Own( tolmo___ReasonPhraseEncode( s.Get() ) ).Get() );
    CHECK_SAME( Take( tolmo___ReasonPhraseDecode( phrase.Chars(), phrase.Length() ) ), Text( s.Get() ) );
    CHECK( koStringLength( Own( tolmo___ReasonPhraseDecode( text.Chars(), text.Length() ) ).Get() ) <= text.Length() );
}

} // namespace fuzz
