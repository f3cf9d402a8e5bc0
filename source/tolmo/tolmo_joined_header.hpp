/* Raw headers that print all their words on one line. */
#ifndef TOLMO_JOINED_HEADER_HPP
#define TOLMO_JOINED_HEADER_HPP

#include <tolmo/tolmo_builder.hpp>
#include <tolmo/tolmo_header.hpp>

namespace tolmo {

/** A raw header with all words on one line, with the bare separator between them; without a word it has no line. */
template <class WordAt>
TolmoMessageHeader JoinedHeader( NameId name, KoInt count, KoChar separator, WordAt wordAt )
{
    if ( count == 0 ) {
        return NewHeader( name ).Leak();
    }
    Builder text;
    text.Add( wordAt( 0 ) );
    for ( KoInt i = 1; i < count; ++i ) {
        text.Add( separator );
        text.Add( wordAt( i ) );
    }
    return OneLineHeader( name, Adopt( text.Finish() ) );
}

} // namespace tolmo

#endif
