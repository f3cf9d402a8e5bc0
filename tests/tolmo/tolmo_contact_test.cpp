/* One item of a Contact header. */
#include "tolmo_type_test.h"

#include <random>

namespace {

using test::Str;
using test::Text;

class Contact : public test::TolmoFixture {};

constexpr char path[] = "source/tolmo/tolmo_contact.cpp";
constexpr char null[] = "(null)";

KoRef<TolmoContact> Decode( std::string_view text )
{
    return test::DecodeWith( tolmo___ContactTryDecode, text );
}

std::string Encode( const KoRef<TolmoContact> &contact )
{
    return contact ? test::Take( tolmo___ContactEncode( contact.Get() ) ) : null;
}

KoRef<TolmoContact> Create( std::string_view iri )
{
    return KoRef<TolmoContact>::Adopt( tolmoContactCreate( Str( iri ).Get() ) );
}

/** The parameters without a field, as text. */
std::string Generic( const KoRef<TolmoContact> &contact )
{
    const auto params = KoRef<TolmoGenericParams>::Adopt( tolmoContactGenericParams( contact.Get() ) );
    return test::Take( tolmo___GenericParamsEncode( params.Get() ) );
}

struct Functions {
    TEST_STANDARD_FUNCTIONS( Contact )
};

TEST_F( Contact, StandardOperations )
{
    const auto contact = Decode( "A <sip:a>;q=1;expires=2;rc=1;mp=2;np=3;+sip.instance=\"<x>\";+sip.src;+sip.srs;x" );
    test::ExpectStandardOperations<Functions>( contact.Get(), "TOLMO_CONTACT", path, "contact", "contactA",
                                               "contactB" );
    const auto copy = KoRef<TolmoContact>::Adopt( tolmoContactCreateFrom( contact.Get() ) );
    EXPECT_EQ( Encode( copy ), Encode( contact ) ); // the flags, too, which no comparison sees
    EXPECT_EQ( test::Take( tolmoContactToString( contact.Get() ) ), Encode( contact ) );
}

TEST_F( Contact, Create )
{
    const auto iri = Str( "sip:\u00FC@b\u00FC.example" );
    const auto contact = KoRef<TolmoContact>::Adopt( tolmoContactCreate( iri.Get() ) );
    EXPECT_EQ( Text( KoRef<KoString>::Adopt( tolmoContactIri( contact.Get() ) ) ), Text( iri ) );
    EXPECT_FALSE( tolmoContactHasDisplayName( contact.Get() ) );
    EXPECT_FALSE( tolmoContactHasQvalue( contact.Get() ) );
    EXPECT_FALSE( tolmoContactHasExpires( contact.Get() ) );
    EXPECT_FALSE( tolmoContactHasRc( contact.Get() ) );
    EXPECT_FALSE( tolmoContactHasMp( contact.Get() ) );
    EXPECT_FALSE( tolmoContactHasNp( contact.Get() ) );
    EXPECT_FALSE( tolmoContactHasSipInstance( contact.Get() ) );
    EXPECT_EQ( tolmoContactSipSrc( contact.Get() ), KO_FALSE );
    EXPECT_EQ( tolmoContactSipSrs( contact.Get() ), KO_FALSE );
    EXPECT_EQ( tolmoContactDisplayName( contact.Get() ), nullptr );
    EXPECT_EQ( tolmoContactQvalue( contact.Get() ), -1 );
    EXPECT_EQ( tolmoContactExpires( contact.Get() ), -1 );
    EXPECT_EQ( tolmoContactRc( contact.Get() ), nullptr );
    EXPECT_EQ( tolmoContactMp( contact.Get() ), nullptr );
    EXPECT_EQ( tolmoContactNp( contact.Get() ), nullptr );
    EXPECT_EQ( tolmoContactSipInstance( contact.Get() ), nullptr );
    EXPECT_EQ( Generic( contact ), "" );
    EXPECT_EQ( Encode( contact ), "<sip:%C3%BC@xn--b-eha.example>" ); // the wire has a URI

    EXPECT_ABORT( tolmoContactCreate( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( tolmoContactCreate( Str( "" ).Get() ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoContactCreate( Str( "sip:a b" ).Get() ), path, "tolmoIriOk( iri )" );
}

// Text in, text out or null.
const struct {
    std::string_view text;
    std::string_view out;
} rows[] = {
    { "<sip:a>", "<sip:a>" },
    { "sip:a", "<sip:a>" }, // brackets are always written; `sip` looked like a display name
    { "sip:host1;q=0.5;x=1", "<sip:host1>;q=0.500;x=1" },
    { "<sip:host1;x=1>;q=1", "<sip:host1;x=1>;q=1.000" }, // the URI ends at its bracket
    { "sip:a?x=y,z;q=1", "<sip:a?x=y,z>;q=1.000" },       // a comma is in the bare URI, and a question mark
    { "tel:+1", "<tel:+1>" },
    { "<sip:a@[::1]:5060>", "<sip:a@[::1]:5060>" },

    // display names
    { "Alice <sip:host1>", "\"Alice\" <sip:host1>" },
    { "\"Alice\" <sip:host1>", "\"Alice\" <sip:host1>" },
    { "\"Alice\"<sip:a>", "\"Alice\" <sip:a>" },
    { "Alice\t  B.  <sip:a>", "\"Alice B.\" <sip:a>" },
    { "\"A,;\\\"<\\a\" <sip:a>", "\"A,;\\\"<a\" <sip:a>" },
    { "\"\" <sip:a>", "\"\" <sip:a>" }, // there, and empty
    { "*foo <sip:a>", "\"*foo\" <sip:a>" },
    { " \"A\" <sip:a>", "\"A\" <sip:a>" },
    { "\"\u00C4\" <sip:a>", "\"\u00C4\" <sip:a>" },
    { "Alice sip:a", null }, // a word in front of a bare address is no name
    { "\"Alice\" sip:a", null },
    { " Alice <sip:a>", null }, // whitespace may stand in front of a quote only
    { "\u00C4 <sip:a>", null }, // only in quotes
    { "\"Alice <sip:a>", null },
    { "A \"B\" <sip:a>", null },

    // addresses
    { "", null },
    { " ", null },
    { "<>", null },
    { "<sip:>", "<sip:>" }, // of a generic URI a scheme and a colon are enough
    { "< sip:a>", null },
    { "<sip:a >", null },
    { "<sip:a", null },
    { "<a>", null },
    { "a", null },
    { ";q=1", null },
    { "*", null }, // the star is a matter of the header
    { " sip:a", null },
    { " <sip:a>", "<sip:a>" },
    { "sip:a>", null },
    { "<<sip:a>>", null },
    { "<sip:%zz>", null },
    { "sip:a#b#c", null },

    // whitespace
    { "<sip:host1> ; q = 0.5", "<sip:host1>;q=0.500" },
    { "sip:a ;q=1", "<sip:a>;q=1.000" },
    { "<sip:a> ", "<sip:a>" }, // taken with the bracket
    { "sip:a ", null },
    { "<sip:a>;q=1 ", null }, // behind a parameter only a semicolon may stand
    { "<sip:a>;x ", null },
    { "<sip:a>;x\t;y", "<sip:a>;x;y" },

    // separators
    { "<sip:a>q=1", null },
    { "<sip:a>;", null },
    { "<sip:a>; ", null },
    { "<sip:a>;;q=1", null },
    { "<sip:a>,<sip:b>", null },
    { "<sip:a>;x,<sip:b>", null },

    // q
    { "<sip:a>;q=0", "<sip:a>;q=0.000" },
    { "<sip:a>;Q=1.", "<sip:a>;q=1.000" },
    { "<sip:a>;q=0.", "<sip:a>;q=0.000" },
    { "<sip:a>;q=0.12", "<sip:a>;q=0.120" },
    { "<sip:a>;q=1;q=0.2", "<sip:a>;q=0.200" }, // the later one replaces the earlier one
    { "<sip:a>;q=2", "<sip:a>;q=2" },           // no q-value: a generic parameter
    { "<sip:a>;q=.5", "<sip:a>;q=.5" },
    { "<sip:a>;q=\"1\"", "<sip:a>;q=\"1\"" },
    { "<sip:a>;q", "<sip:a>;q" },
    { "<sip:a>;Q=X", "<sip:a>;q=X" },
    { "<sip:a>;qa=1", "<sip:a>;qa=1" },       // another name
    { "<sip:a>;q=1;q=2", "<sip:a>;q=1.000" }, // field and generic parameter: the field hides the other one
    { "<sip:a>;q=2;q=1", "<sip:a>;q=1.000" },
    { "<sip:a>;q=", null },
    { "<sip:a>;q=1.5", null }, // good up to the 5, and then there is no way back
    { "<sip:a>;q=1.1", null },
    { "<sip:a>;q=00", null },
    { "<sip:a>;q=0.5x", null },
    { "<sip:a>;q=0.1234", null },

    // expires
    { "<sip:a>;expires=60", "<sip:a>;expires=60" },
    { "<sip:a>;EXPIRES=00060", "<sip:a>;expires=60" },
    { "<sip:a>;expires=0", "<sip:a>;expires=0" },
    { "<sip:a>;expires=9223372036854775807", "<sip:a>;expires=9223372036854775807" },
    { "<sip:a>;expires=9223372036854775808", "<sip:a>;expires=9223372036854775808" }, // too large: generic
    { "<sip:a>;expires=99999999999999999999", "<sip:a>;expires=99999999999999999999" },
    { "<sip:a>;expires=soon", "<sip:a>;expires=soon" },
    { "<sip:a>;expires=\"1\"", "<sip:a>;expires=\"1\"" },
    { "<sip:a>;expires=-1", "<sip:a>;expires=-1" },
    { "<sip:a>;expires", "<sip:a>;expires" },
    { "<sip:a>;expiresx=1", "<sip:a>;expiresx=1" },
    { "<sip:a>;expires=10x", null },
    { "<sip:a>;expires=10.5", null },

    // rc, mp, np
    { "<sip:a>;rc=1.2;mp=0;np=10.20.30", "<sip:a>;rc=1.2;mp=0;np=10.20.30" },
    { "<sip:a>;NP=3;Mp=2;rC=1", "<sip:a>;rc=1;mp=2;np=3" },
    { "<sip:a>;rc=1;rc=2;mp=1;mp=2;np=1;np=2", "<sip:a>;rc=2;mp=2;np=2" },
    { "<sip:a>;rc=01", "<sip:a>;rc=01" }, // no index: generic
    { "<sip:a>;rc=1.2.", "<sip:a>;rc=1.2." },
    { "<sip:a>;mp=1.02", "<sip:a>;mp=1.02" },
    { "<sip:a>;np=x", "<sip:a>;np=x" },
    { "<sip:a>;npdi", "<sip:a>;npdi" },
    { "<sip:a>;np=1;npdi", "<sip:a>;np=1;npdi" },
    { "<sip:a>;rc=1.2x", null },
    { "<sip:a>;mp=1-", null },

    // +sip.instance
    { "<sip:a>;+sip.instance=\"<urn:uuid:00000000-0000-1000-8000-00AABBCCDDee>\"",
      "<sip:a>;+sip.instance=\"<urn:uuid:00000000-0000-1000-8000-00AABBCCDDee>\"" },
    { "<sip:a>;+SIP.INSTANCE = \"<x>\"", "<sip:a>;+sip.instance=\"<x>\"" },
    { "<sip:a>;+sip.instance=\"<%4a>\"", "<sip:a>;+sip.instance=\"<%4a>\"" },
    { "<sip:a>;+sip.instance=\"<a>\";+sip.instance=\"<b>\"", "<sip:a>;+sip.instance=\"<b>\"" },
    { "<sip:a>;+sip.instance=abc", "<sip:a>;+sip.instance=abc" }, // all of these are generic
    { "<sip:a>;+sip.instance=\"abc\"", "<sip:a>;+sip.instance=\"abc\"" },
    { "<sip:a>;+sip.instance=\"<>\"", "<sip:a>;+sip.instance=\"<>\"" },
    { "<sip:a>;+sip.instance=\"<a b>\"", "<sip:a>;+sip.instance=\"<a b>\"" },
    { "<sip:a>;+sip.instance=\"<a> \"", "<sip:a>;+sip.instance=\"<a> \"" },
    { "<sip:a>;+sip.instance=\"<a\\\\>\"", "<sip:a>;+sip.instance=\"<a\\\\>\"" },
    { "<sip:a>;+sip.instance", "<sip:a>;+sip.instance" },
    { "<sip:a>;+sip.instance=<a>", null },
    { "<sip:a>;+sip.instance=\"<a>", null },
    { "<sip:a>;+sip.instance=\"<a>\"x", null },

    // the flags
    { "<sip:a>;+sip.srs;+Sip.Src", "<sip:a>;+sip.src;+sip.srs" },
    { "<sip:a>;+sip.src;+sip.src", "<sip:a>;+sip.src" },
    { "<sip:a>;+sip.src ;x", "<sip:a>;+sip.src;x" },
    { "<sip:a>;+sip.sr", "<sip:a>;+sip.sr" },
    { "<sip:a>;+sip.src=1", null }, // the flag is taken, and then no semicolon stands there
    { "<sip:a>;+sip.srs=1", null },
    { "<sip:a>;+sip.srcx", null },
    { "<sip:a>;+sip.srcfoo", null },
    { "<sip:a>;+sip.src ", null },

    // all others
    { "<sip:a>;X=Y;b=\"c,d\";e=[::1];f", "<sip:a>;x=Y;b=\"c,d\";e=[::1];f" },
    { "<sip:a>;x=1;y;X=2", "<sip:a>;x=2;y" },
    { "<sip:a>;=1", null },
    { "<sip:a>;x=\"", null },
    { "<sip:a>;x=y=z", null },
    { "<sip:a>;\u00FC", null },

    // one order, whatever came in
    { "A <sip:a>;z=1;+sip.srs;+sip.src;+sip.instance=\"<i>\";np=3;mp=2;rc=1;expires=60;q=0.5;y",
      "\"A\" <sip:a>;q=0.500;expires=60;rc=1;mp=2;np=3;+sip.instance=\"<i>\";+sip.src;+sip.srs;z=1;y" },
};

TEST_F( Contact, Rows )
{
    for ( const auto &[text, out] : rows ) {
        const auto contact = Decode( text );
        EXPECT_EQ( Encode( contact ), out ) << "text: " << text;
        if ( contact ) {
            // What goes out comes in as the same, but for a generic parameter that a field hides.
            const auto again = Decode( out );
            EXPECT_EQ( Encode( again ), out );
        }
        test::DecodeEveryPrefix( tolmo___ContactTryDecode, text );
    }
    EXPECT_EQ( tolmo___ContactTryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( tolmo___ContactTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___ContactTryDecode( nullptr, 1 ), path, "chs || length == 0" );
    EXPECT_ABORT( tolmo___ContactEncode( nullptr ), path, "contact" );
}

// An escape makes the value none of the field, so the parameter stays where it is; it goes out without the escape, which
// makes it the field's for the next reader.
TEST_F( Contact, EscapedInstance )
{
    const auto contact = Decode( "<sip:a>;x;+sip.instance=\"<a\\:b>\"" );
    EXPECT_FALSE( tolmoContactHasSipInstance( contact.Get() ) );
    EXPECT_EQ( Encode( contact ), "<sip:a>;x;+sip.instance=\"<a:b>\"" );
    EXPECT_EQ( Encode( Decode( Encode( contact ) ) ), "<sip:a>;+sip.instance=\"<a:b>\";x" );
}

TEST_F( Contact, DecodedFields )
{
    const auto contact = Decode( "\"A  B\" <sip:a;lr>;x=1;q=0.123;expires=007;rc=1.10;mp=0;np=2;"
                                 "+sip.instance=\"<urn:X>\";+sip.src;+sip.srs" );
    EXPECT_EQ( test::Take( tolmoContactIri( contact.Get() ) ), "sip:a;lr" );
    EXPECT_EQ( test::Take( tolmoContactDisplayName( contact.Get() ) ), "A  B" );
    EXPECT_EQ( tolmoContactQvalue( contact.Get() ), 123 );
    EXPECT_EQ( tolmoContactExpires( contact.Get() ), 7 );
    EXPECT_EQ( test::Take( tolmoContactRc( contact.Get() ) ), "1.10" );
    EXPECT_EQ( test::Take( tolmoContactMp( contact.Get() ) ), "0" );
    EXPECT_EQ( test::Take( tolmoContactNp( contact.Get() ) ), "2" );
    EXPECT_EQ( test::Take( tolmoContactSipInstance( contact.Get() ) ), "<urn:X>" ); // with brackets, without quotes
    EXPECT_EQ( tolmoContactSipSrc( contact.Get() ), KO_TRUE );
    EXPECT_EQ( tolmoContactSipSrs( contact.Get() ), KO_TRUE );
    EXPECT_EQ( Generic( contact ), ";x=1" );

    const auto empty = Decode( "\"\" <sip:a>" );
    EXPECT_TRUE( tolmoContactHasDisplayName( empty.Get() ) );
    EXPECT_EQ( test::Take( tolmoContactDisplayName( empty.Get() ) ), "" );

    // An internationalised host: Unicode inside, ASCII on the wire.
    const auto idn = Decode( "<sip:a@xn--bcher-kva.example>" );
    EXPECT_EQ( test::Take( tolmoContactIri( idn.Get() ) ), "sip:a@b\u00FCcher.example" );
    EXPECT_EQ( Encode( idn ), "<sip:a@xn--bcher-kva.example>" );

    // A value that does not fit its field leaves the field alone.
    const auto generic = Decode( "<sip:a>;q=2;expires=soon;rc=01;mp=x;np=x;+sip.instance=abc" );
    EXPECT_FALSE( tolmoContactHasQvalue( generic.Get() ) );
    EXPECT_FALSE( tolmoContactHasExpires( generic.Get() ) );
    EXPECT_FALSE( tolmoContactHasRc( generic.Get() ) );
    EXPECT_FALSE( tolmoContactHasMp( generic.Get() ) );
    EXPECT_FALSE( tolmoContactHasNp( generic.Get() ) );
    EXPECT_FALSE( tolmoContactHasSipInstance( generic.Get() ) );
    EXPECT_EQ( Generic( generic ), ";q=2;expires=soon;rc=01;mp=x;np=x;+sip.instance=abc" );
}

TEST_F( Contact, FieldHidesGenericParameter )
{
    auto contact = Decode( "<sip:a>;q=1;q=2" );
    EXPECT_EQ( tolmoContactQvalue( contact.Get() ), 1000 );
    EXPECT_EQ( Generic( contact ), ";q=2" );
    EXPECT_EQ( Encode( contact ), "<sip:a>;q=1.000" );
    EXPECT_EQ( Generic( contact ), ";q=2" ); // still there
    tolmoContactDelQvalue( contact.Address() );
    EXPECT_EQ( Encode( contact ), "<sip:a>;q=2" );

    const struct {
        std::string_view param;
        std::string_view out;
        void ( *set )( TolmoContact * );
    } hidden[] = {
        { ";q=x", ";q=1.000", []( TolmoContact *c ) { tolmoContactSetQvalue( c, 1000 ); } },
        { ";expires=x", ";expires=5", []( TolmoContact *c ) { tolmoContactSetExpires( c, 5 ); } },
        { ";rc=x", ";rc=1", []( TolmoContact *c ) { tolmoContactSetRc( c, Str( "1" ).Get() ); } },
        { ";mp=x", ";mp=1", []( TolmoContact *c ) { tolmoContactSetMp( c, Str( "1" ).Get() ); } },
        { ";np=x", ";np=1", []( TolmoContact *c ) { tolmoContactSetNp( c, Str( "1" ).Get() ); } },
        { ";+sip.instance=x", ";+sip.instance=\"<i>\"",
          []( TolmoContact *c ) { tolmoContactSetSipInstance( c, Str( "<i>" ).Get() ); } },
        { ";+sip.src=x", ";+sip.src", []( TolmoContact *c ) { tolmoContactSetSipSrc( c, KO_TRUE ); } },
        { ";+sip.srs=x", ";+sip.srs", []( TolmoContact *c ) { tolmoContactSetSipSrs( c, KO_TRUE ); } },
    };
    for ( const auto &row : hidden ) {
        auto other = Create( "sip:a" );
        tolmoContactSetGenericParams( other.Address(), test::ParamsOf( std::string( row.param ) + ";z" ).Get() );
        EXPECT_EQ( Encode( other ), "<sip:a>" + std::string( row.param ) + ";z" );
        row.set( other.Address() );
        EXPECT_EQ( Encode( other ), "<sip:a>" + std::string( row.out ) + ";z" );
        EXPECT_EQ( Generic( other ), std::string( row.param ) + ";z" );
    }
}

struct StringField {
    KoBool ( *has )( TolmoContact );
    KoString ( *get )( TolmoContact );
    void ( *set )( TolmoContact *, KoString );
    void ( *del )( TolmoContact * );
    const char *good;
    const char *other;
    const char *bad;
    const char *expression;
};

const StringField stringFields[] = {
    { nullptr, tolmoContactIri, tolmoContactSetIri, nullptr, "tel:1", "SIP:\u00FC", "", "tolmoIriOk( iri )" },
    { tolmoContactHasDisplayName, tolmoContactDisplayName, tolmoContactSetDisplayName, tolmoContactDelDisplayName, "",
      "A  B", "a\nb", "tolmoDisplayNameOk( displayName )" },
    { tolmoContactHasRc, tolmoContactRc, tolmoContactSetRc, tolmoContactDelRc, "0", "1.2", "1.",
      "tolmoHistoryInfoIndexOk( rc )" },
    { tolmoContactHasMp, tolmoContactMp, tolmoContactSetMp, tolmoContactDelMp, "0", "1.2", "01",
      "tolmoHistoryInfoIndexOk( mp )" },
    { tolmoContactHasNp, tolmoContactNp, tolmoContactSetNp, tolmoContactDelNp, "0", "1.2", "",
      "tolmoHistoryInfoIndexOk( np )" },
    { tolmoContactHasSipInstance, tolmoContactSipInstance, tolmoContactSetSipInstance, tolmoContactDelSipInstance,
      "<urn:A>", "<%41>", "urn:a", "tolmoSipInstanceOk( sipInstance )" }
};

TEST_F( Contact, StringFields )
{
    for ( const auto &field : stringFields ) {
        auto contact = Create( "sip:a" );
        const auto good = Str( field.good );
        const TolmoContact object = contact.Get();
        field.set( contact.Address(), good.Get() );
        EXPECT_EQ( contact.Get(), object ); // the only holder: no copy
        const auto got = KoRef<KoString>::Adopt( field.get( contact.Get() ) );
        EXPECT_EQ( got.Get(), good.Get() );        // the very string, unchanged
        field.set( contact.Address(), got.Get() ); // its own value
        EXPECT_EQ( test::Take( field.get( contact.Get() ) ), field.good );

        auto shared = KoRef<TolmoContact>::Share( contact.Get() );
        field.set( shared.Address(), Str( field.other ).Get() );
        EXPECT_NE( shared.Get(), contact.Get() );
        EXPECT_EQ( test::Take( field.get( shared.Get() ) ), field.other );
        EXPECT_EQ( test::Take( field.get( contact.Get() ) ), field.good );
        EXPECT_FALSE( tolmoContactEquals( shared.Get(), contact.Get() ) );

        TolmoContact none = nullptr;
        EXPECT_ABORT( field.get( nullptr ), path, "contact" );
        EXPECT_ABORT( field.set( nullptr, nullptr ), path, "contact" );
        EXPECT_ABORT( field.set( &none, nullptr ), path, "*contact" );
        EXPECT_ABORT( field.set( shared.Address(), Str( field.bad ).Get() ), path, field.expression );
        if ( !field.has ) {
            continue;
        }
        EXPECT_EQ( field.has( contact.Get() ), KO_TRUE );
        auto without = KoRef<TolmoContact>::Share( contact.Get() );
        field.del( without.Address() );
        EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
        EXPECT_EQ( field.get( without.Get() ), nullptr );
        EXPECT_EQ( test::Take( field.get( contact.Get() ) ), field.good );
        field.del( without.Address() ); // what is not there, too
        EXPECT_LT( tolmoContactCompare( without.Get(), contact.Get() ), 0 );
        EXPECT_ABORT( field.has( nullptr ), path, "contact" );
        EXPECT_ABORT( field.del( nullptr ), path, "contact" );
        EXPECT_ABORT( field.del( &none ), path, "*contact" );
    }
    auto contact = Create( "sip:a" );
    EXPECT_ABORT( tolmoContactSetIri( contact.Address(), nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( tolmoContactSetDisplayName( contact.Address(), nullptr ), "source/tolmo/tolmo_display_name.cpp",
                  "displayName" );
    EXPECT_ABORT( tolmoContactSetRc( contact.Address(), nullptr ), "source/tolmo/tolmo_history_info_index.cpp",
                  "index" );
    EXPECT_ABORT( tolmoContactSetSipInstance( contact.Address(), nullptr ), "source/tolmo/tolmo_sip_instance.cpp",
                  "sipInstance" );
}

struct NumberField {
    KoBool ( *has )( TolmoContact );
    KoInt ( *get )( TolmoContact );
    void ( *set )( TolmoContact *, KoInt );
    void ( *del )( TolmoContact * );
    KoInt largest;
    KoInt bad;
    const char *expression;
};

const NumberField numberFields[] = { { tolmoContactHasQvalue, tolmoContactQvalue, tolmoContactSetQvalue,
                                       tolmoContactDelQvalue, 1000, 1001, "tolmoQvalueOk( qvalue )" },
                                     { tolmoContactHasExpires, tolmoContactExpires, tolmoContactSetExpires,
                                       tolmoContactDelExpires, INT64_MAX, -2, "tolmoDeltaSecondsOk( expires )" } };

TEST_F( Contact, NumberFields )
{
    for ( const auto &field : numberFields ) {
        auto contact = Create( "sip:a" );
        const TolmoContact object = contact.Get();
        field.set( contact.Address(), 0 );
        EXPECT_EQ( contact.Get(), object );
        EXPECT_EQ( field.has( contact.Get() ), KO_TRUE );
        EXPECT_EQ( field.get( contact.Get() ), 0 );

        auto shared = KoRef<TolmoContact>::Share( contact.Get() );
        field.set( shared.Address(), field.largest );
        EXPECT_EQ( field.get( shared.Get() ), field.largest );
        EXPECT_EQ( field.get( contact.Get() ), 0 );
        EXPECT_GT( tolmoContactCompare( shared.Get(), contact.Get() ), 0 );

        auto without = KoRef<TolmoContact>::Share( contact.Get() );
        field.del( without.Address() );
        EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
        EXPECT_EQ( field.get( without.Get() ), -1 );
        EXPECT_EQ( field.get( contact.Get() ), 0 );
        EXPECT_LT( tolmoContactCompare( without.Get(), contact.Get() ), 0 ); // absent is in front of 0

        TolmoContact none = nullptr;
        EXPECT_ABORT( field.has( nullptr ), path, "contact" );
        EXPECT_ABORT( field.get( nullptr ), path, "contact" );
        EXPECT_ABORT( field.set( nullptr, -1 ), path, "contact" );
        EXPECT_ABORT( field.set( &none, -1 ), path, "*contact" );
        EXPECT_ABORT( field.set( shared.Address(), -1 ), path, field.expression );
        EXPECT_ABORT( field.set( shared.Address(), field.bad ), path, field.expression );
        EXPECT_ABORT( field.del( nullptr ), path, "contact" );
        EXPECT_ABORT( field.del( &none ), path, "*contact" );
    }
}

TEST_F( Contact, FlagsWriteThroughSharedHandles )
{
    const struct {
        KoBool ( *get )( TolmoContact );
        void ( *set )( TolmoContact *, KoBool );
        std::string_view out;
    } flags[] = { { tolmoContactSipSrc, tolmoContactSetSipSrc, "<sip:a>;+sip.src" },
                  { tolmoContactSipSrs, tolmoContactSetSipSrs, "<sip:a>;+sip.srs" } };
    for ( const auto &flag : flags ) {
        const auto contact = Create( "sip:a" );
        const auto plain = Create( "sip:a" );
        auto shared = KoRef<TolmoContact>::Share( contact.Get() );
        flag.set( shared.Address(), 256 );
        EXPECT_EQ( shared.Get(), contact.Get() ); // no copy: that is meant
        EXPECT_EQ( test::Count( contact.Get() ), 2 );
        EXPECT_EQ( flag.get( contact.Get() ), KO_TRUE ); // whatever is not 0
        EXPECT_EQ( Encode( contact ), flag.out );
        EXPECT_TRUE( tolmoContactEquals( contact.Get(), plain.Get() ) ); // comparisons do not see it

        tolmoContactSetExpires( shared.Address(), 1 ); // all others copy, the flag with the rest
        EXPECT_NE( shared.Get(), contact.Get() );
        EXPECT_FALSE( tolmoContactHasExpires( contact.Get() ) );
        EXPECT_EQ( flag.get( shared.Get() ), KO_TRUE );
        flag.set( shared.Address(), KO_FALSE );
        EXPECT_EQ( flag.get( shared.Get() ), KO_FALSE );
        EXPECT_EQ( flag.get( contact.Get() ), KO_TRUE );

        TolmoContact none = nullptr;
        EXPECT_ABORT( flag.get( nullptr ), path, "contact" );
        EXPECT_ABORT( flag.set( nullptr, KO_TRUE ), path, "contact" );
        EXPECT_ABORT( flag.set( &none, KO_TRUE ), path, "*contact" );
    }
}

TEST_F( Contact, GenericParams )
{
    auto contact = Decode( "<sip:a>;x" );
    const TolmoContact object = contact.Get();
    auto params = test::ParamsOf( ";y=1" );
    tolmoContactSetGenericParams( contact.Address(), params.Get() );
    EXPECT_EQ( contact.Get(), object );
    tolmoGenericParamsDelParamCstr( params.Address(), "y", -1 ); // the caller's handle, not the contact's
    EXPECT_EQ( Encode( contact ), "<sip:a>;y=1" );

    auto shared = KoRef<TolmoContact>::Share( contact.Get() );
    tolmoContactSetGenericParams( shared.Address(), params.Get() );
    EXPECT_EQ( Encode( shared ), "<sip:a>" );
    EXPECT_EQ( Encode( contact ), "<sip:a>;y=1" );

    auto got = KoRef<TolmoGenericParams>::Adopt( tolmoContactGenericParams( contact.Get() ) );
    tolmoGenericParamsDelParamCstr( got.Address(), "y", -1 );
    EXPECT_EQ( Encode( contact ), "<sip:a>;y=1" );

    TolmoContact none = nullptr;
    EXPECT_ABORT( tolmoContactGenericParams( nullptr ), path, "contact" );
    EXPECT_ABORT( tolmoContactSetGenericParams( nullptr, nullptr ), path, "contact" );
    EXPECT_ABORT( tolmoContactSetGenericParams( &none, nullptr ), path, "*contact" );
    EXPECT_ABORT( tolmoContactSetGenericParams( contact.Address(), nullptr ), path, "genericParams" );
}

TEST_F( Contact, CompareOrder )
{
    // Each contact is less than the next one: by the first field of the order in which they differ, whatever follows.
    const std::string_view ascending[] = { "<sip:a>;q=1;expires=9;rc=9;mp=9;np=9;+sip.instance=\"<z>\";z",
                                           "<sip:b>",
                                           "<sip:b>;z",
                                           "<sip:b>;+sip.instance=\"<A>\"",
                                           "<sip:b>;+sip.instance=\"<a>\"",
                                           "<sip:b>;np=1;z",
                                           "<sip:b>;np=1;+sip.instance=\"<a>\"",
                                           "<sip:b>;mp=1",
                                           "<sip:b>;mp=1;np=1",
                                           "<sip:b>;mp=1.10",
                                           "<sip:b>;mp=1.9", // a text, not a number
                                           "<sip:b>;rc=1",
                                           "<sip:b>;rc=1;mp=1",
                                           "<sip:b>;expires=0",
                                           "<sip:b>;expires=0;rc=1",
                                           "<sip:b>;expires=10",
                                           "<sip:b>;q=0",
                                           "<sip:b>;q=0;expires=0",
                                           "<sip:b>;q=0.5",
                                           "\"\" <sip:b>",
                                           "\"\" <sip:b>;q=1",
                                           "\"A\" <sip:b>",
                                           "<sip:c>" };
    for ( size_t a = 0; a < std::size( ascending ); ++a ) {
        for ( size_t b = 0; b < std::size( ascending ); ++b ) {
            const KoInt order = tolmoContactCompare( Decode( ascending[a] ).Get(), Decode( ascending[b] ).Get() );
            EXPECT_EQ( order < 0, a < b ) << ascending[a] << " and " << ascending[b];
            EXPECT_EQ( order > 0, a > b ) << ascending[a] << " and " << ascending[b];
        }
    }
    EXPECT_TRUE( tolmoContactEquals( Decode( "<sip:a>;x;y" ).Get(), Decode( "<sip:a>;y;x;+sip.src" ).Get() ) );
    EXPECT_FALSE( tolmoContactEquals( Decode( "<sip:a>" ).Get(), Decode( "<sip:A>" ).Get() ) );
}

TEST_F( Contact, Huge )
{
    std::string text = "\"" + std::string( 1000000, ' ' ) + "\" <sip:" + std::string( 1000000, 'a' ) + ">";
    auto contact = Decode( text );
    EXPECT_EQ( test::Take( tolmoContactDisplayName( contact.Get() ) ).size(), 1000000u );

    std::string out = "<sip:a>";
    text = out;
    for ( int i = 0; i < 100000; ++i ) {
        text += " ; p" + std::to_string( i ) + " = " + std::to_string( i );
        out += ";p" + std::to_string( i ) + "=" + std::to_string( i );
    }
    EXPECT_EQ( Encode( Decode( text ) ), out );

    text = "<sip:a>";
    for ( int i = 0; i < 100000; ++i ) {
        text += ";q=1;rc=1.2.3;+sip.src;x=y";
    }
    EXPECT_EQ( Encode( Decode( text ) ), "<sip:a>;q=1.000;rc=1.2.3;+sip.src;x=y" );

    std::string index = "1";
    for ( int i = 0; i < 100000; ++i ) {
        index += ".1";
    }
    EXPECT_EQ( Encode( Decode( "<sip:a>;np=" + index ) ), "<sip:a>;np=" + index );
    EXPECT_EQ( Encode( Decode( "<sip:a>;np=" + index + "." ) ), "<sip:a>;np=" + index + "." ); // generic
    EXPECT_EQ( Encode( Decode( "<sip:a>;expires=" + std::string( 100000, '9' ) ) ),
               "<sip:a>;expires=" + std::string( 100000, '9' ) );
}

/** A contact of parts that are drawn. */
KoRef<TolmoContact> Draw( std::mt19937 &random )
{
    const auto one = [&]( std::initializer_list<const char *> texts ) {
        return Str( texts.begin()[random() % texts.size()] );
    };
    const auto perhaps = [&] { return random() % 2 == 0; };
    auto contact = Create( "sip:x" );
    tolmoContactSetIri( contact.Address(),
                        one( { "sip:a", "sip:a;lr?h=v", "tel:+1", "sip:\u00FC@b\u00FCcher.example" } ).Get() );
    if ( perhaps() ) {
        tolmoContactSetDisplayName( contact.Address(), one( { "", "A", "a\"\\,;<>  \t", "\u4E2D" } ).Get() );
    }
    if ( perhaps() ) {
        tolmoContactSetQvalue( contact.Address(), static_cast<KoInt>( random() % 1001 ) );
    }
    if ( perhaps() ) {
        tolmoContactSetExpires( contact.Address(), static_cast<KoInt>( random() ) << ( random() % 31 ) );
    }
    if ( perhaps() ) {
        tolmoContactSetRc( contact.Address(), one( { "0", "1.2", "10.0.3" } ).Get() );
    }
    if ( perhaps() ) {
        tolmoContactSetMp( contact.Address(), one( { "0", "1.2", "10.0.3" } ).Get() );
    }
    if ( perhaps() ) {
        tolmoContactSetNp( contact.Address(), one( { "0", "1.2", "10.0.3" } ).Get() );
    }
    if ( perhaps() ) {
        tolmoContactSetSipInstance( contact.Address(), one( { "<a>", "<%41%5a>", "<urn:uuid:X>" } ).Get() );
    }
    tolmoContactSetSipSrc( contact.Address(), perhaps() );
    tolmoContactSetSipSrs( contact.Address(), perhaps() );
    if ( perhaps() ) {
        const auto params = one( { ";a", ";a=B;c=\"d e\"", ";x=[::1];lr" } );
        tolmoContactSetGenericParams( contact.Address(), test::ParamsOf( Text( params ) ).Get() );
    }
    return contact;
}

TEST_F( Contact, DecodeOfEncodeIsEqual )
{
    std::mt19937 random( 34 );
    for ( int i = 0; i < 5000; ++i ) {
        const auto contact = Draw( random );
        const auto text = Encode( contact );
        const auto decoded = Decode( text );
        ASSERT_TRUE( decoded ) << text;
        EXPECT_TRUE( tolmoContactEquals( decoded.Get(), contact.Get() ) ) << text;
        EXPECT_EQ( tolmoContactSipSrc( decoded.Get() ), tolmoContactSipSrc( contact.Get() ) );
        EXPECT_EQ( tolmoContactSipSrs( decoded.Get() ), tolmoContactSipSrs( contact.Get() ) );
        EXPECT_EQ( Encode( decoded ), text );
        // The list's grammar takes all of it.
        const test::Exact chs( text );
        EXPECT_EQ( tolmo___SkipContact( chs.Chars(), chs.Length() ), chs.Length() ) << text;

        auto changed = KoRef<TolmoContact>::Share( decoded.Get() );
        tolmoContactSetDisplayName( changed.Address(), Str( "changed" ).Get() );
        tolmoContactDelRc( changed.Address() );
        EXPECT_EQ( Encode( decoded ), text );
    }
}

} // namespace
