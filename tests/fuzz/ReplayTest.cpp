// Each target over the inputs that are kept for it: what was found once, and what leads far.
#include "tests/fuzz/Target.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace tests;

class ReplayTest : public testing::TestWithParam<std::string>
{
};

TEST_P(ReplayTest, NothingIsFoundInTheCorpus)
{
    int inputs = 0;
    for (const auto& entry : std::filesystem::directory_iterator(KESTRANE_CORPUS + GetParam())) {
        SCOPED_TRACE(entry.path().string());
        std::ifstream file(entry.path(), std::ios::binary);
        Dice dice(std::vector<std::uint8_t>(std::istreambuf_iterator<char>(file), {}));
        targets().at(GetParam())(dice);
        ++inputs;
    }
    EXPECT_GT(inputs, 0);
}

static std::vector<std::string> names()
{
    std::vector<std::string> result;
    for (const auto& target : targets())
        result.push_back(target.first);
    return result;
}

INSTANTIATE_TEST_SUITE_P(Fuzz, ReplayTest, testing::ValuesIn(names()),
                         [](const auto& test) { return test.param; });
