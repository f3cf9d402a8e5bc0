/* The value types, the typed headers, the skip functions and the scalars as tables, made from the lists of exports. */
#ifndef FUZZ_TABLES_HPP
#define FUZZ_TABLES_HPP

#include "fuzz.hpp"

namespace fuzz {

/** A getter of a type; with a setter of the same value and a Del operation where the type has them. */
struct Field {
    const char *name;
    std::string ( *get )( KoObj x );
    bool ( *set )( KoObj *x, KoObj from ); // sets what `from` has; false, with nothing done, when it has none
    void ( *del )( KoObj *x );
};

/** A mutator that takes nothing. */
struct Act {
    const char *name;
    void ( *run )( KoObj *x );
};

/** The items of a list or a set. What is null, the header does not have. */
struct Items {
    bool exist = false;
    bool set = false; // no order, no index: Set and Del instead of SetAt and DelAt
    std::string ( *at )( KoObj hdr, KoInt index ) = nullptr; // the text of an item
    KoInt ( *length )( KoObj hdr ) = nullptr;
    KoObj ( *item )( KoObj hdr, KoInt index ) = nullptr; // the item as the mutators take it, a new reference or null
    std::string ( *text )( KoObj item ) = nullptr;       // its text in a list that gets it
    void ( *setAt )( KoObj *hdr, KoInt index, KoObj item ) = nullptr;
    void ( *insert )( KoObj *hdr, KoInt index, KoObj item ) = nullptr;
    void ( *prepend )( KoObj *hdr, KoObj item ) = nullptr;
    void ( *append )( KoObj *hdr, KoObj item ) = nullptr;
    void ( *delAt )( KoObj *hdr, KoInt index ) = nullptr;
    bool ( *has )( KoObj hdr, KoObj item ) = nullptr;
    void ( *add )( KoObj *hdr, KoObj item ) = nullptr;
    void ( *remove )( KoObj *hdr, KoObj item ) = nullptr;
    void ( *clear )( KoObj *hdr ) = nullptr;
};

/** What values and headers share. */
struct Type {
    std::string name;
    KoSort ( *sort )() = nullptr;
    KoString ( *toString )( KoObj x ) = nullptr;
    KoObj ( *createFrom )( KoObj x ) = nullptr;
    std::vector<Field> fields;
    std::vector<Act> acts;
    TolmoGenericParams ( *params )( KoObj x ) = nullptr; // new reference; null in a type without parameters
};

struct Value : Type {
    KoObj ( *decode )( const KoChar *chs, KoInt length ) = nullptr;
    KoString ( *encode )( KoObj x ) = nullptr;
};

struct Header : Type {
    std::string literal;
    TolmoMessageHeader ( *encode )( KoObj x ) = nullptr;
    KoObj ( *decode )( TolmoMessageHeader header ) = nullptr;
    void ( *toMessage )( KoObj x, TolmoMessage *msg ) = nullptr;
    KoObj ( *fromMessage )( TolmoMessage msg ) = nullptr;
    bool ( *present )( TolmoMessage msg ) = nullptr;
    void ( *removeFrom )( TolmoMessage *msg ) = nullptr;
    KoStore ( *store )( KoObj x ) = nullptr;
    KoObj ( *restore )( KoStore store ) = nullptr;
    Items items;
};

struct Skip {
    const char *name;
    KoInt ( *run )( const KoChar *chs, KoInt length );
};

struct SkipOfChar {
    const char *name;
    KoInt ( *run )( const KoChar *chs, KoInt length, KoChar ch );
};

struct SkipOfChars {
    const char *name;
    KoInt ( *run )( const KoChar *chs, KoInt length, const KoChar *skipChs, KoInt skipLength );
};

struct SkipOfWord {
    const char *name;
    KoInt ( *run )( const KoChar *chs, KoInt length, KoInt *value );
};

struct Validator {
    const char *name;
    KoBool ( *ok )( KoString s );
    KoInt ( *skip )( const KoChar *chs, KoInt length );
};

struct Normalizer {
    const char *name;
    KoBool ( *ok )( KoString s );
    KoString ( *normalize )( KoString s );
};

struct Tables {
    std::vector<Skip> skips;
    std::vector<SkipOfChar> skipsOfChar;
    std::vector<SkipOfChars> skipsOfChars;
    std::vector<SkipOfWord> skipsOfWord;
    std::vector<Validator> validators;
    std::vector<Normalizer> normalizers;
    std::vector<Value> values;
    std::vector<Header> headers;
};

const Tables &All();

/** The texts of all fields of an object, "name=text" each. */
std::vector<std::string> Snapshot( const Type &type, KoObj x );

/** The texts of a snapshot in one, for failures. */
std::string Joined( const std::vector<std::string> &texts );

/** The text of each item. */
std::vector<std::string> ItemTexts( const Items &items, KoObj hdr );

/**
 * True when the generic parameters hold one that a field of the type hides when it is printed. Its value was refused by
 * the field once, and a good one came as well: `;ttl=1;ttl=300`. What is printed then lacks the second.
 */
bool HidesParams( const Type &type, KoObj x );

/** True when no parameter stands twice in what a type prints that hides such parameters. */
bool PrintsNamesOnce( const Type &type, const std::string &printed );

} // namespace fuzz

#endif
