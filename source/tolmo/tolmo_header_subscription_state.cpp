/* The header Subscription-State (RFC 6665 section 8.2.3). */
#include <tolmo/tolmo_header_subscription_state.h>

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_event_reason_value.h>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_seconds.hpp>
#include <tolmo/tolmo_substate_value.h>

namespace skip = tolmo::skip;

struct tolmo___HeaderSubscriptionState {
    ko___Obj head;
    KoString substateValue; // in small letters
    KoString reason;        // in small letters
    KoInt expires;          // -1: absent
    KoInt retryAfter;       // -1: absent
    TolmoGenericParams genericParams;
};

namespace {

using HeaderSubscriptionState = tolmo___HeaderSubscriptionState;
using AllFields = tolmo::Fields<&HeaderSubscriptionState::substateValue, &HeaderSubscriptionState::reason,
                                &HeaderSubscriptionState::expires, &HeaderSubscriptionState::retryAfter,
                                &HeaderSubscriptionState::genericParams>;
static_assert( tolmo::namesAllFields<HeaderSubscriptionState, AllFields> );

// What a copy takes over. The parameters are not among it, and that is meant: callers know that a header which was
// shared has to get its parameters anew once it has been changed.
using CopiedFields = tolmo::Fields<&HeaderSubscriptionState::substateValue, &HeaderSubscriptionState::reason,
                                   &HeaderSubscriptionState::expires, &HeaderSubscriptionState::retryAfter>;

TOLMO_FREE( HeaderSubscriptionState, hdr, AllFields )
TOLMO_COMPARE( HeaderSubscriptionState, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( SubscriptionState )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_SUBSCRIPTION_STATE =
    TOLMO_SORT( "TOLMO_HEADER_SUBSCRIPTION_STATE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderSubscriptionState, TOLMO_HEADER_SUBSCRIPTION_STATE )
TOLMO_CREATE_FROM( HeaderSubscriptionState, CopiedFields ) // the parameters of the copy are null
TOLMO_HEADER_NAME( SubscriptionState, SubscriptionState, "Subscription-State" )

namespace {

/** A header without parameters, of a state in small letters. */
KoRef<TolmoHeaderSubscriptionState> Create( KoRef<KoString> substateValue )
{
    auto hdr = tolmo::CreateObject<HeaderSubscriptionState>( &tolmo___sort_TOLMO_HEADER_SUBSCRIPTION_STATE );
    hdr.Get()->substateValue = substateValue.Leak();
    hdr.Get()->expires = -1;
    hdr.Get()->retryAfter = -1;
    hdr.Get()->genericParams = tolmo::EmptyParams();
    return hdr;
}

} // namespace

TolmoHeaderSubscriptionState tolmoHeaderSubscriptionStateCreate( KoString substateValue )
{
    KO_REQUIRE( tolmoSubstateValueOk( substateValue ) );
    return Create( tolmo::Adopt( tolmoSubstateValueNormalize( substateValue ) ) ).Leak();
}

KoString tolmoHeaderSubscriptionStateSubstateValue( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->substateValue );
}

void tolmoHeaderSubscriptionStateSetSubstateValue( TolmoHeaderSubscriptionState *hdr, KoString substateValue )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoSubstateValueOk( substateValue ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    tolmo::Store( ( *hdr )->substateValue, tolmo::Adopt( tolmoSubstateValueNormalize( substateValue ) ) );
}

KoBool tolmoHeaderSubscriptionStateHasReason( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return hdr->reason != nullptr;
}

KoString tolmoHeaderSubscriptionStateReason( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->reason );
}

void tolmoHeaderSubscriptionStateSetReason( TolmoHeaderSubscriptionState *hdr, KoString reason )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoEventReasonValueOk( reason ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    tolmo::Store( ( *hdr )->reason, tolmo::Adopt( tolmoEventReasonValueNormalize( reason ) ) );
}

void tolmoHeaderSubscriptionStateDelReason( TolmoHeaderSubscriptionState *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    tolmo::Store( ( *hdr )->reason, {} );
}

KoBool tolmoHeaderSubscriptionStateHasExpires( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return hdr->expires != -1;
}

KoInt tolmoHeaderSubscriptionStateExpires( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return hdr->expires;
}

void tolmoHeaderSubscriptionStateSetExpires( TolmoHeaderSubscriptionState *hdr, KoInt expires )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( expires ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    ( *hdr )->expires = expires;
}

void tolmoHeaderSubscriptionStateDelExpires( TolmoHeaderSubscriptionState *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    ( *hdr )->expires = -1;
}

KoBool tolmoHeaderSubscriptionStateHasRetryAfter( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return hdr->retryAfter != -1;
}

KoInt tolmoHeaderSubscriptionStateRetryAfter( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return hdr->retryAfter;
}

void tolmoHeaderSubscriptionStateSetRetryAfter( TolmoHeaderSubscriptionState *hdr, KoInt retryAfter )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoDeltaSecondsOk( retryAfter ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    ( *hdr )->retryAfter = retryAfter;
}

void tolmoHeaderSubscriptionStateDelRetryAfter( TolmoHeaderSubscriptionState *hdr )
{
    KO_REQUIRE_HANDLE( hdr );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    ( *hdr )->retryAfter = -1;
}

// Null in a header that was shared when it was changed.
TolmoGenericParams tolmoHeaderSubscriptionStateGenericParams( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->genericParams );
}

