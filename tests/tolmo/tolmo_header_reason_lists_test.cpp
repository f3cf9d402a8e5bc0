/* Headers that are lists: Reason, Warning, User-to-User, Recv-Info; and Info-Package, which is one item of the last. */
#include "tolmo_header_fields_test.h"
#include "tolmo_value_list_test.h"

namespace {

using test::null;
using test::Own;
using test::RawHeader;
using test::Str;
using test::Strings;
using test::TakeLines;

class Lists : public test::TolmoFixture {};

struct Reason {
    TEST_VALUE_LIST_FUNCTIONS( Reason, Reason, Reason, ClearReasons )
    static constexpr char header[] = "Reason";
    static constexpr char sort[] = "TOLMO_HEADER_REASON";
    static constexpr char path[] = "source/tolmo/tolmo_header_reason.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosReason )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_reason.cpp";
    static constexpr char value[] = "reason";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "SIP;cause=200;text=\"a, b\"", "Q.850;cause=016", "x;y" };
    static constexpr char otherSpelling[] = "SIP ;Cause=200;TEXT= \"a, b\"";
};

struct RecvInfo {
    TEST_VALUE_LIST_FUNCTIONS( RecvInfo, InfoPackageType, InfoPackageType, ClearInfoPackageTypes )
    static constexpr char header[] = "Recv-Info";
    static constexpr char sort[] = "TOLMO_HEADER_RECV_INFO";
    static constexpr char path[] = "source/tolmo/tolmo_header_recv_info.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosInfoPackageType )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_info_package_type.cpp";
    static constexpr char value[] = "type";
    static constexpr bool emptyWithoutLines = false;
    static constexpr const char *items[] = { "foo;a=\"b,c\"", "bar", "x;y" };
    static constexpr char otherSpelling[] = "Foo ;A=\"b,c\"";
};

struct UserToUser {
    TEST_VALUE_LIST_FUNCTIONS( UserToUser, UuiValue, UuiValue, ClearUuiValues )
    static constexpr char header[] = "User-To-User"; // with the capital that the normal form of a name asks for
    static constexpr char sort[] = "TOLMO_HEADER_USER_TO_USER";
    static constexpr char path[] = "source/tolmo/tolmo_header_user_to_user.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosUserToUser )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_uui_value.cpp";
    static constexpr char value[] = "value";
    static constexpr bool emptyWithoutLines = true;
    static constexpr const char *items[] = { "00aA;encoding=hex;x=\",\"", "01", "02;purpose=a" };
    static constexpr char otherSpelling[] = "00aA; Encoding=hex;X=\",\"";
};

struct Warning {
    TEST_VALUE_LIST_FUNCTIONS( Warning, Warning, WarningValue, WarningsClear )
    static constexpr char header[] = "Warning";
    static constexpr char sort[] = "TOLMO_HEADER_WARNING";
    static constexpr char path[] = "source/tolmo/tolmo_header_warning.cpp";
    static constexpr char isHeader[] = "tolmoMessageHeaderNameEquals( header, tolmo___KosWarning )";
    static constexpr char valuePath[] = "source/tolmo/tolmo_header_warning.cpp"; // the list tests the value itself
    static constexpr char value[] = "warning";
    static constexpr bool emptyWithoutLines = true;
    static constexpr const char *items[] = { "399 a \"b, c\"", "300 [::1]:5060 \"\"", "301 x \"y\"" };
    static constexpr char otherSpelling[] = "399  a\t\"b, c\"";
};

INSTANTIATE_TYPED_TEST_SUITE_P( HeaderReason, ValueList, Reason );
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderRecvInfo, ValueList, RecvInfo );
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderUserToUser, ValueList, UserToUser );
INSTANTIATE_TYPED_TEST_SUITE_P( HeaderWarning, ValueList, Warning );

/** The lines that a list goes out with, made of some lines; "(null)" for null. */
template <class Member>
Strings Recode( const Strings &lines )
{
    const auto hdr = Own( Member::TryDecode( RawHeader( Member::header, lines ).Get() ) );
    return hdr ? TakeLines( Member::Encode( hdr.Get() ) ) : Strings{ "(null)" };
}

TEST_F( Lists, ReasonLines )
{
    EXPECT_EQ( Recode<Reason>( { "SIP ;cause=200 , Q.850" } ), ( Strings{ "SIP ;cause=200", "Q.850" } ) );
    EXPECT_EQ( Recode<Reason>( { "SIP;text=\"a" } ), Strings{ "(null)" } );
    // An item of the list does not always decode: the skip function is less strict.
    const auto hdr =
        Own( tolmoHeaderReasonTryDecode( RawHeader( "Reason", { "SIP;cause=2x, SIP;cause=200" } ).Get() ) );
    ASSERT_EQ( tolmoHeaderReasonReasonsLength( hdr.Get() ), 2 );
    EXPECT_EQ( tolmoHeaderReasonTryDecodeReasonAt( hdr.Get(), 0 ), nullptr );
    EXPECT_TRUE( Own( tolmoHeaderReasonTryDecodeReasonAt( hdr.Get(), 1 ) ) );
}

