/*
 * Runs the targets on files, without libFuzzer: the checked-in corpus in the everyday tests, or a finding.
 *
 *     fuzz_replay CORPUS              the packed inputs CORPUS/TARGET of every target
 *     fuzz_replay TARGET FILE...      these files
 */
#include "fuzz.hpp"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <unistd.h>

namespace {

std::string current;

// A failure has told what did not hold; this tells of which file.
extern "C" void TellFile( int )
{
    static const char before[] = "fuzz_replay: in ";
    if ( write( STDERR_FILENO, before, sizeof before - 1 ) > 0 &&
         write( STDERR_FILENO, current.data(), current.size() ) > 0 && write( STDERR_FILENO, "\n", 1 ) > 0 ) {
        std::signal( SIGABRT, SIG_DFL );
    }
}

std::string Read( const std::string &path )
{
    std::ifstream file( path, std::ios::binary );
    return { std::istreambuf_iterator<char>( file ), {} };
}

// The inputs of a packed corpus: a line with the length, the input, a line end. Nothing when the file is not like this.
std::vector<std::string_view> Unpack( std::string_view pack )
{
    std::vector<std::string_view> inputs;
    while ( !pack.empty() ) {
        size_t length = 0;
        const auto end = std::from_chars( pack.data(), pack.data() + pack.size(), length ).ptr;
        pack.remove_prefix( static_cast<size_t>( end - pack.data() ) );
        if ( pack.size() < 2 || length > pack.size() - 2 || pack[0] != '\n' || pack[length + 1] != '\n' ) {
            return {};
        }
        inputs.push_back( pack.substr( 1, length ) );
        pack.remove_prefix( length + 2 );
    }
    return inputs;
}

// All inputs of a target. A target without inputs is a fault.
bool RunPack( const fuzz::NamedTarget &target, const std::string &path )
{
    const std::string pack = Read( path );
    const std::vector<std::string_view> inputs = Unpack( pack );
    for ( size_t i = 0; i < inputs.size(); ++i ) {
        current = path + ", input " + std::to_string( i );
        fuzz::Run( target.run, inputs[i] );
    }
    std::printf( "%s: %zu inputs\n", target.name, inputs.size() );
    return !inputs.empty();
}

} // namespace

int main( int argc, char **argv )
{
    std::signal( SIGABRT, TellFile );
    bool good = true;
    bool known = false;
    for ( const fuzz::NamedTarget &target : fuzz::Targets() ) {
        if ( argc == 2 ) {
            known = true;
            good = RunPack( target, std::string( argv[1] ) + "/" + target.name ) && good;
        } else if ( argc > 2 && std::strcmp( argv[1], target.name ) == 0 ) {
            known = true;
            for ( int i = 2; i < argc; ++i ) {
                current = argv[i];
                fuzz::Run( target.run, Read( current ) );
            }
        }
    }
    if ( !known ) {
        std::fprintf( stderr, "usage: fuzz_replay CORPUS\n       fuzz_replay TARGET FILE...\n" );
        return 2;
    }
    return good ? 0 : 1;
}
