/* What the tests of the headers with one party share: an address, a display name, parameters. */
#ifndef TOLMO_HEADER_PARTY_TEST_H
#define TOLMO_HEADER_PARTY_TEST_H

#include "tolmo_header_test.h"

#include <random>

namespace test {

template <class H>
struct PartyType : HeaderType<H> {
    H ( *create )( KoString );
    KoString ( *iri )( H );
    void ( *setIri )( H *, KoString );
    KoBool ( *hasDisplayName )( H );
    KoString ( *displayName )( H );
    void ( *setDisplayName )( H *, KoString );
    void ( *delDisplayName )( H * );
    TolmoGenericParams ( *genericParams )( H );
    void ( *setGenericParams )( H *, TolmoGenericParams );
};

#define TEST_PARTY( Type, unit, headerName )                                                                           \
    {                                                                                                                  \
        TEST_HEADER( Type, unit, headerName ), tolmoHeader##Type##Create, tolmoHeader##Type##Iri,                      \
            tolmoHeader##Type##SetIri, tolmoHeader##Type##HasDisplayName, tolmoHeader##Type##DisplayName,              \
            tolmoHeader##Type##SetDisplayName, tolmoHeader##Type##DelDisplayName, tolmoHeader##Type##GenericParams,    \
            tolmoHeader##Type##SetGenericParams                                                                        \
    }

// Common to all of them. What goes out is always in brackets, and a display name in quotes.
const Row partyRows[] = {
    { "<sip:a@b>", "<sip:a@b>" },
    { "sip:a@b", "<sip:a@b>" },
    { " <sip:a@b> ", "<sip:a@b>" }, // the brackets bring their whitespace with them
    { " sip:a@b", null },
    { "sip:a@b ", null },
    { "<tel:+1-201-555-0123>", "<tel:+1-201-555-0123>" },
    { "sip:[2001:db8::1]:5060", "<sip:[2001:db8::1]:5060>" },
    { "sip:", "<sip:>" },
    { "<sip:b\u00FC@x>", "<sip:b%C3%BC@x>" },
    { "<sip:b%c3%bc%20@x>", "<sip:b%C3%BC%20@x>" },
    { "", null },
    { " ", null },
    { "<>", null },
    { "< sip:a>", null },
    { "<sip:a", null },
    { "<sip:a ;x>", null },
    { "<sip:a b>", null },
    { "<a@b>", null }, // no scheme
    { "a@b", null },
    { "<<sip:a>>", null },
    { "sip:a>", null },
    { "<sip:a>x", null },
    { "<sip:a>, <sip:b>", null }, // no list
    // Display names.
    { "Alice <sip:a>", "\"Alice\" <sip:a>" },
    { "Alice<sip:a>", "\"Alice\" <sip:a>" },
    { "Alice  Pleasance\tLiddell <sip:a>", "\"Alice Pleasance Liddell\" <sip:a>" },
    { "\"Alice\" <sip:a>", "\"Alice\" <sip:a>" },
    { " \"Alice\"<sip:a>", "\"Alice\" <sip:a>" },
    { "\"A \\\"B\\\" \\\\ \u00C4\" <sip:a>", "\"A \\\"B\\\" \\\\ \u00C4\" <sip:a>" },
    { "\"A  B\" <sip:a>", "\"A \\ B\" <sip:a>" }, // every second blank of a run is escaped
    { "\"<sip:x>\" <sip:a>", "\"<sip:x>\" <sip:a>" },
    { "\"\" <sip:a>", "\"\" <sip:a>" }, // empty, but there
    { "sip <sip:a>", "\"sip\" <sip:a>" },
    { "Alice sip:a", null }, // a name needs the brackets
    { "\"Alice\" sip:a", null },
    { "\"Alice <sip:a>", null },
    { "Alice", null },
    { "\"Alice\"", null },
    { "\u00C4 <sip:a>", null }, // no token
    { "Alice \"Liddell\" <sip:a>", null },
    { "Alice <>", null },
    // Parameters: of the address inside the brackets, of the header behind them.
    { "<sip:a;x=1?y=z>;p=2", "<sip:a;x=1?y=z>;p=2" },
    { "sip:a;x=1", "<sip:a>;x=1" }, // a bare address has none
    { "sip:a?x;y=1", "<sip:a?x>;y=1" },
    { "sip:a ;x", "<sip:a>;x" },
    { "<sip:a> ; x = 1 ;y", "<sip:a>;x=1;y" },
    { "<sip:a>;X=Y", "<sip:a>;x=Y" },
    { "<sip:a>;x=1;y;X=2", "<sip:a>;x=2;y" }, // the last one, in the place of the first
    { "<sip:a>;x=\"q \\\" q\";y=[::1];z=a.b", "<sip:a>;x=\"q \\\" q\";y=[::1];z=a.b" },
    { "<sip:a>;", null },
    { "<sip:a>;x;", null },
    { "<sip:a>;;x", null },
    { "<sip:a>;x=", null },
    { "<sip:a>;=x", null },
    { "<sip:a>;x ", null },
    { "<sip:a>;x y", null },
    { "<sip:a>;x=\"y", null },
    { "<sip:a>;x=[::1", null },
    { "<sip:a>;x,y", null },
};

/** The parameters of a text such as `;a=b;c`. */
inline KoRef<TolmoGenericParams> Params( std::string_view text )
{
    const Exact chs( text );
    return Own( tolmo___GenericParamsTryDecode( chs.Chars(), chs.Length() ) );
}

template <class H>
void ExpectPartyFields( const PartyType<H> &type )
{

    auto hdr = Own( type.create( Str( "sip:a@b" ).Get() ) );
    EXPECT_EQ( Encode( type, hdr ), "<sip:a@b>" );
    EXPECT_EQ( Take( type.iri( hdr.Get() ) ), "sip:a@b" );
    EXPECT_FALSE( type.hasDisplayName( hdr.Get() ) );
    EXPECT_EQ( type.displayName( hdr.Get() ), nullptr );
    EXPECT_EQ( tolmoGenericParamsLength( Own( type.genericParams( hdr.Get() ) ).Get() ), 0 );

    hdr = Decode( type, "\"A \\\"B\\\"\" <sip:b%C3%BC@x>;x=1" );
    EXPECT_EQ( Take( type.iri( hdr.Get() ) ), "sip:b\u00FC@x" ); // an IRI here, a URI on the wire
    EXPECT_TRUE( type.hasDisplayName( hdr.Get() ) );
    EXPECT_EQ( Take( type.displayName( hdr.Get() ) ), "A \"B\"" );
    EXPECT_EQ( Take( tolmo___GenericParamsEncode( Own( type.genericParams( hdr.Get() ) ).Get() ) ), ";x=1" );
    hdr = Decode( type, "\"\" <sip:a>" );
    EXPECT_TRUE( type.hasDisplayName( hdr.Get() ) );
    EXPECT_EQ( Take( type.displayName( hdr.Get() ) ), "" );

    ExpectChanges<H>(
        type, "\"A\" <sip:a>;x=1",
        { { "\"A\" <sip:b%C3%BC@x>;x=1", [&]( H *h ) { type.setIri( h, Str( "sip:b\u00FC@x" ).Get() ); } },
          { "\"B \\ \" <sip:a>;x=1", [&]( H *h ) { type.setDisplayName( h, Str( "B  " ).Get() ); } },
          { "\"\" <sip:a>;x=1", [&]( H *h ) { type.setDisplayName( h, Str( "" ).Get() ); } },
          { "<sip:a>;x=1", [&]( H *h ) { type.delDisplayName( h ); } },
          { "\"A\" <sip:a>;y", [&]( H *h ) { type.setGenericParams( h, Params( ";y" ).Get() ); } },
          { "\"A\" <sip:a>", [&]( H *h ) { type.setGenericParams( h, Params( "" ).Get() ); } },
          // What a header already holds can be set again.
          { "\"A\" <sip:a>;x=1", [&]( H *h ) { type.setIri( h, Own( type.iri( *h ) ).Get() ); } } } );
    ExpectChanges<H>( type, "<sip:a>", { { "<sip:a>", [&]( H *h ) { type.delDisplayName( h ); } } } );

    // Parameters are shared, and a later change of them does not reach the header.
    auto params = Params( ";x" );
    type.setGenericParams( hdr.Address(), params.Get() );
    EXPECT_EQ( Own( type.genericParams( hdr.Get() ) ).Get(), params.Get() );
    tolmoGenericParamsDelParamCstr( params.Address(), "x", -1 );
    EXPECT_EQ( Encode( type, hdr ), "\"\" <sip:a>;x" );

    const auto bad = Str( "a\r" );
    const auto empty = Str( "" );
    EXPECT_ABORT( type.create( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( type.create( bad.Get() ), type.path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( type.create( empty.Get() ), type.path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( type.iri( nullptr ), type.path, "hdr" );
    EXPECT_HANDLE_ABORTS( type, type.setIri, nullptr );
    EXPECT_ABORT( type.setIri( hdr.Address(), bad.Get() ), type.path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( type.hasDisplayName( nullptr ), type.path, "hdr" );
    EXPECT_ABORT( type.displayName( nullptr ), type.path, "hdr" );
    EXPECT_HANDLE_ABORTS( type, type.setDisplayName, nullptr );
    EXPECT_ABORT( type.setDisplayName( hdr.Address(), bad.Get() ), type.path, "tolmoDisplayNameOk( displayName )" );
    EXPECT_HANDLE_ABORTS( type, type.delDisplayName );
    EXPECT_ABORT( type.genericParams( nullptr ), type.path, "hdr" );
    EXPECT_HANDLE_ABORTS( type, type.setGenericParams, nullptr );
    EXPECT_ABORT( type.setGenericParams( hdr.Address(), nullptr ), type.path, "genericParams" );
}

/** Each line is less than all that follow it. */
template <class H>
void ExpectAscending( const HeaderType<H> &type, const std::vector<std::string_view> &lines )
{
    for ( size_t a = 0; a < lines.size(); ++a ) {
        for ( size_t b = 0; b < lines.size(); ++b ) {
            const auto hdrA = Decode( type, lines[a] );
            const auto hdrB = Decode( type, lines[b] );
            const KoInt order = type.compare( hdrA.Get(), hdrB.Get() );
            EXPECT_EQ( order < 0, a < b ) << lines[a] << " and " << lines[b];
            EXPECT_EQ( order > 0, a > b ) << lines[a] << " and " << lines[b];
            EXPECT_EQ( type.equals( hdrA.Get(), hdrB.Get() ), a == b ) << lines[a] << " and " << lines[b];
        }
    }
}

/** Texts for generated headers. */
class Generator {
public:
    explicit Generator( unsigned seed ) : random( seed ) {}

    bool Chance() { return random() % 2; }
    size_t Below( size_t count ) { return random() % count; }

    std::string Token()
    {
        static constexpr std::string_view chars = "abcXYZ019-.!%*_+`'~";
        std::string token;
        for ( auto length = 1 + Below( 16 ); length > 0; --length ) {
            token += chars[Below( chars.size() )];
        }
        return token;
    }
    std::string QuotableString()
    {
        static constexpr std::string_view pieces[] = {
            "a", " ", "\t", "\"", "\\", "<", ">", ";", "\u00FC", "\x7F", ","
        };
        std::string text;
        for ( auto length = Below( 10 ); length > 0; --length ) {
            text += pieces[Below( std::size( pieces ) )];
        }
        return text;
    }
    std::string Iri()
    {
        static constexpr std::string_view pieces[] = { "a", "@", ";", "?", "=", "&", "\u00FC", "%20", ":", "/", "[" };
        std::string iri = "sip:";
        for ( auto length = Below( 10 ); length > 0; --length ) {
            iri += pieces[Below( std::size( pieces ) )];
        }
        return iri;
    }
    KoRef<TolmoGenericParams> GenericParams()
    {
        auto params = Own( tolmoGenericParamsCreate() );
        for ( auto length = Below( 4 ); length > 0; --length ) {
            const auto name = Str( "p" + Token() ); // none that a header has a field for
            switch ( Below( 4 ) ) {
            case 0:
                tolmoGenericParamsSetParam( params.Address(), Own( tolmoGenericParamCreate( name.Get() ) ).Get() );
                break;
            case 1:
                tolmoGenericParamsSetParamValue( params.Address(), name.Get(), TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN,
                                                 Str( Token() ).Get() );
                break;
            case 2:
                tolmoGenericParamsSetParamValue( params.Address(), name.Get(), TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST,
                                                 Str( "[::1]" ).Get() );
                break;
            default:
                tolmoGenericParamsSetParamValue( params.Address(), name.Get(),
                                                 TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING,
                                                 Str( QuotableString() ).Get() );
            }
        }
        return params;
    }
    /** A header with an address and parameters. */
    template <class H>
    KoRef<H> Party( const PartyType<H> &type )
    {
        auto hdr = Own( type.create( Str( Iri() ).Get() ) );
        if ( Chance() ) {
            type.setDisplayName( hdr.Address(), Str( QuotableString() ).Get() );
        }
        type.setGenericParams( hdr.Address(), GenericParams().Get() );
        return hdr;
    }

private:
    std::mt19937 random;
};

/** Decoding what was encoded gives an equal header, and the same text again. */
template <class H>
void ExpectRoundTrip( const HeaderType<H> &type, const KoRef<H> &hdr )
{
    const std::string text = Encode( type, hdr );
    const auto again = Decode( type, text );
    ASSERT_TRUE( again ) << text;
    EXPECT_TRUE( type.equals( hdr.Get(), again.Get() ) ) << text;
    EXPECT_EQ( Encode( type, again ), text );
}

} // namespace test

#endif
