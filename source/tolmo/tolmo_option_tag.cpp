/* Option tags (RFC 3261 section 25.1). */
#include <tolmo/tolmo_option_tag.h>

#include <tolmo/tolmo_scalar.hpp>

KoBool tolmoOptionTagOk( KoString optionTag )
{
    KO_REQUIRE( optionTag );
    return tolmo::IsWhole( optionTag, tolmo::skip::OptionTag );
}

KoString tolmoOptionTagNormalize( KoString optionTag )
{
    KO_REQUIRE( tolmoOptionTagOk( optionTag ) );
    return tolmo::Lowered( optionTag );
}
