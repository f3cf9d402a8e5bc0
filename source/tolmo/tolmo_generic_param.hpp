/* What the list of parameters needs of a parameter besides its exported operations. */
#ifndef TOLMO_GENERIC_PARAM_HPP
#define TOLMO_GENERIC_PARAM_HPP

#include <tolmo/tolmo_builder.hpp>
#include <tolmo/tolmo_generic_param.h>
#include <tolmo/tolmo_object.hpp>

struct tolmo___GenericParam {
    ko___Obj head;
    KoString name;
    KoInt type; // -1: no value
    KoString value;
};

namespace tolmo {

/** Adds the wire text of a parameter. */
void AddParam( Builder &text, TolmoGenericParam param );

} // namespace tolmo

#endif
