/* One info package: its name, and parameters (RFC 6086 section 9). */
#include <tolmo/tolmo_info_package_type.h>

#include <tolmo/tolmo_info_package_name.h>
#include <tolmo/tolmo_params.hpp>

namespace skip = tolmo::skip;

struct tolmo___InfoPackageType {
    ko___Obj head;
    KoString name; // in small letters
    TolmoGenericParams genericParams;
};

namespace {

using InfoPackageType = tolmo___InfoPackageType;
using AllFields = tolmo::Fields<&InfoPackageType::name, &InfoPackageType::genericParams>;
static_assert( tolmo::namesAllFields<InfoPackageType, AllFields> );

TOLMO_FREE( InfoPackageType, type, AllFields )
TOLMO_COMPARE( InfoPackageType, eiA, eiB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___InfoPackageTypeEncode( tolmoInfoPackageTypeFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_INFO_PACKAGE_TYPE =
    TOLMO_SORT( "TOLMO_INFO_PACKAGE_TYPE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( InfoPackageType, TOLMO_INFO_PACKAGE_TYPE )
TOLMO_CREATE_FROM( InfoPackageType, AllFields )

namespace {

/** A package without parameters, of a name in small letters. */
KoRef<TolmoInfoPackageType> Create( KoRef<KoString> name )
{
    auto type = tolmo::CreateObject<InfoPackageType>( &tolmo___sort_TOLMO_INFO_PACKAGE_TYPE );
    type.Get()->name = name.Leak();
    type.Get()->genericParams = tolmo::EmptyParams();
    return type;
}

} // namespace

TolmoInfoPackageType tolmoInfoPackageTypeCreate( KoString infoPackageName )
{
    KO_REQUIRE( tolmoInfoPackageNameOk( infoPackageName ) );
    return Create( tolmo::Adopt( tolmoInfoPackageNameNormalize( infoPackageName ) ) ).Leak();
}

KoString tolmoInfoPackageTypeName( TolmoInfoPackageType type )
{
    KO_REQUIRE( type );
    return tolmo::Retained( type->name );
}

void tolmoInfoPackageTypeSetName( TolmoInfoPackageType *type, KoString name )
{
    KO_REQUIRE_HANDLE( type );
    KO_REQUIRE( tolmoInfoPackageNameOk( name ) );
    tolmo::MakeUnique( type, tolmoInfoPackageTypeCreateFrom );
    tolmo::Store( ( *type )->name, tolmo::Adopt( tolmoInfoPackageNameNormalize( name ) ) );
}

TolmoGenericParams tolmoInfoPackageTypeGenericParams( TolmoInfoPackageType type )
{
    KO_REQUIRE( type );
    return tolmo::Retained( type->genericParams );
}

void tolmoInfoPackageTypeSetGenericParams( TolmoInfoPackageType *type, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( type );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( type, tolmoInfoPackageTypeCreateFrom );
    tolmo::Store( ( *type )->genericParams, tolmo::Share( genericParams ) );
}

KoString tolmo___InfoPackageTypeEncode( TolmoInfoPackageType type )
{
    KO_REQUIRE( type );
    tolmo::Builder text;
    text.Add( type->name );
    tolmo::AddParams( text, type->genericParams, {} );
    return text.Finish();
}

// token generic-params
// What is taken as parameters decodes as such: both is done in one step here, and nothing is left to refuse.
TolmoInfoPackageType tolmo___InfoPackageTypeTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    if ( !w.Need( skip::Token ) ) {
        return nullptr;
    }
    auto type = Create( w.Last().CopyLowered() );
    return tolmo::TakeParams( w, [&] { return tolmo::TakeGeneric( w, type.Get()->genericParams ); } ) ? type.Leak()
                                                                                                      : nullptr;
}
