/* Messages out of files: one as a whole, or a stream of them, read in blocks. */
#ifndef TOOLS_INPUT_HPP
#define TOOLS_INPUT_HPP

#include "text.hpp"

#include <cstdint>
#include <functional>

namespace tools {

enum class Framing { guessed, datagram, stream };

/** Why a message was refused, and where. */
struct Refusal {
    int64_t offset;   // of the byte at which the refused text begins
    std::string text; // its start
    const char *reason;
};

enum class Outcome { good, refused, unreadable };

struct Events {
    /** Gets each message, and the offset of its first byte. */
    std::function<void( TolmoMessage, int64_t offset )> message;
    std::function<void( const Refusal & )> refusal;
    /** Gets the errno of what could not be read. */
    std::function<void( int error )> unreadable;
    /** Gets the number of bytes read so far, now and then. */
    std::function<void( int64_t bytes )> progress;
};

/** Reads a file, `-` for standard input. Memory does not grow with the length of a stream. */
Outcome ReadMessages( const std::string &path, Framing framing, const Events &events );

} // namespace tools

#endif
