/* The list of the targets. */
#include "fuzz.hpp"

namespace fuzz {

void MessageTarget( std::string_view input );
void StreamTarget( std::string_view input );
void SkipTarget( std::string_view input );
void ScalarTarget( std::string_view input );
void ValueTarget( std::string_view input );
void ParamsTarget( std::string_view input );
void HeaderTarget( std::string_view input );
void IriTarget( std::string_view input );
void MutatorTarget( std::string_view input );
void RuntimeTarget( std::string_view input );

const std::vector<NamedTarget> &Targets()
{
    static const std::vector<NamedTarget> targets = {
        { "message", MessageTarget }, { "stream", StreamTarget }, { "skip", SkipTarget },
        { "scalar", ScalarTarget },   { "value", ValueTarget },   { "params", ParamsTarget },
        { "header", HeaderTarget },   { "iri", IriTarget },       { "mutator", MutatorTarget },
        { "runtime", RuntimeTarget },
    };
    return targets;
}

} // namespace fuzz
