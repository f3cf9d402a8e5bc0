/* One entry of a History-Info header. */
#include "tolmo_value_test.h"

namespace {

using test::Str;

struct Value {
    TEST_VALUE_FUNCTIONS( HistoryInfo, "tolmo_history_info", "hi" )
};

using Ref = KoRef<TolmoHistoryInfo>;
constexpr auto Decode = test::Decode<Value>;
constexpr auto Encode = test::Encode<Value>;
constexpr char path[] = "source/tolmo/tolmo_history_info.cpp";
constexpr char null[] = "(null)";

Ref Create()
{
    return test::Own( tolmoHistoryInfoCreate( Str( "sip:a" ).Get(), Str( "1" ).Get() ) );
}

class HistoryInfo : public test::TolmoFixture {};

TEST_F( HistoryInfo, StandardOperations )
{
    const auto hi = Decode( "A <sip:a>;index=1.1;rc=1;x" );
    test::ExpectStandardOperations<Value>( hi.Get(), "TOLMO_HISTORY_INFO", path, "hi", "hiA", "hiB" );
    EXPECT_EQ( Encode( test::Own( tolmoHistoryInfoCreateFrom( hi.Get() ) ) ), Encode( hi ) );
    EXPECT_EQ( test::Take( tolmoHistoryInfoToString( hi.Get() ) ), "<TOLMO_HISTORY_INFO>" ); // not the wire text
}

TEST_F( HistoryInfo, Create )
{
    const auto hi = Create();
    EXPECT_EQ( test::Take( tolmoHistoryInfoIri( hi.Get() ) ), "sip:a" );
    EXPECT_EQ( test::Take( tolmoHistoryInfoIndex( hi.Get() ) ), "1" );
    EXPECT_FALSE( tolmoHistoryInfoHasDisplayName( hi.Get() ) );
    EXPECT_FALSE( tolmoHistoryInfoHasRc( hi.Get() ) );
    EXPECT_EQ( Encode( hi ), "<sip:a>;index=1" );
    const auto iri = Str( "sip:a" );
    const auto index = Str( "1" );
    EXPECT_ABORT( tolmoHistoryInfoCreate( nullptr, nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( tolmoHistoryInfoCreate( Str( "a" ).Get(), nullptr ), path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( tolmoHistoryInfoCreate( iri.Get(), nullptr ), "source/tolmo/tolmo_history_info_index.cpp", "index" );
    EXPECT_ABORT( tolmoHistoryInfoCreate( iri.Get(), Str( "01" ).Get() ), path, "tolmoHistoryInfoIndexOk( index )" );
}

const test::ValueRow rows[] = {
    { "<sip:host1>;index=1", "<sip:host1>;index=1" },
    { "<sip:host1>;Index = 1.2.3", "<sip:host1>;index=1.2.3" },
    { "A  B <sip:a>;index=1", "\"A B\" <sip:a>;index=1" },
    { "\"A;index=2\"<sip:a>;index=1", "\"A;index=2\" <sip:a>;index=1" },
    { "\"\" <sip:a>;index=1", "\"\" <sip:a>;index=1" },
    { " <sip:a> ; index=1", "<sip:a>;index=1" },
    { "<sip:a?Reason=SIP;x>;index=1", "<sip:a?Reason=SIP;x>;index=1" },

    // the address
    { "", null },
    { "sip:host1;index=1", null }, // there is no bare form
    { "A sip:host1;index=1", null },
    { "\"A\";index=1", null },
    { "<>;index=1", null },
    { "<sip:a;index=1", null },
    { "<sip:a >;index=1", null },
    { "<a>;index=1", null },
    { "<sip:a>x;index=1", null },
    { "\u00C4 <sip:a>;index=1", null },

    // an index is required
    { "<sip:host1>", null },
    { "<sip:host1> ", null },
    { "<sip:host1>;", null },
    { "<sip:host1>;x", null },
    { "<sip:host1>;rc=1", null },
    { "<sip:host1>;index", null },
    { "<sip:host1>;index=01", null }, // no index, and a generic parameter of that name does not count
    { "<sip:host1>;index=1.", null },
    { "<sip:host1>;index=x", null },
    { "<sip:host1>;index=\"1\"", null },
    { "<sip:host1>;index=", null },
    { "<sip:host1>;index=1x", null }, // good up to the x, and then there is no way back
    { "<sip:host1>;index=1 ", null },
    { "<sip:host1>;index=1;", null },
    { "<sip:host1>;index=1;;x", null },
    { "<sip:host1>;index=1,<sip:b>;index=2", null },
    { "<sip:host1>;indexx=1", null },
    { "<sip:host1>;index=1;index=2", "<sip:host1>;index=2" },
    { "<sip:host1>;index=1;index=x", "<sip:host1>;index=1" }, // the generic one never goes out
    { "<sip:host1>;index=x;index=1", "<sip:host1>;index=1" },
    { "<sip:host1>;x;index=1;y", "<sip:host1>;index=1;x;y" },

    // one slot for three back references
    { "<sip:host1>;rc=1;index=1.1", "<sip:host1>;index=1.1;rc=1" },
    { "<sip:host1>;index=1.1;mp=1", "<sip:host1>;index=1.1;rc=1" },
    { "<sip:host1>;index=1.1;NP=1", "<sip:host1>;index=1.1;rc=1" },
    { "<sip:host1>;rc=1;mp=2;index=3", "<sip:host1>;index=3;rc=2" },
    { "<sip:host1>;rc=1;np=3;mp=2;index=3", "<sip:host1>;index=3;rc=2" },
    { "<sip:host1>;index=1;rc=1;rc=x", "<sip:host1>;index=1;rc=1" }, // the field hides the generic one
    { "<sip:host1>;index=1;rc=x", "<sip:host1>;index=1;rc=x" },      // no index: generic
    { "<sip:host1>;index=1;mp=x", "<sip:host1>;index=1;mp=x" },
    { "<sip:host1>;index=1;np=1.02", "<sip:host1>;index=1;np=1.02" },
    { "<sip:host1>;index=1;mp=x;np=2", "<sip:host1>;index=1;rc=2;mp=x" }, // `mp` has no field that would hide it
    { "<sip:host1>;index=1;rc", "<sip:host1>;index=1;rc" },
    { "<sip:host1>;index=1;rcx=1", "<sip:host1>;index=1;rcx=1" },
    { "<sip:host1>;index=1;rc=1x", null },
    { "<sip:host1>;index=1;mp=", null },

    // all others
    { "<sip:host1>;index=1;A=B;c=\"d\";e=[::1];a=2", "<sip:host1>;index=1;a=2;c=\"d\";e=[::1]" },
    { "<sip:host1>;index=1;\u00FC", null },
    { "<sip:host1>;index=1;x=\"", null },
};

TEST_F( HistoryInfo, Rows )
{
    test::ExpectRows<Value>( rows );
}

TEST_F( HistoryInfo, DecodedFields )
{
    const auto hi = Decode( "\"\" <sip:a@xn--bcher-kva.example>;x;mp=1.10;index=0;index=x" );
    EXPECT_EQ( test::Take( tolmoHistoryInfoIri( hi.Get() ) ), "sip:a@b\u00FCcher.example" );
    EXPECT_TRUE( tolmoHistoryInfoHasDisplayName( hi.Get() ) );
    EXPECT_EQ( test::Take( tolmoHistoryInfoDisplayName( hi.Get() ) ), "" );
    EXPECT_EQ( test::Take( tolmoHistoryInfoIndex( hi.Get() ) ), "0" );
    EXPECT_EQ( test::Take( tolmoHistoryInfoRc( hi.Get() ) ), "1.10" );
    EXPECT_EQ( test::Generic<Value>( hi ), ";x;index=x" );
    EXPECT_EQ( Encode( hi ), "\"\" <sip:a@xn--bcher-kva.example>;index=0;rc=1.10;x" );
}

const char index[] = "source/tolmo/tolmo_history_info_index.cpp";

TEST_F( HistoryInfo, Fields )
{
    const test::StringField<Value> fields[] = {
        { nullptr,
          tolmoHistoryInfoIri,
          tolmoHistoryInfoSetIri,
          nullptr,
          "tel:1",
          "tel:1",
          "SIP:\u00FC",
          { { nullptr, "source/tolmo/tolmo_iri.cpp", "iri" }, { "", path, "tolmoIriOk( iri )" } } },
        { nullptr,
          tolmoHistoryInfoIndex,
          tolmoHistoryInfoSetIndex,
          nullptr,
          "0",
          "0",
          "10.2.33",
          { { nullptr, index, "index" },
            { "", path, "tolmoHistoryInfoIndexOk( index )" },
            { "1.", path, "tolmoHistoryInfoIndexOk( index )" } } },
        { tolmoHistoryInfoHasDisplayName,
          tolmoHistoryInfoDisplayName,
          tolmoHistoryInfoSetDisplayName,
          tolmoHistoryInfoDelDisplayName,
          "",
          "",
          "A  B",
          { { nullptr, "source/tolmo/tolmo_display_name.cpp", "displayName" },
            { "a\nb", path, "tolmoDisplayNameOk( displayName )" } } },
        { tolmoHistoryInfoHasRc,
          tolmoHistoryInfoRc,
          tolmoHistoryInfoSetRc,
          tolmoHistoryInfoDelRc,
          "0",
          "0",
          "1.2",
          { { nullptr, index, "index" }, { "1.", path, "tolmoHistoryInfoIndexOk( rc )" } } },
        { tolmoHistoryInfoHasMp,
          tolmoHistoryInfoMp,
          tolmoHistoryInfoSetMp,
          tolmoHistoryInfoDelMp,
          "0",
          "0",
          "1.2",
          { { nullptr, index, "index" }, { "01", path, "tolmoHistoryInfoIndexOk( rc )" } } },
        { tolmoHistoryInfoHasNp,
          tolmoHistoryInfoNp,
          tolmoHistoryInfoSetNp,
          tolmoHistoryInfoDelNp,
          "0",
          "0",
          "1.2",
          { { nullptr, index, "index" }, { "", path, "tolmoHistoryInfoIndexOk( rc )" } } }
    };
    for ( const auto &field : fields ) {
        test::ExpectStringField( field, Create );
    }
    test::ExpectGenericParams<Value>( Create );
}

TEST_F( HistoryInfo, OneSlot )
{
    struct Name {
        KoBool ( *has )( TolmoHistoryInfo );
        KoString ( *get )( TolmoHistoryInfo );
        void ( *set )( TolmoHistoryInfo *, KoString );
        void ( *del )( TolmoHistoryInfo * );
    };
    const Name names[] = { { tolmoHistoryInfoHasRc, tolmoHistoryInfoRc, tolmoHistoryInfoSetRc, tolmoHistoryInfoDelRc },
                           { tolmoHistoryInfoHasMp, tolmoHistoryInfoMp, tolmoHistoryInfoSetMp, tolmoHistoryInfoDelMp },
                           { tolmoHistoryInfoHasNp, tolmoHistoryInfoNp, tolmoHistoryInfoSetNp,
                             tolmoHistoryInfoDelNp } };
    for ( const Name &written : names ) {
        for ( const Name &read : names ) {
            auto hi = Create();
            EXPECT_FALSE( read.has( hi.Get() ) );
            written.set( hi.Address(), Str( "1.1" ).Get() );
            EXPECT_TRUE( read.has( hi.Get() ) );
            EXPECT_EQ( test::Take( read.get( hi.Get() ) ), "1.1" );
            EXPECT_EQ( Encode( hi ), "<sip:a>;index=1;rc=1.1" );
            read.del( hi.Address() );
            EXPECT_FALSE( written.has( hi.Get() ) );
            EXPECT_EQ( Encode( hi ), "<sip:a>;index=1" );
        }
    }
}

TEST_F( HistoryInfo, FieldHidesGenericParameter )
{
    auto hi = Create();
    tolmoHistoryInfoSetGenericParams( hi.Address(), test::ParamsOf( ";rc=x;mp=1;np=2;index=9" ).Get() );
    EXPECT_EQ( Encode( hi ), "<sip:a>;index=1;rc=x;mp=1;np=2" );
    tolmoHistoryInfoSetMp( hi.Address(), Str( "3" ).Get() );
    EXPECT_EQ( Encode( hi ), "<sip:a>;index=1;rc=3;mp=1;np=2" );
    EXPECT_EQ( test::Generic<Value>( hi ), ";rc=x;mp=1;np=2;index=9" );
}

TEST_F( HistoryInfo, CompareOrder )
{
    test::ExpectAscending<Value>( { "\"Z\" <sip:a>;index=9;rc=9;z", "<sip:b>;index=1", "<sip:b>;index=1;z",
                                    "<sip:b>;index=1;rc=1", "<sip:b>;index=1;rc=1;z", "<sip:b>;index=1;np=2",
                                    "<sip:b>;index=1.10", "<sip:b>;index=1.9", // a text, not a number
                                    "\"\" <sip:b>;index=1", "\"A\" <sip:b>;index=1", "<sip:c>;index=1" } );
    EXPECT_TRUE( tolmoHistoryInfoEquals( Decode( "<sip:a>;index=1;mp=1;x;y" ).Get(),
                                         Decode( "<sip:a>;y;x;rc=1;index=1" ).Get() ) );
}

TEST_F( HistoryInfo, Huge )
{
    test::ExpectHuge<Value>( "<sip:a>;index=1" );
    std::string numbers = "1";
    for ( int i = 0; i < 100000; ++i ) {
        numbers += ".1";
    }
    EXPECT_EQ( Encode( Decode( "<sip:a>;index=" + numbers ) ), "<sip:a>;index=" + numbers );
    EXPECT_EQ( Encode( Decode( "<sip:a>;index=" + numbers + "." ) ), null );
}

TEST_F( HistoryInfo, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 7044 );
    for ( int i = 0; i < 2000; ++i ) {
        auto hi = Create();
        tolmoHistoryInfoSetIri( hi.Address(), draw.Iri().Get() );
        tolmoHistoryInfoSetIndex( hi.Address(), draw.One( { "0", "1.2", "10.0.3" } ).Get() );
        if ( draw.Perhaps() ) {
            tolmoHistoryInfoSetDisplayName( hi.Address(), draw.DisplayName().Get() );
        }
        if ( draw.Perhaps() ) {
            tolmoHistoryInfoSetNp( hi.Address(), draw.One( { "0", "1.2", "10.0.3" } ).Get() );
        }
        tolmoHistoryInfoSetGenericParams( hi.Address(), draw.Params().Get() );
        test::ExpectDecodes<Value>( hi );
        const auto text = Encode( hi );
        EXPECT_TRUE( tolmoHistoryInfoEquals( Decode( text ).Get(), hi.Get() ) ) << text;

        auto changed = Ref::Share( hi.Get() );
        tolmoHistoryInfoSetIndex( changed.Address(), Str( "99" ).Get() );
        tolmoHistoryInfoDelRc( changed.Address() );
        EXPECT_EQ( Encode( hi ), text );
    }
}

} // namespace
