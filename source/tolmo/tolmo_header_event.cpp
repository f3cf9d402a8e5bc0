/* The header Event (RFC 6665 section 8.2.1). */
#include <tolmo/tolmo_header_event.h>

#include <tolmo/tolmo_event_type.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_token.h>

namespace skip = tolmo::skip;

struct tolmo___HeaderEvent {
    ko___Obj head;
    KoString eventType;
    KoString id;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderEvent = tolmo___HeaderEvent;
using AllFields = tolmo::Fields<&HeaderEvent::eventType, &HeaderEvent::id, &HeaderEvent::genericParams>;
static_assert( tolmo::namesAllFields<HeaderEvent, AllFields> );

TOLMO_FREE( HeaderEvent, hdr, AllFields )
TOLMO_COMPARE( HeaderEvent, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Event )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_EVENT = TOLMO_SORT( "TOLMO_HEADER_EVENT", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderEvent, TOLMO_HEADER_EVENT )
TOLMO_CREATE_FROM( HeaderEvent, AllFields )
TOLMO_HEADER_NAME( Event, Event, "Event" )

namespace {

/** A header without parameters, of a type that is good. */
KoRef<TolmoHeaderEvent> Create( KoRef<KoString> eventType )
{
    auto hdr = tolmo::CreateObject<HeaderEvent>( &tolmo___sort_TOLMO_HEADER_EVENT );
    hdr.Get()->eventType = eventType.Leak();
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr;
}

} // namespace

TolmoHeaderEvent tolmoHeaderEventCreate( KoString eventType )
{
    KO_REQUIRE( tolmoEventTypeOk( eventType ) );
    return Create( tolmo::Share( eventType ) ).Leak();
}

TolmoHeaderEvent tolmoHeaderEventCreateCstr( const char *chs, KoInt length )
{
    return tolmoHeaderEventCreate( tolmo::FromCstr( chs, length ).Get() );
}

TolmoHeaderEvent tolmoHeaderEventCreateWcstr( const uint16_t *chs, KoInt length )
{
    return tolmoHeaderEventCreate( tolmo::FromWcstr( chs, length ).Get() );
}

KoString tolmoHeaderEventEventType( TolmoHeaderEvent hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->eventType );
}

void tolmoHeaderEventSetEventType( TolmoHeaderEvent *hdr, KoString eventType )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoEventTypeOk( eventType ) );
    tolmo::MakeUnique( hdr, tolmoHeaderEventCreateFrom );
    tolmo::Store( ( *hdr )->eventType, tolmo::Share( eventType ) );
}

void tolmoHeaderEventSetEventTypeCstr( TolmoHeaderEvent *hdr, const char *chs, KoInt length )
{
    tolmoHeaderEventSetEventType( hdr, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoHeaderEventSetEventTypeWcstr( TolmoHeaderEvent *hdr, const uint16_t *chs, KoInt length )
{
    tolmoHeaderEventSetEventType( hdr, tolmo::FromWcstr( chs, length ).Get() );
}

KoBool tolmoHeaderEventHasId( TolmoHeaderEvent hdr )
{
    KO_REQUIRE( hdr );
    return hdr->id != nullptr;
}

KoString tolmoHeaderEventId( TolmoHeaderEvent hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->id );
}

void tolmoHeaderEventSetId( TolmoHeaderEvent *hdr, KoString id )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoTokenOk( id ) );
    tolmo::MakeUnique( hdr, tolmoHeaderEventCreateFrom );
    tolmo::Store( ( *hdr )->id, tolmo::Share( id ) );
}

void tolmoHeaderEventDelId( TolmoHeaderEvent *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderEventCreateFrom );
    tolmo::Store( ( *hdr )->id, {} );
}

TolmoGenericParams tolmoHeaderEventGenericParams( TolmoHeaderEvent hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderEventSetGenericParams( TolmoHeaderEvent *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderEventCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderEventEncode( TolmoHeaderEvent hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.Add( hdr->eventType );
    if ( hdr->id ) {
        tolmo::AddParamName( text, "id" );
        text.Add( hdr->id );
    }
    tolmo::AddParams( text, hdr->genericParams, { tolmo::Hidden( hdr->id, "id" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

bool TakeParam( tolmo::Walk &w, TolmoHeaderEvent hdr )
{
    return tolmo::TakeLifted( w, "id", skip::Token,
                              [=]( tolmo::Text value ) { return tolmo::StoreText( hdr->id, value ); } ) ||
           tolmo::TakeGeneric( w, hdr->genericParams );
}

// event-type *( SEMI event-param )
KoRef<TolmoHeaderEvent> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    if ( !w.Need( skip::EventType ) ) {
        return {};
    }
    auto hdr = Create( w.Last().Copy() );
    const bool good = tolmo::TakeParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderEvent>();
}

KoRef<TolmoHeaderEvent> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Event, Event )