void tolmoHeaderSubscriptionStateSetGenericParams( TolmoHeaderSubscriptionState *hdr, TolmoGenericParams genericParams )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( genericParams );
    tolmo::MakeUnique( hdr, tolmoHeaderSubscriptionStateCreateFrom );
    tolmo::Store( ( *hdr )->genericParams, tolmo::Share( genericParams ) );
}

TolmoMessageHeader tolmoHeaderSubscriptionStateEncode( TolmoHeaderSubscriptionState hdr )
{
    KO_REQUIRE( hdr );
    tolmo::Builder text;
    text.Add( hdr->substateValue );
    if ( hdr->reason ) {
        tolmo::AddParamName( text, "reason" );
        text.Add( hdr->reason );
    }
    tolmo::AddSeconds( text, "expires", hdr->expires );
    tolmo::AddSeconds( text, "retry-after", hdr->retryAfter );
    tolmo::AddParams( text, hdr->genericParams,
                      { tolmo::Hidden( hdr->reason, "reason" ), tolmo::Hidden( hdr->expires != -1, "expires" ),
                        tolmo::Hidden( hdr->retryAfter != -1, "retry-after" ) } );
    return tolmo::OneLineHeader( headerName, tolmo::Adopt( text.Finish() ) );
}

namespace {

bool TakeParam( tolmo::Walk &w, TolmoHeaderSubscriptionState hdr )
{
    return tolmo::TakeLifted(
               w, "reason", skip::EventReasonValue,
               [=]( tolmo::Text value ) { return tolmo::StoreGood( hdr->reason, value.CopyLowered() ); } ) ||
           tolmo::TakeSeconds( w, "expires", hdr->expires ) ||
           tolmo::TakeSeconds( w, "retry-after", hdr->retryAfter ) || tolmo::TakeGeneric( w, hdr->genericParams );
}

// substate-value *( SEMI subexp-params )
KoRef<TolmoHeaderSubscriptionState> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    if ( !w.Need( skip::SubstateValue ) ) {
        return {};
    }
    auto hdr = Create( w.Last().CopyLowered() );
    const bool good = tolmo::TakeParams( w, [&] { return TakeParam( w, hdr.Get() ); } );
    return good ? std::move( hdr ) : KoRef<TolmoHeaderSubscriptionState>();
}

KoRef<TolmoHeaderSubscriptionState> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( SubscriptionState, SubscriptionState )
