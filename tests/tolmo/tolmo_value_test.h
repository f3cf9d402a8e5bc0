/* What the tests of values share: rows of text, the fields, the order, generated values. */
#ifndef TOLMO_VALUE_TEST_H
#define TOLMO_VALUE_TEST_H

#include "tolmo_type_test.h"

#include <random>

namespace test {

/** The functions of a value, as members of a structure, with the path of its unit and the name of its handles. */
#define TEST_VALUE_FUNCTIONS( Type, unit, handle )                                                                     \
    TEST_STANDARD_FUNCTIONS( Type )                                                                                    \
    static constexpr auto Encode = tolmo___##Type##Encode;                                                             \
    static constexpr auto TryDecode = tolmo___##Type##TryDecode;                                                       \
    static constexpr auto GenericParams = tolmo##Type##GenericParams;                                                  \
    static constexpr auto SetGenericParams = tolmo##Type##SetGenericParams;                                            \
    static constexpr auto Skip = tolmo___Skip##Type;                                                                   \
    static constexpr char path[] = "source/tolmo/" unit ".cpp";                                                        \
    static constexpr char name[] = handle;

template <class Value>
KoRef<typename Value::Handle> Decode( std::string_view text )
{
    return DecodeWith( Value::TryDecode, text );
}

/** The wire text, "(null)" for null. */
template <class Value>
std::string Encode( const KoRef<typename Value::Handle> &value )
{
    return value ? Take( Value::Encode( value.Get() ) ) : "(null)";
}

/** The parameters without a field, as text. */
template <class Value>
std::string Generic( const KoRef<typename Value::Handle> &value )
{
    return Take( tolmo___GenericParamsEncode( Own( Value::GenericParams( value.Get() ) ).Get() ) );
}

/** Text in, text out or "(null)". `again` is what the decoder makes of the text that went out, empty: the same. */
struct ValueRow {
    std::string_view text;
    std::string_view out;
    std::string_view again = {};
};

template <class Value, size_t count>
void ExpectRows( const ValueRow ( &rows )[count] )
{
    for ( const auto &row : rows ) {
        const auto value = Decode<Value>( row.text );
        EXPECT_EQ( Encode<Value>( value ), row.out ) << row.text;
        if ( value ) {
            EXPECT_EQ( Encode<Value>( Decode<Value>( row.out ) ), row.again.empty() ? row.out : row.again ) << row.text;
        }
        DecodeEveryPrefix( Value::TryDecode, row.text );
    }
    EXPECT_EQ( Value::TryDecode( nullptr, 0 ), nullptr );
    EXPECT_ABORT( Value::TryDecode( nullptr, -1 ), Value::path, "length >= 0" );
    EXPECT_ABORT( Value::TryDecode( nullptr, 1 ), Value::path, "chs || length == 0" );
    EXPECT_ABORT( Value::Encode( nullptr ), Value::path, Value::name );
}

/** Each text decodes to a value that is less than the next one's. */
template <class Value, size_t count>
void ExpectAscending( const std::string_view ( &texts )[count] )
{
    for ( size_t a = 0; a < count; ++a ) {
        for ( size_t b = 0; b < count; ++b ) {
            const KoInt order = Value::Compare( Decode<Value>( texts[a] ).Get(), Decode<Value>( texts[b] ).Get() );
            EXPECT_EQ( order < 0, a < b ) << texts[a] << " and " << texts[b];
            EXPECT_EQ( order > 0, a > b ) << texts[a] << " and " << texts[b];
        }
    }
}

/** An argument that ends the process: its text, null for null; and where, and by what. */
struct BadString {
    const char *text;
    const char *path;
    const char *expression;
};

/** A field that holds a string; a required one has neither `has` nor `del`. */
template <class Value>
struct StringField {
    KoBool ( *has )( typename Value::Handle );
    KoString ( *get )( typename Value::Handle );
    void ( *set )( typename Value::Handle *, KoString );
    void ( *del )( typename Value::Handle * );
    const char *good;
    const char *stored;
    const char *other; // is stored as it stands
    std::vector<BadString> bad;
};

/** A field over its whole life, in a value that `create` makes. */
template <class Value, class Create>
void ExpectStringField( const StringField<Value> &field, Create create )
{
    using Handle = typename Value::Handle;
    const std::string address = std::string( "*" ) + Value::name;
    KoRef<Handle> value = create();
    const auto good = Str( field.good );
    const Handle object = value.Get();
    field.set( value.Address(), good.Get() );
    EXPECT_EQ( value.Get(), object ); // the only holder: no copy
    EXPECT_EQ( Text( good ), field.good );
    const auto got = Own( field.get( value.Get() ) );
    EXPECT_EQ( Text( got ), field.stored );
    if ( std::string( field.good ) == field.stored ) {
        EXPECT_EQ( got.Get(), good.Get() ); // the very string
    }
    field.set( value.Address(), got.Get() ); // its own value
    EXPECT_EQ( Take( field.get( value.Get() ) ), field.stored );

    auto shared = KoRef<Handle>::Share( value.Get() );
    field.set( shared.Address(), Str( field.other ).Get() );
    EXPECT_NE( shared.Get(), value.Get() );
    EXPECT_EQ( Take( field.get( shared.Get() ) ), field.other );
    EXPECT_EQ( Take( field.get( value.Get() ) ), field.stored );

    Handle none = nullptr;
    EXPECT_ABORT( field.get( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.set( nullptr, nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.set( &none, nullptr ), Value::path, address );
    for ( const BadString &bad : field.bad ) {
        const auto text = bad.text ? Str( bad.text ) : KoRef<KoString>();
        EXPECT_ABORT( field.set( shared.Address(), text.Get() ), bad.path, bad.expression );
    }
    if ( !field.has ) {
        return;
    }
    EXPECT_EQ( field.has( value.Get() ), KO_TRUE );
    auto without = KoRef<Handle>::Share( value.Get() );
    field.del( without.Address() );
    EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
    EXPECT_EQ( field.get( without.Get() ), nullptr );
    EXPECT_EQ( Take( field.get( value.Get() ) ), field.stored );
    field.del( without.Address() ); // what is not there, too
    EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
    EXPECT_ABORT( field.has( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.del( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.del( &none ), Value::path, address );
}

/** An optional field that holds a number from 0 to `largest`. */
template <class Value>
struct NumberField {
    KoBool ( *has )( typename Value::Handle );
    KoInt ( *get )( typename Value::Handle );
    void ( *set )( typename Value::Handle *, KoInt );
    void ( *del )( typename Value::Handle * );
    KoInt largest;
    const char *expression;
};

template <class Value, class Create>
void ExpectNumberField( const NumberField<Value> &field, Create create )
{
    using Handle = typename Value::Handle;
    const std::string address = std::string( "*" ) + Value::name;
    KoRef<Handle> value = create();
    EXPECT_EQ( field.has( value.Get() ), KO_FALSE );
    EXPECT_EQ( field.get( value.Get() ), -1 );
    const Handle object = value.Get();
    field.set( value.Address(), 0 );
    EXPECT_EQ( value.Get(), object );
    EXPECT_EQ( field.has( value.Get() ), KO_TRUE );
    EXPECT_EQ( field.get( value.Get() ), 0 );

    auto shared = KoRef<Handle>::Share( value.Get() );
    field.set( shared.Address(), field.largest );
    EXPECT_EQ( field.get( shared.Get() ), field.largest );
    EXPECT_EQ( field.get( value.Get() ), 0 );

    auto without = KoRef<Handle>::Share( value.Get() );
    field.del( without.Address() );
    EXPECT_EQ( field.has( without.Get() ), KO_FALSE );
    EXPECT_EQ( field.get( without.Get() ), -1 );
    EXPECT_EQ( field.get( value.Get() ), 0 );

    Handle none = nullptr;
    EXPECT_ABORT( field.has( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.get( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.set( nullptr, -1 ), Value::path, Value::name );
    EXPECT_ABORT( field.set( &none, -1 ), Value::path, address );
    EXPECT_ABORT( field.set( shared.Address(), -1 ), Value::path, field.expression );
    EXPECT_ABORT( field.set( shared.Address(), field.largest + 1 ), Value::path, field.expression );
    EXPECT_ABORT( field.del( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( field.del( &none ), Value::path, address );
}

/** The parameters without a field, in a value that `create` makes and that has none. */
template <class Value, class Create>
void ExpectGenericParams( Create create )
{
    using Handle = typename Value::Handle;
    const std::string address = std::string( "*" ) + Value::name;
    KoRef<Handle> value = create();
    EXPECT_EQ( Generic<Value>( value ), "" );
    const std::string plain = Encode<Value>( value );
    const Handle object = value.Get();
    auto params = ParamsOf( ";y=1" );
    Value::SetGenericParams( value.Address(), params.Get() );
    EXPECT_EQ( value.Get(), object );
    tolmoGenericParamsDelParamCstr( params.Address(), "y", -1 ); // the caller's handle, not the value's
    EXPECT_EQ( Encode<Value>( value ), plain + ";y=1" );

    auto shared = KoRef<Handle>::Share( value.Get() );
    Value::SetGenericParams( shared.Address(), params.Get() );
    EXPECT_EQ( Encode<Value>( shared ), plain );
    EXPECT_EQ( Encode<Value>( value ), plain + ";y=1" );

    auto got = Own( Value::GenericParams( value.Get() ) );
    tolmoGenericParamsDelParamCstr( got.Address(), "y", -1 );
    EXPECT_EQ( Encode<Value>( value ), plain + ";y=1" );

    Handle none = nullptr;
    EXPECT_ABORT( Value::GenericParams( nullptr ), Value::path, Value::name );
    EXPECT_ABORT( Value::SetGenericParams( nullptr, nullptr ), Value::path, Value::name );
    EXPECT_ABORT( Value::SetGenericParams( &none, nullptr ), Value::path, address );
    EXPECT_ABORT( Value::SetGenericParams( value.Address(), nullptr ), Value::path, "genericParams" );
}

/** Many parameters, new ones and the same again and again, behind a text that decodes to itself. */
template <class Value>
void ExpectHuge( const std::string &start )
{
    std::string text = start;
    std::string out = start;
    for ( int i = 0; i < 100000; ++i ) {
        text += " ; p" + std::to_string( i ) + " = " + std::to_string( i );
        out += ";p" + std::to_string( i ) + "=" + std::to_string( i );
    }
    EXPECT_EQ( Encode<Value>( Decode<Value>( text ) ), out );

    text = start;
    for ( int i = 0; i < 100000; ++i ) {
        text += ";x=\"y;z\"";
    }
    EXPECT_EQ( Encode<Value>( Decode<Value>( text ) ), start + ";x=\"y;z\"" );
    EXPECT_EQ( Encode<Value>( Decode<Value>( text + ";" ) ), "(null)" );
}

/** Draws one of some texts, and whether something is there. */
class Draw {
public:
    explicit Draw( unsigned seed ) : random( seed ) {}
    KoRef<KoString> One( std::initializer_list<std::string_view> texts )
    {
        return Str( texts.begin()[random() % texts.size()] );
    }
    bool Perhaps() { return random() % 2 == 0; }
    KoInt Below( KoInt count ) { return static_cast<KoInt>( random() % static_cast<unsigned>( count ) ); }
    KoRef<KoString> Iri() { return One( { "sip:a", "sip:a;lr?h=v", "tel:+1", "sip:\u00FC@b\u00FCcher.example" } ); }
    KoRef<KoString> DisplayName() { return One( { "", "A", "a\"\\,;<>  \t", "\u4E2D" } ); }
    KoRef<TolmoGenericParams> Params()
    {
        return ParamsOf( Text( One( { "", ";a", ";a=B;c=\"d e\"", ";x=[::1];lr" } ) ) );
    }

private:
    std::mt19937 random;
};

/** A drawn value goes out as a text that decodes, to the same text, and that the grammar of lists takes whole. */
template <class Value>
void ExpectDecodes( const KoRef<typename Value::Handle> &value, bool skipsWhole = true )
{
    const auto text = Encode<Value>( value );
    const auto decoded = Decode<Value>( text );
    ASSERT_TRUE( decoded ) << text;
    EXPECT_EQ( Encode<Value>( decoded ), text );
    if ( skipsWhole ) {
        const Exact chs( text );
        EXPECT_EQ( Value::Skip( chs.Chars(), chs.Length() ), chs.Length() ) << text;
    }
}

} // namespace test

#endif
