#include "tolmo_test.h"

#include <random>

namespace {

using test::Own;
using test::Str;
using Param = KoRef<TolmoGenericParam>;
using Params = KoRef<TolmoGenericParams>;

class GenericParams : public test::TolmoFixture {};

constexpr char path[] = "source/tolmo/tolmo_generic_params.cpp";
constexpr char paramPath[] = "source/tolmo/tolmo_generic_param.cpp";
constexpr char valuePath[] = "source/tolmo/tolmo_generic_param_value.cpp";
constexpr char tokenPath[] = "source/tolmo/tolmo_token.cpp";
constexpr char tokenOk[] = "tolmoTokenOk( token )";
constexpr KoInt token = TOLMO_GENERIC_PARAM_VALUE_TYPE_TOKEN;
constexpr KoInt quoted = TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING;
constexpr uint16_t wideA[] = { 'A', 0 };

Param One( std::string_view text )
{
    const test::Exact chs( text );
    return Own( tolmo___GenericParamTryDecode( chs.Chars(), chs.Length() ) );
}

Params Decode( std::string_view text )
{
    const test::Exact chs( text );
    return Own( tolmo___GenericParamsTryDecode( chs.Chars(), chs.Length() ) );
}

std::string Encode( const Params &params )
{
    return test::Take( tolmo___GenericParamsEncode( params.Get() ) );
}

void Set( Params &params, std::string_view text )
{
    tolmoGenericParamsSetParam( params.Address(), One( text ).Get() );
}

KoBool Has( const Params &params, std::string_view name )
{
    return tolmoGenericParamsHasParam( params.Get(), Str( name ).Get() );
}

const struct DecodeRow {
    std::string_view text;
    std::string_view encoded; // null: refused
} decodeRows[] = {
    { "", "" },
    { ";a", ";a" },
    { ";LR", ";lr" },
    { ";a=b", ";a=b" },
    { ";A=B", ";a=B" },
    { ";a;b=c", ";a;b=c" },
    { "; a = b ;c", ";a=b;c" }, // whitespace around separators is dropped
    { " \t;\t a=b", ";a=b" },
    { ";x=[::1]", ";x=[::1]" },
    { ";x=\"a b\"", ";x=\"a b\"" },
    { ";x=\"a;b\";y", ";x=\"a;b\";y" },
    { ";a=1;a=2", ";a=2" },             // the last one wins
    { ";a=1;b;A=\"2\"", ";a=\"2\";b" }, // in the place of the first one
    { ";a=1;b;a", ";a;b" },
    { ";", "" }, // a lone semicolon at the end is tolerated
    { ";a=b;", ";a=b" },
    { ";a=b; ", ";a=b" },
    { " ; ", "" },
    { " ", {} },
    { "a", {} },
    { "a=b", {} },
    { ";;", {} },
    { ";a;;b", {} },
    { ";a=b;;c", {} },
    { ";a;;", {} },
    { ";a=", {} },
    { ";b;a=", {} },
    { ";a ", {} }, // behind a parameter only a separator takes whitespace
    { ";a b", {} },
    { ";a,b", {} },
    { ",", {} },
    { ";a=\"b", {} },
    { ";a=b\"c\"", {} },
    { ";a=[::1", {} },
    { ";\u00E9", {} },
};

TEST_F( GenericParams, StandardOperations )
{
    const Params params = Decode( ";a=B;c" );
    EXPECT_STREQ( tolmoGenericParamsSort()->name, "TOLMO_GENERIC_PARAMS" );
    EXPECT_EQ( koObjSort( tolmoGenericParamsObj( params.Get() ) ), tolmoGenericParamsSort() );
    EXPECT_EQ( tolmoGenericParamsFrom( tolmoGenericParamsObj( params.Get() ) ), params.Get() );
    EXPECT_EQ( tolmoGenericParamsFrom( nullptr ), nullptr );
    EXPECT_EQ( tolmoGenericParamsRetain( params.Get() ), params.Get() );
    tolmoGenericParamsRelease( params.Get() );
    EXPECT_EQ( test::Take( tolmoGenericParamsToString( params.Get() ) ), ";a=B;c" );
    EXPECT_TRUE( tolmoGenericParamsEquals( nullptr, nullptr ) );
    EXPECT_FALSE( tolmoGenericParamsEquals( nullptr, params.Get() ) );

    constexpr char from[] = "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_GENERIC_PARAMS";
    const Param param = One( "a" );
    const KoObj other = tolmoGenericParamObj( param.Get() );
    const KoObj obj = tolmoGenericParamsObj( params.Get() );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsFrom( other ), "stdfunc from", path, from );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsRetain( nullptr ), "stdfunc retain", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsRelease( nullptr ), "stdfunc release", path, "obj" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsCompare( nullptr, params.Get() ), "stdfunc compare a", path, "objA" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsCompare( params.Get(), nullptr ), "stdfunc compare b", path, "objB" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsToString( nullptr ), "stdfunc tostring", path, "obj" );
    EXPECT_ABORT( tolmoGenericParamsCreateFrom( nullptr ), path, "source" );
    EXPECT_ABORT( tolmoGenericParamsSort()->free( nullptr ), path, "params" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsSort()->free( other ), "stdfunc from", path, from );
    EXPECT_ABORT( tolmoGenericParamsSort()->compare( nullptr, obj ), path, "paramsA" );
    EXPECT_ABORT( tolmoGenericParamsSort()->compare( obj, nullptr ), path, "paramsB" );
}

