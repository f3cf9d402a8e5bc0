/* Quoted strings inside what decoders walk over. */
#ifndef TOLMO_QUOTABLE_STRING_HPP
#define TOLMO_QUOTABLE_STRING_HPP

#include <tolmo/tolmo_walk.hpp>

namespace tolmo {

/** The text of what skip::QuotedString has taken: without the quotes and the backslashes. */
KoRef<KoString> DecodeQuoted( Text quoted );

} // namespace tolmo

#endif
