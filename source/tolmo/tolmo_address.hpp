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

/** Takes an IRI. What `skip` does not take is an empty text, which the conversion refuses. */
template <class Skip>
bool TakeIri( Walk &w, Address &address, Skip skip )
{
    w.Maybe( skip );
    address.iri = Adopt( ulm___TryConvertFromUriChars( w.Last().chs, w.Last().length ) );
    return static_cast<bool>( address.iri );
}

/** Takes `<`, an IRI and `>`. False when one of them is not there; `bracketed` tells whether it began at all. */
bool TakeBracketedIri( Walk &w, Address &address );

/**
 * Takes an address: `[ display-name ] "<" IRI ">"`, or a bare IRI that `skipBare` takes, as skip::AddrSpec, which looks
 * no further than the first semicolon. False when there is none.
 */
template <class SkipBare>
bool TakeAddress( Walk &w, Address &address, SkipBare skipBare )
{
    TakeDisplayName( w, address );
    return TakeBracketedIri( w, address ) || ( !address.bracketed && TakeIri( w, address, skipBare ) );
}

/** Adds an IRI in its URI form in angle brackets, which are always written. */
void AddBracketedIri( Builder &text, KoString iri );

/** Adds an address: the display name, if it is not null, in quotes and with a blank behind it, and the IRI. */
void AddAddress( Builder &text, KoString displayName, KoString iri );

} // namespace tolmo

#endif
