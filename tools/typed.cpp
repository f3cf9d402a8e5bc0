/* The typed headers of a message, for the reader's eye. */
#include "typed.hpp"

#include <algorithm>

namespace tools {
namespace {

template <class Handle>
void Release( Handle object )
{
    koObjRelease( reinterpret_cast<KoObj>( object ) );
}

/** A header that is one value: its text, as the library would write it. */
template <auto tryDecode, auto toString>
Typed Single( TolmoMessage msg )
{
    const auto hdr = tryDecode( msg );
    if ( !hdr ) {
        return {};
    }
    Typed typed{ true, { Take( toString( hdr ) ) } };
    Release( hdr );
    return typed;
}

/** A list of values: the text of each, or that it does not decode. */
template <auto tryDecode, auto length, auto tryDecodeAt, auto encode>
Typed List( TolmoMessage msg )
{
    const auto hdr = tryDecode( msg );
    if ( !hdr ) {
        return {};
    }
    Typed typed{ true, {} };
    for ( KoInt i = 0; i < length( hdr ); ++i ) {
        if ( const auto value = tryDecodeAt( hdr, i ) ) {
            typed.items.push_back( Take( encode( value ) ) );
            Release( value );
        } else {
            typed.items.push_back( "item " + std::to_string( i ) + " does not decode" );
        }
    }
    Release( hdr );
    return typed;
}

/** A list or a set of words. */
template <auto tryDecode, auto length, auto at>
Typed Words( TolmoMessage msg )
{
    const auto hdr = tryDecode( msg );
    if ( !hdr ) {
        return {};
    }
    Typed typed{ true, {} };
    for ( KoInt i = 0; i < length( hdr ); ++i ) {
        typed.items.push_back( Take( at( hdr, i ) ) );
    }
    Release( hdr );
    return typed;
}

#define SINGLE( Type, name, reference )                                                                                \
    {                                                                                                                  \
        name, reference, Single<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##ToString>                  \
    }
#define LIST( Type, name, Item, Value, reference )                                                                     \
    {                                                                                                                  \
        name, reference,                                                                                               \
            List<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##Item##sLength,                            \
                 tolmoHeader##Type##TryDecode##Item##At, tolmo___##Value##Encode>                                      \
    }
#define WORDS( Type, name, Item, reference )                                                                           \
    {                                                                                                                  \
        name, reference,                                                                                               \
            Words<tolmoHeader##Type##TryDecodeFromMessage, tolmoHeader##Type##Item##sLength,                           \
                  tolmoHeader##Type##Item##At>                                                                         \
    }

} // namespace

const std::vector<KnownHeader> &KnownHeaders()
{
    static const std::vector<KnownHeader> headers = {
        SINGLE( MaxForwards, "Max-Forwards", "RFC 3261 section 20.22" ),
        SINGLE( Subject, "Subject", "RFC 3261 section 20.36" ),
        LIST( Via, "Via", Via, Via, "RFC 3261 section 20.42" ),
    };
    return headers;
}

std::optional<Typed> DecodeTyped( TolmoMessage msg, const std::string &name )
{
    const auto &headers = KnownHeaders();
    const auto found =
        std::find_if( headers.begin(), headers.end(), [&]( const KnownHeader &h ) { return name == h.name; } );
    return found == headers.end() ? std::nullopt : std::optional( found->decode( msg ) );
}

} // namespace tools
