/* One item of an Alert-Info, an Error-Info or a Call-Info header. */
#include "tolmo_value_test.h"

namespace {

using test::Str;

struct AlertInfo {
    TEST_VALUE_FUNCTIONS( AlertInfo, "tolmo_alert_info", "alertInfo" )
    static constexpr char sort[] = "TOLMO_ALERT_INFO";
    static constexpr char nameA[] = "aiA";
    static constexpr char nameB[] = "aiB";
    static constexpr auto Create = tolmoAlertInfoCreate;
    static constexpr auto Iri = tolmoAlertInfoIri;
    static constexpr auto SetIri = tolmoAlertInfoSetIri;
};

struct ErrorInfo {
    TEST_VALUE_FUNCTIONS( ErrorInfo, "tolmo_error_info", "errorInfo" )
    static constexpr char sort[] = "TOLMO_ERROR_INFO";
    static constexpr char nameA[] = "eiA";
    static constexpr char nameB[] = "eiB";
    static constexpr auto Create = tolmoErrorInfoCreate;
    static constexpr auto Iri = tolmoErrorInfoIri;
    static constexpr auto SetIri = tolmoErrorInfoSetIri;
};

struct CallInfo {
    TEST_VALUE_FUNCTIONS( CallInfo, "tolmo_call_info", "callInfo" )
    static constexpr char sort[] = "TOLMO_CALL_INFO";
    static constexpr char nameA[] = "ciA";
    static constexpr char nameB[] = "ciB";
    static constexpr auto Create = tolmoCallInfoCreate;
    static constexpr auto Iri = tolmoCallInfoIri;
    static constexpr auto SetIri = tolmoCallInfoSetIri;
};

// What all three share.

template <class Type>
class Info : public test::TolmoFixture {
};

struct Names {
    template <class Type>
    static std::string GetName( int )
    {
        return Type::sort;
    }
};

using Types = testing::Types<AlertInfo, ErrorInfo, CallInfo>;
TYPED_TEST_SUITE( Info, Types, Names );

TYPED_TEST( Info, StandardOperations )
{
    const auto info = test::Decode<TypeParam>( "<sip:a>;purpose=b;x" );
    test::ExpectStandardOperations<TypeParam>( info.Get(), TypeParam::sort, TypeParam::path, TypeParam::name,
                                               TypeParam::nameA, TypeParam::nameB );
    EXPECT_EQ( test::Take( TypeParam::ToString( info.Get() ) ), "<sip:a>;purpose=b;x" );
}

TYPED_TEST( Info, Create )
{
    const auto iri = Str( "https://b\u00FC.example/\u00FC" );
    const auto info = test::Own( TypeParam::Create( iri.Get() ) );
    EXPECT_EQ( test::Own( TypeParam::Iri( info.Get() ) ).Get(), iri.Get() );
    EXPECT_EQ( test::Generic<TypeParam>( info ), "" );
    EXPECT_ABORT( TypeParam::Create( nullptr ), "source/tolmo/tolmo_iri.cpp", "iri" );
    EXPECT_ABORT( TypeParam::Create( Str( "" ).Get() ), TypeParam::path, "tolmoIriOk( iri )" );
    EXPECT_ABORT( TypeParam::Create( Str( "<sip:a>" ).Get() ), TypeParam::path, "tolmoIriOk( iri )" );
}

const test::ValueRow rows[] = {
    { "<sip:host1>", "<sip:host1>" },
    { "<http://www.example.com/sounds/moo.wav>", "<http://www.example.com/sounds/moo.wav>" },
    { "<urn:alert:source:internal;x=y>;a", "<urn:alert:source:internal;x=y>;a" },
    { " <sip:a> ; b = c ", "(null)" },
    { " <sip:a> ; b = c ;d", "<sip:a>;b=c;d" },
    { "<sip:a> ", "<sip:a>" }, // taken with the bracket
    { "<sip:host1>;a=1;a=2", "<sip:host1>;a=2" },
    { "<sip:host1>;A=B;c=\"d;e\";f=[::1];g", "<sip:host1>;a=B;c=\"d;e\";f=[::1];g" },
    { "<sip:a@xn--bcher-kva.example>", "<sip:a@xn--bcher-kva.example>" },
    { "", "(null)" },
    { "sip:host1", "(null)" },     // the brackets are required
    { "A <sip:host1>", "(null)" }, // there is no display name
    { "\"\" <sip:host1>", "(null)" },
    { "<>", "(null)" },
    { "<sip:a", "(null)" },
    { "< sip:a>", "(null)" },
    { "<sip:a >", "(null)" },
    { "<a>", "(null)" },
    { "<sip:%zz>", "(null)" },
    { "<sip:a>x", "(null)" },
    { "<sip:host1>;", "(null)" },
    { "<sip:host1>;a;", "(null)" },
    { "<sip:host1>;;a", "(null)" },
    { "<sip:host1>;a=", "(null)" },
    { "<sip:host1>;a=\"", "(null)" },
    { "<sip:host1>;a,<sip:b>", "(null)" },
    { "<sip:host1>;\u00FC", "(null)" },
};

TYPED_TEST( Info, Rows )
{
    test::ExpectRows<TypeParam>( rows );
    const auto idn = test::Decode<TypeParam>( "<sip:a@xn--bcher-kva.example>" );
    EXPECT_EQ( test::Take( TypeParam::Iri( idn.Get() ) ), "sip:a@b\u00FCcher.example" );
}

TYPED_TEST( Info, Fields )
{
    const auto create = [] { return test::Own( TypeParam::Create( Str( "sip:a" ).Get() ) ); };
    test::ExpectStringField( test::StringField<TypeParam>{ nullptr,
                                                           TypeParam::Iri,
                                                           TypeParam::SetIri,
                                                           nullptr,
                                                           "tel:1",
                                                           "tel:1",
                                                           "SIP:\u00FC",
                                                           { { nullptr, "source/tolmo/tolmo_iri.cpp", "iri" },
                                                             { "", TypeParam::path, "tolmoIriOk( iri )" } } },
                             create );
    test::ExpectGenericParams<TypeParam>( create );
}

TYPED_TEST( Info, CompareOrder )
{
    test::ExpectAscending<TypeParam>(
        { "<sip:a>;z", "<sip:b>", "<sip:b>;a", "<sip:b>;a=1", "<sip:b>;a=2", "<sip:c>" } );
    EXPECT_TRUE( TypeParam::Equals( test::Decode<TypeParam>( "<sip:a>;x;y" ).Get(),
                                    test::Decode<TypeParam>( "<sip:a>;y;x" ).Get() ) );
}

TYPED_TEST( Info, Huge )
{
    test::ExpectHuge<TypeParam>( "<sip:a>" );
    const std::string text = "<sip:" + std::string( 1000000, 'a' ) + ">";
    EXPECT_EQ( test::Encode<TypeParam>( test::Decode<TypeParam>( text ) ), text );
}

TYPED_TEST( Info, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 3261 );
    for ( int i = 0; i < 1000; ++i ) {
        auto info = test::Own( TypeParam::Create( draw.Iri().Get() ) );
        TypeParam::SetGenericParams( info.Address(), draw.Params().Get() );
        test::ExpectDecodes<TypeParam>( info );
        const auto text = test::Encode<TypeParam>( info );
        EXPECT_TRUE( TypeParam::Equals( test::Decode<TypeParam>( text ).Get(), info.Get() ) ) << text;

        auto changed = KoRef<typename TypeParam::Handle>::Share( info.Get() );
        TypeParam::SetIri( changed.Address(), Str( "sip:changed" ).Get() );
        EXPECT_EQ( test::Encode<TypeParam>( info ), text );
    }
}

