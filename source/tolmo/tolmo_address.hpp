/* Addresses inside values and headers: an optional display name, and an IRI in angle brackets or bare (RFC 3261 section 20.10). */
#ifndef TOLMO_ADDRESS_HPP
#define TOLMO_ADDRESS_HPP

#include <tolmo/tolmo_builder.hpp>
#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_skip.hpp>

namespace tolmo {

/** An address as objects hold it. */
struct Address {
    KoRef<KoString> displayName; // null when there is none; may be empty
    KoRef<KoString> iri;
    bool bracketed = false;
};

/** Takes a display name, if `<` stands behind it: otherwise what looks like one is the beginning of a bare address. */
void TakeDisplayName( Walk &w, Address &address );

/** How far an IRI may go in what is left of a text. */
using Extent = KoInt ( * )( Text rest );

/** As far as it likes: inside angle brackets. */
inline KoInt WholeText( Text rest )
{
    return rest.length;
}

/** To the first semicolon: a bare address leaves all parameters to what it stands in. */
inline KoInt ToSemicolon( Text rest )
{
    return skip::AddrSpecExtent( rest.chs, rest.length );
}

/** Takes an IRI, in one pass. False when there is none. */
bool TakeIri( Walk &w, Address &address, Extent extent );

/** Takes `<`, an IRI and `>`. False when one of them is not there; `bracketed` tells whether it began at all. */
bool TakeBracketedIri( Walk &w, Address &address );

/** Takes an address: `[ display-name ] "<" IRI ">"`, or a bare IRI of an extent. False when there is none. */
bool TakeAddress( Walk &w, Address &address, Extent bare );

/** Adds an IRI in its URI form in angle brackets, which are always written. */
void AddBracketedIri( Builder &text, KoString iri );

/** Adds an address: the display name, if it is not null, in quotes and with a blank behind it, and the IRI. */
void AddAddress( Builder &text, KoString displayName, KoString iri );

} // namespace tolmo

#endif
