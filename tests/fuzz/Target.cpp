#include "tests/fuzz/Target.h"

std::map<std::string, tests::Target>& tests::targets()
{
    static std::map<std::string, Target> all;
    return all;
}
