/* The header Info-Package (RFC 6086 section 9). */
#include <tolmo/tolmo_header_info_package.h>

#include <tolmo/tolmo_header.hpp>

struct tolmo___HeaderInfoPackage {
    ko___Obj head;
    TolmoInfoPackageType type;
};

namespace {

using HeaderInfoPackage = tolmo___HeaderInfoPackage;
using AllFields = tolmo::Fields<&HeaderInfoPackage::type>;
static_assert( tolmo::namesAllFields<HeaderInfoPackage, AllFields> );

TOLMO_FREE( HeaderInfoPackage, hdr, AllFields )
TOLMO_COMPARE( HeaderInfoPackage, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( InfoPackage )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_INFO_PACKAGE =
    TOLMO_SORT( "TOLMO_HEADER_INFO_PACKAGE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderInfoPackage, TOLMO_HEADER_INFO_PACKAGE )
TOLMO_CREATE_FROM( HeaderInfoPackage, AllFields )
// The constant has the name of that in the unit of Recv-Info, with a text of its own.
TOLMO_HEADER_NAME( InfoPackage, InfoPackageType, "Info-Package" )

TolmoHeaderInfoPackage tolmoHeaderInfoPackageCreate( TolmoInfoPackageType infoPackageType )
{
    KO_REQUIRE( infoPackageType );
    auto hdr = tolmo::CreateObject<HeaderInfoPackage>( &tolmo___sort_TOLMO_HEADER_INFO_PACKAGE );
    hdr.Get()->type = tolmo::Retained( infoPackageType );
    return hdr.Leak();
}

TolmoInfoPackageType tolmoHeaderInfoPackageType( TolmoHeaderInfoPackage hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->type );
}

void tolmoHeaderInfoPackageSetType( TolmoHeaderInfoPackage *hdr, TolmoInfoPackageType type )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( type );
    tolmo::MakeUnique( hdr, tolmoHeaderInfoPackageCreateFrom );
    tolmo::Store( ( *hdr )->type, tolmo::Share( type ) );
}

TolmoMessageHeader tolmoHeaderInfoPackageEncode( TolmoHeaderInfoPackage hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( tolmo___InfoPackageTypeEncode( hdr->type ) ) );
}

namespace {

KoRef<TolmoHeaderInfoPackage> DecodeLine( tolmo::Text line )
{
    const auto type = tolmo::Adopt( tolmo___InfoPackageTypeTryDecode( line.chs, line.length ) );
    return tolmo::Adopt( type ? tolmoHeaderInfoPackageCreate( type.Get() ) : nullptr );
}

KoRef<TolmoHeaderInfoPackage> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( InfoPackage, InfoPackageType )
