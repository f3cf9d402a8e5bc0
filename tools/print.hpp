/* A message as a tree of lines. */
#ifndef TOOLS_PRINT_HPP
#define TOOLS_PRINT_HPP

#include "text.hpp"

#include <cstdint>

namespace tools {

/** Prints a message to standard output; `title` says where it comes from. */
void PrintMessage( TolmoMessage msg, const std::string &title, bool colored );

} // namespace tools

#endif
