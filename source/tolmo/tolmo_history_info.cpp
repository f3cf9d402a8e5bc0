/* One entry of a History-Info header: a target, its index, and the index that it comes from (RFC 7044 section 5). */
#include <tolmo/tolmo_history_info.h>

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_history_info_index.h>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_params.hpp>

struct tolmo___HistoryInfo {
    ko___Obj head;
    KoString iri;
    KoString displayName;
    KoString index;
    KoString backReference; // one slot for rc, mp and np
    TolmoGenericParams genericParams;
};

namespace {

using HistoryInfo = tolmo___HistoryInfo;
using AllFields = tolmo::Fields<&HistoryInfo::iri, &HistoryInfo::displayName, &HistoryInfo::index,
                                &HistoryInfo::backReference, &HistoryInfo::genericParams>;
static_assert( tolmo::namesAllFields<HistoryInfo, AllFields> );

TOLMO_FREE( HistoryInfo, hi, AllFields )
TOLMO_COMPARE( HistoryInfo, hiA, hiB, AllFields )

} // namespace

// Without a to-string function: that is meant.
static const ko___Sort tolmo___sort_TOLMO_HISTORY_INFO = TOLMO_SORT( "TOLMO_HISTORY_INFO", Free, Compare, nullptr );
TOLMO_STANDARD_OPERATIONS( HistoryInfo, TOLMO_HISTORY_INFO )
TOLMO_CREATE_FROM( HistoryInfo, AllFields )

namespace {

/** An entry without an index as yet. */
KoRef<TolmoHistoryInfo> Create( KoRef<KoString> iri, KoRef<KoString> displayName )
{
    auto hi = tolmo::CreateObject<HistoryInfo>( &tolmo___sort_TOLMO_HISTORY_INFO );
    hi.Get()->iri = iri.Leak();
    hi.Get()->displayName = displayName.Leak();
    hi.Get()->genericParams = tolmo::EmptyParams();
    return hi;
}

} // namespace

TolmoHistoryInfo tolmoHistoryInfoCreate( KoString iri, KoString index )
{
    KO_REQUIRE( tolmoIriOk( iri ) );
    KO_REQUIRE( tolmoHistoryInfoIndexOk( index ) );
    auto hi = Create( tolmo::Share( iri ), {} );
    hi.Get()->index = tolmo::Retained( index );
    return hi.Leak();
}

KoString tolmoHistoryInfoIri( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->iri );
}

void tolmoHistoryInfoSetIri( TolmoHistoryInfo *hi, KoString iri )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->iri, tolmo::Share( iri ) );
}

KoString tolmoHistoryInfoIndex( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->index );
}

void tolmoHistoryInfoSetIndex( TolmoHistoryInfo *hi, KoString index )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE( tolmoHistoryInfoIndexOk( index ) );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->index, tolmo::Share( index ) );
}

KoBool tolmoHistoryInfoHasDisplayName( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return hi->displayName != nullptr;
}

KoString tolmoHistoryInfoDisplayName( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->displayName );
}

void tolmoHistoryInfoSetDisplayName( TolmoHistoryInfo *hi, KoString displayName )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE( tolmoDisplayNameOk( displayName ) );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->displayName, tolmo::Share( displayName ) );
}

void tolmoHistoryInfoDelDisplayName( TolmoHistoryInfo *hi )
{
    KO_REQUIRE_HANDLE( hi );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->displayName, {} );
}

// The three back references are one: callers see the same text under each of the names, peers see `rc`. That is meant.

KoBool tolmoHistoryInfoHasRc( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return hi->backReference != nullptr;
}

KoString tolmoHistoryInfoRc( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->backReference );
}

void tolmoHistoryInfoSetRc( TolmoHistoryInfo *hi, KoString rc )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE( tolmoHistoryInfoIndexOk( rc ) );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->backReference, tolmo::Share( rc ) );
}

void tolmoHistoryInfoDelRc( TolmoHistoryInfo *hi )
{
    KO_REQUIRE_HANDLE( hi );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->backReference, {} );
}

KoBool tolmoHistoryInfoHasMp( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return hi->backReference != nullptr;
}

KoString tolmoHistoryInfoMp( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->backReference );
}

void tolmoHistoryInfoSetMp( TolmoHistoryInfo *hi, KoString mp )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE_AS( tolmoHistoryInfoIndexOk( mp ), "tolmoHistoryInfoIndexOk( rc )" );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->backReference, tolmo::Share( mp ) );
}

void tolmoHistoryInfoDelMp( TolmoHistoryInfo *hi )
{
    KO_REQUIRE_HANDLE( hi );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->backReference, {} );
}

KoBool tolmoHistoryInfoHasNp( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return hi->backReference != nullptr;
}

KoString tolmoHistoryInfoNp( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->backReference );
}

void tolmoHistoryInfoSetNp( TolmoHistoryInfo *hi, KoString np )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE_AS( tolmoHistoryInfoIndexOk( np ), "tolmoHistoryInfoIndexOk( rc )" );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->backReference, tolmo::Share( np ) );
}

void tolmoHistoryInfoDelNp( TolmoHistoryInfo *hi )
{
    KO_REQUIRE_HANDLE( hi );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->backReference, {} );
}

TolmoGenericParams tolmoHistoryInfoGenericParams( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    return tolmo::Retained( hi->genericParams );
}

void tolmoHistoryInfoSetGenericParams( TolmoHistoryInfo *hi, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hi );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hi, tolmoHistoryInfoCreateFrom );
    tolmo::Store( ( *hi )->genericParams, tolmo::Share( genericParams ) );
}

// [ display-name ] LAQUOT IRI RAQUOT ";index=" index [ ";rc=" index ] generic-params
KoString tolmo___HistoryInfoEncode( TolmoHistoryInfo hi )
{
    KO_REQUIRE( hi );
    tolmo::Builder text;
    tolmo::AddAddress( text, hi->displayName, hi->iri );
    tolmo::AddParamName( text, "index" );
    text.Add( hi->index );
    if ( hi->backReference ) {
        tolmo::AddParamName( text, "rc" );
        text.Add( hi->backReference );
    }
    tolmo::AddParams( text, hi->genericParams, { "index", tolmo::Hidden( hi->backReference, "rc" ) } );
    return text.Finish();
}

namespace {

bool TakeIndex( tolmo::Walk &w, std::string_view name, KoString &field )
{
    return tolmo::TakeLifted( w, name, tolmo::skip::HistoryInfoIndex,
                              [&]( tolmo::Text value ) { return tolmo::StoreText( field, value ); } );
}

/** One parameter, by the parsers in their order. */
bool TakeParam( tolmo::Walk &w, TolmoHistoryInfo hi )
{
    return TakeIndex( w, "index", hi->index ) ||      //
           TakeIndex( w, "rc", hi->backReference ) || //
           TakeIndex( w, "mp", hi->backReference ) || //
           TakeIndex( w, "np", hi->backReference ) || //
           tolmo::TakeGeneric( w, hi->genericParams );
}

} // namespace

// An index that is none is a generic parameter, and does not count.
TolmoHistoryInfo tolmo___HistoryInfoTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    tolmo::Address address;
    tolmo::TakeDisplayName( w, address );
    if ( !tolmo::TakeBracketedIri( w, address ) ) {
        return nullptr;
    }
    auto hi = Create( std::move( address.iri ), std::move( address.displayName ) );
    const bool good = tolmo::TakeParams( w, [&] { return TakeParam( w, hi.Get() ); } ) && hi.Get()->index;
    return good ? hi.Leak() : nullptr;
}
