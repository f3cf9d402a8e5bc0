/* What the tests of the library share: the fixture that has the module started, and short forms for rows. */
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

using Strings = std::vector<std::string>;

/** The texts of a vector of strings that is released. */
inline Strings TakeStrings( KoVector vector )
{
    const auto owned = Own( vector );
    Strings texts;
    for ( KoInt i = 0; i < koVectorLength( vector ); ++i ) {
        texts.push_back( Take( koStringFrom( koVectorObjAt( vector, i ) ) ) );
    }
    return texts;
}

/** A new raw header with lines. */
inline KoRef<TolmoMessageHeader> RawHeader( std::string_view name, const Strings &lines )
{
    auto header = Own( tolmoMessageHeaderCreate( Str( name ).Get() ) );
    for ( const auto &line : lines ) {
        tolmoMessageHeaderAppendLine( header.Address(), Str( line ).Get() );
    }
    return header;
}

/** The lines of a raw header. */
inline Strings LinesOf( TolmoMessageHeader header )
{
    return TakeStrings( tolmoMessageHeaderLinesVector( header ) );
}

/** The lines of a raw header that is released; one line "(null)" for null. */
inline Strings TakeLines( TolmoMessageHeader header )
{
    const auto owned = Own( header );
    return header ? LinesOf( header ) : Strings{ "(null)" };
}

/** A request as it was received, with these headers: each line with its line end. */
inline KoRef<TolmoMessage> Received( std::string_view headers )
{
    return Own( tolmoMessageTryDecode( Buf( "OPTIONS sip:a SIP/2.0\r\n" + std::string( headers ) + "\r\n" ).Get() ) );
}

} // namespace test

#endif
