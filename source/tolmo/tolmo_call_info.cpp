/* One item of a Call-Info header: where more on a party is (RFC 3261 section 20.9). */
#include <tolmo/tolmo_call_info.h>

#include <tolmo/tolmo_info.hpp>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_purpose.h>

struct tolmo___CallInfo {
    ko___Obj head;
    KoString iri;
    KoString purpose; // in small letters
    TolmoGenericParams genericParams;
};

namespace {

using CallInfo = tolmo___CallInfo;
using AllFields = tolmo::Fields<&CallInfo::iri, &CallInfo::purpose, &CallInfo::genericParams>;
static_assert( tolmo::namesAllFields<CallInfo, AllFields> );

TOLMO_FREE( CallInfo, callInfo, AllFields )
TOLMO_COMPARE( CallInfo, ciA, ciB, AllFields )

KoString ToString( KoObj obj )
{
    return tolmo___CallInfoEncode( tolmoCallInfoFrom( obj ) );
}

} // namespace

static const ko___Sort tolmo___sort_TOLMO_CALL_INFO = TOLMO_SORT( "TOLMO_CALL_INFO", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( CallInfo, TOLMO_CALL_INFO )
TOLMO_CREATE_FROM( CallInfo, AllFields )

TolmoCallInfo tolmoCallInfoCreate( KoString iri )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    return tolmo::CreateInfo<CallInfo>( &tolmo___sort_TOLMO_CALL_INFO, tolmo::Share( iri ) ).Leak();
}

KoString tolmoCallInfoIri( TolmoCallInfo callInfo )
{
    KO_REQUIRE( callInfo );
    return tolmo::Retained( callInfo->iri );
}

void tolmoCallInfoSetIri( TolmoCallInfo *callInfo, KoString iri )
{
    KO_REQUIRE_HANDLE( callInfo );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( callInfo, tolmoCallInfoCreateFrom );
    tolmo::Store( ( *callInfo )->iri, tolmo::Share( iri ) );
}

KoBool tolmoCallInfoHasPurpose( TolmoCallInfo callInfo )
{
    KO_REQUIRE( callInfo );
    return callInfo->purpose != nullptr;
}

KoString tolmoCallInfoPurpose( TolmoCallInfo callInfo )
{
    KO_REQUIRE( callInfo );
    return tolmo::Retained( callInfo->purpose );
}

// The check is the normaliser's, behind the copy: that is meant.
void tolmoCallInfoSetPurpose( TolmoCallInfo *callInfo, KoString purpose )
{
    KO_REQUIRE_HANDLE( callInfo );
    tolmo::MakeUnique( callInfo, tolmoCallInfoCreateFrom );
    tolmo::Store( ( *callInfo )->purpose, tolmo::Adopt( tolmoPurposeNormalize( purpose ) ) );
}

void tolmoCallInfoDelPurpose( TolmoCallInfo *callInfo )
{
    KO_REQUIRE_HANDLE( callInfo );
    tolmo::MakeUnique( callInfo, tolmoCallInfoCreateFrom );
    tolmo::Store( ( *callInfo )->purpose, {} );
}

TolmoGenericParams tolmoCallInfoGenericParams( TolmoCallInfo callInfo )
{
    KO_REQUIRE( callInfo );
    return tolmo::Retained( callInfo->genericParams );
}

void tolmoCallInfoSetGenericParams( TolmoCallInfo *callInfo, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( callInfo );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( callInfo, tolmoCallInfoCreateFrom );
    tolmo::Store( ( *callInfo )->genericParams, tolmo::Share( genericParams ) );
}

// LAQUOT IRI RAQUOT [ ";purpose=" purpose ] generic-params
KoString tolmo___CallInfoEncode( TolmoCallInfo callInfo )
{
    KO_REQUIRE( callInfo );
    tolmo::Builder text;
    tolmo::AddBracketedIri( text, callInfo->iri );
    if ( callInfo->purpose ) {
        tolmo::AddParamName( text, "purpose" );
        text.Add( callInfo->purpose );
    }
    tolmo::AddParams( text, callInfo->genericParams, { tolmo::Hidden( callInfo->purpose, "purpose" ) } );
    return text.Finish();
}

namespace {

/** One parameter, by the parsers in their order. */
bool TakeParam( tolmo::Walk &w, TolmoCallInfo callInfo )
{
    return tolmo::TakeLifted(
               w, "purpose", tolmo::skip::Purpose,
               [=]( tolmo::Text value ) { return tolmo::StoreGood( callInfo->purpose, value.CopyLowered() ); } ) ||
           tolmo::TakeGeneric( w, callInfo->genericParams );
}

} // namespace

TolmoCallInfo tolmo___CallInfoTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    tolmo::Address address;
    if ( !tolmo::TakeBracketedIri( w, address ) ) {
        return nullptr;
    }
    auto callInfo = tolmo::CreateInfo<CallInfo>( &tolmo___sort_TOLMO_CALL_INFO, std::move( address.iri ) );
    return tolmo::TakeParams( w, [&] { return TakeParam( w, callInfo.Get() ); } ) ? callInfo.Leak() : nullptr;
}
