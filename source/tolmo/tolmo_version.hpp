/* Versions inside what decoders walk over. */
#ifndef TOLMO_VERSION_HPP
#define TOLMO_VERSION_HPP

#include <tolmo/tolmo_version.h>
#include <tolmo/tolmo_walk.hpp>

namespace tolmo {

/** Takes a version, in one pass; null when there is none. */
KoRef<TolmoVersion> TakeVersion( Walk &w );

} // namespace tolmo

#endif
