/*
 * Runs the targets on files, without libFuzzer: the checked-in corpus in the everyday tests, or a finding.
 *
 *     fuzz_replay CORPUS              all files of CORPUS/TARGET, for every target
 *     fuzz_replay TARGET FILE...      these files
 */
#include "fuzz.hpp"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <filesystem>
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

bool RunFile( const fuzz::NamedTarget &target, const std::string &path )
{
    std::ifstream file( path, std::ios::binary );
    if ( !file ) {
        std::fprintf( stderr, "fuzz_replay: cannot read %s\n", path.c_str() );
        return false;
    }
    current = std::string( target.name ) + " " + path;
    fuzz::Run( target.run, std::string( std::istreambuf_iterator<char>( file ), {} ) );
    return true;
}

// All inputs of a target, in the order of their names. A target without inputs is a fault.
bool RunFolder( const fuzz::NamedTarget &target, const std::filesystem::path &folder )
{
    std::vector<std::string> paths;
    std::error_code error;
    for ( const auto &entry : std::filesystem::directory_iterator( folder, error ) ) {
        paths.push_back( entry.path().string() );
    }
    std::sort( paths.begin(), paths.end() );
    std::printf( "%s: %zu inputs\n", target.name, paths.size() );
    return !paths.empty() && std::all_of( paths.begin(), paths.end(),
                                          [&]( const std::string &path ) { return RunFile( target, path ); } );
}

} // namespace

int main( int argc, char **argv )
{
    std::signal( SIGABRT, TellFile );
    bool good = argc > 1;
    if ( argc == 2 ) {
        for ( const fuzz::NamedTarget &target : fuzz::Targets() ) {
            good = RunFolder( target, std::filesystem::path( argv[1] ) / target.name ) && good;
        }
        return good ? 0 : 1;
    }
    for ( const fuzz::NamedTarget &target : fuzz::Targets() ) {
        if ( argc > 2 && std::strcmp( argv[1], target.name ) == 0 ) {
            return std::all_of( argv + 2, argv + argc, [&]( const char *path ) { return RunFile( target, path ); } )
                       ? 0
                       : 1;
        }
    }
    std::fprintf( stderr, "usage: fuzz_replay CORPUS\n       fuzz_replay TARGET FILE...\n" );
    return 2;
}
