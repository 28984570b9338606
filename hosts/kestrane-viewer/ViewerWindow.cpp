#include "hosts/kestrane-viewer/ViewerWindow.h"

#include <QAction>
#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>
#include <QUrl>

#include <exception>
#include <utility>

namespace hosts::viewer {

namespace {

constexpr auto pictureFilter = "Pictures (*.png *.svg *.pdf)";

QString milliseconds(qint64 nanoseconds)
{
    return QString::number(double(nanoseconds) * 1e-6, 'f', 2) + QStringLiteral(" ms");
}

// The chart's colours for what is around it.
QPalette darkPalette()
{
    const charting::Look look = charting::Look::dark();
    QPalette palette(look.background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, look.text);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, look.faintText.darker());
    palette.setColor(QPalette::Base, look.plotBackground);
    palette.setColor(QPalette::AlternateBase, look.background);
    palette.setColor(QPalette::Highlight, look.curveColor(0));
    palette.setColor(QPalette::HighlightedText, look.background);
    return palette;
}

QStringList filesOf(const QMimeData& data)
{
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            files.append(url.toLocalFile());
    }
    return files;
}

} // namespace

ViewerWindow::ViewerWindow(const ViewerOptions& options)
    : m_options(options)
    , m_chart(new ChartWidget(this))
    , m_table(new CursorTable)
    , m_tableDock(new QDockWidget(tr("Cursors"), this))
    , m_message(new QLabel(this))
    , m_costs(new QLabel(this))
{
    setAcceptDrops(true);
    setCentralWidget(m_chart);
    m_tableDock->setObjectName(QStringLiteral("cursors"));
    m_tableDock->setWidget(m_table);
    m_tableDock->hide();
    addDockWidget(Qt::BottomDockWidgetArea, m_tableDock);
    makeMenus();
    makeStatusLine();
    connect(m_chart, &ChartWidget::framePainted, this, &ViewerWindow::showCosts);
    connect(m_chart, &ChartWidget::historyChanged, this, &ViewerWindow::updateActions);
    connect(m_chart, &ChartWidget::cursorsChanged, this, &ViewerWindow::followCursors);
    connect(m_chart, &ChartWidget::failed, this, &ViewerWindow::complain);
    readSettings();
    std::unique_ptr<ChartModel> model;
    if (!m_options.chart.inputs.isEmpty())
        model = std::make_unique<ChartModel>(m_options.chart);
    setModel(std::move(model));
    if (!m_options.live.isEmpty())
        startLive();
}

ViewerWindow::~ViewerWindow() = default;

void ViewerWindow::startLive()
{
    m_feed = std::make_unique<LiveFeed>(m_options, *m_chart,
                                        [this](auto model) { setModel(std::move(model)); });
    connect(m_feed.get(), &LiveFeed::progressed, m_message, &QLabel::setText);
    connect(m_feed.get(), &LiveFeed::followingChanged, m_follow, &QAction::setChecked);
    m_follow->setChecked(true);
    updateActions();
}

void ViewerWindow::open(const QStringList& paths)
{
    if (paths.isEmpty())
        return;
    chart::Options options = m_options.chart;
    options.inputs = paths;
    try {
        setModel(std::make_unique<ChartModel>(options));
        m_options.chart = options;
        m_folder = QFileInfo(paths.first()).absolutePath();
        m_feed.reset();
        updateActions();
    } catch (const std::exception& error) {
        complain(QString::fromUtf8(error.what()));
    }
}

void ViewerWindow::savePicture(const QString& path)
{
    if (!m_chart->model())
        return;
    try {
        m_chart->model()->savePicture(path);
        m_message->setText(tr("Saved %1").arg(path));
    } catch (const std::exception& error) {
        complain(QString::fromUtf8(error.what()));
    }
}

QString ViewerWindow::message() const
{
    return m_message->text();
}

QString ViewerWindow::costs() const
{
    return m_costs->text();
}

void ViewerWindow::closeEvent(QCloseEvent* event)
{
    writeSettings();
    QMainWindow::closeEvent(event);
}

