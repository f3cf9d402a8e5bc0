/* Parameters that tell a span of seconds (RFC 3261 section 25.1, delta-seconds). */
#ifndef TOLMO_SECONDS_HPP
#define TOLMO_SECONDS_HPP

#include <tolmo/tolmo_delta_seconds.h>
#include <tolmo/tolmo_params.hpp>

namespace tolmo {

/** Takes a named parameter whose value is a span of seconds that fits a KoInt. */
inline bool TakeSeconds( Walk &w, std::string_view name, KoInt &field )
{
    return TakeLifted( w, name, skip::DeltaSeconds, [&]( Text value ) {
        return StoreNumber( field, tolmo___DeltaSecondsTryDecode( value.chs, value.length ) );
    } );
}

/** Adds `;name=seconds`; nothing for -1, which is an absent field. */
inline void AddSeconds( Builder &text, std::string_view name, KoInt seconds )
{
    if ( seconds != -1 ) {
        AddParamName( text, name );
        text.AddNumber( seconds );
    }
}

} // namespace tolmo

#endif
