/* Where a type is told to print what does not decode to the same again. */
#ifndef FUZZ_RULES_HPP
#define FUZZ_RULES_HPP

#include "tables.hpp"

namespace fuzz {

/** False for a value that prints a text which need not decode, or not to the same. */
inline bool PrintsDecodable( const Type &type, KoObj value )
{
    const auto get = [&]( const char *name ) {
        for ( const Field &field : type.fields ) {
            if ( std::string_view( name ) == field.name ) {
                return field.get( value );
            }
        }
        Fail( __FILE__, __LINE__, name, type.name + " has no such field" );
    };
    if ( type.name == "Diversion" ) {
        // The words print as they are stored, without the quotes that they may have come in.
        for ( const char *word : { "Reason", "Privacy", "Screen" } ) {
            const std::string text = get( word );
            if ( text != "(null)" && !tolmoTokenOk( Str( text ).Get() ) ) {
                return false;
            }
        }
    }
    if ( type.name == "WarningValue" ) {
        // The code prints without leading zeros, and needs three digits.
        return std::stol( get( "WarnCode" ) ) >= 100;
    }
    // A quoted value with an escape in it is no value of these fields, and stays a parameter. It prints without the
    // escape, and is the field's from then on.
    const char *const lifted = type.name == "Contact"            ? "+sip.instance"
                               : type.name == "HeaderReferredBy" ? "cid"
                                                                 : nullptr;
    if ( lifted ) {
        const auto params = Own( type.params( value ) );
        return tolmoGenericParamsParamValueTypeCstr( params.Get(), lifted, -1 ) !=
               TOLMO_GENERIC_PARAM_VALUE_TYPE_QUOTABLE_STRING;
    }
    return true;
}

} // namespace fuzz

#endif
