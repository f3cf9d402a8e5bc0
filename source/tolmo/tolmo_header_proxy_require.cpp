/* The header Proxy-Require (RFC 3261 section 20.29). */
#include <tolmo/tolmo_header_proxy_require.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

struct tolmo___HeaderProxyRequire {
    ko___Obj head;
    KoDict words; // each under itself
};

namespace {

using AllFields = tolmo::Fields<&tolmo___HeaderProxyRequire::words>;
static_assert( tolmo::namesAllFields<tolmo___HeaderProxyRequire, AllFields> );

TOLMO_FREE( HeaderProxyRequire, hdr, AllFields )
TOLMO_COMPARE( HeaderProxyRequire, hdrA, hdrB, AllFields )
TOLMO_HEADER_TO_STRING( ProxyRequire )

} // namespace

static const ko___Sort tolmo___sort_TOLMO_HEADER_PROXY_REQUIRE =
    TOLMO_SORT( "TOLMO_HEADER_PROXY_REQUIRE", Free, Compare, ToString );
TOLMO_STANDARD_OPERATIONS( HeaderProxyRequire, TOLMO_HEADER_PROXY_REQUIRE )
TOLMO_CREATE_FROM( HeaderProxyRequire, AllFields )
TOLMO_HEADER_NAME( ProxyRequire, ProxyRequire, "Proxy-Require" )

TOLMO_TOKEN_SET_CREATE( ProxyRequire, TOLMO_HEADER_PROXY_REQUIRE )
TOLMO_TOKEN_SET_READING( ProxyRequire, OptionTag )
TOLMO_TOKEN_SET_CHANGING( ProxyRequire, OptionTag, optionTag, tolmo::Folded )
TOLMO_TOKEN_SET_CSTR_FORMS( ProxyRequire, OptionTag )
TOLMO_TOKEN_SET_CODING( ProxyRequire, tolmo::skip::OptionTag, tolmo::skip::Comma, ',', tolmo::Folded )
TOLMO_HEADER_OPERATIONS( ProxyRequire, ProxyRequire )
