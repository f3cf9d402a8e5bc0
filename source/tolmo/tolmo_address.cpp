/* Addresses inside values and headers: an optional display name, and an IRI in angle brackets or bare (RFC 3261 section 20.10). */
#include <tolmo/tolmo_address.hpp>

#include <tolmo/tolmo_display_name.h>

namespace tolmo {

void TakeDisplayName( Walk &w, Address &address )
{
    const KoInt place = w.Place();
    if ( !w.Need( skip::DisplayName ) ) {
        return;
    }
    const Text name = w.Last();
    const KoInt behind = w.Place();
    if ( !w.Need( skip::Laquot ) ) {
        w.Return( place );
        return;
    }
    w.Return( behind );
    // What the skip function took, decodes: both follow the same two rules.
    address.displayName = Adopt( tolmo___DisplayNameTryDecode( name.chs, name.length ) );
}

bool TakeBracketedIri( Walk &w, Address &address )
{
    address.bracketed = w.Need( skip::Laquot );
    return address.bracketed && TakeIri( w, address, skip::Uri ) && w.Need( skip::Raquot );
}

void AddBracketedIri( Builder &text, KoString iri )
{
    const auto uri = Adopt( ulmTryConvertToUri( iri ) );
    KO_REQUIRE( uri ); // an IRI that an object holds has a URI form
    text.Add( '<' );
    text.Add( uri.Get() );
    text.Add( '>' );
}

void AddAddress( Builder &text, KoString displayName, KoString iri )
{
    if ( displayName ) {
        text.Take( tolmo___DisplayNameEncode( displayName ) );
        text.Add( ' ' );
    }
    AddBracketedIri( text, iri );
}

} // namespace tolmo
