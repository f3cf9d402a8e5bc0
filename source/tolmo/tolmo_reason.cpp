/* One item of a Reason header: a protocol, a cause, a text (RFC 3326 section 2). */
#include <tolmo/tolmo_reason.h>

#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_quotable_string.hpp>
#include <tolmo/tolmo_reason_cause.h>
#include <tolmo/tolmo_reason_protocol.h>
#include <tolmo/tolmo_reason_text.h>

namespace skip = tolmo::skip;

struct tolmo___Reason {
    ko___Obj head;
    KoString protocol;
    KoString cause;
    KoString text; // without quotes and escapes
    TolmoGenericParams genericParams;
};

namespace {

using Reason = tolmo___Reason;
using AllFields = tolmo::Fields<&Reason::protocol, &Reason::cause, &Reason::text, &Reason::genericParams>;
static_assert( tolmo::namesAllFields<Reason, AllFields> );

TOLMO_FREE( Reason, reason, AllFields )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_REASON = TOLMO_SORT( "TOLMO_REASON", Free, nullptr, nullptr );
TOLMO_STANDARD_OPERATIONS( Reason, TOLMO_REASON )
TOLMO_CREATE_FROM( Reason, AllFields )

namespace {

/** A reason without parameters, of a protocol that is good. */
KoRef<TolmoReason> Create( KoRef<KoString> protocol )
{
    auto reason = tolmo::CreateObject<Reason>( &tolmo___sort_TOLMO_REASON );
    reason.Get()->protocol = protocol.Leak();
    reason.Get()->genericParams = tolmo::EmptyParams();
    return reason;
}

} // namespace

TolmoReason tolmoReasonCreate( KoString protocol )
{
    KO_REQUIRE( tolmoReasonProtocolOk( protocol ) );
    return Create( tolmo::Share( protocol ) ).Leak();
}

KoString tolmoReasonProtocol( TolmoReason reason )
{
    KO_REQUIRE( reason );
    return tolmo::Retained( reason->protocol );
}

void tolmoReasonSetProtocol( TolmoReason *reason, KoString protocol )
{
    KO_REQUIRE_HANDLE( reason );
    KO_REQUIRE( tolmoReasonProtocolOk( protocol ) );
    tolmo::MakeUnique( reason, tolmoReasonCreateFrom );
    tolmo::Store( ( *reason )->protocol, tolmo::Share( protocol ) );
}

KoBool tolmoReasonHasCause( TolmoReason reason )
{
    KO_REQUIRE( reason );
    return reason->cause != nullptr;
}

KoString tolmoReasonCause( TolmoReason reason )
{
    KO_REQUIRE( reason );
    return tolmo::Retained( reason->cause );
}

void tolmoReasonSetCause( TolmoReason *reason, KoString cause )
{
    KO_REQUIRE_HANDLE( reason );
    KO_REQUIRE( tolmoReasonCauseOk( cause ) );
    tolmo::MakeUnique( reason, tolmoReasonCreateFrom );
    tolmo::Store( ( *reason )->cause, tolmo::Share( cause ) );
}

void tolmoReasonDelCause( TolmoReason *reason )
{
    KO_REQUIRE_HANDLE( reason );
    tolmo::MakeUnique( reason, tolmoReasonCreateFrom );
    tolmo::Store( ( *reason )->cause, {} );
}

KoBool tolmoReasonHasText( TolmoReason reason )
{
    KO_REQUIRE( reason );
    return reason->text != nullptr;
}

KoString tolmoReasonText( TolmoReason reason )
{
    KO_REQUIRE( reason );
    return tolmo::Retained( reason->text );
}

void tolmoReasonSetText( TolmoReason *reason, KoString text )
{
    KO_REQUIRE_HANDLE( reason );
    KO_REQUIRE( tolmoReasonTextOk( text ) );
    tolmo::MakeUnique( reason, tolmoReasonCreateFrom );
    tolmo::Store( ( *reason )->text, tolmo::Share( text ) );
}

void tolmoReasonDelText( TolmoReason *reason )
{
    KO_REQUIRE_HANDLE( reason );
    tolmo::MakeUnique( reason, tolmoReasonCreateFrom );
    tolmo::Store( ( *reason )->text, {} );
}

TolmoGenericParams tolmoReasonGenericParams( TolmoReason reason )
{
    KO_REQUIRE( reason );
    return tolmo::Retained( reason->genericParams );
}

void tolmoReasonSetGenericParams( TolmoReason *reason, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( reason );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( reason, tolmoReasonCreateFrom );
    tolmo::Store( ( *reason )->genericParams, tolmo::Share( genericParams ) );
}

// protocol *( SEMI reason-params ), the text always in quotes
KoString tolmo___ReasonEncode( TolmoReason reason )
{
    KO_REQUIRE( reason );
    tolmo::Builder wire;
    wire.Add( reason->protocol );
    if ( reason->cause ) {
        tolmo::AddParamName( wire, "cause" );
        wire.Add( reason->cause );
    }
    if ( reason->text ) {
        tolmo::AddParamName( wire, "text" );
        wire.Take( tolmo___QuotableStringEncode( reason->text ) );
    }
    tolmo::AddParams( wire, reason->genericParams,
                      { tolmo::Hidden( reason->cause, "cause" ), tolmo::Hidden( reason->text, "text" ) } );
    return wire.Finish();
}

namespace {

// A cause that is no number and a text without quotes are generic. What the skip function takes as a quoted string does
// decode: so the text is never refused.
bool TakeParam( tolmo::Walk &w, TolmoReason reason )
{
    return tolmo::TakeLifted( w, "cause", skip::ReasonCause,
                              [=]( tolmo::Text value ) { return tolmo::StoreText( reason->cause, value ); } ) ||
           tolmo::TakeLifted(
               w, "text", skip::ReasonText,
               [=]( tolmo::Text value ) { return tolmo::StoreGood( reason->text, tolmo::DecodeQuoted( value ) ); } ) ||
           tolmo::TakeGeneric( w, reason->genericParams );
}

} // namespace

TolmoReason tolmo___ReasonTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    if ( !w.Need( skip::ReasonProtocol ) ) {
        return nullptr;
    }
    auto reason = Create( w.Last().Copy() );
    return tolmo::TakeParams( w, [&] { return TakeParam( w, reason.Get() ); } ) ? reason.Leak() : nullptr;
}
