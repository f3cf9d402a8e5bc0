/* The words of a Diversion, which share their wire form: a token or a quoted string (RFC 5806). */
#ifndef TOLMO_DIVERSION_WORD_HPP
#define TOLMO_DIVERSION_WORD_HPP

#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_scalar.hpp>

namespace tolmo {

/** A token as it is, any other text in quotes. */
inline KoString EncodeDiversionWord( KoString word )
{
    return IsWhole( word, skip::Token ) ? Retained( word ) : tolmo___QuotableStringEncode( word );
}

/** The text of a token, or the text inside of the quotes; null when the text is neither. */
inline KoString TryDecodeDiversionWord( const KoChar *chs, KoInt length )
{
    return IsWhole( Text( chs, length ), skip::Token ) ? koStringCreateFromCharsCopy( chs, length )
                                                       : tolmo___QuotableStringTryDecode( chs, length );
}

} // namespace tolmo

#endif
