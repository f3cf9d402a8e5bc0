/* tolmo: shows SIP messages and writes them in normal form. */
#include "input.hpp"
#include "print.hpp"
#include "typed.hpp"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace {

constexpr char usage[] =
    "usage: tolmo decode [OPTION]... [FILE]...\n"
    "       tolmo normalize [OPTION]... [FILE]...\n"
    "       tolmo headers\n"
    "\n"
    "decode reads SIP messages or byte streams from files, or from standard input (-), and prints each message as a\n"
    "tree: its start line, its headers with their typed values below, its body. normalize writes the messages again, "
    "in\n"
    "the normal form of the library. headers lists the header fields that the library has a type for.\n"
    "\n"
    "  --datagram             each file is one message\n"
    "  --stream               each file is a stream of messages (guessed otherwise: by what decodes)\n"
    "  --color=WHEN           auto (default), always or never\n"
    "  --quiet                print no messages, only what is refused\n"
    "  --version              print the version\n"
    "  --help                 print this text\n"
    "\n"
    "exit status: 0 all decoded, 1 something was refused, 2 bad usage, 3 something could not be read or written\n";

enum class Word { decode, normalize };

struct Options {
    Word word = Word::decode;
    tools::Framing framing = tools::Framing::guessed;
    bool colored = false;
    bool quiet = false;
    std::vector<std::string> files;
};

int BadUsage( const std::string &what )
{
    std::fprintf( stderr, "tolmo: %s\n%s", what.c_str(), usage );
    return 2;
}

/** Shows on a terminal how far the reading has come, once it takes longer than a second. */
class Progress {
public:
    void Show( const std::string &path, int64_t bytes )
    {
        const auto now = std::chrono::steady_clock::now();
        if ( terminal && now - last > std::chrono::seconds( 1 ) ) {
            last = now;
            shown = true;
            std::fprintf( stderr, "\r%s: %lld MB", path.c_str(), static_cast<long long>( bytes / 1000000 ) );
        }
    }
    ~Progress()
    {
        if ( shown ) {
            std::fputc( '\n', stderr );
        }
    }

private:
    const bool terminal = isatty( STDERR_FILENO ) != 0;
    std::chrono::steady_clock::time_point last = std::chrono::steady_clock::now();
    bool shown = false;
};

void Take( const Options &options, TolmoMessage msg, const std::string &title )
{
    if ( options.quiet ) {
        return;
    }
    if ( options.word == Word::decode ) {
        tools::PrintMessage( msg, title, options.colored );
        return;
    }
    const auto bytes = KoRef<KoBuffer>::Adopt( tolmoMessageEncode( msg ) );
    std::fwrite( koBufferBacking( bytes.Get() ), 1, static_cast<size_t>( koBufferLength( bytes.Get() ) ), stdout );
}

int Run( const Options &options )
{
    int status = 0;
    for ( const std::string &file : options.files ) {
        Progress progress;
        const std::string shown = file == "-" ? "standard input" : file;
        const tools::Events events = {
            [&]( TolmoMessage msg, int64_t offset ) {
                Take( options, msg, shown + ", byte " + std::to_string( offset ) );
            },
            [&]( const tools::Refusal &refusal ) {
                std::fflush( stdout );
                std::fprintf( stderr, "tolmo: %s, byte %lld: \"%s\" %s\n", shown.c_str(),
                              static_cast<long long>( refusal.offset ), tools::Printable( refusal.text ).c_str(),
                              refusal.reason );
            },
            [&]( int error ) {
                std::fflush( stdout );
                std::fprintf( stderr, "tolmo: %s: cannot be read: %s\n", shown.c_str(), std::strerror( error ) );
            },
            [&]( int64_t bytes ) { progress.Show( shown, bytes ); },
        };
        switch ( tools::ReadMessages( file, options.framing, events ) ) {
        case tools::Outcome::good:
            break;
        case tools::Outcome::refused:
            status = std::max( status, 1 );
            break;
        case tools::Outcome::unreadable:
            status = 3;
            break;
        }
    }
    return status;
}

int ListHeaders()
{
    for ( const tools::KnownHeader &header : tools::KnownHeaders() ) {
        std::printf( "%-26s %s\n", header.name, header.reference );
    }
    return 0;
}

/** The status of a run, unless its output could not be written. */
int Finish( int status )
{
    if ( std::fflush( stdout ) == 0 && !std::ferror( stdout ) ) {
        return status;
    }
    std::fprintf( stderr, "tolmo: standard output cannot be written\n" );
    return 3;
}

} // namespace

int main( int argc, char **argv )
{
    const KoModuleScope scope( tolmoModule() );
    Options options;
    std::string color = "auto";
    std::string word;
    bool onlyFiles = false;
    for ( int i = 1; i < argc; ++i ) {
        const std::string argument = argv[i];
        if ( onlyFiles || argument == "-" || argument.substr( 0, 1 ) != "-" ) {
            if ( word.empty() ) {
                word = argument;
            } else {
                options.files.push_back( argument );
            }
        } else if ( argument == "--" ) {
            onlyFiles = true;
        } else if ( argument == "--help" || argument == "-h" ) {
            std::fputs( usage, stdout );
            return Finish( 0 );
        } else if ( argument == "--version" ) {
            std::printf( "%s\n", tolmo___module_version_string );
            return Finish( 0 );
        } else if ( argument == "--datagram" ) {
            options.framing = tools::Framing::datagram;
        } else if ( argument == "--stream" ) {
            options.framing = tools::Framing::stream;
        } else if ( argument == "--quiet" ) {
            options.quiet = true;
        } else if ( argument.rfind( "--color=", 0 ) == 0 ) {
            color = argument.substr( 8 );
        } else {
            return BadUsage( "unknown option " + argument );
        }
    }
    if ( color != "auto" && color != "always" && color != "never" ) {
        return BadUsage( "--color takes auto, always or never" );
    }
    options.colored = color == "always" || ( color == "auto" && isatty( STDOUT_FILENO ) != 0 );
    if ( options.files.empty() ) {
        options.files.emplace_back( "-" );
    }
    if ( word == "headers" ) {
        return Finish( ListHeaders() );
    }
    if ( word != "decode" && word != "normalize" ) {
        return BadUsage( word.empty() ? "a word is missing" : "unknown word " + word );
    }
    options.word = word == "decode" ? Word::decode : Word::normalize;
    return Finish( Run( options ) );
}
