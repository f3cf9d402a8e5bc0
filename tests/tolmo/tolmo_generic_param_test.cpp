#include "tolmo_test.h"

#include <tolmo/tolmo_generic_param.hpp>

#include <random>

namespace {

using test::Own;
using test::Str;
using Param = KoRef<TolmoGenericParam>;
using namespace std::string_view_literals;

class GenericParam : public test::TolmoFixture {};

constexpr char path[] = "source/tolmo/tolmo_generic_param.cpp";
constexpr char valuePath[] = "source/tolmo/tolmo_generic_param_value.cpp";
constexpr char tokenPath[] = "source/tolmo/tolmo_token.cpp";
constexpr KoInt none = -1;
constexpr KoInt token = TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN;
constexpr KoInt host = TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST;
constexpr KoInt quoted = TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING;

Param Create( std::string_view name )
{
    return Own( tolmoGenericParamCreate( Str( name ).Get() ) );
}

Param Create( std::string_view name, KoInt type, std::string_view value )
{
    return Own( tolmoGenericParamCreateWithValue( Str( name ).Get(), type, Str( value ).Get() ) );
}

Param Decode( std::string_view text )
{
    const test::Exact chs( text );
    return Own( tolmo___GenericParamTryDecode( chs.Chars(), chs.Length() ) );
}

std::string Encode( const Param &param )
{
    return test::Take( tolmo___GenericParamEncode( param.Get() ) );
}

std::string Value( const Param &param )
{
    return test::Take( tolmoGenericParamValueNonNormalized( param.Get() ) );
}

std::string NormalValue( const Param &param )
{
    return test::Take( tolmoGenericParamValueNormalized( param.Get() ) );
}

std::string Name( const Param &param )
{
    return test::Take( tolmoGenericParamName( param.Get() ) );
}

const struct DecodeRow {
    std::string_view text;
    std::string_view name; // null: refused
    KoInt type = none;
    std::string_view value = {};
    std::string_view encoded = {};
} decodeRows[] = {
    { "a", "a", none, {}, "a" },
    { "LR", "lr", none, {}, "lr" }, // the case of a name is lost
    { "a=b", "a", token, "b", "a=b" },
    { "A=B", "a", token, "B", "a=B" },       // that of a value is kept
    { "a \t=\t b", "a", token, "b", "a=b" }, // whitespace around the equals sign is dropped
    { "-.!%*_+`'~1=-.!%*_+`'~1", "-.!%*_+`'~1", token, "-.!%*_+`'~1", "-.!%*_+`'~1=-.!%*_+`'~1" },
    { "a=example.com", "a", token, "example.com", "a=example.com" }, // a host name is a token
    { "a=192.0.2.1", "a", token, "192.0.2.1", "a=192.0.2.1" },       // as is an IPv4 address
    { "a=[::1]", "a", host, "[::1]", "a=[::1]" },
    { "a=[2001:DB8::1]", "a", host, "[2001:DB8::1]", "a=[2001:DB8::1]" }, // as it stands
    { "a = [::192.0.2.1]", "a", host, "[::192.0.2.1]", "a=[::192.0.2.1]" },
    { "a=\"b\"", "a", quoted, "b", "a=\"b\"" },
    { "a=\"\"", "a", quoted, "", "a=\"\"" },
    { "a=  \"b c\"", "a", quoted, "b c", "a=\"b c\"" },
    { "a=\"\\b\\\"\\\\\"", "a", quoted, "b\"\\", "a=\"b\\\"\\\\\"" }, // an escape that is not needed goes
    { "a=\"b  c\"", "a", quoted, "b  c", "a=\"b \\ c\"" },            // every second blank of a run is escaped
    { "a=\";,=\"", "a", quoted, ";,=", "a=\";,=\"" },
    { "a=\"\u00E9\U0001F600\"", "a", quoted, "\u00E9\U0001F600", "a=\"\u00E9\U0001F600\"" },
    { "", {} },
    { " ", {} },
    { "=", {} },
    { "=b", {} },
    { ";a", {} },
    { " a", {} }, // whitespace in front belongs to the separator
    { "a ", {} }, // behind a name, too: an equals sign does not follow
    { "a b", {} },
    { "a=", {} },
    { "a= ", {} },
    { "a=,", {} },
    { "a=;", {} },
    { "a=b ", {} }, // a token that does not reach the end fails at once
    { "a=b=c", {} },
    { "a=b;c", {} },
    { "a=b\"c\"", {} },
    { "a==b", {} },
    { "a=[::1", {} },
    { "a=[::1] ", {} },
    { "a=[::1]x", {} },
    { "a=[1.2.3.4]", {} },
    { "a=[]", {} },
    { "a=::1", {} }, // no address without brackets
    { "a=\"b", {} },
    { "a=\"", {} },
    { "a=\"x\" ", {} },
    { "a=\"x\"y", {} },
    { "a=\"b\\\"", {} }, // the closing quote is escaped
    { "a=\"b\nc\"", {} },
    { "\u00E9", {} },
    { "a=\u00E9", {} },
    { "a=b\u00E9", {} },
    { "\"a\"=b", {} },
    { "a\0"sv, {} },
    { "a=b\0"sv, {} },
};

TEST_F( GenericParam, StandardOperations )
{
    const Param param = Create( "a", token, "B" );
    EXPECT_STREQ( tolmoGenericParamSort()->name, "TOLMO_GENERIC_PARAM" );
    EXPECT_EQ( koObjSort( tolmoGenericParamObj( param.Get() ) ), tolmoGenericParamSort() );
    EXPECT_EQ( tolmoGenericParamFrom( tolmoGenericParamObj( param.Get() ) ), param.Get() );
    EXPECT_EQ( tolmoGenericParamFrom( nullptr ), nullptr );
    EXPECT_EQ( tolmoGenericParamRetain( param.Get() ), param.Get() );
    EXPECT_EQ( test::Count( param.Get() ), 2 );
    tolmoGenericParamRelease( param.Get() );
    EXPECT_EQ( test::Count( param.Get() ), 1 );
    EXPECT_EQ( test::Take( tolmoGenericParamToString( param.Get() ) ), "a=B" );
    EXPECT_TRUE( tolmoGenericParamEquals( nullptr, nullptr ) );
    EXPECT_FALSE( tolmoGenericParamEquals( param.Get(), nullptr ) );

    const auto other = Str( "x" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamFrom( koStringObj( other.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_GENERIC_PARAM" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamRetain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamRelease( nullptr ), "stdfunc release", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamCompare( nullptr, param.Get() ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamCompare( param.Get(), nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamToString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT( tolmoGenericParamCreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT( tolmoGenericParamSort()->free( nullptr ), path, "param" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamSort()->free( koStringObj( other.Get() ) ), "stdfunc from", path,
                          "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_GENERIC_PARAM" );
    EXPECT_ABORT( tolmoGenericParamSort()->compare( nullptr, tolmoGenericParamObj( param.Get() ) ), path, "paramA" );
    EXPECT_ABORT( tolmoGenericParamSort()->compare( tolmoGenericParamObj( param.Get() ), nullptr ), path, "paramB" );
}

TEST_F( GenericParam, FreePoisonsObjectFields )
{
    const Param param = Create( "a", token, "b" );
    const auto name = KoRef<KoString>::Share( param.Get()->name );
    const auto value = KoRef<KoString>::Share( param.Get()->value );
    tolmoGenericParamSort()->free( tolmoGenericParamObj( param.Get() ) );
    EXPECT_EQ( reinterpret_cast<intptr_t>( param.Get()->name ), -1 );
    EXPECT_EQ( param.Get()->type, token );
    EXPECT_EQ( reinterpret_cast<intptr_t>( param.Get()->value ), -1 );
    EXPECT_EQ( test::Count( value.Get() ), 1 );
    param.Get()->name = nullptr; // for its second end
    param.Get()->value = nullptr;
}

TEST_F( GenericParam, Create )
{
    const Param bare = Create( "Name" );
    EXPECT_EQ( Name( bare ), "name" );
    EXPECT_FALSE( tolmoGenericParamHasValue( bare.Get() ) );
    EXPECT_EQ( tolmoGenericParamValueType( bare.Get() ), -1 );
    EXPECT_EQ( tolmoGenericParamValueNonNormalized( bare.Get() ), nullptr );
    EXPECT_EQ( tolmoGenericParamValueNormalized( bare.Get() ), nullptr );

    const Param full = Create( "N", token, "Value" );
    EXPECT_EQ( Name( full ), "n" );
    EXPECT_TRUE( tolmoGenericParamHasValue( full.Get() ) );
    EXPECT_EQ( tolmoGenericParamValueType( full.Get() ), token );
    EXPECT_EQ( Value( full ), "Value" );
    EXPECT_EQ( NormalValue( full ), "value" );

    const auto value = Str( "V" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateCstr( "Ab", 1 ) ) ), "a" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateCstr( "Ab", -1 ) ) ), "ab" );
    constexpr uint16_t wide[] = { 'A', 'b', 0 };
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateWcstr( wide, 1 ) ) ), "a" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateWcstr( wide, -1 ) ) ), "ab" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateWithValueCstr( "Ab", 1, token, value.Get() ) ) ), "a=V" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateWithValueCstr( "Ab", -1, quoted, value.Get() ) ) ), "ab=\"V\"" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateWithValueWcstr( wide, 1, token, value.Get() ) ) ), "a=V" );
    EXPECT_EQ( Encode( Own( tolmoGenericParamCreateWithValueWcstr( wide, -1, host, value.Get() ) ) ), "ab=V" );

    constexpr char nameOk[] = "tolmoGenericParamNameOk( name )";
    constexpr char valueOk[] = "tolmoGenericParamValueOk( type, value )";
    EXPECT_ABORT( tolmoGenericParamCreate( nullptr ), tokenPath, "token" );
    EXPECT_ABORT( Create( "" ), path, nameOk );
    EXPECT_ABORT( Create( "a b" ), path, nameOk );
    EXPECT_ABORT( Create( "a=b" ), path, nameOk );
    EXPECT_ABORT( Create( "\u00E9" ), path, nameOk );
    EXPECT_ABORT( tolmoGenericParamCreateCstr( "a;", -1 ), path, nameOk );
    EXPECT_ABORT( tolmoGenericParamCreateWcstr( wide, 0 ), path, nameOk );
    EXPECT_ABORT( Create( "", token, "" ), path, nameOk ); // the name first
    EXPECT_ABORT( Create( "a", token, "" ), path, valueOk );
    EXPECT_ABORT( Create( "a", host, "" ), path, valueOk );
    EXPECT_ABORT( Create( "a", quoted, "\n" ), path, valueOk );
    EXPECT_ABORT( Create( "a", -1, "x" ), valuePath, "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type )" );
    EXPECT_ABORT( Create( "a", 3, "x" ), valuePath, "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type )" );
    EXPECT_ABORT( tolmoGenericParamCreateWithValue( Str( "a" ).Get(), token, nullptr ), valuePath, "value" );
    EXPECT_ABORT( tolmoGenericParamCreateWithValueCstr( " ", -1, token, value.Get() ), path, nameOk );
    EXPECT_ABORT( tolmoGenericParamCreateWithValueWcstr( wide, -1, token, Str( " " ).Get() ), path, valueOk );
}