TEST_F( Lists, WarningLines )
{
    EXPECT_EQ( Recode<Warning>( { "399 h \"a\" , 300 h:1  \"b\"" } ), ( Strings{ "399 h \"a\"", "300 h:1  \"b\"" } ) );
    EXPECT_EQ( Recode<Warning>( { "399 h \"a\";x" } ), Strings{ "(null)" } ); // though the item would decode
    EXPECT_EQ( Recode<Warning>( { "399 h \"a\" x" } ), Strings{ "(null)" } );
    EXPECT_EQ( Recode<Warning>( { "39 h \"a\"" } ), Strings{ "(null)" } );

    // A code below 100 goes in and out, but not in again.
    auto hdr = Own( tolmoHeaderWarningCreate() );
    const auto wv = Own( tolmoWarningValueCreateWithWarnText( 7, Str( "h" ).Get(), Str( "x" ).Get() ) );
    tolmoHeaderWarningAppendWarning( hdr.Address(), wv.Get() );
    EXPECT_EQ( TakeLines( tolmoHeaderWarningEncode( hdr.Get() ) ), Strings{ "7 h \"x\"" } );
    EXPECT_EQ( tolmoHeaderWarningTryDecodeWarningAt( hdr.Get(), 0 ), nullptr );
    EXPECT_EQ( Recode<Warning>( { "7 h \"x\"" } ), Strings{ "(null)" } );
}

TEST_F( Lists, WarningTestsTheValueInFrontOfTheCopy )
{
    auto hdr = Own( tolmoHeaderWarningTryDecode( RawHeader( "Warning", { "399 h \"a\"" } ).Get() ) );
    const char *const path = Warning::path;
    EXPECT_ABORT( tolmoHeaderWarningSetWarningAt( hdr.Address(), 9, nullptr ), path, "warning" );
    EXPECT_ABORT( tolmoHeaderWarningInsertWarning( hdr.Address(), 9, nullptr ), path, "warning" );
    EXPECT_ABORT( tolmoHeaderWarningPrependWarning( hdr.Address(), nullptr ), path, "warning" );
    EXPECT_ABORT( tolmoHeaderWarningAppendWarning( hdr.Address(), nullptr ), path, "warning" );
}

TEST_F( Lists, UserToUserLines )
{
    EXPECT_EQ( Recode<UserToUser>( { "00;encoding=hex , 01" } ), ( Strings{ "00;encoding=hex", "01" } ) );
    EXPECT_EQ( Recode<UserToUser>( { "00;encoding=hex;" } ), Strings{ "(null)" } );
    // Data in quotes is an item, but does not decode.
    const auto header = RawHeader( "USER-TO-USER", { "\"a, b\";encoding=hex, 00" } );
    const auto hdr = Own( tolmoHeaderUserToUserTryDecode( header.Get() ) );
    ASSERT_EQ( tolmoHeaderUserToUserUuiValuesLength( hdr.Get() ), 2 );
    EXPECT_EQ( tolmoHeaderUserToUserTryDecodeUuiValueAt( hdr.Get(), 0 ), nullptr );
    EXPECT_TRUE( Own( tolmoHeaderUserToUserTryDecodeUuiValueAt( hdr.Get(), 1 ) ) );

    // Data that is no token goes out as nothing, which makes a line that the list does not take again.
    auto changed = Own( tolmoHeaderUserToUserCreate() );
    tolmoHeaderUserToUserAppendUuiValue( changed.Address(), Own( tolmoUuiValueCreate( Str( "a b" ).Get() ) ).Get() );
    EXPECT_EQ( tolmoHeaderUserToUserUuiValuesLength( changed.Get() ), 1 );
    EXPECT_EQ( TakeLines( tolmoHeaderUserToUserEncode( changed.Get() ) ), Strings{ "" } );
    EXPECT_EQ( Recode<UserToUser>( { "" } ), Strings() );
}

TEST_F( Lists, UserToUserOnTheWire )
{
    auto msg = test::Received( "user-to-user: 00\r\n" );
    EXPECT_TRUE( tolmoHeaderUserToUserPresentInMessage( msg.Get() ) );
    const auto hdr = Own( tolmoHeaderUserToUserTryDecodeFromMessage( msg.Get() ) );
    tolmoHeaderUserToUserEncodeToMessage( hdr.Get(), msg.Address() );
    EXPECT_NE( test::TakeBytes( tolmoMessageEncode( msg.Get() ) ).find( "\r\nUser-To-User: 00\r\n" ),
               std::string::npos );
    tolmoHeaderUserToUserRemoveFromMessage( msg.Address() );
    EXPECT_FALSE( tolmoHeaderUserToUserPresentInMessage( msg.Get() ) );
}

