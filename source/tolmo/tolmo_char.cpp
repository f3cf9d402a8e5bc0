/* The character classes of the grammar (RFC 3261 section 25.1). */
#include <tolmo/tolmo_char.h>

#include <tolmo/tolmo_char.hpp>

KoBool tolmo___CharIsAlpha( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charAlpha );
}

KoBool tolmo___CharIsDigit( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charDigit );
}

KoBool tolmo___CharIsAlphanum( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charAlphanum );
}

KoBool tolmo___CharIsHexdig( KoChar ch, KoInt *value )
{
    const KoInt digit = tolmo::HexValue( ch );
    if ( value ) {
        *value = digit;
    }
    return digit >= 0;
}

KoBool tolmo___CharIsLws( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charLws );
}

KoBool tolmo___CharIsToken( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charToken );
}

KoBool tolmo___CharIsTokenNodot( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charTokenNodot );
}

KoBool tolmo___CharIsAtom( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charAtom );
}

KoBool tolmo___CharIsWord( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charWord );
}

KoBool tolmo___CharIsMark( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charMark );
}

KoBool tolmo___CharIsUnreserved( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charUnreserved );
}

KoBool tolmo___CharIsReserved( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charReserved );
}

KoBool tolmo___CharIsUserUnreserved( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charUserUnreserved );
}

KoBool tolmo___CharIsHnvUnreserved( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charHnvUnreserved );
}

KoBool tolmo___CharIsParamChar( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charParamChar );
}

KoBool tolmo___CharIsSeparator( KoChar ch )
{
    return tolmo::Is( ch, tolmo::charSeparator );
}
