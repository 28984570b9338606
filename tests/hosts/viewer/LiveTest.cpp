#include "tests/hosts/viewer/WindowRig.h"

#include "hosts/data/LineSource.h"
#include "hosts/data/SignalSource.h"

#include <QElapsedTimer>

#include <algorithm>

namespace hosts::viewer {

namespace {

using data::LineSource;
using data::LiveRecording;
using data::Series;
using data::SignalSource;
using pelorin::backend::PlotSegment;

// Turns the event loop until something is so, or for a long time.
template<typename Condition>
bool waitFor(Condition condition)
{
    return QTest::qWaitFor(condition, 20000);
}

std::vector<double> samplesOf(const Series& series)
{
    std::vector<double> samples;
    for (const PlotSegment& segment : series.snapshot.segments)
        samples.insert(samples.end(), segment.begin, segment.end);
    return samples;
}

TEST(LiveRecordingTest, WhatWasSeenStaysAndGapsEndSegments)
{
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    LiveRecording recording({"a", "b"}, 10.0, 0.5);
    const double rows[] = {1, nan, 2, 7, nan, 8, 3, nan, 4, nan};
    recording.append(rows, 5);
    const std::vector<Series> seen = recording.series();
    ASSERT_EQ(seen[0].snapshot.segments.size(), 2u);
    EXPECT_EQ(seen[0].snapshot.segments[1].xInfo.offset, 11.5);
    EXPECT_EQ(samplesOf(seen[0]), std::vector<double>({1, 2, 3, 4}));
    ASSERT_EQ(seen[1].snapshot.segments.size(), 1u);
    EXPECT_EQ(seen[1].snapshot.segments[0].xInfo.offset, 10.5);

    const std::vector<double> many(20000, 5.0); // More than a block holds.
    recording.append(many.data(), 10000);
    EXPECT_EQ(samplesOf(seen[0]), std::vector<double>({1, 2, 3, 4}));
    EXPECT_EQ(recording.series()[0].snapshot.segments[1].count, 10002);
    EXPECT_EQ(recording.rows(), 10005);
}

TEST(LineSourceTest, FollowsAFileThatGrowsLineByLine)
{
    WindowRig files({}, false);
    files.write("grows.csv", "time;value;note\n1;0,5;a");
    data::ReadOptions options;
    options.timeColumn = "none";
    options.step = 0.25;
    LineSource source(files.path("grows.csv"), options);
    source.start();
    QTest::qWait(50);
    EXPECT_FALSE(source.recording()); // The first row might go on.
    QFile file(files.path("grows.csv"));
    ASSERT_TRUE(file.open(QIODevice::Append));
    const auto append = [&](const char* text) {
        file.write(text);
        file.flush();
    };
    append("b\n2;1");
    ASSERT_TRUE(waitFor([&] { return source.recording() && source.recording()->rows() == 1; }));
    append(",5;x\n3;;\n4;2,5;\n");
    ASSERT_TRUE(waitFor([&] { return source.recording()->rows() == 4; }));
    const std::vector<Series> series = source.recording()->series();
    ASSERT_EQ(series.size(), 2u);
    EXPECT_EQ(series[1].name, "value");
    EXPECT_EQ(samplesOf(series[1]), std::vector<double>({0.5, 1.5, 2.5}));
    EXPECT_EQ(series[1].snapshot.segments[1].xInfo.offset, 0.75);
    EXPECT_FALSE(source.hasEnded());

    ASSERT_TRUE(file.resize(0));
    ASSERT_TRUE(waitFor([&] { return source.hasEnded(); }));
    EXPECT_TRUE(source.failure().contains("shorter")) << source.failure().toStdString();
}

TEST(LineSourceTest, SaysWhatIsWrong)
{
    LineSource missing("/nowhere/at/all.csv", {});
    missing.start();
    ASSERT_TRUE(waitFor([&] { return missing.hasEnded(); }));
    EXPECT_TRUE(missing.failure().startsWith("/nowhere/at/all.csv"));
}

// Ten million samples in three seconds and more, none of them lost or late, whatever is drawn.
TEST(LiveWindowTest, NothingIsLostAndTheWindowGoesOnListening)
{
    constexpr long long enough = 10'000'000;
    WindowRig rig({"--live", "signal", "--rate", "4000000", "--seconds", "1"}, false);
    const auto& source = static_cast<const SignalSource&>(rig.window->feed()->source());
    qint64 longest = 0;
    QElapsedTimer beat;
    QTimer heart;
    QObject::connect(&heart, &QTimer::timeout,
                     [&] { longest = std::max(longest, beat.restart()); });
    beat.start();
    heart.start(1);
    ASSERT_TRUE(
        waitFor([&] { return source.recording() && source.recording()->rows() >= enough; }));
    ASSERT_TRUE(rig.chart().model());
    EXPECT_NEAR(rig.view()[1] - rig.view()[0], 1.0, 1e-6);
    rig.key(Qt::Key_Home); // All in view, and the first look at all their values.
    EXPECT_GE(rig.model().samplesInView(), enough);
    EXPECT_LT(longest, 2000); // Milliseconds; a tenth of that is usual.
    RecordProperty("longestMilliseconds", int(longest));

    const std::vector<double> samples = samplesOf(source.recording()->series()[0]);
    ASSERT_GE(static_cast<long long>(samples.size()), enough);
    long long wrong = 0;
    for (std::size_t k = 0; k < samples.size(); k += 101)
        wrong += samples[k] != source.valueAt(static_cast<long long>(k));
    EXPECT_EQ(wrong, 0);
}

TEST(LiveWindowTest, FollowsTheEndUntilItIsMovedByHand)
{
    WindowRig rig({"--live", "signal", "--rate", "1000", "--seconds", "0.25"}, false);
    ASSERT_TRUE(waitFor([&] { return rig.chart().model() && rig.view()[0] > 0.2; }));
    EXPECT_NEAR(rig.view()[1] - rig.view()[0], 0.25, 1e-9);
    EXPECT_TRUE(rig.window->message().startsWith("Live")) << rig.window->message().toStdString();

    rig.drag(rig.at(0.4, 0.5), rig.at(0.5, 0.5)); // Back in time.
    EXPECT_FALSE(rig.window->feed()->isFollowing());
    const std::vector<double> held = rig.view();
    const long long rows = rig.window->feed()->source().recording()->rows();
    ASSERT_TRUE(
        waitFor([&] { return rig.window->feed()->source().recording()->rows() > rows + 300; }));
    EXPECT_EQ(rig.view(), held);

    QTest::keyClick(rig.window.get(), Qt::Key_Space);
    EXPECT_TRUE(rig.window->feed()->isFollowing());
    EXPECT_GT(rig.view()[1], held[1] + 0.2);
    rig.turnWheel(rig.at(0.5, 0.5), 1); // Zooms, and goes on following.
    EXPECT_TRUE(rig.window->feed()->isFollowing());
    EXPECT_LT(rig.view()[1] - rig.view()[0], 0.24);
}

TEST(LiveWindowTest, ClosesAndOpensFilesWhileDataComeIn)
{
    for (int k = 0; k < 5; ++k) {
        WindowRig rig({"--live", "signal", "--rate", "1000000"}, false);
        QTest::qWait(10 * k);
        if (k == 3) {
            rig.window->open({rig.path("in.csv")});
            EXPECT_FALSE(rig.window->feed());
            EXPECT_EQ(rig.model().curveNames().first(), "value");
        }
        rig.window->close();
    }
}

TEST(LiveWindowTest, OptionsThatMakeNoSenseAreRefused)
{
    for (const QStringList& wrong : {QStringList{"--plot", "xy"},
                                     {"--plot", "histogram"},
                                     {"--x-axis", "log"},
                                     {"--from", "1"},
                                     {"--seconds", "0"},
                                     {"--rate", "nan"},
                                     {"--show", "slope"},
                                     {"a.csv"}})
        EXPECT_ANY_THROW(WindowRig::options(QStringList{"--live", "signal"} + wrong))
            << wrong.join(' ').toStdString();
}

} // namespace

} // namespace hosts::viewer
