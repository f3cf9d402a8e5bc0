/* What the tests of the library share: the fixture that has the module started, and references for short rows. */
#ifndef TOLMO_TEST_H
#define TOLMO_TEST_H

#include <test.h>

#include <tolmo/tolmo.h>

namespace test {

/** Starts the module once in the program, before the first count of live objects. */
class TolmoFixture : public Fixture {
protected:
    void SetUp() override
    {
        static const KoModuleScope started( tolmoModule() );
        Fixture::SetUp();
    }
};

/** Takes a reference over: `const auto name = Own( tolmoMessageHeaderName( header ) )`. */
template <class Handle>
KoRef<Handle> Own( Handle handle )
{
    return KoRef<Handle>::Adopt( handle );
}

/** True for null, which is released if it is none: for decoders that must refuse. */
template <class Handle>
bool IsNull( Handle handle )
{
    return !Own( handle );
}

} // namespace test

#endif
