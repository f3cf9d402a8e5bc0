/* Subjects (RFC 3261 section 25.1). */
#include <tolmo/tolmo_subject.h>

#include <tolmo/tolmo_text.hpp>

KoBool tolmoSubjectOk( KoString subject )
{
    KO_REQUIRE( subject );
    return tolmo::IsFreeText( subject );
}

KoString tolmoSubjectNormalize( KoString subject )
{
    KO_REQUIRE( subject );
    const KoString words = tolmo::TryNormalizeFreeText( subject );
    KO_REQUIRE_MESSAGE( words, "subject invalid", "tolmoSubjectOk( subject )" );
    return words;
}
