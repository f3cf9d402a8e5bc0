/* Child processes for statements that must abort, and the program's entry. */
#include "test.h"

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
#include <csignal>

#if defined( TEST_COVERAGE )
extern "C" { // which the header of g++ 12 leaves to its reader
#include <gcov.h>
}
#endif

namespace test {
namespace {

/** In a child process that has just begun. */
void BeginChild()
{
    const rlimit noCore{ 0, 0 };
    setrlimit( RLIMIT_CORE, &noCore );
#if defined( TEST_COVERAGE )
    // The counts so far are the parent's. Those of the child are written before abort() ends it, which goes on when the
    // handler returns.
    __gcov_reset();
    std::signal( SIGABRT, []( int ) { __gcov_dump(); } );
#else
    std::signal( SIGABRT, SIG_DFL );
#endif
}

/** In a child process whose statement did not abort. */
[[noreturn]] void EndChild()
{
#if defined( TEST_COVERAGE )
    __gcov_dump();
#endif
    _exit( 0 );
}

} // namespace

Ending RunInChild( const std::function<void()> &statement )
{
    int ends[2];
    if ( pipe( ends ) != 0 ) {
        return {};
    }
    const pid_t child = fork();
    if ( child == 0 ) {
        dup2( ends[1], STDERR_FILENO );
        close( ends[0] );
        close( ends[1] );
        BeginChild();
        statement();
        EndChild();
    }
    close( ends[1] );
    Ending ending;
    char part[512];
    for ( ssize_t n; ( n = read( ends[0], part, sizeof part ) ) > 0; ) {
        ending.line.append( part, static_cast<size_t>( n ) );
    }
    close( ends[0] );
    int status = 0;
    waitpid( child, &status, 0 );
    ending.aborted = WIFSIGNALED( status ) && WTERMSIG( status ) == SIGABRT;
    if ( !ending.line.empty() && ending.line.back() == '\n' ) {
        ending.line.pop_back();
    }
    return ending;
}

bool IsAbortLine( const std::string &line, std::string_view message, std::string_view path,
                  std::string_view expression )
{
    std::string begin = message.empty() ? std::string() : std::string( message ) + ": ";
    begin += std::string( path ) + ":";
    if ( line.compare( 0, begin.size(), begin ) != 0 ) {
        return false;
    }
    size_t at = begin.size();
    while ( at < line.size() && std::isdigit( static_cast<unsigned char>( line[at] ) ) ) {
        ++at;
    }
    return at > begin.size() && line.substr( at ) == ": " + std::string( expression );
}

testing::AssertionResult Aborts( const char *text, const std::function<void()> &statement, std::string_view message,
                                 std::string_view path, std::string_view expression )
{
    const Ending ending = RunInChild( statement );
    if ( !ending.aborted ) {
        return testing::AssertionFailure() << text << " did not abort";
    }
    if ( !IsAbortLine( ending.line, message, path, expression ) ) {
        return testing::AssertionFailure() << text << "\n  wrote:    " << ending.line << "\n  expected: " << message
                                           << ( message.empty() ? "" : ": " ) << path << ":*: " << expression;
    }
    return testing::AssertionSuccess();
}

} // namespace test

int main( int argc, char **argv )
{
    testing::InitGoogleTest( &argc, argv );
    return RUN_ALL_TESTS();
}