TEST_F( GenericParam, Getters )
{
    EXPECT_ABORT( tolmoGenericParamName( nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamHasValue( nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamValueType( nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamValueNonNormalized( nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamValueNormalized( nullptr ), path, "param" );

    // What is in its normal form already, and what has no other, is given out itself.
    const Param param = Create( "a", quoted, "B" );
    EXPECT_EQ( Own( tolmoGenericParamValueNormalized( param.Get() ) ).Get(), param.Get()->value );
}

TEST_F( GenericParam, SetName )
{
    Param param = Create( "a", token, "B" );
    const TolmoGenericParam object = param.Get();
    tolmoGenericParamSetName( param.Address(), Str( "Cd" ).Get() );
    EXPECT_EQ( param.Get(), object ); // the only reference: changed in place
    EXPECT_EQ( Encode( param ), "cd=B" );
    tolmoGenericParamSetNameCstr( param.Address(), "Efg", 2 );
    EXPECT_EQ( Encode( param ), "ef=B" );
    constexpr uint16_t wide[] = { 'H', 0 };
    tolmoGenericParamSetNameWcstr( param.Address(), wide, -1 );
    EXPECT_EQ( Encode( param ), "h=B" );

    const Param other = Param::Share( param.Get() );
    tolmoGenericParamSetName( param.Address(), Str( "x" ).Get() );
    EXPECT_NE( param.Get(), other.Get() );
    EXPECT_EQ( Encode( param ), "x=B" );
    EXPECT_EQ( Encode( other ), "h=B" );

    // Its own name goes in while it is dropped.
    tolmoGenericParamSetName( param.Address(), param.Get()->name );
    EXPECT_EQ( Encode( param ), "x=B" );

    TolmoGenericParam null = nullptr;
    EXPECT_ABORT( tolmoGenericParamSetName( nullptr, nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamSetName( &null, nullptr ), path, "*param" );
    EXPECT_ABORT( tolmoGenericParamSetName( param.Address(), nullptr ), tokenPath, "token" );
    EXPECT_ABORT( tolmoGenericParamSetName( param.Address(), Str( "" ).Get() ), path,
                  "tolmoGenericParamNameOk( name )" );
    EXPECT_ABORT( tolmoGenericParamSetNameCstr( param.Address(), "a b", -1 ), path, "tolmoGenericParamNameOk( name )" );
    EXPECT_ABORT( tolmoGenericParamSetNameWcstr( param.Address(), wide, 0 ), path, "tolmoGenericParamNameOk( name )" );
}

TEST_F( GenericParam, SetAndDelValue )
{
    Param param = Create( "a" );
    const TolmoGenericParam object = param.Get();
    tolmoGenericParamSetValue( param.Address(), token, Str( "B" ).Get() );
    EXPECT_EQ( Encode( param ), "a=B" );
    tolmoGenericParamSetValue( param.Address(), quoted, param.Get()->value ); // its own value
    EXPECT_EQ( Encode( param ), "a=\"B\"" );
    tolmoGenericParamSetValue( param.Address(), host, Str( "b\u00FCcher.example" ).Get() );
    EXPECT_EQ( Encode( param ), "a=xn--bcher-kva.example" );
    EXPECT_EQ( Value( param ), "b\u00FCcher.example" );
    EXPECT_EQ( param.Get(), object );
    {
        const Param other = Param::Share( param.Get() );
        tolmoGenericParamDelValue( param.Address() );
        EXPECT_NE( param.Get(), other.Get() );
        EXPECT_TRUE( tolmoGenericParamHasValue( other.Get() ) );
    }
    EXPECT_FALSE( tolmoGenericParamHasValue( param.Get() ) );
    EXPECT_EQ( tolmoGenericParamValueType( param.Get() ), -1 );
    EXPECT_EQ( tolmoGenericParamValueNonNormalized( param.Get() ), nullptr );
    EXPECT_EQ( Encode( param ), "a" );
    tolmoGenericParamDelValue( param.Address() ); // twice is no fault
    EXPECT_EQ( Encode( param ), "a" );
    {
        const Param other = Param::Share( param.Get() );
        tolmoGenericParamSetValue( param.Address(), token, Str( "c" ).Get() );
        EXPECT_EQ( Encode( other ), "a" );
        EXPECT_EQ( Encode( param ), "a=c" );
    }

    TolmoGenericParam null = nullptr;
    const auto value = Str( "x y" );
    EXPECT_ABORT( tolmoGenericParamSetValue( nullptr, 7, nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamSetValue( &null, 7, nullptr ), path, "*param" );
    EXPECT_ABORT( tolmoGenericParamSetValue( param.Address(), 7, nullptr ), valuePath,
                  "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type )" );
    EXPECT_ABORT( tolmoGenericParamSetValue( param.Address(), host, nullptr ), valuePath, "value" );
    EXPECT_ABORT( tolmoGenericParamSetValue( param.Address(), token, value.Get() ), path,
                  "tolmoGenericParamValueOk( type, value )" );
    EXPECT_ABORT( tolmoGenericParamDelValue( nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamDelValue( &null ), path, "*param" );
}

TEST_F( GenericParam, NormalizeValue )
{
    Param param = Create( "a", token, "BC" );
    {
        const Param other = Param::Share( param.Get() );
        tolmoGenericParamNormalizeValue( param.Address() );
        EXPECT_EQ( Value( param ), "bc" );
        EXPECT_EQ( Value( other ), "BC" );
    }
    Param bare = Create( "a" );
    {
        const Param other = Param::Share( bare.Get() );
        tolmoGenericParamNormalizeValue( bare.Address() );
        EXPECT_EQ( bare.Get(), other.Get() ); // without a value not even a copy is made
    }
    Param text = Create( "a", quoted, "BC" );
    tolmoGenericParamNormalizeValue( text.Address() );
    EXPECT_EQ( Value( text ), "BC" );

    TolmoGenericParam null = nullptr;
    EXPECT_ABORT( tolmoGenericParamNormalizeValue( nullptr ), path, "param" );
    EXPECT_ABORT( tolmoGenericParamNormalizeValue( &null ), path, "*param" );
}

TEST_F( GenericParam, Name )
{
    EXPECT_TRUE( tolmoGenericParamNameOk( Str( "aB-.!%*_+`'~1" ).Get() ) );
    EXPECT_FALSE( tolmoGenericParamNameOk( Str( "" ).Get() ) );
    EXPECT_FALSE( tolmoGenericParamNameOk( Str( "a b" ).Get() ) );
    EXPECT_FALSE( tolmoGenericParamNameOk( Str( "\u00E9" ).Get() ) );
    EXPECT_EQ( test::Take( tolmoGenericParamNameNormalize( Str( "aB" ).Get() ) ), "ab" );
    EXPECT_ABORT( tolmoGenericParamNameOk( nullptr ), tokenPath, "token" );
    EXPECT_ABORT( tolmoGenericParamNameNormalize( nullptr ), tokenPath, "token" );
    EXPECT_ABORT( tolmoGenericParamNameNormalize( Str( "a b" ).Get() ), tokenPath, "tolmoTokenOk( token )" );
}

TEST_F( GenericParam, ValueOkAndNormalize )
{
    const struct {
        KoInt type;
        std::string_view value;
        std::string_view normal; // null: refused
    } rows[] = {
        { token, "B", "b" },
        { token, "", {} },
        { token, "a b", {} },
        { token, "\u00E9", {} },
        { host, "Example.COM", "Example.COM" }, // not lowered
        { host, "[::1]", "[::1]" },
        { host, "b\u00FCcher.example", "b\u00FCcher.example" },
        { host, "", {} },
        { host, "a_b", {} },
        { host, "::1", {} },
        { quoted, "", "" },
        { quoted, "A \"b\" \\\t\u00E9", "A \"b\" \\\t\u00E9" },
        { quoted, "\r", {} },
        { quoted, "a\nb", {} },
    };
    for ( const auto &row : rows ) {
        const auto value = Str( row.value );
        EXPECT_EQ( tolmoGenericParamValueOk( row.type, value.Get() ), row.normal.data() != nullptr )
            << row.type << " " << row.value;
        if ( row.normal.data() ) {
            EXPECT_EQ( test::Take( tolmoGenericParamValueNormalize( row.type, value.Get() ) ), row.normal );
        }
    }
    constexpr char typeOk[] = "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type )";
    for ( const KoInt type : { KoInt{ -1 }, KoInt{ 3 }, INT64_MIN, INT64_MAX } ) {
        EXPECT_FALSE( TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
        EXPECT_ABORT( tolmoGenericParamValueOk( type, nullptr ), valuePath, typeOk );
        EXPECT_ABORT( tolmoGenericParamValueNormalize( type, nullptr ), valuePath, typeOk );
    }
    for ( const KoInt type : { token, host, quoted } ) {
        EXPECT_TRUE( TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type ) );
        EXPECT_ABORT( tolmoGenericParamValueOk( type, nullptr ), valuePath, "value" );
        EXPECT_ABORT( tolmoGenericParamValueNormalize( type, nullptr ), valuePath, "value" );
    }
    EXPECT_ABORT( tolmoGenericParamValueNormalize( token, Str( "a b" ).Get() ), tokenPath, "tolmoTokenOk( token )" );
    EXPECT_EQ( token, 0 );
    EXPECT_EQ( host, 1 );
    EXPECT_EQ( quoted, 2 );
}

TEST_F( GenericParam, Encode )
{
    EXPECT_EQ( Encode( Create( "a" ) ), "a" );
    EXPECT_EQ( Encode( Create( "A", token, "B" ) ), "a=B" );
    EXPECT_EQ( Encode( Create( "a", host, "Example.com" ) ), "a=Example.com" );
    EXPECT_EQ( Encode( Create( "a", quoted, "" ) ), "a=\"\"" );
    EXPECT_ABORT( tolmo___GenericParamEncode( nullptr ), path, "param" );

    const Param param = Create( "a", token, "b" );
    for ( const KoInt type : { 3, -1 } ) { // no operation stores such a type
        param.Get()->type = type;
        EXPECT_ABORT_MESSAGE( tolmo___GenericParamEncode( param.Get() ),
                              "TOLMO_GENERIC_PARAM_VALUE_TYPE not implemented", path,
                              "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( param->type )" );
        EXPECT_ABORT_MESSAGE( tolmoGenericParamToString( param.Get() ),
                              "TOLMO_GENERIC_PARAM_VALUE_TYPE not implemented", path,
                              "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( param->type )" );
    }
}

TEST_F( GenericParam, TryDecode )
{
    for ( const auto &row : decodeRows ) {
        const Param param = Decode( row.text );
        ASSERT_EQ( static_cast<bool>( param ), row.name.data() != nullptr ) << "text: " << row.text;
        if ( param ) {
            EXPECT_EQ( Name( param ), row.name ) << "text: " << row.text;
            EXPECT_EQ( tolmoGenericParamValueType( param.Get() ), row.type ) << "text: " << row.text;
            EXPECT_EQ( Value( param ), row.value.data() ? row.value : "(null)" ) << "text: " << row.text;
            EXPECT_EQ( Encode( param ), row.encoded ) << "text: " << row.text;
        }
    }
    EXPECT_EQ( tolmo___GenericParamTryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( tolmo___GenericParamTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___GenericParamTryDecode( nullptr, 1 ), path, "chs || length == 0" );
}

// In exact-size blocks, so that a sanitizer sees every read behind the end. A prefix is a parameter exactly when the skip
// function takes all of it.
TEST_F( GenericParam, EveryPrefix )
{
    for ( const auto &row : decodeRows ) {
        const auto text = Str( row.text );
        for ( KoInt length = 0; length <= koStringLength( text.Get() ); ++length ) {
            const test::Exact chs( text.Get(), length );
            const Param param = Own( tolmo___GenericParamTryDecode( chs.Chars(), length ) );
            const bool whole = length > 0 && tolmo___SkipGenericParam( chs.Chars(), length ) == length;
            EXPECT_EQ( static_cast<bool>( param ), whole ) << "text: " << row.text << ", prefix " << length;
        }
    }
}

TEST_F( GenericParam, Compare )
{
    // In ascending order; those of a group are equal.
    const std::vector<std::vector<std::string_view>> groups = {
        { "a", "A" },                             // type -1
        { "a=0" },     { "a=b", "A=B", "a = B" }, // tokens in any case
        { "a=c" },     { "a=[::1]" },             // type 1
        { "a=[::A]" },                            // exactly
        { "a=[::a]" }, { "a=\"\"" },              // type 2
        { "a=\"B\"" }, { "a=\"b\"", "a=\"\\b\"" },
        { "b" },       { "b=a" },
    };
    for ( size_t a = 0; a < groups.size(); ++a ) {
        for ( size_t b = 0; b < groups.size(); ++b ) {
            for ( const auto textA : groups[a] ) {
                for ( const auto textB : groups[b] ) {
                    const Param paramA = Decode( textA );
                    const Param paramB = Decode( textB );
                    const KoInt result = tolmoGenericParamCompare( paramA.Get(), paramB.Get() );
                    EXPECT_EQ( result < 0, a < b ) << textA << " " << textB;
                    EXPECT_EQ( result > 0, a > b ) << textA << " " << textB;
                    EXPECT_EQ( tolmoGenericParamEquals( paramA.Get(), paramB.Get() ), a == b );
                }
            }
        }
    }
    // A host of the caller comes back as a token, and is not equal any more.
    const Param given = Create( "a", host, "example.com" );
    EXPECT_FALSE( tolmoGenericParamEquals( given.Get(), Decode( Encode( given ) ).Get() ) );
    // A null value is less than one. No operation makes such a pair.
    const Param full = Create( "a", token, "b" );
    const Param bare = Create( "a" );
    bare.Get()->type = token;
    EXPECT_LT( tolmoGenericParamCompare( bare.Get(), full.Get() ), 0 );
    EXPECT_GT( tolmoGenericParamCompare( full.Get(), bare.Get() ), 0 );
}

TEST_F( GenericParam, CreateFromShares )
{
    const Param param = Create( "a", token, "B" );
    const Param copy = Own( tolmoGenericParamCreateFrom( param.Get() ) );
    EXPECT_NE( copy.Get(), param.Get() );
    EXPECT_EQ( copy.Get()->name, param.Get()->name );
    EXPECT_EQ( copy.Get()->value, param.Get()->value );
    EXPECT_EQ( copy.Get()->type, token );
    EXPECT_TRUE( tolmoGenericParamEquals( copy.Get(), param.Get() ) );
    const Param bare = Own( tolmoGenericParamCreateFrom( Create( "a" ).Get() ) );
    EXPECT_EQ( Encode( bare ), "a" );
}

/** A text of characters of an alphabet. */
std::string Random( std::mt19937 &random, std::string_view alphabet, size_t least, size_t spread )
{
    std::string text;
    for ( size_t length = least + random() % spread; length > 0; --length ) {
        text += alphabet[random() % alphabet.size()];
    }
    return text;
}

TEST_F( GenericParam, DecodeOfEncodeOfAny )
{
    constexpr std::string_view tokens = "aAbBzZ09-.!%*_+`'~";
    constexpr std::string_view texts = "aB  \t\"\\;,=<>\x01\x7F"sv;
    std::mt19937 random( 31 );
    for ( int i = 0; i < 5000; ++i ) {
        const std::string name = Random( random, tokens, 1, 8 );
        Param param = Create( name );
        switch ( random() % 4 ) {
        case 0:
            break;
        case 1:
            param = Create( name, token, Random( random, tokens, 1, 12 ) );
            break;
        case 2:
            param = Create( name, host, "[" + Random( random, "0123456789abcdefABCDEF", 1, 4 ) + "::1]" );
            break;
        default:
            param = Create( name, quoted, Random( random, texts, 0, 16 ) );
        }
        const std::string encoded = Encode( param );
        const Param back = Decode( encoded );
        ASSERT_TRUE( back ) << encoded;
        EXPECT_TRUE( tolmoGenericParamEquals( back.Get(), param.Get() ) ) << encoded;
        EXPECT_EQ( Encode( back ), encoded );
        EXPECT_EQ( Value( back ), Value( param ) );

        Param changed = Param::Share( param.Get() );
        tolmoGenericParamSetValue( changed.Address(), token, Str( "changed" ).Get() );
        EXPECT_EQ( Encode( param ), encoded );
    }
}

// What the skip function takes whole is decoded, and the other way round.
TEST_F( GenericParam, SkipAndTryDecodeAgree )
{
    constexpr std::string_view alphabet = "aB=== \t\"\"\\[]::1.;%";
    std::mt19937 random( 32 );
    for ( int i = 0; i < 50000; ++i ) {
        const std::string text = Random( random, alphabet, 0, 12 );
        const test::Exact chs( text );
        const bool whole = chs.Length() > 0 && tolmo___SkipGenericParam( chs.Chars(), chs.Length() ) == chs.Length();
        EXPECT_EQ( static_cast<bool>( Decode( text ) ), whole ) << "text: " << text;
    }
}

TEST_F( GenericParam, QuotedStringOfAMegabyte )
{
    const std::string text( 1 << 20, 'x' );
    const Param param = Decode( "a=\"" + text + "\"" );
    ASSERT_TRUE( param );
    EXPECT_EQ( koStringLength( param.Get()->value ), 1 << 20 );
    EXPECT_EQ( Encode( param ), "a=\"" + text + "\"" );
    EXPECT_FALSE( Decode( "a=\"" + text ) );

    const Param blanks = Create( "a", quoted, std::string( 1 << 20, ' ' ) );
    EXPECT_EQ( Encode( blanks ).size(), 4 + ( 1 << 20 ) * 3 / 2 );
    EXPECT_TRUE( tolmoGenericParamEquals( Decode( Encode( blanks ) ).Get(), blanks.Get() ) );
}

} // namespace
