/*
 * Parameters inside values and headers: the ones that a type has a field for ("lifted"), and all others.
 *
 * A decoder offers the text behind each semicolon to the type's parsers, in one fixed order that stands in one place of
 * the unit:
 *
 *     TakeParams( w, [&] {
 *         return TakeLifted( w, "ttl", skip::Ttl, [&]( Text value ) { return StoreTtl( via, value ); } ) ||
 *                TakeLifted( w, "branch", skip::Branch, [&]( Text value ) { return StoreText( via->branch, value ); } ) ||
 *                TakeGeneric( w, via->genericParams );
 *     } )
 *
 * A parser that refuses gives way to the next one, so that a known name with a bad value becomes a generic parameter. A
 * name is matched as a prefix, and a parser that has taken a good value leaves what follows to the loop: then only a
 * semicolon is good, and there is no way back.
 */
#ifndef TOLMO_PARAMS_HPP
#define TOLMO_PARAMS_HPP

#include <tolmo/tolmo_builder.hpp>
#include <tolmo/tolmo_generic_params.h>
#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_skip.hpp>

#include <initializer_list>

namespace tolmo {

/** A shared empty list, which costs nothing: what a new value starts with. New reference. */
TolmoGenericParams EmptyParams();

/** Makes and drops the shared empty list, at start and stop of the module. */
void StartParams();
void StopParams();

/** Takes one generic parameter; null, with nothing taken, when there is none. */
KoRef<TolmoGenericParam> TakeGenericParam( Walk &w );

/** Takes one generic parameter into a list; false, with nothing taken, when there is none. */
bool TakeGeneric( Walk &w, TolmoGenericParams &params );

/** Takes a named parameter whose value `store` accepts; otherwise takes nothing. `store` gets the text of the value. */
template <class Skip, class StoreValue>
bool TakeLifted( Walk &w, std::string_view name, Skip skip, StoreValue store )
{
    const KoInt place = w.Place();
    if ( w.Need( skip::Literal, name ) && w.Need( skip::Equal ) && w.Need( skip ) && store( w.Last() ) ) {
        return true;
    }
    w.Return( place );
    return false;
}

/** Takes all parameters up to the end of the text: `;` and what `takeOne` takes. False when something else stands there. */
template <class TakeOne>
bool TakeParams( Walk &w, TakeOne takeOne )
{
    while ( !w.AtEnd() ) {
        if ( !w.Need( skip::Semi ) || !takeOne() ) {
            return false;
        }
    }
    return true;
}

/** The same, but what no semicolon opens is left alone: the rest of the text is ignored, and that is meant. */
template <class TakeOne>
bool TakeLeadingParams( Walk &w, TakeOne takeOne )
{
    while ( w.Need( skip::Semi ) ) {
        if ( !takeOne() ) {
            return false;
        }
    }
    return true;
}

/** Keeps a copy of a value's text in a field. Always accepts. */
inline bool StoreText( KoString &field, Text value )
{
    Store( field, value.Copy() );
    return true;
}

/** Keeps a decoded value in a field. Always accepts: what the skip function of the value takes, decodes. */
template <class Handle>
bool StoreGood( Handle &field, KoRef<Handle> value )
{
    Store( field, std::move( value ) );
    return true;
}

/** Keeps a number in a field, if it is none of those below 0 by which decoders refuse. */
inline bool StoreNumber( KoInt &field, KoInt value )
{
    if ( value < 0 ) {
        return false;
    }
    field = value;
    return true;
}

/**
 * Adds the wire text of a list, without the parameters of some names: those whose field is present, which the encoder
 * writes itself. The list stays as it is.
 */
void AddParams( Builder &text, TolmoGenericParams params, std::initializer_list<std::string_view> hidden );

/** Adds `;name=`. */
inline void AddParamName( Builder &text, KoString name )
{
    text.Add( ';' );
    text.Add( name );
    text.Add( '=' );
}

/** Adds `;name=` by a literal. */
inline void AddParamName( Builder &text, std::string_view name )
{
    text.Add( ';' );
    text.Add( name );
    text.Add( '=' );
}

/** A name to hide while its field is present: `Hidden( via->ttl != -1, "ttl" )`. */
inline std::string_view Hidden( bool present, std::string_view name )
{
    return present ? name : std::string_view();
}

} // namespace tolmo

#endif
