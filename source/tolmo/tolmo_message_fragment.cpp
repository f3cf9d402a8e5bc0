/* A message that may be incomplete: headers, with or without a start line, with or without a body. */
#include <tolmo/tolmo_message_fragment.hpp>

#include <tolmo/tolmo_constant.hpp>
#include <tolmo/tolmo_cstr.hpp>
#include <tolmo/tolmo_iri.h>
#include <tolmo/tolmo_method.h>
#include <tolmo/tolmo_reason_phrase.h>

namespace {

using Fragment = tolmo___MessageFragment;
using AllFields =
    tolmo::Fields<&Fragment::requestMethod, &Fragment::requestIri, &Fragment::responseStatusCode,
                  &Fragment::responseReasonPhrase, &Fragment::version, &Fragment::headers, &Fragment::body>;
static_assert( tolmo::namesAllFields<Fragment, AllFields> );

TOLMO_FREE( MessageFragment, frag, AllFields )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_MESSAGE_FRAGMENT =
    TOLMO_SORT( "TOLMO_MESSAGE_FRAGMENT", Free, nullptr, nullptr );
TOLMO_STANDARD_OPERATIONS( MessageFragment, TOLMO_MESSAGE_FRAGMENT )
TOLMO_CREATE_FROM( MessageFragment, AllFields )

namespace {

/** What the name of a caller finds: every spelling and the compact form. */
class Name {
public:
    explicit Name( KoString name ) : normal( tolmo::Adopt( tolmoMessageHeaderNameNormalize( name ) ) ) {}
    [[nodiscard]] tolmo::HeaderKey Key() const { return tolmo::HeaderKey( normal.Get() ); }

private:
    KoRef<KoString> normal;
};

void StoreRequest( TolmoMessageFragment frag, TolmoVersion version, KoString method, KoString iri )
{
    tolmo::Store( frag->version, tolmo::Share( version ) );
    tolmo::Store( frag->requestMethod, tolmo::Share( method ) );
    tolmo::Store( frag->requestIri, tolmo::Share( iri ) );
    frag->responseStatusCode = TOLMO_STATUS_CODE_INVALID;
    tolmo::Store( frag->responseReasonPhrase, {} );
}

void StoreResponse( TolmoMessageFragment frag, TolmoVersion version, KoInt sc, KoString reasonPhrase )
{
    tolmo::Store( frag->version, tolmo::Share( version ) );
    frag->responseStatusCode = sc;
    tolmo::Store( frag->responseReasonPhrase, tolmo::Share( reasonPhrase ) );
    tolmo::Store( frag->requestMethod, {} );
    tolmo::Store( frag->requestIri, {} );
}

} // namespace

// The unit has no constants of its own.
void tolmo___MessageFragmentStartup( void ) {}
void tolmo___MessageFragmentShutdown( void ) {}

KoRef<TolmoMessageFragment> tolmo::CreateFragment( KoRef<HeaderTable *> headers )
{
    auto frag = CreateObject<tolmo___MessageFragment>( &tolmo___sort_TOLMO_MESSAGE_FRAGMENT );
    frag.Get()->responseStatusCode = TOLMO_STATUS_CODE_INVALID;
    frag.Get()->headers = headers.Leak();
    return frag;
}

TolmoMessageFragment tolmoMessageFragmentCreate( void )
{
    return tolmo::CreateFragment( tolmo::CreateHeaderTable( 12, {} ) ).Leak();
}

TolmoMessageFragment tolmoMessageFragmentCreateRequest( TolmoVersion version, KoString method, KoString iri )
{
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoMethodOk( method ) );
    KO_REQUIRE( tolmoIriOk( iri ) );
    const TolmoMessageFragment frag = tolmoMessageFragmentCreate();
    StoreRequest( frag, version, method, iri );
    return frag;
}

TolmoMessageFragment tolmoMessageFragmentCreateRequestCstr( TolmoVersion version, const char *chs, KoInt length,
                                                            KoString iri )
{
    return tolmoMessageFragmentCreateRequest( version, tolmo::FromCstr( chs, length ).Get(), iri );
}

TolmoMessageFragment tolmoMessageFragmentCreateRequestWcstr( TolmoVersion version, const uint16_t *chs, KoInt length,
                                                             KoString iri )
{
    return tolmoMessageFragmentCreateRequest( version, tolmo::FromWcstr( chs, length ).Get(), iri );
}

