/* One item of an Alert-Info header: where another ring tone is (RFC 3261 section 20.4). */
#include <tolmo/tolmo_alert_info.h>

#include <tolmo/tolmo_info.hpp>
#include <tolmo/tolmo_iri.h>

struct tolmo___AlertInfo {
    ko___Obj head;
    KoString iri;
    TolmoGenericParams genericParams;
};

namespace {

using AlertInfo = tolmo___AlertInfo;
using AllFields = tolmo::Fields<&AlertInfo::iri, &AlertInfo::genericParams>;
static_assert( tolmo::namesAllFields<AlertInfo, AllFields> );

TOLMO_FREE( AlertInfo, alertInfo, AllFields )
TOLMO_COMPARE( AlertInfo, aiA, aiB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___AlertInfoEncode( tolmoAlertInfoFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_ALERT_INFO = TOLMO_SORT( "TOLMO_ALERT_INFO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( AlertInfo, TOLMO_ALERT_INFO )
TOLMO_CREATE_FROM( AlertInfo, AllFields )

TolmoAlertInfo tolmoAlertInfoCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateInfo<AlertInfo>( &tolmo___sort_TOLMO_ALERT_INFO, tolmo::Share( iri ) ).Leak();
}

KoString tolmoAlertInfoIri( TolmoAlertInfo alertInfo )
{
    KO_REQUIRE( alertInfo );
    return tolmo::Retained( alertInfo->iri );
}

void tolmoAlertInfoSetIri( TolmoAlertInfo *alertInfo, KoString iri )
{
    KO_REQUIRE_HANDLE( alertInfo );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( alertInfo, tolmoAlertInfoCreateFrom );
    tolmo::Store( ( *alertInfo )->iri, tolmo::Share( iri ) );
}

TolmoGenericParams tolmoAlertInfoGenericParams( TolmoAlertInfo alertInfo )
{
    KO_REQUIRE( alertInfo );
    return tolmo::Retained( alertInfo->genericParams );
}

void tolmoAlertInfoSetGenericParams( TolmoAlertInfo *alertInfo, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( alertInfo );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( alertInfo, tolmoAlertInfoCreateFrom );
    tolmo::Store( ( *alertInfo )->genericParams, tolmo::Share( genericParams ) );
}

KoString tolmo___AlertInfoEncode( TolmoAlertInfo alertInfo )
{
    KO_REQUIRE( alertInfo );
    return tolmo::EncodeInfo( alertInfo );
}

TolmoAlertInfo tolmo___AlertInfoTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    return tolmo::TryDecodeInfo<AlertInfo>( &tolmo___sort_TOLMO_ALERT_INFO, tolmo::Walk( chs, length ) );
}