TEST_F( GenericParams, CreateIsEmpty )
{
    const Params params = Own( tolmoGenericParamsCreate() );
    EXPECT_EQ( tolmoGenericParamsLength( params.Get() ), 0 );
    EXPECT_EQ( Encode( params ), "" );
    EXPECT_EQ( koVectorLength( Own( tolmoGenericParamsParamsVector( params.Get() ) ).Get() ), 0 );
    EXPECT_ABORT( tolmoGenericParamsLength( nullptr ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamsVector( nullptr ), path, "params" );
}

TEST_F( GenericParams, ParamsVector )
{
    const Params params = Decode( ";b;a=1;c" );
    const auto vector = Own( tolmoGenericParamsParamsVector( params.Get() ) );
    ASSERT_EQ( koVectorLength( vector.Get() ), 3 );
    EXPECT_TRUE( koVectorContainsOnly( vector.Get(), tolmoGenericParamSort() ) );

    Params other = Decode( ";x;a=2" );
    const TolmoGenericParams object = other.Get();
    tolmoGenericParamsSetParamsVector( other.Address(), vector.Get() );
    EXPECT_EQ( other.Get(), object );
    EXPECT_EQ( Encode( other ), ";b;a=1;c" );

    // The list's own parameters, turned round, and one name twice: the last one in the place of the first.
    auto turned = Own( koVectorCreate() );
    for ( const KoInt index : { 2, 1, 0 } ) {
        koVectorAppendObj( turned.Address(), Own( koVectorObjAt( vector.Get(), index ) ).Get() );
    }
    koVectorAppendObj( turned.Address(), tolmoGenericParamObj( One( "c=3" ).Get() ) );
    {
        const Params shared = Params::Share( other.Get() );
        tolmoGenericParamsSetParamsVector( other.Address(), turned.Get() );
        EXPECT_EQ( Encode( other ), ";c=3;a=1;b" );
        EXPECT_EQ( Encode( shared ), ";b;a=1;c" );
    }
    tolmoGenericParamsSetParamsVector( other.Address(), Own( koVectorCreate() ).Get() );
    EXPECT_EQ( tolmoGenericParamsLength( other.Get() ), 0 );

    TolmoGenericParams null = nullptr;
    auto strings = Own( koVectorCreate() );
    koVectorAppendString( strings.Address(), Str( "a" ).Get() );
    EXPECT_ABORT( tolmoGenericParamsSetParamsVector( nullptr, nullptr ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsSetParamsVector( &null, nullptr ), path, "*params" );
    EXPECT_ABORT( tolmoGenericParamsSetParamsVector( other.Address(), nullptr ), path, "vector" );
    EXPECT_ABORT_MESSAGE( tolmoGenericParamsSetParamsVector( other.Address(), strings.Get() ), "stdfunc from",
                          paramPath, "!obj || koObjSort(obj)==&tolmo___sort_TOLMO_GENERIC_PARAM" );
}

TEST_F( GenericParams, ByName )
{
    const Params params = Decode( ";a=B;c;d=\"E\"" );
    const TolmoGenericParams p = params.Get();
    EXPECT_TRUE( Has( params, "a" ) );
    EXPECT_TRUE( Has( params, "A" ) ); // in any case
    EXPECT_TRUE( Has( params, "c" ) );
    EXPECT_FALSE( Has( params, "x" ) );
    EXPECT_TRUE( tolmoGenericParamsHasParamCstr( p, "A", -1 ) );
    EXPECT_FALSE( tolmoGenericParamsHasParamCstr( p, "Ax", 2 ) );
    EXPECT_TRUE( tolmoGenericParamsHasParamWcstr( p, wideA, -1 ) );

    EXPECT_EQ( test::Take( tolmoGenericParamToString( Own( tolmoGenericParamsParam( p, Str( "A" ).Get() ) ).Get() ) ),
               "a=B" );
    EXPECT_TRUE( Own( tolmoGenericParamsParamCstr( p, "A", 1 ) ) );
    EXPECT_TRUE( Own( tolmoGenericParamsParamWcstr( p, wideA, 1 ) ) );
    EXPECT_EQ( tolmoGenericParamsParam( p, Str( "x" ).Get() ), nullptr );
    EXPECT_EQ( tolmoGenericParamsParamCstr( p, "x", -1 ), nullptr );

    EXPECT_EQ( tolmoGenericParamsParamValueType( p, Str( "A" ).Get() ), token );
    EXPECT_EQ( tolmoGenericParamsParamValueTypeCstr( p, "D", -1 ), quoted );
    EXPECT_EQ( tolmoGenericParamsParamValueTypeWcstr( p, wideA, -1 ), token );
    EXPECT_EQ( tolmoGenericParamsParamValueTypeCstr( p, "c", -1 ), -1 ); // no value
    EXPECT_EQ( tolmoGenericParamsParamValueTypeCstr( p, "x", -1 ), -1 ); // not there

    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNormalized( p, Str( "A" ).Get() ) ), "b" );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNormalizedCstr( p, "d", -1 ) ), "E" );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNormalizedWcstr( p, wideA, -1 ) ), "b" );
    EXPECT_EQ( tolmoGenericParamsParamValueNormalizedCstr( p, "c", -1 ), nullptr );
    EXPECT_EQ( tolmoGenericParamsParamValueNormalizedCstr( p, "x", -1 ), nullptr );

    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNonNormalized( p, Str( "A" ).Get() ) ), "B" );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNonNormalizedCstr( p, "d", -1 ) ), "E" );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNonNormalizedWcstr( p, wideA, -1 ) ), "B" );
    EXPECT_EQ( tolmoGenericParamsParamValueNonNormalizedCstr( p, "c", -1 ), nullptr );
    EXPECT_EQ( tolmoGenericParamsParamValueNonNormalizedCstr( p, "x", -1 ), nullptr );
}

