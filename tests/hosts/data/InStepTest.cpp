#include "hosts/data/InStep.h"

#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

namespace hosts::data {

namespace {

TEST(InStepTest, CutsTwoSeriesToWhereBothHaveSamples)
{
    const struct
    {
        QByteArray first, second; ///< A table of one column each, beginning at start.
        double start, step;
        const char* series;
    } cases[] = {
        // clang-format off
        {"a\n1\n2\n",           "b\n5\n6\n7\n",     0.0, 1.0, "a 0:1[1 2] | b 0:1[5 6]"},
        {"a\n1\n2\n3\n\n5\n6\n", "b\n5\n\n7\n8\n9\n1\n", 0.0, 1.0,
         "a 0:1[1] 2:1[3] 4:1[5 6] | b 0:1[5] 2:1[7] 4:1[9 1]"},
        {"a\n1\n2\n3\n4\n",     "b\n5\n6\n",       2.0, 1.0, "a 2:1[3 4] | b 2:1[5 6]"},
        {"a\n1\n2\n",           "b\n5\n6\n",       2.0, 1.0, "a and b have no samples at the same places"},
        {"a\n1\n2\n",           "b\n5\n6\n",       0.5, 1.0, "a and b are not sampled in step"},
        {"a\n1\n2\n",           "b\n5\n6\n",       0.0, 0.5, "a and b are not sampled in step"},
        // clang-format on
    };
    const Reading reading;
    for (const auto& c : cases) {
        const Series first = readRecording(reading.write("a", c.first), {}).front();
        const Series second =
            readRecording(reading.write("b", c.second), {{}, "", c.start, c.step}).front();
        std::string text;
        try {
            const auto [a, b] = inStep(first, second);
            text = (Reading::shown(a) + " | " + Reading::shown(b)).toStdString();
        } catch (const std::runtime_error& error) {
            text = error.what();
        }
        EXPECT_EQ(text, c.series);
    }
}

} // namespace

} // namespace hosts::data
