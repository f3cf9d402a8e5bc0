/* A complete SIP request or response (RFC 3261 section 7): a fragment that has a start line. */
#include <tolmo/tolmo_message.hpp>

#include <tolmo/tolmo_object.hpp>

namespace {

using AllFields = tolmo::Fields<&tolmo___Message::fragment>;
static_assert( tolmo::namesAllFields<tolmo___Message, AllFields> );

TOLMO_FREE( Message, msg, AllFields )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_MESSAGE = TOLMO_SORT( "TOLMO_MESSAGE", Free, nullptr, nullptr );
TOLMO_STANDARD_OPERATIONS( Message, TOLMO_MESSAGE )
TOLMO_CREATE_FROM( Message, AllFields )

namespace {

/** A message over a fragment that is known to have a start line. */
TolmoMessage Wrap( KoRef<TolmoMessageFragment> fragment )
{
    auto msg = tolmo::CreateObject<tolmo___Message>( &tolmo___sort_TOLMO_MESSAGE );
    msg.Get()->fragment = fragment.Leak();
    return msg.Leak();
}

} // namespace

TolmoMessage tolmoMessageCreate( TolmoMessageFragment fragment )
{
    KO_REQUIRE( fragment );
    KO_REQUIRE( tolmoMessageFragmentIsRequest( fragment ) || tolmoMessageFragmentIsResponse( fragment ) );
    return Wrap( tolmo::Share( fragment ) );
}

TolmoMessage tolmoMessageCreateRequest( TolmoVersion version, KoString method, KoString iri )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateRequest( version, method, iri ) ) );
}

TolmoMessage tolmoMessageCreateRequestCstr( TolmoVersion version, const char *chs, KoInt length, KoString iri )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateRequestCstr( version, chs, length, iri ) ) );
}

TolmoMessage tolmoMessageCreateRequestWcstr( TolmoVersion version, const uint16_t *chs, KoInt length, KoString iri )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateRequestWcstr( version, chs, length, iri ) ) );
}

TolmoMessage tolmoMessageCreateResponse( TolmoVersion version, KoInt sc )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateResponse( version, sc ) ) );
}

TolmoMessage tolmoMessageCreateResponseWithReasonPhrase( TolmoVersion version, KoInt sc, KoString reasonPhrase )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateResponseWithReasonPhrase( version, sc, reasonPhrase ) ) );
}

TolmoMessage tolmoMessageCreateResponseWithReasonPhraseCstr( TolmoVersion version, KoInt sc, const char *chs,
                                                             KoInt length )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateResponseWithReasonPhraseCstr( version, sc, chs, length ) ) );
}

TolmoMessage tolmoMessageCreateResponseWithReasonPhraseWcstr( TolmoVersion version, KoInt sc, const uint16_t *chs,
                                                              KoInt length )
{
    return Wrap( tolmo::Adopt( tolmoMessageFragmentCreateResponseWithReasonPhraseWcstr( version, sc, chs, length ) ) );
}

TolmoMessageFragment tolmoMessageFragment( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmo::Retained( msg->fragment );
}

KoBool tolmoMessageIsRequest( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentIsRequest( msg->fragment );
}

KoBool tolmoMessageIsResponse( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentIsResponse( msg->fragment );
}

KoString tolmoMessageRequestMethod( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentRequestMethod( msg->fragment );
}

KoString tolmoMessageRequestIri( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentRequestIri( msg->fragment );
}

KoInt tolmoMessageResponseStatusCode( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentResponseStatusCode( msg->fragment );
}

KoString tolmoMessageResponseReasonPhrase( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentResponseReasonPhrase( msg->fragment );
}

TolmoVersion tolmoMessageVersion( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentVersion( msg->fragment );
}

KoVector tolmoMessageHeadersVector( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHeadersVector( msg->fragment );
}

KoBool tolmoMessageHasHeader( TolmoMessage msg, KoString name )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHasHeader( msg->fragment, name );
}

KoBool tolmoMessageHasHeaderCstr( TolmoMessage msg, const char *chs, KoInt length )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHasHeaderCstr( msg->fragment, chs, length );
}

KoBool tolmoMessageHasHeaderWcstr( TolmoMessage msg, const uint16_t *chs, KoInt length )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHasHeaderWcstr( msg->fragment, chs, length );
}

TolmoMessageHeader tolmoMessageHeader( TolmoMessage msg, KoString name )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHeader( msg->fragment, name );
}

TolmoMessageHeader tolmoMessageHeaderCstr( TolmoMessage msg, const char *chs, KoInt length )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHeaderCstr( msg->fragment, chs, length );
}

TolmoMessageHeader tolmoMessageHeaderWcstr( TolmoMessage msg, const uint16_t *chs, KoInt length )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHeaderWcstr( msg->fragment, chs, length );
}

KoBuffer tolmoMessageBody( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentBody( msg->fragment );
}

