/*
 * Generic parameters: the list decoder takes what the skip function takes, and a semicolon at the end; a list is what a
 * simple model of it says, under any sequence of changes, and copies do not reach each other.
 *
 * The first line of the input makes the choices, the second is a list, the others are parameters.
 */
#include "fuzz.hpp"

#include <algorithm>

namespace fuzz {
namespace {

// A parameter as a list prints it, under its name.
struct Entry {
    std::string name;
    std::string text;
};
using Model = std::vector<Entry>;

Entry EntryOf( TolmoGenericParam param )
{
    return { Take( tolmoGenericParamName( param ) ), Take( tolmo___GenericParamEncode( param ) ) };
}

Model::iterator Find( Model &model, const std::string &name )
{
    return std::find_if( model.begin(), model.end(), [&]( const Entry &entry ) { return entry.name == name; } );
}

void CheckModel( TolmoGenericParams params, Model &model )
{
    std::string text;
    CHECK( tolmoGenericParamsLength( params ) == static_cast<KoInt>( model.size() ) );
    const auto vector = Own( tolmoGenericParamsParamsVector( params ) );
    for ( size_t i = 0; i < model.size(); ++i ) {
        const auto index = static_cast<KoInt>( i );
        const auto at = Own( tolmoGenericParamsParamAt( params, index ) );
        const auto named = Own( tolmoGenericParamsParam( params, Str( model[i].name ).Get() ) );
        CHECK( named && at.Get() == named.Get() );
        CHECK( Obj( at.Get() ) == Own( koVectorObjAt( vector.Get(), index ) ).Get() );
        CHECK_SAME( EntryOf( at.Get() ).text, model[i].text );
        CHECK( tolmoGenericParamsParamValueTypeAt( params, index ) == tolmoGenericParamValueType( at.Get() ) );
        CHECK_SAME( Take( tolmoGenericParamsParamValueNormalizedAt( params, index ) ),
                    Take( tolmoGenericParamValueNormalized( at.Get() ) ) );
        text += ";" + model[i].text;
    }
    CHECK_SAME( Take( tolmo___GenericParamsEncode( params ) ), text );
}

// Decodes the list, and fills the model with what it holds.
KoRef<TolmoGenericParams> DecodeList( std::string_view input, Model &model )
{
    const Exact text( input );
    const KoInt length = text.Length();
    const KoInt taken = tolmo___SkipGenericParams( text.Chars(), length );
    CHECK( Own( tolmo___GenericParamsTryDecode( text.Chars(), taken ) ) );
    auto params = Own( tolmo___GenericParamsTryDecode( text.Chars(), length ) );
    const bool trailingSemi =
        taken < length && tolmo___SkipSemi( text.Chars() + taken, length - taken ) == length - taken;
    CHECK( ( params.Get() != nullptr ) == ( taken == length || trailingSemi ) );
    if ( !params ) {
        return Own( tolmoGenericParamsCreate() );
    }
    for ( KoInt i = 0; i < tolmoGenericParamsLength( params.Get() ); ++i ) {
        model.push_back( EntryOf( Own( tolmoGenericParamsParamAt( params.Get(), i ) ).Get() ) );
    }
    const Exact printed( Own( tolmo___GenericParamsEncode( params.Get() ) ).Get() );
    const auto again = Own( tolmo___GenericParamsTryDecode( printed.Chars(), printed.Length() ) );
    CHECK( again && tolmoGenericParamsEquals( params.Get(), again.Get() ) );
    return params;
}

struct Handle {
    KoRef<TolmoGenericParams> params;
    Model model;
};

void Change( Handle &handle, TolmoGenericParam param, Choices &choices )
{
    const Entry entry = EntryOf( param );
    const auto name = Str( entry.name );
    const auto place = Find( handle.model, entry.name );
    CHECK( ( tolmoGenericParamsHasParam( handle.params.Get(), name.Get() ) != KO_FALSE ) ==
           ( place != handle.model.end() ) );
    switch ( choices.Below( 4 ) ) {
    case 0:
        tolmoGenericParamsDelParam( handle.params.Address(), name.Get() );
        if ( place != handle.model.end() ) {
            handle.model.erase( place );
        }
        return;
    case 1:
        if ( tolmoGenericParamHasValue( param ) ) {
            const auto value = Own( tolmoGenericParamValueNonNormalized( param ) );
            tolmoGenericParamsSetParamValue( handle.params.Address(), name.Get(), tolmoGenericParamValueType( param ),
                                             value.Get() );
            break;
        }
        [[fallthrough]];
    default:
        tolmoGenericParamsSetParam( handle.params.Address(), param );
    }
    if ( place != handle.model.end() ) {
        *place = entry;
    } else {
        handle.model.push_back( entry );
    }
}

// A parameter under changes of its own; what it was shared with stays.
void CheckParam( TolmoGenericParam param, TolmoGenericParam other )
{
    const std::string text = EntryOf( param ).text;
    auto changed = Own( tolmoGenericParamRetain( param ) );
    tolmoGenericParamNormalizeValue( changed.Address() );
    CHECK( tolmoGenericParamEquals( changed.Get(), param ) );
    CHECK_SAME( Take( tolmoGenericParamValueNonNormalized( changed.Get() ) ),
                Take( tolmoGenericParamValueNormalized( param ) ) );
    tolmoGenericParamSetName( changed.Address(), Own( tolmoGenericParamName( other ) ).Get() );
    if ( tolmoGenericParamHasValue( other ) ) {
        tolmoGenericParamSetValue( changed.Address(), tolmoGenericParamValueType( other ),
                                   Own( tolmoGenericParamValueNonNormalized( other ) ).Get() );
    } else {
        tolmoGenericParamDelValue( changed.Address() );
    }
    CHECK( tolmoGenericParamEquals( changed.Get(), other ) );
    CHECK_SAME( EntryOf( changed.Get() ).text, EntryOf( other ).text );
    CHECK_SAME( EntryOf( param ).text, text );
}

} // namespace

void ParamsTarget( std::string_view input )
{
    const std::vector<std::string_view> lines = Lines( input );
    std::vector<KoRef<TolmoGenericParam>> params;
    for ( size_t i = 2; i < lines.size(); ++i ) {
        const Exact text( lines[i] );
        const KoInt taken = tolmo___SkipGenericParam( text.Chars(), text.Length() );
        auto param = Own( tolmo___GenericParamTryDecode( text.Chars(), taken ) );
        CHECK( ( taken > 0 ) == ( param.Get() != nullptr ) );
        CHECK( taken == text.Length() || !Own( tolmo___GenericParamTryDecode( text.Chars(), text.Length() ) ) );
        if ( param ) {
            CheckParam( param.Get(), params.empty() ? param.Get() : params.back().Get() );
            params.push_back( std::move( param ) );
        }
    }
    std::vector<Handle> handles( 1 );
    handles[0].params = DecodeList( lines.size() > 1 ? lines[1] : "", handles[0].model );
    CheckModel( handles[0].params.Get(), handles[0].model );
    for ( Choices choices( lines[0] ); choices.Left() && !params.empty(); ) {
        Handle &handle = handles[choices.Below( handles.size() )];
        if ( choices.Below( 4 ) == 0 && handles.size() < 4 ) {
            Handle copy;
            copy.params = Own( choices.Below( 2 ) ? tolmoGenericParamsRetain( handle.params.Get() )
                                                  : tolmoGenericParamsCreateFrom( handle.params.Get() ) );
            copy.model = handle.model;
            handles.push_back( std::move( copy ) );
        } else {
            Change( handle, params[choices.Below( params.size() )].Get(), choices );
        }
        for ( Handle &each : handles ) {
            CheckModel( each.params.Get(), each.model );
        }
    }
}

} // namespace fuzz
