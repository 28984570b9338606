#include "tests/hosts/data/Reading.h"

#include <gtest/gtest.h>

#include <numeric>

namespace hosts::data {

namespace {

TEST(ShippedRecordingsTest, AreReadWhole)
{
    // clang-format off
    const struct
    {
        const char *file, *column;
        long long samples;
        std::size_t segments;
        double offset, scale, first, last;
    } recordings[] = {
        {"ecg.csv",                  "ecg",         108000, 1,  0.0,    1.0,           -0.245, -0.385},
        {"co2.csv",                  "co2",         2225,   23, 0.0,    1.0,           316.1,  371.5},
        {"sunspots.csv",             "SUNACTIVITY", 309,    1,  1700.0, 1.0,           5.0,    2.9},
        {"xrf-spectrum.csv",         "counts",      4096,   1,  0.0,    1.0,           0.0,    3.0},
        {"exafs-cu.csv",             "absorption",  1461,   1,  0.0,    1.0,           0.5249888, 2.262075},
        {"grasshopper-stimulus.csv", "amplitude",   20000,  1,  0.0,    50.0,          0.242911, 0.142377},
        {"tabla_dhec.flac",          "1",           14336,  1,  0.0,    1.0 / 44100.0, -286.0 / 32768.0, 0.0},
        {"elec_tick.flac",           "2",           857,    1,  0.0,    1.0 / 44100.0, 0.0,    0.0},
    };
    // clang-format on
    for (const auto& r : recordings) {
        const QString path = QStringLiteral(KESTRANE_DATA_DIR "/") + r.file;
        const auto series = readRecording(path, {{r.column}, "", {}, {}});
        ASSERT_EQ(series.size(), 1u) << r.file;
        const auto& segments = series[0].snapshot.segments;
        ASSERT_EQ(segments.size(), r.segments) << r.file;
        const auto add = [](long long sum, const auto& segment) { return sum + segment.count; };
        EXPECT_EQ(std::accumulate(segments.begin(), segments.end(), 0LL, add), r.samples) << r.file;
        EXPECT_EQ(segments.front().xInfo, pelorin::backend::MetaInfo(r.offset, r.scale)) << r.file;
        EXPECT_NEAR(*segments.front().begin, r.first, 1e-9) << r.file;
        EXPECT_NEAR(*(segments.back().end - 1), r.last, 1e-9) << r.file;
    }
}

} // namespace

} // namespace hosts::data
