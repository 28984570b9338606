#include "hosts/kestrane-chart/Program.h"
#include "hosts/kestrane-viewer/ViewerOptions.h"
#include "hosts/kestrane-viewer/ViewerWindow.h"

#include <kestrane/library/Kestrane.h>

#include <QApplication>

namespace {

using namespace hosts;

constexpr auto programName = "kestrane-viewer";

int run(int argc, char** argv)
{
    const auto options = viewer::ViewerOptions::read(argc, argv);
    if (!options)
        return 0;
    int applicationArguments = 1;
    QApplication application(applicationArguments, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Kestrane"));
    QCoreApplication::setApplicationName(QLatin1String(programName));
    Kestrane::initialize();
    int status = 0;
    {
        viewer::ViewerWindow window(*options);
        window.show();
        status = QApplication::exec();
    }
    Kestrane::deinitialize();
    return status;
}

} // namespace

int main(int argc, char** argv)
{
    return chart::runProgram(programName, [&] { return run(argc, argv); });
}
