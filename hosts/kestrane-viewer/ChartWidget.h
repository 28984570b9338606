#ifndef HOSTS_KESTRANE_VIEWER_CHARTWIDGET_H
#define HOSTS_KESTRANE_VIEWER_CHARTWIDGET_H

#include "hosts/kestrane-chart/Drawing.h"
#include "hosts/kestrane-viewer/ChartModel.h"
#include "hosts/kestrane-viewer/FrameClock.h"
#include "hosts/kestrane-viewer/ViewHistory.h"

#include <QElapsedTimer>
#include <QPointF>
#include <QRectF>
#include <QWidget>

#include <memory>
#include <optional>

class QNativeGestureEvent;
class QPinchGesture;

namespace hosts::viewer {

/// A chart that is moved by hand.
///
///     left button    in the plot scrolls both axes, on the labels of one only that one; drags a
///                    cursor that is there
///     right button   on the labels of an axis scales it
///     wheel, pinch   zooms around the pointer, on the labels of an axis only that one
///     arrows, + -    scroll and zoom
///     Home, F        all data; y fits what is to be seen
///     Escape         takes back the drag that is going on
class ChartWidget : public QWidget
{
    Q_OBJECT

public:
    /// What a frame cost, in nanoseconds.
    struct FrameCost
    {
        qint64 reduction = 0; ///< From samples to what is to be drawn.
        qint64 painting = 0;
    };

    explicit ChartWidget(QWidget* parent = nullptr);
    ~ChartWidget() override;

    /// Shows another chart; null for none.
    void setModel(std::unique_ptr<ChartModel> model);
    ChartModel* model() { return m_model.get(); }

    bool isDragging() const { return m_drag != nullptr; }

    const ViewHistory& history() const { return m_history; }

    /// Where the last frame had the plot, in this widget.
    QRectF plotArea() const { return m_plot; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void undo();
    void redo();
    void goHome();
    void fitY();
    void zoomIn();
    void zoomOut();

    /// Sets a cursor where the pointer is, or else in the middle.
    void addCursor();
    void removeCursor(int index);

    /// Draws anew what has changed, with the next frame.
    void refresh();

Q_SIGNALS:
    void framePainted(const hosts::viewer::ChartWidget::FrameCost& cost);
    void historyChanged();

    /// Somebody moves x, y or both; zooming does not count as moving x.
    void moved(bool x, bool y);
    void fitted();
    void cursorsChanged();
    void failed(const QString& message);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Drag;
    enum Part { Nothing = 0, XAxis = 1, YAxis = 2, Both = XAxis | YAxis };

    Part partAt(const QPointF& point) const;
    int cursorAt(const QPointF& point) const;
    QPointF placeAt(const QPointF& point) const;
    void addCursorAt(const QPointF& point);
    void drag(const QPointF& point);
    void cancelDrag();
    void zoomAt(const QPointF& point, double factor);
    void pinch(QPinchGesture* gesture);
    void scrollBySteps(double x, double y);
    bool changeView(void (ChartModel::*change)());
    void leaveViewInSteps();
    void setView(const std::optional<View>& view);
    void updatePointer(const QPointF& point);
    bool makeDrawing();

    std::unique_ptr<ChartModel> m_model;
    std::optional<chart::Drawing> m_drawing; // Nothing once it is out of date.
    QRectF m_plot;
    FrameCost m_cost;
    FrameClock m_clock;
    ViewHistory m_history;
    QElapsedTimer m_burst; // Since the last wheel step or key.
    std::unique_ptr<Drag> m_drag;
};

} // namespace hosts::viewer

#endif
