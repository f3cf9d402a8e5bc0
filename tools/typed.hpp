/* The typed headers of a message, for the reader's eye. */
#ifndef TOOLS_TYPED_HPP
#define TOOLS_TYPED_HPP

#include "text.hpp"

#include <optional>
#include <vector>

namespace tools {

/** What the typed form of a header says. */
struct Typed {
    bool good = false;              // false: the lines do not decode as the type
    std::vector<std::string> items; // a line for each value; an item that does not decode says so
};

/** A header field that the library has a type for. */
struct KnownHeader {
    const char *name;      // in normal form
    const char *reference; // where it is defined
    Typed ( *decode )( TolmoMessage msg );
};

/** All of them, by name. */
const std::vector<KnownHeader> &KnownHeaders();

/** The typed form of a header; nothing when the library has no type for it. */
std::optional<Typed> DecodeTyped( TolmoMessage msg, const std::string &name );

} // namespace tools

#endif
