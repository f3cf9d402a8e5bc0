/* Addresses inside values and headers: an optional display name, and an IRI in angle brackets or bare (RFC 3261 section 20.10). */
#include <tolmo/tolmo_address.hpp>

#include <tolmo/tolmo_display_name.h>
#include <tolmo/tolmo_quotable_string.hpp>
#include <tolmo/tolmo_text.hpp>

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
    // Tokens begin without whitespace, and with something else than a quote.
    const bool quoted = name.chs[skip::Sws( name.chs, name.length )] == '"';
    address.displayName = quoted ? DecodeQuoted( name ) : Adopt( TryJoinWords( name, skip::Token ) );
}

bool TakeIri( Walk &w, Address &address, Extent extent )
{
    const Text rest = w.Rest();
    KoString iri = nullptr;
    w.Take( ulm___TakeIri( rest.chs, extent( rest ), &iri ) );
    address.iri = Adopt( iri );
    return static_cast<bool>( address.iri );
}

bool TakeBracketedIri( Walk &w, Address &address )
{
    address.bracketed = w.Need( skip::Laquot );
    return address.bracketed && TakeIri( w, address, WholeText ) && w.Need( skip::Raquot );
}

bool TakeAddress( Walk &w, Address &address, Extent bare )
{
    TakeDisplayName( w, address );
    return TakeBracketedIri( w, address ) || ( !address.bracketed && TakeIri( w, address, bare ) );
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
