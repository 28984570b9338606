#include "hosts/kestrane-chart/Program.h"

#include "hosts/kestrane-chart/UsageError.h"

#include <QtGlobal>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <new>
#include <string>

namespace hosts::chart {

namespace {

constexpr int failed = 1;
constexpr int wronglyUsed = 2;

const char* programName = "";

// One line, whatever stands in the names of files.
int complain(std::string message, int status)
{
    const auto isControl = [](char c) { return (c >= 0 && c < ' ') || c == '\x7f'; };
    std::replace_if(message.begin(), message.end(), isControl, '?');
    std::fprintf(stderr, "%s: %s\n", programName, message.c_str());
    return status;
}

// What Qt has to say about its surroundings is not for the user of a program, unless Qt gives up.
void hearQt(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (type == QtFatalMsg)
        std::_Exit(complain(message.simplified().toStdString(), failed));
}

} // namespace

int runProgram(const char* name, const std::function<int()>& work)
{
    programName = name;
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    // Names of files and texts are UTF-8, also where the environment names no language.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
    qInstallMessageHandler(hearQt);
    try {
        return work();
    } catch (const UsageError& error) {
        return complain(error.what(), wronglyUsed);
    } catch (const std::bad_alloc&) {
        return complain("not enough memory", failed);
    } catch (const std::exception& error) {
        return complain(error.what(), failed);
    }
}

} // namespace hosts::chart
