/* Texts of a warning, without quotes and escapes (RFC 3261 section 25.1). */
#include <tolmo/tolmo_warn_text.h>

#include <tolmo/tolmo_quotable_string.h>

KoBool tolmoWarnTextOk( KoString warnText )
{
    KO_REQUIRE( warnText );
    return tolmoQuotableStringOk( warnText );
}
