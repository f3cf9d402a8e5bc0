/* The module of libwen, for the sorts of the library. Not installed. */
#ifndef WEN_MODULE_HPP
#define WEN_MODULE_HPP

#include <runtime/ko_module.h>

namespace wen {

extern ko___ModuleObject module;

} // namespace wen

#endif
