/*
 * Value types, all of them: what decodes, encodes; the text decodes to an equal value and stays as it is from there on.
 * Encoding and copying leave the value alone.
 */
#include "rules.hpp"

namespace fuzz {

void ValueTarget( std::string_view input )
{
    const Exact text( input );
    for ( const Value &type : All().values ) {
        const auto value = Own( type.decode( text.Chars(), text.Length() ) );
        if ( !value ) {
            continue;
        }
        const std::string snapshot = Joined( Snapshot( type, value.Get() ) );
        const std::string printed = Take( type.encode( value.Get() ) );
        CHECK_SAME( Joined( Snapshot( type, value.Get() ) ), snapshot );
        CHECK_SAME( Take( type.toString( value.Get() ) ),
                    type.sort()->toString ? printed : "<" + std::string( type.sort()->name ) + ">" );

        const auto copy = Own( type.createFrom( value.Get() ) );
        CHECK_SAME( Joined( Snapshot( type, copy.Get() ) ), snapshot );
        CHECK_SAME( Take( type.encode( copy.Get() ) ), printed );
        CHECK( !type.sort()->compare || koObjCompare( value.Get(), copy.Get() ) == 0 );

        if ( !PrintsDecodable( type, value.Get() ) ) {
            continue;
        }
        CHECK_TELL( PrintsNamesOnce( type, printed ), printed );
        const Exact printedChars( printed );
        const auto again = Own( type.decode( printedChars.Chars(), printedChars.Length() ) );
        CHECK_TELL( again, type.name + ": " + printed );
        CHECK_SAME( Take( type.encode( again.Get() ) ), printed );
        if ( !HidesParams( type, value.Get() ) ) {
            CHECK_SAME( Joined( Snapshot( type, again.Get() ) ), snapshot );
            CHECK_TELL( !type.sort()->compare || koObjCompare( value.Get(), again.Get() ) == 0, printed );
        }
    }
}

} // namespace fuzz
