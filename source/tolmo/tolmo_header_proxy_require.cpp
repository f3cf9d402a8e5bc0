/* The header Proxy-Require (RFC 3261 section 20.29). */
#include <tolmo/tolmo_header_proxy_require.h>

#include <tolmo/tolmo_option_tag.h>
#include <tolmo/tolmo_token_set.hpp>

TOLMO_HEADER_NAME( ProxyRequire, ProxyRequire, "Proxy-Require" )
TOLMO_TOKEN_SET_TYPE( ProxyRequire, TOLMO_HEADER_PROXY_REQUIRE )
TOLMO_TOKEN_SET( ProxyRequire, OptionTag, optionTag, tolmo::Folded, tolmo::skip::Comma, ',' )
TOLMO_TOKEN_SET_CSTR_FORMS( ProxyRequire, OptionTag )
TOLMO_HEADER_OPERATIONS( ProxyRequire, ProxyRequire )
