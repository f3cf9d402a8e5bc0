/* What the tests of this library share: the started module, raw headers and messages from literals. */
#ifndef TOLMO_TEST_H
#define TOLMO_TEST_H

#include "test.h"

#include <tolmo/tolmo.h>

namespace test {

/** The base of the fixtures of this library: the module runs, from the first test to the end of the program. */
class TolmoFixture : public Fixture {
protected:
    void SetUp() override
    {
        static const KoModuleScope module( tolmoModule() );
        Fixture::SetUp();
    }
};

using Strings = std::vector<std::string>;

/** The texts of a vector of strings that is released. */
inline Strings TakeStrings( KoVector vector )
{
    const auto owned = KoRef<KoVector>::Adopt( vector );
    Strings texts;
    for ( KoInt i = 0; i < koVectorLength( vector ); ++i ) {
        texts.push_back( Take( koStringFrom( koVectorObjAt( vector, i ) ) ) );
    }
    return texts;
}

/** A new raw header with lines. */
inline KoRef<TolmoMessageHeader> RawHeader( std::string_view name, const Strings &lines )
{
    auto header = KoRef<TolmoMessageHeader>::Adopt( tolmoMessageHeaderCreate( Str( name ).Get() ) );
    for ( const auto &line : lines ) {
        tolmoMessageHeaderAppendLine( header.Address(), Str( line ).Get() );
    }
    return header;
}

/** The lines of a raw header that is released; one line "(null)" for null. */
inline Strings TakeLines( TolmoMessageHeader header )
{
    if ( !header ) {
        return { "(null)" };
    }
    const auto owned = KoRef<TolmoMessageHeader>::Adopt( header );
    return TakeStrings( tolmoMessageHeaderLinesVector( header ) );
}

/** A request as it was received, with these headers: each line with its line end. */
inline KoRef<TolmoMessage> Received( std::string_view headers )
{
    return KoRef<TolmoMessage>::Adopt(
        tolmoMessageTryDecode( Buf( "OPTIONS sip:a SIP/2.0\r\n" + std::string( headers ) + "\r\n" ).Get() ) );
}

} // namespace test

#endif
