/* Parameters of acceptable media types and codings: q has a field, all others have none (RFC 3261 section 20.1). */
#ifndef TOLMO_ACCEPT_PARAMS_HPP
#define TOLMO_ACCEPT_PARAMS_HPP

#include <tolmo/tolmo_params.hpp>
#include <tolmo/tolmo_qvalue.h>

namespace tolmo {

/** Adds the parameters; `q` is absent when it is -1. */
inline void AddAcceptParams( Builder &text, KoInt qvalue, TolmoGenericParams params )
{
    if ( qvalue != -1 ) {
        AddParamName( text, "q" );
        text.Take( tolmo___QvalueEncode( qvalue ) );
    }
    AddParams( text, params, { Hidden( qvalue != -1, "q" ) } );
}

/** Takes all parameters up to the end of the text. What the skip function takes, decodes: both follow one rule. */
inline bool TakeAcceptParams( Walk &w, KoInt &qvalue, TolmoGenericParams &params )
{
    return TakeParams( w, [&] {
        return TakeLifted( w, "q", skip::Qvalue,
                           [&]( Text value ) {
                               return StoreNumber( qvalue, tolmo___QvalueTryDecode( value.chs, value.length ) );
                           } ) ||
               TakeGeneric( w, params );
    } );
}

} // namespace tolmo

#endif