// Alert-Info and Error-Info, which have no parameter with a field.

class InfoTwins : public test::TolmoFixture {};

TEST_F( InfoTwins, PurposeIsAnyParameter )
{
    EXPECT_EQ( test::Encode<AlertInfo>( test::Decode<AlertInfo>( "<sip:a>;x;Purpose=ICON" ) ),
               "<sip:a>;x;purpose=ICON" );
    EXPECT_EQ( test::Encode<ErrorInfo>( test::Decode<ErrorInfo>( "<sip:a>;x;Purpose=ICON" ) ),
               "<sip:a>;x;purpose=ICON" );
}

TEST_F( InfoTwins, TwoSorts )
{
    const auto alertInfo = test::Decode<AlertInfo>( "<sip:a>" );
    const auto errorInfo = test::Decode<ErrorInfo>( "<sip:a>" );
    EXPECT_NE( koObjCompare( tolmoAlertInfoObj( alertInfo.Get() ), tolmoErrorInfoObj( errorInfo.Get() ) ), 0 );
    EXPECT_ABORT_MESSAGE( tolmoErrorInfoFrom( tolmoAlertInfoObj( alertInfo.Get() ) ), "stdfunc from", ErrorInfo::path,
                          "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_ERROR_INFO" );
}

// Call-Info, which has a purpose.

