/* The header Subject (RFC 3261 section 20.36). */
#include <tolmo/tolmo_header_subject.h>

#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_subject.h>

struct tolmo___HeaderSubject {
    ko___Obj head;
    KoString subject; // in normal form
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderSubject::subject>;
static_assert( tolmo::namesAllFields<tolmo___HeaderSubject, AllFields> );

TOLMO_FREE( HeaderSubject, hdr, AllFields )
TOLMO_COMPARE( HeaderSubject, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( Subject )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_SUBJECT =
    TOLMO_SORT( "TOLMO_HEADER_SUBJECT", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderSubject, TOLMO_HEADER_SUBJECT )
TOLMO_CREATE_FROM( HeaderSubject, AllFields )
TOLMO_HEADER_NAME( Subject, Subject, "Subject" )

// Only null is tested here: it is the normaliser that ends the process on text that is no subject.
TolmoHeaderSubject tolmoHeaderSubjectCreate( KoString subject )
{
    KO_REQUIRE( subject );
    auto hdr = tolmo::CreateObject<tolmo___HeaderSubject>( &tolmo___sort_TOLMO_HEADER_SUBJECT );
    hdr.Get()->subject = tolmoSubjectNormalize( subject );
    return hdr.Leak();
}

KoString tolmoHeaderSubjectSubject( TolmoHeaderSubject hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::Retained( hdr->subject );
}

void tolmoHeaderSubjectSetSubject( TolmoHeaderSubject *hdr, KoString subject )
{
    KO_REQUIRE_HANDLE( hdr );
    KO_REQUIRE( subject );
    auto normal = tolmo::Adopt( tolmoSubjectNormalize( subject ) );
    tolmo::MakeUnique( hdr, tolmoHeaderSubjectCreateFrom );
    tolmo::Store( ( *hdr )->subject, std::move( normal ) );
}

TolmoMessageHeader tolmoHeaderSubjectEncode( TolmoHeaderSubject hdr )
{
    KO_REQUIRE( hdr );
    return tolmo::OneLineHeader( headerName, tolmo::Share( hdr->subject ) );
}

namespace {

KoRef<TolmoHeaderSubject> DecodeLine( tolmo::Text line )
{
    const auto subject = line.Copy();
    return tolmo::Adopt( tolmoSubjectOk( subject.Get() ) ? tolmoHeaderSubjectCreate( subject.Get() ) : nullptr );
}

KoRef<TolmoHeaderSubject> Decode( const tolmo::Lines &lines )
{
    return tolmo::DecodeLastLine( lines, DecodeLine );
}

} // namespace

TOLMO_HEADER_OPERATIONS( Subject, Subject )