TEST_F( Lists, RecvInfoAndInfoPackage )
{
    EXPECT_EQ( Recode<RecvInfo>( { "foo, Bar;x" } ), ( Strings{ "foo", "Bar;x" } ) );
    EXPECT_EQ( Own( tolmoHeaderInfoPackageTryDecode( RawHeader( "Info-Package", { "foo, Bar;x" } ).Get() ) ).Get(),
               nullptr );
    // The constants of the two have one name, and different texts.
    EXPECT_ABORT( tolmoHeaderRecvInfoTryDecode( RawHeader( "Info-Package", { "foo" } ).Get() ), RecvInfo::path,
                  RecvInfo::isHeader );
    EXPECT_ABORT( tolmoHeaderInfoPackageTryDecode( RawHeader( "Recv-Info", { "foo" } ).Get() ),
                  "source/tolmo/tolmo_header_info_package.cpp", RecvInfo::isHeader );
}

/* Info-Package */

struct InfoPackage {
    TEST_HEADER_AS_VALUE( InfoPackage, "info_package", "Info-Package" )
};
const test::HeaderType<TolmoHeaderInfoPackage> infoPackage = TEST_HEADER( InfoPackage, "info_package", "Info-Package" );

KoRef<TolmoInfoPackageType> Package( std::string_view text )
{
    return test::DecodeWith( tolmo___InfoPackageTypeTryDecode, text );
}

TEST_F( Lists, InfoPackageSingleValue )
{
    test::ExpectSingleValue( infoPackage, "foo;a", "foo;" );
}

TEST_F( Lists, InfoPackageType )
{
    const auto foo = Package( "foo;a" );
    auto hdr = Own( tolmoHeaderInfoPackageCreate( foo.Get() ) );
    const TolmoHeaderInfoPackage object = hdr.Get();
    EXPECT_EQ( Own( tolmoHeaderInfoPackageType( hdr.Get() ) ).Get(), foo.Get() ); // shared
    const auto bar = Package( "bar" );
    tolmoHeaderInfoPackageSetType( hdr.Address(), bar.Get() );
    EXPECT_EQ( hdr.Get(), object );
    EXPECT_EQ( test::Encode<InfoPackage>( hdr ), "bar" );

    const auto other = KoRef<TolmoHeaderInfoPackage>::Share( hdr.Get() );
    tolmoHeaderInfoPackageSetType( hdr.Address(), foo.Get() );
    EXPECT_NE( hdr.Get(), other.Get() );
    EXPECT_EQ( test::Encode<InfoPackage>( hdr ), "foo;a" );
    EXPECT_EQ( test::Encode<InfoPackage>( other ), "bar" );

    // The caller's package is not the header's.
    auto mine = Own( tolmoHeaderInfoPackageType( hdr.Get() ) );
    tolmoInfoPackageTypeSetName( mine.Address(), Str( "x" ).Get() );
    EXPECT_EQ( test::Encode<InfoPackage>( hdr ), "foo;a" );
    tolmoHeaderInfoPackageSetType( hdr.Address(), Own( tolmoHeaderInfoPackageType( hdr.Get() ) ).Get() ); // its own
    EXPECT_EQ( test::Encode<InfoPackage>( hdr ), "foo;a" );

    EXPECT_ABORT( tolmoHeaderInfoPackageCreate( nullptr ), InfoPackage::path, "infoPackageType" );
    EXPECT_ABORT( tolmoHeaderInfoPackageType( nullptr ), InfoPackage::path, "hdr" );
    EXPECT_HANDLE_ABORTS( infoPackage, tolmoHeaderInfoPackageSetType, nullptr );
    EXPECT_ABORT( tolmoHeaderInfoPackageSetType( hdr.Address(), nullptr ), InfoPackage::path, "type" );
}

const test::Row infoPackageRows[] = {
    { "Foo ; A = B", "foo;a=B" },
    { "foo", "foo" },
    { "", null },
    { "foo;", null },
    { "foo ", null },
    { " foo", null },
    { "foo x", null },
    { "foo,", null },
    { "foo, bar", null },
    { "foo;a=\"", null },
    { "\u00FC", null },
};

TEST_F( Lists, InfoPackageRows )
{
    for ( const auto &row : infoPackageRows ) {
        test::ExpectRow( infoPackage, row );
    }
    test::ExpectAscending<InfoPackage>( { "a", "a;x", "b" } );
    test::ExpectHuge<InfoPackage>( "foo" );
}

} // namespace
