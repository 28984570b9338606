#include "hosts/data/AudioReader.h"

#include "hosts/data/SampleRuns.h"

#include <QFile>
#include <QFileInfo>

#include <sndfile.h>

#include <algorithm>
#include <memory>

namespace hosts::data {

namespace {

constexpr sf_count_t FramesAtOnce = 1 << 14;

struct Closer
{
    void operator()(SNDFILE* sound) const { sf_close(sound); }
};

using Sound = std::unique_ptr<SNDFILE, Closer>;

bool hasAudioMagic(const QByteArray& head)
{
    const QByteArray form = head.mid(8, 4);
    const bool isWave = (head.startsWith("RIFF") || head.startsWith("RF64")) && form == "WAVE";
    const bool isAiff = head.startsWith("FORM") && (form == "AIFF" || form == "AIFC");
    const bool isAu = head.startsWith(QByteArray(".snd\0", 5));
    return isWave || isAiff || isAu || head.startsWith("fLaC") || head.startsWith("OggS");
}

bool hasAudioEnding(const QString& path)
{
    static const QStringList endings = {QStringLiteral("wav"),  QStringLiteral("flac"),
                                        QStringLiteral("ogg"),  QStringLiteral("oga"),
                                        QStringLiteral("opus"), QStringLiteral("aif"),
                                        QStringLiteral("aiff"), QStringLiteral("au"),
                                        QStringLiteral("caf"),  QStringLiteral("mp3")};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

Sound openSound(const QString& path, SF_INFO& info)
{
    Sound sound(sf_open(QFile::encodeName(path).constData(), SFM_READ, &info));
    if (!sound)
        throw ReadError(path, QStringLiteral("no sound that can be read: %1")
                                  .arg(QString::fromUtf8(sf_strerror(nullptr)).simplified()));
    return sound;
}

/// The channels asked for, from 0, each once.
std::vector<int> chooseChannels(const QString& path, const QStringList& wanted, int count)
{
    std::vector<int> channels;
    for (const QString& text : wanted) {
        bool isNumber = false;
        const int number = text.toInt(&isNumber);
        if (!isNumber || number < 1 || number > count)
            throw ReadError(path, QStringLiteral("no channel %1; the channels are numbered 1 to %2")
                                      .arg(quoted(text))
                                      .arg(count));
        if (std::find(channels.begin(), channels.end(), number - 1) == channels.end())
            channels.push_back(number - 1);
    }
    for (int channel = 0; wanted.isEmpty() && channel < count; ++channel)
        channels.push_back(channel);
    return channels;
}

std::vector<SampleRuns> readChannels(const QString& path, SNDFILE* sound, const SF_INFO& info,
                                     const std::vector<int>& channels, const Progress& progress)
{
    const auto width = static_cast<std::size_t>(info.channels);
    std::vector<double> frames(static_cast<std::size_t>(FramesAtOnce) * width);
    std::vector<SampleRuns> result(channels.size());
    sf_count_t done = 0;
    for (sf_count_t got = FramesAtOnce; got == FramesAtOnce;) {
        got = sf_readf_double(sound, frames.data(), FramesAtOnce);
        for (std::size_t i = 0; i < channels.size(); ++i) {
            for (std::size_t frame = 0; frame < static_cast<std::size_t>(got); ++frame)
                result[i].put(frames[frame * width + static_cast<std::size_t>(channels[i])]);
        }
        done += got;
        progress(static_cast<double>(done) /
                 static_cast<double>(std::max({info.frames, done, sf_count_t(1)})));
    }
    if (done > 0 && done < info.frames && info.frames != SF_COUNT_MAX)
        throw ReadError(path, QStringLiteral("is cut off or damaged: only %1 of its %2 frames can "
                                             "be read")
                                  .arg(done)
                                  .arg(info.frames));
    return result;
}

} // namespace

bool isAudio(const QString& path, const QByteArray& head)
{
    return hasAudioMagic(head) || hasAudioEnding(path);
}

std::vector<Series> readAudio(const QString& path, const ReadOptions& options,
                              const Progress& progress)
{
    if (!options.timeColumn.isEmpty() && options.timeColumn != QLatin1String("none"))
        throw ReadError(
            path, QStringLiteral("a sound has no time column %1").arg(quoted(options.timeColumn)));
    SF_INFO info = {};
    const Sound sound = openSound(path, info);
    const std::vector<int> channels = chooseChannels(path, options.columns, info.channels);
    const std::vector<SampleRuns> runs = readChannels(path, sound.get(), info, channels, progress);
    const RowGrid grid = {options.start.value_or(0.0),
                          options.step.value_or(1.0 / static_cast<double>(info.samplerate)),
                          {}};
    std::vector<Series> result;
    for (std::size_t i = 0; i < channels.size(); ++i) {
        if (runs[i].isEmpty())
            throw ReadError(path,
                            QStringLiteral("channel %1 holds no samples").arg(channels[i] + 1));
        const QString name = QFileInfo(path).fileName();
        result.push_back(
            {QStringLiteral("%1 %2").arg(name).arg(channels[i] + 1), runs[i].snapshot(grid)});
    }
    return result;
}

} // namespace hosts::data
