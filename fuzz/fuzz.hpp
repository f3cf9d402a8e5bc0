/* What all fuzz targets share: checks, the input, text in and out, and the descriptions by which objects are compared. */
#ifndef FUZZ_HPP
#define FUZZ_HPP

#include <tolmo/tolmo.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fuzz {

/** A target: takes any bytes, and ends the process when something does not hold. */
using Target = void ( * )( std::string_view input );

/** A target by its name. */
struct NamedTarget {
    const char *name;
    Target run;
};

/** All targets. Each stands in the file of its name. */
const std::vector<NamedTarget> &Targets();

/** Runs a target with the module started, and checks that it leaves no object behind. */
void Run( Target target, std::string_view input );

/** Writes what did not hold, and aborts. */
[[noreturn]] void Fail( const char *file, int line, const char *expression, const std::string &detail );

#define CHECK( condition ) CHECK_TELL( condition, std::string() )

/** CHECK with words for who reads the failure. */
#define CHECK_TELL( condition, detail )                                                                                \
    ( ( condition ) ? (void)0 : fuzz::Fail( __FILE__, __LINE__, #condition, detail ) )

/** Two texts must be the same; a failure shows both. */
#define CHECK_SAME( a, b ) fuzz::CheckSame( __FILE__, __LINE__, #a " == " #b, a, b )

void CheckSame( const char *file, int line, const char *expression, const std::string &a, const std::string &b );

/** Takes a reference over. */
template <class Handle>
KoRef<Handle> Own( Handle handle )
{
    return KoRef<Handle>::Adopt( handle );
}

/** Any handle as an object. */
template <class Handle>
KoObj Obj( Handle handle )
{
    return reinterpret_cast<KoObj>( handle );
}

/** A string of UTF-8 text; what is ill-formed becomes U+FFFD. */
KoRef<KoString> Str( std::string_view text );

/** The UTF-8 text of a string that stays the caller's; "(null)" for null. */
std::string Text( KoString s );

/** The text of a string that is released. */
std::string Take( KoString s );

/** A text with its ASCII capitals in small letters. */
std::string Lower( std::string text );

/** The bytes of a buffer that is released; "(null)" for null. */
std::string TakeBytes( KoBuffer b );
KoRef<KoBuffer> Buf( std::string_view bytes );

/** Characters in a heap block of exactly their number. */
class Exact {
public:
    Exact( const KoChar *chs, KoInt length );
    explicit Exact( KoString s ) : Exact( koStringBacking( s ), koStringLength( s ) ) {}
    explicit Exact( std::string_view text ) : Exact( Str( text ).Get() ) {}
    [[nodiscard]] const KoChar *Chars() const { return chars.get(); }
    [[nodiscard]] KoInt Length() const { return count; }

private:
    std::unique_ptr<KoChar[]> chars;
    KoInt count;
};

/** The string or the object behind an index, with a reference. */
KoRef<KoString> StringAt( KoVector v, KoInt index );

/** The input at each line feed; at least one part. With a limit, the last part is the rest. */
std::vector<std::string_view> Lines( std::string_view input, size_t limit = SIZE_MAX );

/** Takes decisions from bytes, zeros when there are none left. */
class Choices {
public:
    explicit Choices( std::string_view input ) : bytes( input ) {}
    [[nodiscard]] bool Left() const { return !bytes.empty(); }
    uint8_t Byte();
    /** A number below `limit`, which is at least 1. */
    size_t Below( size_t limit ) { return Byte() % limit; }
    /** The next bytes, at most `length`. */
    std::string_view Bytes( size_t length );

private:
    std::string_view bytes;
};

/** A number that is the same for the same bytes: the source of decisions where the input has to stay a plain text. */
uint64_t Hash( std::string_view bytes );

/** The lines of a raw header that is released: "name: line" each. */
std::vector<std::string> TakeLines( TolmoMessageHeader header );

/** All that a fragment tells: start line, headers (in order, except Content-Length when told), body. */
std::string Describe( TolmoMessageFragment frag, bool withContentLength );

/** All that a message tells. */
std::string Describe( TolmoMessage msg, bool withContentLength );

} // namespace fuzz

#endif
