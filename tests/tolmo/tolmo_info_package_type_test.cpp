/* One info package. */
#include "tolmo_value_test.h"

namespace {

using test::Own;
using test::Str;
using test::Take;

struct Functions {
    TEST_VALUE_FUNCTIONS( InfoPackageType, "tolmo_info_package_type", "type" )
};

class InfoPackageType : public test::TolmoFixture {};

constexpr auto decode = test::Decode<Functions>;
constexpr auto encode = test::Encode<Functions>;
constexpr auto path = Functions::path;

TEST_F( InfoPackageType, StandardOperations )
{
    const auto type = decode( "foo;a=1" );
    // The names in the compare function are those of another type, and callers know them so.
    test::ExpectStandardOperations<Functions>( type.Get(), "TOLMO_INFO_PACKAGE_TYPE", path, "type", "eiA", "eiB" );
    EXPECT_EQ( Take( tolmoInfoPackageTypeToString( type.Get() ) ), "foo;a=1" );
}

TEST_F( InfoPackageType, Create )
{
    const auto name = Str( "Foo" );
    const auto type = Own( tolmoInfoPackageTypeCreate( name.Get() ) );
    EXPECT_EQ( Take( tolmoInfoPackageTypeName( type.Get() ) ), "foo" );
    EXPECT_EQ( test::Text( name ), "Foo" );
    EXPECT_EQ( test::Generic<Functions>( type ), "" );
    EXPECT_ABORT( tolmoInfoPackageTypeCreate( nullptr ), "source/tolmo/tolmo_token.cpp", "token" );
    EXPECT_ABORT( tolmoInfoPackageTypeCreate( Str( "" ).Get() ), path, "tolmoInfoPackageNameOk( infoPackageName )" );
    EXPECT_ABORT( tolmoInfoPackageTypeCreate( Str( "a b" ).Get() ), path, "tolmoInfoPackageNameOk( infoPackageName )" );
}

TEST_F( InfoPackageType, Fields )
{
    const auto create = [] { return Own( tolmoInfoPackageTypeCreate( Str( "x" ).Get() ) ); };
    test::ExpectStringField<Functions>( { nullptr,
                                          tolmoInfoPackageTypeName,
                                          tolmoInfoPackageTypeSetName,
                                          nullptr,
                                          "FOO",
                                          "foo",
                                          "bar",
                                          { { nullptr, "source/tolmo/tolmo_token.cpp", "token" },
                                            { "", path, "tolmoInfoPackageNameOk( name )" },
                                            { "a;b", path, "tolmoInfoPackageNameOk( name )" } } },
                                        create );
    test::ExpectGenericParams<Functions>( create );
}

const test::ValueRow rows[] = {
    { "Foo;a=1", "foo;a=1" },
    { "foo", "foo" },
    { "foo ; A = B", "foo;a=B" },
    { "foo;x=[::1];y=\"a,b\"", "foo;x=[::1];y=\"a,b\"" },
    { "foo;a;b;a=1", "foo;a=1;b" },
    { "", "(null)" },
    { ";a", "(null)" },
    { "foo;", "(null)" },
    { "foo;a;", "(null)" },
    { "foo;;a", "(null)" },
    { "foo;a=", "(null)" },
    { "foo;a=\"", "(null)" },
    { "foo;a=[::1", "(null)" },
    { "foo;a b", "(null)" },
    { " foo", "(null)" },
    { "foo ", "(null)" },
    { "foo, bar", "(null)" }, // one package alone
    { "\u00FC", "(null)" },
};

TEST_F( InfoPackageType, Rows )
{
    test::ExpectRows<Functions>( rows );
}

TEST_F( InfoPackageType, CompareOrder )
{
    test::ExpectAscending<Functions>( { "a", "a;x", "a;x=1", "a;y", "b" } );
    EXPECT_TRUE( tolmoInfoPackageTypeEquals( decode( "A;x;y=B" ).Get(), decode( "a;Y=b;X" ).Get() ) );
}

TEST_F( InfoPackageType, Huge )
{
    test::ExpectHuge<Functions>( "foo" );
}

TEST_F( InfoPackageType, DecodeOfEncodeIsEqual )
{
    test::Draw draw( 313 );
    for ( int i = 0; i < 500; ++i ) {
        auto type = Own( tolmoInfoPackageTypeCreate( draw.One( { "a", "B", "c-d" } ).Get() ) );
        tolmoInfoPackageTypeSetGenericParams( type.Address(), draw.Params().Get() );
        test::ExpectDecodes<Functions>( type );
        EXPECT_TRUE( tolmoInfoPackageTypeEquals( decode( encode( type ) ).Get(), type.Get() ) );
    }
}

} // namespace