KoBool tolmoMessageHasBody( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentHasBody( msg->fragment );
}

KoBuffer tolmoMessageEncode( TolmoMessage msg )
{
    KO_REQUIRE( msg );
    return tolmoMessageFragmentEncode( msg->fragment );
}

void tolmoMessageSetRequest( TolmoMessage *msg, TolmoVersion version, KoString method, KoString iri )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequest( &( *msg )->fragment, version, method, iri );
}

void tolmoMessageSetRequestCstr( TolmoMessage *msg, TolmoVersion version, const char *chs, KoInt length, KoString iri )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestCstr( &( *msg )->fragment, version, chs, length, iri );
}

void tolmoMessageSetRequestWcstr( TolmoMessage *msg, TolmoVersion version, const uint16_t *chs, KoInt length,
                                  KoString iri )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestWcstr( &( *msg )->fragment, version, chs, length, iri );
}

void tolmoMessageSetRequestMethod( TolmoMessage *msg, KoString method )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestMethod( &( *msg )->fragment, method );
}

void tolmoMessageSetRequestMethodCstr( TolmoMessage *msg, const char *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestMethodCstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetRequestMethodWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestMethodWcstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetRequestIri( TolmoMessage *msg, KoString iri )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestIri( &( *msg )->fragment, iri );
}

void tolmoMessageSetRequestIriCstr( TolmoMessage *msg, const char *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestIriCstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetRequestIriWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetRequestIriWcstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetResponse( TolmoMessage *msg, TolmoVersion version, KoInt sc )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponse( &( *msg )->fragment, version, sc );
}

void tolmoMessageSetResponseWithReasonPhrase( TolmoMessage *msg, TolmoVersion version, KoInt sc, KoString reasonPhrase )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseWithReasonPhrase( &( *msg )->fragment, version, sc, reasonPhrase );
}

void tolmoMessageSetResponseWithReasonPhraseCstr( TolmoMessage *msg, TolmoVersion version, KoInt sc, const char *chs,
                                                  KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseWithReasonPhraseCstr( &( *msg )->fragment, version, sc, chs, length );
}

void tolmoMessageSetResponseWithReasonPhraseWcstr( TolmoMessage *msg, TolmoVersion version, KoInt sc,
                                                   const uint16_t *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseWithReasonPhraseWcstr( &( *msg )->fragment, version, sc, chs, length );
}

void tolmoMessageSetResponseStatusCode( TolmoMessage *msg, KoInt sc, KoBool adjustReasonPhrase )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseStatusCode( &( *msg )->fragment, sc, adjustReasonPhrase );
}

void tolmoMessageSetResponseReasonPhrase( TolmoMessage *msg, KoString reasonPhrase )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseReasonPhrase( &( *msg )->fragment, reasonPhrase );
}

void tolmoMessageSetResponseReasonPhraseCstr( TolmoMessage *msg, const char *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseReasonPhraseCstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetResponseReasonPhraseWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetResponseReasonPhraseWcstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetVersion( TolmoMessage *msg, TolmoVersion version )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetVersion( &( *msg )->fragment, version );
}

void tolmoMessageSetHeader( TolmoMessage *msg, TolmoMessageHeader header )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetHeader( &( *msg )->fragment, header );
}

void tolmoMessageDelHeader( TolmoMessage *msg, KoString name )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentDelHeader( &( *msg )->fragment, name );
}

void tolmoMessageDelHeaderCstr( TolmoMessage *msg, const char *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentDelHeaderCstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageDelHeaderWcstr( TolmoMessage *msg, const uint16_t *chs, KoInt length )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentDelHeaderWcstr( &( *msg )->fragment, chs, length );
}

void tolmoMessageSetBody( TolmoMessage *msg, KoBuffer body )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentSetBody( &( *msg )->fragment, body );
}

void tolmoMessageDelBody( TolmoMessage *msg )
{
    KO_REQUIRE_HANDLE( msg );
    tolmo::MakeUnique( msg, tolmoMessageCreateFrom );
    tolmoMessageFragmentDelBody( &( *msg )->fragment );
}

void tolmo::SetHeader( TolmoMessage *msg, KoRef<TolmoMessageHeader> header )
{
    MakeUnique( msg, tolmoMessageCreateFrom );
    MakeUnique( &( *msg )->fragment, tolmoMessageFragmentCreateFrom );
    SetHeader( &( *msg )->fragment->headers, std::move( header ) );
}

TolmoMessage tolmoMessageTryDecode( KoBuffer buf )
{
    KO_REQUIRE( buf );
    auto fragment = tolmo::Adopt( tolmoMessageFragmentTryDecode( buf ) );
    if ( !fragment || tolmoMessageFragmentIsNeitherRequestNorResponse( fragment.Get() ) ) {
        return nullptr;
    }
    return Wrap( std::move( fragment ) );
}
