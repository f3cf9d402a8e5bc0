/* One item of a Warning header: a code, an agent, a text (RFC 3261 section 20.43). */
#include <tolmo/tolmo_warning_value.h>

#include <tolmo/tolmo_builder.hpp>
#include <tolmo/tolmo_object.hpp>
#include <tolmo/tolmo_quotable_string.h>
#include <tolmo/tolmo_quotable_string.hpp>
#include <tolmo/tolmo_skip.hpp>
#include <tolmo/tolmo_warn_agent.h>
#include <tolmo/tolmo_warn_code.h>
#include <tolmo/tolmo_warn_text.h>

namespace skip = tolmo::skip;

struct tolmo___WarningValue {
    ko___Obj head;
    KoInt warnCode;
    KoString warnAgent;
    KoString warnText; // without quotes and escapes
};

namespace {

using WarningValue = tolmo___WarningValue;
using AllFields = tolmo::Fields<&WarningValue::warnCode, &WarningValue::warnAgent, &WarningValue::warnText>;
static_assert( tolmo::namesAllFields<WarningValue, AllFields> );

TOLMO_FREE( WarningValue, wv, AllFields )
TOLMO_COMPARE( WarningValue, wvA, wvB, AllFields )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_WARNING_VALUE = TOLMO_SORT( "TOLMO_WARNING_VALUE", Free, Compare, nullptr );
TOLMO_STANDARD_OPERATIONS( WarningValue, TOLMO_WARNING_VALUE )
TOLMO_CREATE_FROM( WarningValue, AllFields )

namespace {

/** A warning of parts that are good. */
TolmoWarningValue Create( KoInt warnCode, KoRef<KoString> warnAgent, KoRef<KoString> warnText )
{
    auto wv = tolmo::CreateObject<WarningValue>( &tolmo___sort_TOLMO_WARNING_VALUE );
    wv.Get()->warnCode = warnCode;
    wv.Get()->warnAgent = warnAgent.Leak();
    wv.Get()->warnText = warnText.Leak();
    return wv.Leak();
}

} // namespace

TolmoWarningValue tolmoWarningValueCreate( KoInt warnCode, KoString warnAgent )
{
    KO_REQUIRE( tolmoWarnCodeOk( warnCode ) );
    KO_REQUIRE( tolmoWarnAgentOk( warnAgent ) );
    return Create( warnCode, tolmo::Share( warnAgent ), tolmo::Adopt( tolmoWarnCodeToString( warnCode ) ) );
}

TolmoWarningValue tolmoWarningValueCreateWithWarnText( KoInt warnCode, KoString warnAgent, KoString warnText )
{
    KO_REQUIRE( tolmoWarnCodeOk( warnCode ) );
    KO_REQUIRE( tolmoWarnAgentOk( warnAgent ) );
    KO_REQUIRE( tolmoWarnTextOk( warnText ) );
    return Create( warnCode, tolmo::Share( warnAgent ), tolmo::Share( warnText ) );
}

KoInt tolmoWarningValueWarnCode( TolmoWarningValue wv )
{
    KO_REQUIRE( wv );
    return wv->warnCode;
}

void tolmoWarningValueSetWarnCode( TolmoWarningValue *wv, KoInt warnCode, KoBool updateWarnText )
{
    KO_REQUIRE_HANDLE( wv );
    KO_REQUIRE( tolmoWarnCodeOk( warnCode ) );
    tolmo::MakeUnique( wv, tolmoWarningValueCreateFrom );
    ( *wv )->warnCode = warnCode;
    if ( updateWarnText ) {
        tolmo::Store( ( *wv )->warnText, tolmo::Adopt( tolmoWarnCodeToString( warnCode ) ) );
    }
}

KoString tolmoWarningValueWarnAgent( TolmoWarningValue wv )
{
    KO_REQUIRE( wv );
    return tolmo::Retained( wv->warnAgent );
}

void tolmoWarningValueSetWarnAgent( TolmoWarningValue *wv, KoString warnAgent )
{
    KO_REQUIRE_HANDLE( wv );
    KO_REQUIRE( tolmoWarnAgentOk( warnAgent ) );
    tolmo::MakeUnique( wv, tolmoWarningValueCreateFrom );
    tolmo::Store( ( *wv )->warnAgent, tolmo::Share( warnAgent ) );
}

KoString tolmoWarningValueWarnText( TolmoWarningValue wv )
{
    KO_REQUIRE( wv );
    return tolmo::Retained( wv->warnText );
}

void tolmoWarningValueSetWarnText( TolmoWarningValue *wv, KoString warnText )
{
    KO_REQUIRE_HANDLE( wv );
    KO_REQUIRE( tolmoWarnTextOk( warnText ) );
    tolmo::MakeUnique( wv, tolmoWarningValueCreateFrom );
    tolmo::Store( ( *wv )->warnText, tolmo::Share( warnText ) );
}

// warn-code SP warn-agent SP warn-text
KoString tolmo___WarningValueEncode( TolmoWarningValue wv )
{
    KO_REQUIRE( wv );
    tolmo::Builder text;
    text.AddNumber( wv->warnCode ); // without zeros in front
    text.Add( ' ' );
    text.Add( wv->warnAgent );
    text.Add( ' ' );
    text.Take( tolmo___QuotableStringEncode( wv->warnText ) );
    return text.Finish();
}

// warn-code LWS warn-agent LWS warn-text
// What stands behind the text is not looked at, and that is meant. What the skip functions take passes the tests of the
// creator, and the quoted string decodes.
TolmoWarningValue tolmo___WarningValueTryDecode( const KoChar *chs, KoInt length )
{
    KO_REQUIRE( length >= 0 );
    KO_REQUIRE( chs || length == 0 );
    tolmo::Walk w( chs, length );
    if ( !w.Need( skip::WarnCode ) ) {
        return nullptr;
    }
    const KoInt warnCode = tolmo___WarnCodeDecode( w.Last().chs, w.Last().length );
    if ( !w.Need( skip::Lws ) || !w.Need( skip::WarnAgent ) ) {
        return nullptr;
    }
    const tolmo::Text warnAgent = w.Last();
    if ( !w.Need( skip::Lws ) || !w.Need( skip::WarnText ) ) {
        return nullptr;
    }
    auto warnText = tolmo::DecodeQuoted( w.Last() );
    return Create( warnCode, warnAgent.Copy(), std::move( warnText ) );
}
