/* What the typed headers need of a message besides its exported operations. */
#ifndef TOLMO_MESSAGE_HPP
#define TOLMO_MESSAGE_HPP

#include <tolmo/tolmo_message.h>
#include <tolmo/tolmo_message_fragment.hpp>

struct tolmo___Message {
    ko___Obj head;
    TolmoMessageFragment fragment;
};

namespace tolmo {

/** tolmoMessageSetHeader with a fresh header. */
void SetHeader( TolmoMessage *msg, KoRef<TolmoMessageHeader> header );

} // namespace tolmo

#endif
