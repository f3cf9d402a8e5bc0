/*
 * Headers that hold one party: an address, and behind it the parameters of the header (RFC 3261 section 20.10). Such a
 * header has the fields iri, displayName and genericParams; one with a tag, From or To, has tag and epid as well.
 */
#ifndef TOLMO_HEADER_PARTY_HPP
#define TOLMO_HEADER_PARTY_HPP

#include <tolmo/tolmo_address.hpp>
#include <tolmo/tolmo_header.hpp>
#include <tolmo/tolmo_params.hpp>

namespace tolmo {

/** A header with an IRI that is good, and nothing else. */
template <class Header>
KoRef<Header *> CreateParty( KoSort sort, KoRef<KoString> iri )
{
    auto hdr = CreateObject<Header>( sort );
    hdr.Get()->iri = iri.Leak();
    hdr.Get()->genericParams = EmptyParams();
    return hdr;
}

/** Takes an address, a bare one of an extent, as a new header. Null when there is none. */
template <class Header>
KoRef<Header *> TakeParty( Walk &w, KoSort sort, Extent bare )
{
    Address address;
    if ( !TakeAddress( w, address, bare ) ) {
        return {};
    }
    auto hdr = CreateParty<Header>( sort, std::move( address.iri ) );
    hdr.Get()->displayName = address.displayName.Leak();
    return hdr;
}

/** Takes the parameters up to the end of the line, all of them generic. */
template <class Header>
bool TakeGenericParams( Walk &w, Header *hdr )
{
    return TakeParams( w, [&] { return TakeGeneric( w, hdr->genericParams ); } );
}

/** The header of a line, all of whose parameters are generic. */
template <class Header>
KoRef<Header *> DecodeParty( Text line, KoSort sort )
{
    Walk w( line );
    auto hdr = TakeParty<Header>( w, sort, ToSemicolon );
    return hdr && TakeGenericParams( w, hdr.Get() ) ? std::move( hdr ) : KoRef<Header *>();
}

/** The line of such a header. */
template <class Header>
KoRef<KoString> EncodeParty( Header *hdr )
{
    Builder text;
    AddAddress( text, hdr->displayName, hdr->iri );
    AddParams( text, hdr->genericParams, {} );
    return Adopt( text.Finish() );
}

/** The header of a line, with a tag and an end-point identifier. */
template <class Header>
KoRef<Header *> DecodeTaggedParty( Text line, KoSort sort )
{
    Walk w( line );
    auto hdr = TakeParty<Header>( w, sort, ToSemicolon );
    const auto takeParam = [&, party = hdr.Get()] {
        return TakeLifted( w, "tag", skip::Tag, [=]( Text value ) { return StoreText( party->tag, value ); } ) ||
               TakeLifted( w, "epid", skip::Epid, [=]( Text value ) { return StoreText( party->epid, value ); } ) ||
               TakeGeneric( w, party->genericParams );
    };
    return hdr && TakeParams( w, takeParam ) ? std::move( hdr ) : KoRef<Header *>();
}

/** The line of such a header; each unit has its own constants for the two names. */
template <class Header>
KoRef<KoString> EncodeTaggedParty( Header *hdr, KoString tagName, KoString epidName )
{
    Builder text;
    AddAddress( text, hdr->displayName, hdr->iri );
    if ( hdr->tag ) {
        AddParamName( text, tagName );
        text.Add( hdr->tag );
    }
    if ( hdr->epid ) {
        AddParamName( text, epidName );
        text.Add( hdr->epid );
    }
    AddParams( text, hdr->genericParams, { Hidden( hdr->tag, "tag" ), Hidden( hdr->epid, "epid" ) } );
    return Adopt( text.Finish() );
}

} // namespace tolmo

#endif