void ViewerWindow::dragEnterEvent(QDragEnterEvent* event)
{
    if (!filesOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ViewerWindow::dropEvent(QDropEvent* event)
{
    open(filesOf(*event->mimeData()));
    event->acceptProposedAction();
}

void ViewerWindow::makeMenus()
{
    QMenu* const file = menuBar()->addMenu(tr("&File"));
    file->addAction(tr("&Open…"), this, &ViewerWindow::askForFiles)
        ->setShortcut(QKeySequence::Open);
    m_save = file->addAction(tr("&Save picture…"), this, &ViewerWindow::askForPicture);
    m_save->setShortcut(QKeySequence::Save);
    file->addSeparator();
    file->addAction(tr("&Quit"), this, &QWidget::close)->setShortcut(QKeySequence::Quit);
    makeViewMenu();
    QMenu* const cursors = menuBar()->addMenu(tr("&Cursors"));
    m_addCursor = cursors->addAction(tr("&Add\tC"), m_chart, &ChartWidget::addCursor);
    m_removeCursors = cursors->addAction(tr("&Remove all"), this, [this] {
        while (!m_chart->model()->cursors().isEmpty())
            m_chart->removeCursor(0);
    });
}

// Keys without a modifier are the chart's own.
void ViewerWindow::makeViewMenu()
{
    QMenu* const view = menuBar()->addMenu(tr("&View"));
    m_undo = view->addAction(tr("&Undo"), m_chart, &ChartWidget::undo);
    m_undo->setShortcut(QKeySequence::Undo);
    m_redo = view->addAction(tr("&Redo"), m_chart, &ChartWidget::redo);
    m_redo->setShortcut(QKeySequence::Redo);
    view->addSeparator();
    view->addAction(tr("&All data\tHome"), m_chart, &ChartWidget::goHome);
    view->addAction(tr("&Fit y\tF"), m_chart, &ChartWidget::fitY);
    view->addAction(tr("Zoom &in\t+"), m_chart, &ChartWidget::zoomIn);
    view->addAction(tr("Zoom &out\t−"), m_chart, &ChartWidget::zoomOut);
    m_follow = view->addAction(tr("Fo&llow live data"));
    m_follow->setShortcut(Qt::Key_Space);
    m_follow->setCheckable(true);
    connect(m_follow, &QAction::toggled, this, [this](bool isFollowing) {
        if (m_feed)
            m_feed->setFollowing(isFollowing);
    });
    view->addSeparator();
    m_dark = view->addAction(tr("&Dark"));
    m_dark->setCheckable(true);
    connect(m_dark, &QAction::triggered, this, [this](bool isDark) {
        QSettings().setValue(QStringLiteral("dark"), isDark);
        setDark(isDark);
    });
}

void ViewerWindow::makeStatusLine()
{
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(m_message, 1);
    statusBar()->addPermanentWidget(m_costs);
}

void ViewerWindow::readSettings()
{
    const QSettings settings;
    m_folder = settings.value(QStringLiteral("folder")).toString();
    if (!m_options.asksForLook)
        m_options.chart.isDark = settings.value(QStringLiteral("dark"), false).toBool();
    setDark(m_options.chart.isDark);
    if (m_options.asksForSize ||
        !restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray()))
        resize(m_options.chart.size +
               QSize(0, menuBar()->sizeHint().height() + statusBar()->sizeHint().height()));
}

void ViewerWindow::writeSettings() const
{
    QSettings settings;
    settings.setValue(QStringLiteral("folder"), m_folder);
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
}

void ViewerWindow::setModel(std::unique_ptr<ChartModel> model)
{
    if (model)
        model->setDark(m_options.chart.isDark);
    m_table->follow(model.get());
    m_chart->setModel(std::move(model));
    const QStringList inputs =
        m_chart->model() ? m_chart->model()->options().inputs : QStringList();
    m_message->setText(inputs.isEmpty() ? tr("Open a recording, or drop one here") : QString());
    QString title = m_options.chart.title;
    if (title.isEmpty() && !inputs.isEmpty())
        title = QFileInfo(inputs.first()).fileName() +
                (inputs.size() > 1 ? tr(" and %n more", "", inputs.size() - 1) : QString());
    setWindowTitle(title);
    updateActions();
}

void ViewerWindow::setDark(bool isDark)
{
    m_options.chart.isDark = isDark;
    m_dark->setChecked(isDark);
    setPalette(isDark ? darkPalette() : QPalette());
    if (!m_chart->model())
        return;
    m_chart->model()->setDark(isDark);
    m_chart->refresh();
}

void ViewerWindow::askForFiles()
{
    open(QFileDialog::getOpenFileNames(this, tr("Open recordings"), m_folder));
}

void ViewerWindow::askForPicture()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save picture"), m_folder, tr(pictureFilter));
    if (!path.isEmpty())
        savePicture(path);
}

void ViewerWindow::showCosts(const ChartWidget::FrameCost& cost)
{
    m_costs->setText(tr("%1 samples in view · reduced in %2 · painted in %3")
                         .arg(QLocale().toString(m_chart->model()->samplesInView()),
                              milliseconds(cost.reduction), milliseconds(cost.painting)));
}

void ViewerWindow::followCursors()
{
    m_table->refreshSoon();
    m_tableDock->setVisible(m_chart->model() && !m_chart->model()->cursors().isEmpty());
    updateActions();
}

void ViewerWindow::updateActions()
{
    ChartModel* const model = m_chart->model();
    m_save->setEnabled(model);
    m_undo->setEnabled(m_chart->history().canUndo());
    m_redo->setEnabled(m_chart->history().canRedo());
    m_follow->setEnabled(m_feed != nullptr);
    m_addCursor->setEnabled(model && model->canAddCursor());
    m_removeCursors->setEnabled(model && !model->cursors().isEmpty());
}

// In the window rather than in a box that has to be closed: the chart is as it was.
void ViewerWindow::complain(const QString& what)
{
    m_message->setText(what.simplified());
}

} // namespace hosts::viewer
