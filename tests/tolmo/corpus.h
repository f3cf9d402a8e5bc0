/* The messages of tests/corpus. */
#ifndef CORPUS_H
#define CORPUS_H

#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace test {

inline std::string ReadFile( const std::string &path )
{
    std::ifstream file( path, std::ios::binary );
    return { std::istreambuf_iterator<char>( file ), {} };
}

/** The rows of a file of values that are separated by tabs, without the first one, which names the columns. */
inline std::vector<std::vector<std::string>> ReadRows( const std::string &path )
{
    std::vector<std::vector<std::string>> rows;
    std::ifstream file( path );
    for ( std::string line; std::getline( file, line ); ) {
        std::vector<std::string> row;
        std::istringstream values( line );
        for ( std::string value; std::getline( values, value, '\t' ); ) {
            row.push_back( value );
        }
        rows.push_back( row );
    }
    if ( !rows.empty() ) {
        rows.erase( rows.begin() );
    }
    return rows;
}

struct CorpusFile {
    std::string path; // below tests/corpus
    std::string bytes;
};

/** All of them, in the order of the manifest. */
inline const std::vector<CorpusFile> &Corpus()
{
    static const std::vector<CorpusFile> files = [] {
        std::vector<CorpusFile> all;
        for ( const auto &row : ReadRows( TEST_CORPUS "/MANIFEST.tsv" ) ) {
            all.push_back( { row[0], ReadFile( TEST_CORPUS "/" + row[0] ) } );
        }
        return all;
    }();
    return files;
}

} // namespace test

#endif
