/* Strings of the library as text of the program. */
#ifndef TOOLS_TEXT_HPP
#define TOOLS_TEXT_HPP

#include <tolmo/tolmo.h>

#include <string>

namespace tools {

/** The UTF-8 text of characters. */
inline std::string Text( const KoChar *chs, KoInt length )
{
    const KoInt need = koCharsConvertToUtf8( nullptr, 0, chs, length, KO_FALSE );
    std::string text( static_cast<size_t>( need ), '\0' );
    koCharsConvertToUtf8( text.data(), need, chs, length, KO_FALSE );
    return text;
}

/** The text of a string that is lent. */
inline std::string Text( const KoRef<KoString> &s )
{
    return s ? Text( koStringBacking( s.Get() ), koStringLength( s.Get() ) ) : std::string();
}

/** The text of a fresh string. */
inline std::string Take( KoString s )
{
    return Text( KoRef<KoString>::Adopt( s ) );
}

inline std::string Bytes( KoBuffer b )
{
    return { reinterpret_cast<const char *>( koBufferBacking( b ) ), static_cast<size_t>( koBufferLength( b ) ) };
}

/** Text as it can be shown on one line of a terminal: controls and ill-formed bytes become escapes. */
std::string Printable( const std::string &text );

} // namespace tools

#endif
