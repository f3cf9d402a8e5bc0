/* What the message model needs of a raw header besides its exported operations. */
#ifndef TOLMO_MESSAGE_HEADER_HPP
#define TOLMO_MESSAGE_HEADER_HPP

#include <tolmo/tolmo_message_header.h>
#include <tolmo/tolmo_object.hpp>

struct tolmo___MessageHeader {
    ko___Obj head;
    KoString name;
    KoVector lines;
};

namespace tolmo {

/** A new header from a name in normal form and a vector of valid lines, both without a test. */
KoRef<TolmoMessageHeader> CreateMessageHeader( KoRef<KoString> name, KoRef<KoVector> lines );

/** Adds a fresh line, which is tested, to a header that is the caller's alone. */
void AppendLine( TolmoMessageHeader header, KoRef<KoString> value );

} // namespace tolmo

#endif