TolmoMessageFragment tolmoMessageFragmentCreateResponse( TolmoVersion version, KoInt sc )
{
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    const auto reasonPhrase = tolmo::Adopt( tolmoStatusCodeReasonPhrase( sc ) );
    return tolmoMessageFragmentCreateResponseWithReasonPhrase( version, sc, reasonPhrase.Get() );
}

TolmoMessageFragment tolmoMessageFragmentCreateResponseWithReasonPhrase( TolmoVersion version, KoInt sc,
                                                                         KoString reasonPhrase )
{
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    KO_REQUIRE( tolmoReasonPhraseOk( reasonPhrase ) );
    const TolmoMessageFragment frag = tolmoMessageFragmentCreate();
    StoreResponse( frag, version, sc, reasonPhrase );
    return frag;
}

TolmoMessageFragment tolmoMessageFragmentCreateResponseWithReasonPhraseCstr( TolmoVersion version, KoInt sc,
                                                                             const char *chs, KoInt length )
{
    return tolmoMessageFragmentCreateResponseWithReasonPhrase( version, sc, tolmo::FromCstr( chs, length ).Get() );
}

TolmoMessageFragment tolmoMessageFragmentCreateResponseWithReasonPhraseWcstr( TolmoVersion version, KoInt sc,
                                                                              const uint16_t *chs, KoInt length )
{
    return tolmoMessageFragmentCreateResponseWithReasonPhrase( version, sc, tolmo::FromWcstr( chs, length ).Get() );
}

KoBool tolmoMessageFragmentIsNeitherRequestNorResponse( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return !frag->version;
}

KoBool tolmoMessageFragmentIsRequest( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return frag->requestMethod && frag->requestIri && frag->version;
}

// Not asked for the version: it is there wherever the two others are.
KoBool tolmoMessageFragmentIsResponse( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return frag->responseStatusCode != TOLMO_STATUS_CODE_INVALID && frag->responseReasonPhrase;
}

void tolmoMessageFragmentSetNeitherRequestNorResponse( TolmoMessageFragment *frag )
{
    KO_REQUIRE_HANDLE( frag );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->version, {} );
    tolmo::Store( ( *frag )->requestMethod, {} );
    tolmo::Store( ( *frag )->requestIri, {} );
    tolmo::Store( ( *frag )->responseReasonPhrase, {} );
    ( *frag )->responseStatusCode = TOLMO_STATUS_CODE_INVALID;
}

void tolmoMessageFragmentSetRequest( TolmoMessageFragment *frag, TolmoVersion version, KoString method, KoString iri )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoMethodOk( method ) );
    KO_REQUIRE( tolmoIriOk( iri ) );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    StoreRequest( *frag, version, method, iri );
}

void tolmoMessageFragmentSetRequestCstr( TolmoMessageFragment *frag, TolmoVersion version, const char *chs,
                                         KoInt length, KoString iri )
{
    tolmoMessageFragmentSetRequest( frag, version, tolmo::FromCstr( chs, length ).Get(), iri );
}

void tolmoMessageFragmentSetRequestWcstr( TolmoMessageFragment *frag, TolmoVersion version, const uint16_t *chs,
                                          KoInt length, KoString iri )
{
    tolmoMessageFragmentSetRequest( frag, version, tolmo::FromWcstr( chs, length ).Get(), iri );
}

void tolmoMessageFragmentSetResponse( TolmoMessageFragment *frag, TolmoVersion version, KoInt sc )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    const auto reasonPhrase = tolmo::Adopt( tolmoStatusCodeReasonPhrase( sc ) );
    tolmoMessageFragmentSetResponseWithReasonPhrase( frag, version, sc, reasonPhrase.Get() );
}

void tolmoMessageFragmentSetResponseWithReasonPhrase( TolmoMessageFragment *frag, TolmoVersion version, KoInt sc,
                                                      KoString reasonPhrase )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( version );
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    KO_REQUIRE( tolmoReasonPhraseOk( reasonPhrase ) );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    StoreResponse( *frag, version, sc, reasonPhrase );
}

