/* What the message model needs of a fragment besides its exported operations. */
#ifndef TOLMO_MESSAGE_FRAGMENT_HPP
#define TOLMO_MESSAGE_FRAGMENT_HPP

#include <tolmo/tolmo_header_table.hpp>
#include <tolmo/tolmo_message_fragment.h>

struct tolmo___MessageFragment {
    ko___Obj head;
    KoString requestMethod;
    KoString requestIri;
    KoInt responseStatusCode;
    KoString responseReasonPhrase;
    TolmoVersion version;
    tolmo::HeaderTable *headers;
    KoBuffer body;
};

namespace tolmo {

/** A fragment of neither state over a table of headers. */
KoRef<TolmoMessageFragment> CreateFragment( KoRef<HeaderTable *> headers );

/** Where CR LF CR LF stands in bytes, from a place on; -1 when it does not. */
KoInt FindHeadEnd( const uint8_t *bytes, KoInt from, KoInt length );

/** tolmoMessageFragmentTryDecodeHeaders on bytes. */
KoRef<TolmoMessageFragment> DecodeHead( const uint8_t *bytes, KoInt length, KoInt *contentLength );

} // namespace tolmo

#endif
