#ifndef HOSTS_KESTRANE_VIEWER_VIEWERWINDOW_H
#define HOSTS_KESTRANE_VIEWER_VIEWERWINDOW_H

#include "hosts/kestrane-viewer/ChartWidget.h"
#include "hosts/kestrane-viewer/CursorTable.h"
#include "hosts/kestrane-viewer/LiveFeed.h"
#include "hosts/kestrane-viewer/ViewerOptions.h"

#include <QMainWindow>
#include <QStringList>

class QAction;
class QDockWidget;
class QLabel;
class QMenu;

namespace hosts::viewer {

/// A window with one chart. What a person chooses in it by hand, the look, the folder and the place
/// on the screen, is remembered for the next one.
class ViewerWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Opens what @p options name.
    /// @throws what ChartModel throws
    explicit ViewerWindow(const ViewerOptions& options);
    ~ViewerWindow() override;

    ChartWidget& chart() { return *m_chart; }
    CursorTable& cursorTable() { return *m_table; }

    /// Shows other recordings with the same options; if they cannot be read, says so and leaves
    /// everything as it is.
    void open(const QStringList& paths);

    /// Writes the chart into a file, or says why not.
    void savePicture(const QString& path);

    /// What brings live data; null if there are none.
    LiveFeed* feed() { return m_feed.get(); }

    /// What the status line tells.
    QString message() const;
    QString costs() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void makeMenus();
    void makeViewMenu();
    void makeStatusLine();
    void startLive();
    void readSettings();
    void writeSettings() const;
    void setModel(std::unique_ptr<ChartModel> model);
    void setDark(bool isDark);
    void askForFiles();
    void askForPicture();
    void showCosts(const ChartWidget::FrameCost& cost);
    void followCursors();
    void updateActions();
    void complain(const QString& what);

    ViewerOptions m_options;
    QString m_folder; // That of the files opened last.
    ChartWidget* m_chart;
    CursorTable* m_table;
    QDockWidget* m_tableDock;
    QLabel* m_message;
    QLabel* m_costs;
    std::unique_ptr<LiveFeed> m_feed;
    QAction* m_save = nullptr;
    QAction* m_follow = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_dark = nullptr;
    QAction* m_addCursor = nullptr;
    QAction* m_removeCursors = nullptr;
};

} // namespace hosts::viewer

#endif