void tolmoMessageFragmentSetResponseWithReasonPhraseCstr( TolmoMessageFragment *frag, TolmoVersion version, KoInt sc,
                                                          const char *chs, KoInt length )
{
    tolmoMessageFragmentSetResponseWithReasonPhrase( frag, version, sc, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetResponseWithReasonPhraseWcstr( TolmoMessageFragment *frag, TolmoVersion version, KoInt sc,
                                                           const uint16_t *chs, KoInt length )
{
    tolmoMessageFragmentSetResponseWithReasonPhrase( frag, version, sc, tolmo::FromWcstr( chs, length ).Get() );
}

KoString tolmoMessageFragmentRequestMethod( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return tolmo::Retained( frag->requestMethod );
}

KoString tolmoMessageFragmentRequestIri( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return tolmo::Retained( frag->requestIri );
}

KoInt tolmoMessageFragmentResponseStatusCode( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return frag->responseStatusCode;
}

KoString tolmoMessageFragmentResponseReasonPhrase( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return tolmo::Retained( frag->responseReasonPhrase );
}

TolmoVersion tolmoMessageFragmentVersion( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return tolmo::Retained( frag->version );
}

KoBool tolmoMessageFragmentHasVersion( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return frag->version != nullptr;
}

void tolmoMessageFragmentSetRequestMethod( TolmoMessageFragment *frag, KoString method )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( tolmoMethodOk( method ) );
    KO_REQUIRE_AS( ( *frag )->requestMethod, "(*frag)->requestMethod" );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->requestMethod, tolmo::Share( method ) );
}