// Also a query ends the process when the name is none.
TEST_F( GenericParams, ByNameAborts )
{
    const Params params = Decode( ";a" );
    const TolmoGenericParams p = params.Get();
    const auto bad = Str( "a b" );
    const auto name = Str( "a" );
    EXPECT_ABORT( tolmoGenericParamsHasParam( nullptr, bad.Get() ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsHasParam( p, nullptr ), tokenPath, "token" );
    EXPECT_ABORT( tolmoGenericParamsHasParam( p, bad.Get() ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsHasParamCstr( p, "", 0 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsHasParamWcstr( p, wideA, 0 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParam( nullptr, name.Get() ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParam( p, bad.Get() ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamCstr( p, ";", 1 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamWcstr( p, wideA, 2 ), tokenPath, tokenOk ); // the zero as well
    EXPECT_ABORT( tolmoGenericParamsParamValueType( nullptr, name.Get() ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamValueType( p, bad.Get() ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueTypeCstr( p, "", -1 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueTypeWcstr( p, wideA, 0 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueNormalized( nullptr, name.Get() ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamValueNormalized( p, bad.Get() ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueNormalizedCstr( p, "", -1 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueNormalizedWcstr( p, wideA, 0 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueNonNormalized( nullptr, name.Get() ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamValueNonNormalized( p, bad.Get() ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueNonNormalizedCstr( p, "", -1 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsParamValueNonNormalizedWcstr( p, wideA, 0 ), tokenPath, tokenOk );
}

TEST_F( GenericParams, ByPosition )
{
    const Params params = Decode( ";b=C;a" );
    const TolmoGenericParams p = params.Get();
    EXPECT_EQ( tolmoGenericParamsLength( p ), 2 );
    EXPECT_EQ( test::Take( tolmoGenericParamToString( Own( tolmoGenericParamsParamAt( p, 0 ) ).Get() ) ), "b=C" );
    EXPECT_EQ( test::Take( tolmoGenericParamToString( Own( tolmoGenericParamsParamAt( p, 1 ) ).Get() ) ), "a" );
    EXPECT_EQ( tolmoGenericParamsParamValueTypeAt( p, 0 ), token );
    EXPECT_EQ( tolmoGenericParamsParamValueTypeAt( p, 1 ), -1 );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNormalizedAt( p, 0 ) ), "c" );
    EXPECT_EQ( tolmoGenericParamsParamValueNormalizedAt( p, 1 ), nullptr );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNonNormalizedAt( p, 0 ) ), "C" );
    EXPECT_EQ( tolmoGenericParamsParamValueNonNormalizedAt( p, 1 ), nullptr );

    EXPECT_ABORT( tolmoGenericParamsParamAt( nullptr, 0 ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamValueTypeAt( nullptr, 0 ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamValueNormalizedAt( nullptr, 0 ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsParamValueNonNormalizedAt( nullptr, 0 ), path, "params" );
    constexpr char dictPath[] = "source/runtime/ko_dict.cpp";
    constexpr char inside[] = "index >= 0 && index < koDictLength( d )";
    for ( const KoInt index : { KoInt{ -1 }, KoInt{ 2 }, INT64_MAX } ) {
        EXPECT_ABORT( tolmoGenericParamsParamAt( p, index ), dictPath, inside );
        EXPECT_ABORT( tolmoGenericParamsParamValueTypeAt( p, index ), dictPath, inside );
        EXPECT_ABORT( tolmoGenericParamsParamValueNormalizedAt( p, index ), dictPath, inside );
        EXPECT_ABORT( tolmoGenericParamsParamValueNonNormalizedAt( p, index ), dictPath, inside );
    }
}

TEST_F( GenericParams, SetParam )
{
    Params params = Own( tolmoGenericParamsCreate() );
    const TolmoGenericParams object = params.Get();
    Set( params, "b" );
    Set( params, "a=1" );
    Set( params, "B=2" ); // in its place
    EXPECT_EQ( params.Get(), object );
    EXPECT_EQ( Encode( params ), ";b=2;a=1" );

    // The parameter itself is shared; a change of it does not reach the list.
    Param param = One( "c=3" );
    tolmoGenericParamsSetParam( params.Address(), param.Get() );
    EXPECT_EQ( test::Count( param.Get() ), 2 );
    tolmoGenericParamSetName( param.Address(), Str( "d" ).Get() );
    EXPECT_EQ( Encode( params ), ";b=2;a=1;c=3" );

    // And the one that a getter gives does not, either.
    Param got = Own( tolmoGenericParamsParamAt( params.Get(), 0 ) );
    tolmoGenericParamDelValue( got.Address() );
    EXPECT_EQ( Encode( params ), ";b=2;a=1;c=3" );

    TolmoGenericParams null = nullptr;
    EXPECT_ABORT( tolmoGenericParamsSetParam( nullptr, nullptr ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsSetParam( &null, nullptr ), path, "*params" );
    EXPECT_ABORT( tolmoGenericParamsSetParam( params.Address(), nullptr ), path, "param" );
}

TEST_F( GenericParams, SetParamValue )
{
    Params params = Decode( ";a;b" );
    const auto value = Str( "V" );
    tolmoGenericParamsSetParamValue( params.Address(), Str( "A" ).Get(), token, value.Get() );
    EXPECT_EQ( Encode( params ), ";a=V;b" );
    tolmoGenericParamsSetParamValueCstr( params.Address(), "Cd", 1, quoted, value.Get() );
    tolmoGenericParamsSetParamValueCstr( params.Address(), "D", -1, token, value.Get() );
    tolmoGenericParamsSetParamValueWcstr( params.Address(), wideA, -1, quoted, value.Get() );
    EXPECT_EQ( Encode( params ), ";a=\"V\";b;c=\"V\";d=V" );

    TolmoGenericParams null = nullptr;
    const auto name = Str( "a" );
    const auto bad = Str( "a b" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( nullptr, nullptr, 7, nullptr ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( &null, nullptr, 7, nullptr ), path, "*params" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( params.Address(), nullptr, 7, nullptr ), tokenPath, "token" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( params.Address(), bad.Get(), 7, nullptr ), paramPath,
                  "tolmoGenericParamNameOk( name )" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( params.Address(), name.Get(), 7, nullptr ), valuePath,
                  "TOLMO_GENERIC_PARAM_VALUE_TYPE_OK( type )" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( params.Address(), name.Get(), token, nullptr ), valuePath, "value" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValue( params.Address(), name.Get(), token, bad.Get() ), paramPath,
                  "tolmoGenericParamValueOk( type, value )" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValueCstr( params.Address(), "", 0, token, value.Get() ), paramPath,
                  "tolmoGenericParamNameOk( name )" );
    EXPECT_ABORT( tolmoGenericParamsSetParamValueWcstr( params.Address(), wideA, 0, token, value.Get() ), paramPath,
                  "tolmoGenericParamNameOk( name )" );
}

TEST_F( GenericParams, DelParam )
{
    Params params = Decode( ";a;b;c;d;e" );
    const TolmoGenericParams object = params.Get();
    tolmoGenericParamsDelParam( params.Address(), Str( "B" ).Get() );
    EXPECT_EQ( Encode( params ), ";a;c;d;e" );
    tolmoGenericParamsDelParam( params.Address(), Str( "x" ).Get() ); // not there: no fault
    tolmoGenericParamsDelParamCstr( params.Address(), "Ce", 1 );
    tolmoGenericParamsDelParamCstr( params.Address(), "e", -1 );
    tolmoGenericParamsDelParamWcstr( params.Address(), wideA, -1 );
    EXPECT_EQ( Encode( params ), ";d" );
    EXPECT_EQ( params.Get(), object );
    Set( params, "b" ); // deleted and set again: at the end
    EXPECT_EQ( Encode( params ), ";d;b" );

    TolmoGenericParams null = nullptr;
    EXPECT_ABORT( tolmoGenericParamsDelParam( nullptr, nullptr ), path, "params" );
    EXPECT_ABORT( tolmoGenericParamsDelParam( &null, nullptr ), path, "*params" );
    EXPECT_ABORT( tolmoGenericParamsDelParam( params.Address(), nullptr ), tokenPath, "token" );
    EXPECT_ABORT( tolmoGenericParamsDelParam( params.Address(), Str( "a b" ).Get() ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsDelParamCstr( params.Address(), "", 0 ), tokenPath, tokenOk );
    EXPECT_ABORT( tolmoGenericParamsDelParamWcstr( params.Address(), wideA, 0 ), tokenPath, tokenOk );
}

// In two layers: the list is copied when its handle is shared, the dictionary when the copy is the first to change.
TEST_F( GenericParams, CopyOnWrite )
{
    const auto one = One( "x" );
    const auto value = Str( "v" );
    const std::function<void( TolmoGenericParams * )> mutators[] = {
        [&]( auto p ) { tolmoGenericParamsSetParam( p, one.Get() ); },
        [&]( auto p ) { tolmoGenericParamsSetParamValueCstr( p, "a", -1, token, value.Get() ); },
        [&]( auto p ) { tolmoGenericParamsDelParamCstr( p, "a", -1 ); },
        [&]( auto p ) { tolmoGenericParamsSetParamsVector( p, Own( koVectorCreate() ).Get() ); },
    };
    for ( const auto &change : mutators ) {
        // Two handles of one list.
        const Params first = Decode( ";a=1;b" );
        Params second = Params::Share( first.Get() );
        change( second.Address() );
        EXPECT_NE( second.Get(), first.Get() );
        EXPECT_EQ( Encode( first ), ";a=1;b" );
        EXPECT_NE( Encode( second ), ";a=1;b" );
        EXPECT_EQ( test::Count( first.Get() ), 1 );

        // Two lists, one dictionary: the change stays in the list that it is made in, from either side.
        Params source = Decode( ";a=1;b" );
        Params copy = Own( tolmoGenericParamsCreateFrom( source.Get() ) );
        const TolmoGenericParams copied = copy.Get();
        change( copy.Address() );
        EXPECT_EQ( copy.Get(), copied );
        EXPECT_EQ( Encode( source ), ";a=1;b" );
        EXPECT_NE( Encode( copy ), ";a=1;b" );

        copy = Own( tolmoGenericParamsCreateFrom( source.Get() ) );
        change( source.Address() );
        EXPECT_EQ( Encode( copy ), ";a=1;b" );
        EXPECT_NE( Encode( source ), ";a=1;b" );
    }
}

TEST_F( GenericParams, Encode )
{
    EXPECT_EQ( Encode( Decode( ";a;b=C;d=\"e  f\"" ) ), ";a;b=C;d=\"e \\ f\"" );
    Params params = Own( tolmoGenericParamsCreate() );
    tolmoGenericParamsSetParamValueCstr( params.Address(), "h", -1, TOLMO_GENERIC_PARAM_VALUE_TYPE_HOST,
                                         Str( "b\u00FCcher.example" ).Get() );
    EXPECT_EQ( Encode( params ), ";h=xn--bcher-kva.example" );
    EXPECT_ABORT( tolmo___GenericParamsEncode( nullptr ), path, "params" );
}

TEST_F( GenericParams, TryDecode )
{
    for ( const auto &row : decodeRows ) {
        const Params params = Decode( row.text );
        ASSERT_EQ( static_cast<bool>( params ), row.encoded.data() != nullptr ) << "text: " << row.text;
        if ( params ) {
            EXPECT_EQ( Encode( params ), row.encoded ) << "text: " << row.text;
        }
    }
    EXPECT_EQ( Encode( Own( tolmo___GenericParamsTryDecode( nullptr, 0 ) ) ), "" );
    EXPECT_ABORT( tolmo___GenericParamsTryDecode( nullptr, -1 ), path, "length >= 0" );
    EXPECT_ABORT( tolmo___GenericParamsTryDecode( nullptr, 1 ), path, "chs || length == 0" );

    const Params last = Decode( ";a=1;a=2" );
    EXPECT_EQ( tolmoGenericParamsLength( last.Get() ), 1 );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNormalizedCstr( last.Get(), "a", -1 ) ), "2" );
}

// In exact-size blocks. A prefix is a list exactly when the skip function takes all of it, or all but a semicolon and the
// whitespace around it.
TEST_F( GenericParams, EveryPrefix )
{
    for ( const auto &row : decodeRows ) {
        const auto text = Str( row.text );
        for ( KoInt length = 0; length <= koStringLength( text.Get() ); ++length ) {
            const test::Exact chs( text.Get(), length );
            const Params params = Own( tolmo___GenericParamsTryDecode( chs.Chars(), length ) );
            KoInt taken = tolmo___SkipGenericParams( chs.Chars(), length );
            taken += tolmo___SkipSemi( chs.Chars() + taken, length - taken );
            EXPECT_EQ( static_cast<bool>( params ), taken == length ) << "text: " << row.text << ", prefix " << length;
        }
    }
}

TEST_F( GenericParams, Compare )
{
    const auto compare = []( std::string_view a, std::string_view b ) {
        return tolmoGenericParamsCompare( Decode( a ).Get(), Decode( b ).Get() );
    };
    EXPECT_EQ( compare( "", "" ), 0 );
    EXPECT_EQ( compare( ";a=B", ";A=b" ), 0 );
    EXPECT_EQ( compare( ";a;b=1", ";b=1;a" ), 0 ); // in any order
    EXPECT_NE( compare( ";a=\"B\"", ";a=\"b\"" ), 0 );
    EXPECT_NE( compare( ";a=b", ";a=\"b\"" ), 0 );
    EXPECT_LT( compare( "", ";a" ), 0 );
    EXPECT_LT( compare( ";a", ";a;b" ), 0 );
    EXPECT_LT( compare( ";a;c", ";b" ), 0 );
    EXPECT_GT( compare( ";c;a", ";a;b" ), 0 );
    EXPECT_LT( compare( ";a", ";a=1" ), 0 );
}

TEST_F( GenericParams, DecodeOfEncodeOfAny )
{
    static constexpr std::string_view pieces[] = { "a", "B", "a=1", "b=X", "c=\"q r\"", "d=[::1]", "e=\"\"", "F=x.y" };
    std::mt19937 random( 33 );
    for ( int i = 0; i < 2000; ++i ) {
        Params params = Own( tolmoGenericParamsCreate() );
        for ( auto count = random() % 12; count > 0; --count ) {
            Set( params, pieces[random() % std::size( pieces )] );
        }
        const std::string encoded = Encode( params );
        const Params back = Decode( encoded );
        ASSERT_TRUE( back ) << encoded;
        EXPECT_TRUE( tolmoGenericParamsEquals( back.Get(), params.Get() ) ) << encoded;
        EXPECT_EQ( Encode( back ), encoded );

        Params changed = Params::Share( params.Get() );
        Set( changed, "z=changed" );
        Set( changed, "a=changed" );
        EXPECT_EQ( Encode( params ), encoded );
    }
}

TEST_F( GenericParams, HundredThousand )
{
    constexpr int count = 100000;
    std::string text;
    for ( int i = 0; i < count; ++i ) {
        text += ";p" + std::to_string( i ) + "=" + std::to_string( i );
    }
    const Params params = Decode( text );
    ASSERT_TRUE( params );
    EXPECT_EQ( tolmoGenericParamsLength( params.Get() ), count );
    EXPECT_EQ( test::Take( tolmoGenericParamsParamValueNormalizedCstr( params.Get(), "p99999", -1 ) ), "99999" );
    EXPECT_EQ( Encode( params ), text );
    EXPECT_TRUE( tolmoGenericParamsEquals( params.Get(), Decode( Encode( params ) ).Get() ) );

    // One name over and over.
    std::string same;
    for ( int i = 0; i < count; ++i ) {
        same += ";p=" + std::to_string( i );
    }
    EXPECT_EQ( Encode( Decode( same ) ), ";p=99999" );
    // As many separators, cut off.
    EXPECT_FALSE( Decode( std::string( count, ';' ) ) );
}

} // namespace
