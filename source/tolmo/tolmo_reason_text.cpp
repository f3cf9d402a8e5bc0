/* Texts of a Reason, without quotes and escapes (RFC 3326 section 2). */
#include <tolmo/tolmo_reason_text.h>

#include <tolmo/tolmo_quotable_string.h>

KoBool tolmoReasonTextOk( KoString text )
{
    return tolmoQuotableStringOk( text );
}
