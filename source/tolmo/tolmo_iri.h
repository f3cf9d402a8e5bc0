/* Resource identifiers (RFC 3987). */
#ifndef TOLMO_IRI_H
#define TOLMO_IRI_H

#include <runtime/ko_string.h>

KO_BEGIN_DECLS

/**
 * True when a string is a whole IRI, of any scheme.
 *
 * @param iri shared, the caller keeps its reference.
 * @pre iri
 */
KO_API KoBool tolmoIriOk( KoString iri );

KO_END_DECLS

#endif
