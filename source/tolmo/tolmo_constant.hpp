/* The constants of a unit: made at the start of the module, poisoned at its end. */
#ifndef TOLMO_CONSTANT_HPP
#define TOLMO_CONSTANT_HPP

#include <tolmo/tolmo_object.hpp>

namespace tolmo {

/** Null first, then the constant with the text. */
inline void Start( KoString &constant, const char *literal )
{
    constant = nullptr;
    constant = koStringConstant( literal );
}

/** Drops a constant and leaves the mark of an ended object. Who still holds the constant can keep it. */
inline void Stop( KoString &constant )
{
    FreeField( constant );
}

} // namespace tolmo

#endif
