/* What the tests of values and headers share: the library's module, started. */
#ifndef TOLMO_TEST_H
#define TOLMO_TEST_H

#include "test.h"

#include <tolmo/tolmo.h>

namespace test {

/** The base of fixtures that need the constants of the library: the module runs from the program's first such test on. */
class TolmoFixture : public Fixture {
protected:
    static void SetUpTestSuite() { static const KoModuleScope started( tolmoModule() ); }
};

/** Owns a fresh result. */
template <class Handle>
KoRef<Handle> Own( Handle fresh )
{
    return KoRef<Handle>::Adopt( fresh );
}

/** The parameters of a text such as `;a=b;c`. */
inline KoRef<TolmoGenericParams> Params( std::string_view text )
{
    const Exact chs( text );
    return Own( tolmo___GenericParamsTryDecode( chs.Chars(), chs.Length() ) );
}

} // namespace test

#endif