class Purpose : public test::TolmoFixture {};

const test::ValueRow purposeRows[] = {
    { "<sip:host1>;Purpose=ICON", "<sip:host1>;purpose=icon" },
    { "<sip:host1>;x;purpose = info ;y", "<sip:host1>;purpose=info;x;y" },
    { "<sip:host1>;purpose=a;purpose=B", "<sip:host1>;purpose=b" },
    { "<sip:host1>;purpose=\"x\"", "<sip:host1>;purpose=\"x\"" }, // no token: generic
    { "<sip:host1>;purpose=[::1]", "<sip:host1>;purpose=[::1]" },
    { "<sip:host1>;purpose", "<sip:host1>;purpose" },
    { "<sip:host1>;purposes=A", "<sip:host1>;purposes=A" },
    { "<sip:host1>;purpose=\"x\";purpose=a", "<sip:host1>;purpose=a" }, // the field hides the generic one
    { "<sip:host1>;purpose=", "(null)" },
    { "<sip:host1>;purpose=a b", "(null)" },
    { "<sip:host1>;purpose=a ", "(null)" },
    { "<sip:host1>;purpose=a;", "(null)" },
};

TEST_F( Purpose, Rows )
{
    test::ExpectRows<CallInfo>( purposeRows );
    const auto quoted = test::Decode<CallInfo>( "<sip:host1>;purpose=\"x\"" );
    EXPECT_FALSE( tolmoCallInfoHasPurpose( quoted.Get() ) );
    EXPECT_EQ( test::Generic<CallInfo>( quoted ), ";purpose=\"x\"" );
}

TEST_F( Purpose, Field )
{
    // The check is that of the normaliser.
    const char purpose[] = "source/tolmo/tolmo_purpose.cpp";
    test::ExpectStringField( test::StringField<CallInfo>{ tolmoCallInfoHasPurpose,
                                                          tolmoCallInfoPurpose,
                                                          tolmoCallInfoSetPurpose,
                                                          tolmoCallInfoDelPurpose,
                                                          "Card",
                                                          "card",
                                                          "icon",
                                                          { { nullptr, purpose, "purpose" },
                                                            { "", purpose, "tolmoPurposeOk( purpose )" },
                                                            { "a b", purpose, "tolmoPurposeOk( purpose )" } } },
                             [] { return test::Own( tolmoCallInfoCreate( Str( "sip:a" ).Get() ) ); } );
}

TEST_F( Purpose, HidesGenericParameter )
{
    auto callInfo = test::Decode<CallInfo>( "<sip:a>;purpose=\"x\";purpose=a;z" );
    EXPECT_EQ( test::Encode<CallInfo>( callInfo ), "<sip:a>;purpose=a;z" );
    EXPECT_EQ( test::Generic<CallInfo>( callInfo ), ";purpose=\"x\";z" );
    tolmoCallInfoDelPurpose( callInfo.Address() );
    EXPECT_EQ( test::Encode<CallInfo>( callInfo ), "<sip:a>;purpose=\"x\";z" );
}

TEST_F( Purpose, CompareOrder )
{
    test::ExpectAscending<CallInfo>( { "<sip:a>;purpose=z", "<sip:b>", "<sip:b>;a", "<sip:b>;purpose=a",
                                       "<sip:b>;purpose=a;a", "<sip:b>;purpose=b" } );
    EXPECT_TRUE( tolmoCallInfoEquals( test::Decode<CallInfo>( "<sip:a>;purpose=A" ).Get(),
                                      test::Decode<CallInfo>( "<sip:a>;purpose=a" ).Get() ) );
}

TEST_F( Purpose, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 3261 );
    for ( int i = 0; i < 1000; ++i ) {
        auto callInfo = test::Own( tolmoCallInfoCreate( draw.Iri().Get() ) );
        if ( draw.Perhaps() ) {
            tolmoCallInfoSetPurpose( callInfo.Address(), draw.One( { "Icon", "info", "x.y" } ).Get() );
        }
        tolmoCallInfoSetGenericParams( callInfo.Address(), draw.Params().Get() );
        test::ExpectDecodes<CallInfo>( callInfo );
        const auto text = test::Encode<CallInfo>( callInfo );
        EXPECT_TRUE( tolmoCallInfoEquals( test::Decode<CallInfo>( text ).Get(), callInfo.Get() ) ) << text;
    }
}

} // namespace