void tolmoMessageFragmentSetRequestMethodCstr( TolmoMessageFragment *frag, const char *chs, KoInt length )
{
    tolmoMessageFragmentSetRequestMethod( frag, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetRequestMethodWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length )
{
    tolmoMessageFragmentSetRequestMethod( frag, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetRequestIri( TolmoMessageFragment *frag, KoString iri )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( tolmoIriOk( iri ) );
    // The method, and not the IRI: either is there only with the other.
    KO_REQUIRE_AS( ( *frag )->requestMethod, "(*frag)->requestMethod" );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->requestIri, tolmo::Share( iri ) );
}

void tolmoMessageFragmentSetRequestIriCstr( TolmoMessageFragment *frag, const char *chs, KoInt length )
{
    tolmoMessageFragmentSetRequestIri( frag, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetRequestIriWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length )
{
    tolmoMessageFragmentSetRequestIri( frag, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetResponseStatusCode( TolmoMessageFragment *frag, KoInt sc, KoBool adjustReasonPhrase )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( tolmoStatusCodeOk( sc ) );
    KO_REQUIRE_AS( ( *frag )->responseStatusCode != TOLMO_STATUS_CODE_INVALID,
                   "(*frag)->responseStatusCode != TOLMO_STATUS_CODE_INVALID" );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    ( *frag )->responseStatusCode = sc;
    if ( adjustReasonPhrase ) {
        tolmo::Store( ( *frag )->responseReasonPhrase, tolmo::Adopt( tolmoStatusCodeReasonPhrase( sc ) ) );
    }
}

void tolmoMessageFragmentSetResponseReasonPhrase( TolmoMessageFragment *frag, KoString reasonPhrase )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( tolmoReasonPhraseOk( reasonPhrase ) );
    KO_REQUIRE_AS( ( *frag )->responseReasonPhrase, "(*frag)->responseReasonPhrase" );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->responseReasonPhrase, tolmo::Share( reasonPhrase ) );
}

void tolmoMessageFragmentSetResponseReasonPhraseCstr( TolmoMessageFragment *frag, const char *chs, KoInt length )
{
    tolmoMessageFragmentSetResponseReasonPhrase( frag, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetResponseReasonPhraseWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length )
{
    tolmoMessageFragmentSetResponseReasonPhrase( frag, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmoMessageFragmentSetVersion( TolmoMessageFragment *frag, TolmoVersion version )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( version );
    KO_REQUIRE_AS( ( *frag )->version, "(*frag)->version" );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->version, tolmo::Share( version ) );
}

KoVector tolmoMessageFragmentHeadersVector( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    auto headers = tolmo::Adopt( koVectorCreate() );
    for ( KoInt i = 0; i < frag->headers->count; ++i ) {
        const tolmo::HeaderEntry &entry = frag->headers->Entries()[i];
        if ( !entry.IsKnown( tolmo::deletedName ) ) {
            const auto header = tolmo::HeaderOf( frag->headers, entry );
            koVectorAppendObj( headers.Address(), tolmoMessageHeaderObj( header.Get() ) );
        }
    }
    return headers.Leak();
}

KoBool tolmoMessageFragmentHasHeader( TolmoMessageFragment frag, KoString name )
{
    KO_REQUIRE( frag );
    return tolmo::FindEntry( frag->headers, Name( name ).Key() ) != nullptr;
}

KoBool tolmoMessageFragmentHasHeaderCstr( TolmoMessageFragment frag, const char *chs, KoInt length )
{
    return tolmoMessageFragmentHasHeader( frag, tolmo::FromCstr( chs, length ).Get() );
}

KoBool tolmoMessageFragmentHasHeaderWcstr( TolmoMessageFragment frag, const uint16_t *chs, KoInt length )
{
    return tolmoMessageFragmentHasHeader( frag, tolmo::FromWcstr( chs, length ).Get() );
}

TolmoMessageHeader tolmoMessageFragmentHeader( TolmoMessageFragment frag, KoString name )
{
    KO_REQUIRE( frag );
    const tolmo::HeaderEntry *const entry = tolmo::FindEntry( frag->headers, Name( name ).Key() );
    return entry ? tolmo::HeaderOf( frag->headers, *entry ).Leak() : nullptr;
}

TolmoMessageHeader tolmoMessageFragmentHeaderCstr( TolmoMessageFragment frag, const char *chs, KoInt length )
{
    return tolmoMessageFragmentHeader( frag, tolmo::FromCstr( chs, length ).Get() );
}

TolmoMessageHeader tolmoMessageFragmentHeaderWcstr( TolmoMessageFragment frag, const uint16_t *chs, KoInt length )
{
    return tolmoMessageFragmentHeader( frag, tolmo::FromWcstr( chs, length ).Get() );
}

TolmoMessageHeader tolmoMessageFragmentHeaderContentLength( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    const tolmo::HeaderEntry *const entry = tolmo::FindEntry( frag->headers, tolmo::contentLengthName );
    return entry ? tolmo::HeaderOf( frag->headers, *entry ).Leak() : nullptr;
}

void tolmoMessageFragmentSetHeader( TolmoMessageFragment *frag, TolmoMessageHeader header )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( header );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::SetHeader( &( *frag )->headers, tolmo::Share( header ) );
}

void tolmoMessageFragmentDelHeader( TolmoMessageFragment *frag, KoString name )
{
    KO_REQUIRE_HANDLE( frag );
    const Name normal( name );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::DeleteHeader( &( *frag )->headers, normal.Key() );
}

void tolmoMessageFragmentDelHeaderCstr( TolmoMessageFragment *frag, const char *chs, KoInt length )
{
    tolmoMessageFragmentDelHeader( frag, tolmo::FromCstr( chs, length ).Get() );
}

void tolmoMessageFragmentDelHeaderWcstr( TolmoMessageFragment *frag, const uint16_t *chs, KoInt length )
{
    tolmoMessageFragmentDelHeader( frag, tolmo::FromWcstr( chs, length ).Get() );
}

void tolmoMessageFragmentClearHeaders( TolmoMessageFragment *frag )
{
    KO_REQUIRE_HANDLE( frag );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->headers, tolmo::CreateHeaderTable( 12, {} ) );
}

KoBuffer tolmoMessageFragmentBody( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return tolmo::Retained( frag->body );
}

KoBool tolmoMessageFragmentHasBody( TolmoMessageFragment frag )
{
    KO_REQUIRE( frag );
    return frag->body != nullptr;
}

void tolmoMessageFragmentSetBody( TolmoMessageFragment *frag, KoBuffer body )
{
    KO_REQUIRE_HANDLE( frag );
    KO_REQUIRE( body );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->body, tolmo::Share( body ) );
}

void tolmoMessageFragmentDelBody( TolmoMessageFragment *frag )
{
    KO_REQUIRE_HANDLE( frag );
    tolmo::MakeUnique( frag, tolmoMessageFragmentCreateFrom );
    tolmo::Store( ( *frag )->body, {} );
}
