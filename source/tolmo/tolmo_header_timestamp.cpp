/* The header Timestamp (RFC 3261 section 20.38). */
#include <tolmo/tolmo_header_timestamp.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_skip.hpp>
#include <tolmo/tolmo_timestamp_value.h>

struct tolmo___HeaderTimestamp {
    ko___Obj head;
    KoString timestampValue;
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderTimestamp::timestampValue>;
static_assert( tolmo::namesAllFields<tolmo___HeaderTimestamp, AllFields> );

TOLMO_FREE( HeaderTimestamp, hdr, AllFields )
TOLMO_COMPARE( HeaderTimestamp, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Timestamp )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_TIMESTAMP =
    TOLMO_SORT( "TOLMO_HEADER_TIMESTAMP", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderTimestamp, TOLMO_HEADER_TIMESTAMP )
TOLMO_CREATE_FROM( HeaderTimestamp, AllFields )
TOLMO_HEADER_NAME( Timestamp, Timestamp, "Timestamp" )

namespace {

// Takes over a string that is valid.
KoRef<TolmoHeaderTimestamp> Create( KoRef<KoString> timestampValue )
{
    auto hdr = tolmo::CreateObject<tolmo___HeaderTimestamp>( &tolmo___sort_TOLMO_HEADER_TIMESTAMP );
    hdr.Get()->timestampValue = timestampValue.Leak();
    return hdr;
}

} // namespace

TolmoHeaderTimestamp tolmoHeaderTimestampCreate( KoString timestampValue )
{
    KO_REQUIRE( tolmoTimestampValueOk( timestampValue ) );
    return Create( tolmo::Share( timestampValue ) ).Leak();
}

KoString tolmoHeaderTimestampTimestampValue( TolmoHeaderTimestamp hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->timestampValue );
}

void tolmoHeaderTimestampSetTimestampValue( TolmoHeaderTimestamp *hdr, KoString timestampValue )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( tolmoTimestampValueOk( timestampValue ) );
    tolmo::MakeUnique( hdr, tolmoHeaderTimestampCreateFrom );
    tolmo::Store( ( *hdr )->timestampValue, tolmo::Share( timestampValue ) );
}

TolmoMessageHeader tolmoHeaderTimestampEncode( TolmoHeaderTimestamp hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->timestampValue ) );
}

namespace {

// The line is kept as it stands.
KoRef<TolmoHeaderTimestamp> DecodeLine( tolmo::Text line )
{
    tolmo::Walk w( line );
    return w.Need( tolmo::skip::TimestampValue ) && w.AtEnd() ? Create( line.Copy() ) : KoRef<TolmoHeaderTimestamp>();
}

KoRef<TolmoHeaderTimestamp> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Timestamp, Timestamp )
