/* Alert-Info, Error-Info, and what of it is Call-Info's, too: an address in angle brackets, and parameters. */
#ifndef TOLMO_INFO_HPP
#define TOLMO_INFO_HPP

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_params.hpp>

namespace tolmo {

/** A value without parameters, of a good address. */
template <class Info>
KoRef<Info *> CreateInfo( KoSort sort, KoRef<KoString> iri )
{
    auto info = CreateObject<Info>( sort );
    info.Get()->iri = iri.Leak();
    info.Get()->genericParams = EmptyParams();
    return info;
}

/** The wire text of a value whose parameters have no field. */
template <class Info>
KoString EncodeInfo( Info *info )
{
    Builder text;
    AddBracketedIri( text, info->iri );
    AddParams( text, info->genericParams, {} );
    return text.Finish();
}

/**
 * Decodes such a value: LAQUOT IRI RAQUOT generic-params. Skipping and decoding a parameter is one step, so that
 * nothing is skipped that does not decode.
 */
template <class Info>
Info *TryDecodeInfo( KoSort sort, Walk w )
{
    Address address;
    if ( !TakeBracketedIri( w, address ) ) {
        return nullptr;
    }
    auto info = CreateInfo<Info>( sort, std::move( address.iri ) );
    return TakeParams( w, [&] { return TakeGeneric( w, info.Get()->genericParams ); } ) ? info.Leak() : nullptr;
}

} // namespace tolmo

#endif
