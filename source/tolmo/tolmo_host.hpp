/* Hosts inside what decoders walk over. */
#ifndef TOLMO_HOST_HPP
#define TOLMO_HOST_HPP

#include <tolmo/tolmo_walk.hpp>

namespace tolmo {

/** The Unicode form of a text that skip::Host has taken: what that takes, decodes. */
KoRef<KoString> DecodeHost( Text host );

} // namespace tolmo

#endif
