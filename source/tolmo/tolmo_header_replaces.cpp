/* The header Replaces (RFC 3891 section 6.1). */
#include <tolmo/tolmo_header_replaces.h>

#include <tolmo/tolmo_call_id.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_tag.h>

namespace skip = tolmo::skip;

struct tolmo___HeaderReplaces {
    ko___Obj head;
    KoString callId;
    KoString fromTag;
    KoString toTag;
    KoBool earlyOnly;
    TolmoGenericParams genericParams;
};

namespace {

using HeaderReplaces = tolmo___HeaderReplaces;
using AllFields = tolmo::Fields<&HeaderReplaces::callId, &HeaderReplaces::fromTag, &HeaderReplaces::toTag,
                                &HeaderReplaces::earlyOnly, &HeaderReplaces::genericParams>;
static_assert( tolmo::namesAllFields<HeaderReplaces, AllFields> );

TOLMO_FREE( HeaderReplaces, hdr, AllFields )
TOLMO_COMPARE( HeaderReplaces, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Replaces )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_REPLACES =
    TOLMO_SORT( "TOLMO_HEADER_REPLACES", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderReplaces, TOLMO_HEADER_REPLACES )
TOLMO_CREATE_FROM( HeaderReplaces, AllFields )
TOLMO_HEADER_NAME( Replaces, Replaces, "Replaces" )

namespace {

/** A header without parameters, of a call identifier that is good. */
KoRef<TolmoHeaderReplaces> Create( KoRef<KoString> callId )
{
    auto hdr = tolmo::CreateObject<HeaderReplaces>( &tolmo___sort_TOLMO_HEADER_REPLACES );
    hdr.Get()->callId = callId.Leak();
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr;
}

} // namespace

TolmoHeaderReplaces tolmoHeaderReplacesCreate( KoString callId )
{
    KO_REQUIRE( tolmoCallIdOk( callId ) );
    return Create( tolmo::Share( callId ) ).Leak();
}

KoString tolmoHeaderReplacesCallId( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->callId );
}

void tolmoHeaderReplacesSetCallId( TolmoHeaderReplaces *hdr, KoString callId )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoCallIdOk( callId ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    tolmo::Store( ( *hdr )->callId, tolmo::Share( callId ) );
}

KoBool tolmoHeaderReplacesHasFromTag( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return hdr->fromTag != nullptr;
}

KoString tolmoHeaderReplacesFromTag( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->fromTag );
}

void tolmoHeaderReplacesSetFromTag( TolmoHeaderReplaces *hdr, KoString fromTag )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoTagOk( fromTag ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    tolmo::Store( ( *hdr )->fromTag, tolmo::Share( fromTag ) );
}

void tolmoHeaderReplacesDelFromTag( TolmoHeaderReplaces *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    tolmo::Store( ( *hdr )->fromTag, {} );
}

KoBool tolmoHeaderReplacesHasToTag( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return hdr->toTag != nullptr;
}

KoString tolmoHeaderReplacesToTag( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->toTag );
}

void tolmoHeaderReplacesSetToTag( TolmoHeaderReplaces *hdr, KoString toTag )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoTagOk( toTag ) );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    tolmo::Store( ( *hdr )->toTag, tolmo::Share( toTag ) );
}

void tolmoHeaderReplacesDelToTag( TolmoHeaderReplaces *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    tolmo::Store( ( *hdr )->toTag, {} );
}

KoBool tolmoHeaderReplacesEarlyOnly( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return hdr->earlyOnly;
}

void tolmoHeaderReplacesSetEarlyOnly( TolmoHeaderReplaces *hdr, KoBool earlyOnly )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    ( *hdr )->earlyOnly = earlyOnly != 0;
}

TolmoGenericParams tolmoHeaderReplacesGenericParams( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderReplacesSetGenericParams( TolmoHeaderReplaces *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderReplacesCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

// A field hides no parameter of its name, as it does in all other types: both go out, and that is meant.
TolmoMessageHeader tolmoHeaderReplacesEncode( TolmoHeaderReplaces hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.Add( hdr->callId );
    if ( hdr->fromTag ) {
        tolmo::AddParamName( text, "from-tag" );
        text.Add( hdr->fromTag );
    }
    if ( hdr->toTag ) {
        tolmo::AddParamName( text, "to-tag" );
        text.Add( hdr->toTag );
    }
    if ( hdr->earlyOnly ) {
        text.Add( ";early-only" );
    }
    tolmo::AddParams( text, hdr->genericParams, {} );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

// The name alone sets the flag, whatever stands behind it but an equals sign.
bool TakeEarlyOnly( tolmo::Walk &w, TolmoHeaderReplaces hdr )
{
    const KoInt place = w.Place();
    if ( w.Need( skip::Literal, "early-only" ) && !w.Need( skip::Equal ) ) {
        hdr->earlyOnly = KO_TRUE;
        return true;
    }
    w.Return( place );
    return false;
}

bool TakeParam( tolmo::Walk &w, TolmoHeaderReplaces hdr )
{
    return tolmo::TakeLifted( w, "from-tag", skip::Tag,
                              [=]( tolmo::Text value ) { return tolmo::StoreText( hdr->fromTag, value ); } ) ||
           tolmo::TakeLifted( w, "to-tag", skip::Tag,
                              [=]( tolmo::Text value ) { return tolmo::StoreText( hdr->toTag, value ); } ) ||
           TakeEarlyOnly( w, hdr ) || tolmo::TakeGeneric( w, hdr->genericParams );
}

// callid *( SEMI replaces-param )
KoRef<TolmoHeaderReplaces> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    if ( !w.Need( skip::CallId ) ) {
        return {};
    }
    auto hdr = Create( w.Last().Copy() );
    const bool good = tolmo::TakeParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderReplaces>();
}

// All other single values test for a missing line. This one does not, and that is meant: the null string ends the
// process. Received bytes cannot get here so, as each header field has a line; what a caller or a store gives can.
KoRef<TolmoHeaderReplaces> Decode( const tolmo::Lines &lines )
{
    if ( lines.Empty() ) {
        static_cast<void>( koStringBacking( nullptr ) );
    }
    return lines.WithLast( DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS_BUT_DECODING_FROM_MESSAGE( Replaces, Replaces )

// Without the test for a missing line here, too.
TolmoHeaderReplaces tolmoHeaderReplacesTryDecodeFromMessage( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    const tolmo::HeaderEntry *const entry = tolmo::FindEntry( msg->fragment->headers, headerName );
    return entry ? Decode( tolmo::Lines( msg->fragment->headers, *entry ) ).Leak() : nullptr;
}
