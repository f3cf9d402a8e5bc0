/* One item of an Error-Info header: where more on an error is (RFC 3261 section 20.18). */
#include <tolmo/tolmo_error_info.h>

#include <tolmo/tolmo_info.hpp>
#include <tolmo/tolmo_iri.h>

struct tolmo___ErrorInfo {
    ko___Obj head;
    KoString iri;
    TolmoGenericParams genericParams;
};

namespace {

using ErrorInfo = tolmo___ErrorInfo;
using AllFields = tolmo::Fields<&ErrorInfo::iri, &ErrorInfo::genericParams>;
static_assert( tolmo::namesAllFields<ErrorInfo, AllFields> );

TOLMO_FREE( ErrorInfo, errorInfo, AllFields )
TOLMO_COMPARE( ErrorInfo, eiA, eiB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___ErrorInfoEncode( tolmoErrorInfoFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_ERROR_INFO = TOLMO_SORT( "TOLMO_ERROR_INFO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( ErrorInfo, TOLMO_ERROR_INFO )
TOLMO_CREATE_FROM( ErrorInfo, AllFields )

TolmoErrorInfo tolmoErrorInfoCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateInfo<ErrorInfo>( &tolmo___sort_TOLMO_ERROR_INFO, tolmo::Share( iri ) ).Leak();
}

KoString tolmoErrorInfoIri( TolmoErrorInfo errorInfo )
{
    KO_REQUIRE( errorInfo );
    return tolmo::Retained( errorInfo->iri );
}

void tolmoErrorInfoSetIri( TolmoErrorInfo *errorInfo, KoString iri )
{
    KO_REQUIRE_HANDLE( errorInfo );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( errorInfo, tolmoErrorInfoCreateFrom );
    tolmo::Store( ( *errorInfo )->iri, tolmo::Share( iri ) );
}

TolmoGenericParams tolmoErrorInfoGenericParams( TolmoErrorInfo errorInfo )
{
    KO_REQUIRE( errorInfo );
    return tolmo::Retained( errorInfo->genericParams );
}

void tolmoErrorInfoSetGenericParams( TolmoErrorInfo *errorInfo, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( errorInfo );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( errorInfo, tolmoErrorInfoCreateFrom );
    tolmo::Store( ( *errorInfo )->genericParams, tolmo::Share( genericParams ) );
}

KoString tolmo___ErrorInfoEncode( TolmoErrorInfo errorInfo )
{
    KO_REQUIRE( errorInfo );
    return tolmo::EncodeInfo( errorInfo );
}

TolmoErrorInfo tolmo___ErrorInfoTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeInfo<ErrorInfo>( &tolmo___sort_TOLMO_ERROR_INFO, tolmo::Walk( chs, length ) );
}
