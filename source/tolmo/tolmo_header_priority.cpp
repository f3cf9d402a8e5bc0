/* The header Priority (RFC 3261 section 20.26). */
#include <tolmo/tolmo_header_priority.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_priority_value.h>
#include <tolmo/tolmo_scalar.hpp>

#include <algorithm>

struct tolmo___HeaderPriority {
    ko___Obj head;
    KoString priorityValue; // in small letters
};

namespace {

using HeaderPriority = tolmo___HeaderPriority;
using AllFields = tolmo::Fields<&HeaderPriority::priorityValue>;
static_assert( tolmo::namesAllFields<HeaderPriority, AllFields> );

TOLMO_FREE( HeaderPriority, hdr, AllFields )
TOLMO_COMPARE( HeaderPriority, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Priority )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_PRIORITY =
    TOLMO_SORT( "TOLMO_HEADER_PRIORITY", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderPriority, TOLMO_HEADER_PRIORITY )
TOLMO_CREATE_FROM( HeaderPriority, AllFields )
TOLMO_HEADER_NAME( Priority, Priority, "Priority" )

namespace {

/** A header of a value in small letters. */
KoRef<TolmoHeaderPriority> Create( KoRef<KoString> priorityValue )
{
    auto hdr = tolmo::CreateObject<HeaderPriority>( &tolmo___sort_TOLMO_HEADER_PRIORITY );
    hdr.Get()->priorityValue = priorityValue.Leak();
    return hdr;
}

} // namespace

TolmoHeaderPriority tolmoHeaderPriorityCreate( KoString priorityValue )
{
    KO_REQUIRE( tolmoPriorityValueOk( priorityValue ) );
    return Create( tolmo::Adopt( tolmoPriorityValueNormalize( priorityValue ) ) ).Leak();
}

TolmoHeaderPriority tolmoHeaderPriorityCreateEmergency( void )
{
    return tolmoHeaderPriorityCreate( tolmo::FromCstr( "emergency", -1 ).Get() );
}

TolmoHeaderPriority tolmoHeaderPriorityCreateUrgent( void )
{
    return tolmoHeaderPriorityCreate( tolmo::FromCstr( "urgent", -1 ).Get() );
}

TolmoHeaderPriority tolmoHeaderPriorityCreateNormal( void )
{
    return tolmoHeaderPriorityCreate( tolmo::FromCstr( "normal", -1 ).Get() );
}

TolmoHeaderPriority tolmoHeaderPriorityCreateNonUrgent( void )
{
    return tolmoHeaderPriorityCreate( tolmo::FromCstr( "non-urgent", -1 ).Get() );
}

TolmoHeaderPriority tolmoHeaderPriorityCreatePsapCallback( void )
{
    return tolmoHeaderPriorityCreate( tolmo::FromCstr( "psap-callback", -1 ).Get() );
}

KoString tolmoHeaderPriorityPriorityValue( TolmoHeaderPriority hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->priorityValue );
}

void tolmoHeaderPrioritySetPriorityValue( TolmoHeaderPriority *hdr, KoString priorityValue )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoPriorityValueOk( priorityValue ) );
    tolmo::MakeUnique( hdr, tolmoHeaderPriorityCreateFrom );
    tolmo::Store( ( *hdr )->priorityValue, tolmo::Adopt( tolmoPriorityValueNormalize( priorityValue ) ) );
}

void tolmoHeaderPrioritySetEmergency( TolmoHeaderPriority *hdr )
{
    tolmoHeaderPrioritySetPriorityValue( hdr, tolmo::FromCstr( "emergency", -1 ).Get() );
}

void tolmoHeaderPrioritySetUrgent( TolmoHeaderPriority *hdr )
{
    tolmoHeaderPrioritySetPriorityValue( hdr, tolmo::FromCstr( "urgent", -1 ).Get() );
}

void tolmoHeaderPrioritySetNormal( TolmoHeaderPriority *hdr )
{
    tolmoHeaderPrioritySetPriorityValue( hdr, tolmo::FromCstr( "normal", -1 ).Get() );
}

void tolmoHeaderPrioritySetNonUrgent( TolmoHeaderPriority *hdr )
{
    tolmoHeaderPrioritySetPriorityValue( hdr, tolmo::FromCstr( "non-urgent", -1 ).Get() );
}

void tolmoHeaderPrioritySetPsapCallback( TolmoHeaderPriority *hdr )
{
    tolmoHeaderPrioritySetPriorityValue( hdr, tolmo::FromCstr( "psap-callback", -1 ).Get() );
}

namespace {

bool Is( TolmoHeaderPriority hdr, std::string_view literal )
{
    const tolmo::Text value( hdr->priorityValue );
    return std::equal( literal.begin(), literal.end(), value.chs, value.chs + value.length );
}

} // namespace

KoBool tolmoHeaderPriorityIsEmergency( TolmoHeaderPriority hdr )
{
    return Is( hdr, "emergency" );
}

KoBool tolmoHeaderPriorityIsUrgent( TolmoHeaderPriority hdr )
{
    return Is( hdr, "urgent" );
}

KoBool tolmoHeaderPriorityIsNormal( TolmoHeaderPriority hdr )
{
    return Is( hdr, "normal" );
}

KoBool tolmoHeaderPriorityIsNonUrgent( TolmoHeaderPriority hdr )
{
    return Is( hdr, "non-urgent" );
}

KoBool tolmoHeaderPriorityIsPsapCallback( TolmoHeaderPriority hdr )
{
    return Is( hdr, "psap-callback" );
}

TolmoMessageHeader tolmoHeaderPriorityEncode( TolmoHeaderPriority hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->priorityValue ) );
}

namespace {

KoRef<TolmoHeaderPriority> DecodeLine( tolmo::Text line )
{
    return tolmo::IsWhole( line, tolmo::skip::PriorityValue ) ? Create( line.CopyLowered() )
                                                              : KoRef<TolmoHeaderPriority>();
}

KoRef<TolmoHeaderPriority> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Priority, Priority )
