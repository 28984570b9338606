#include "hosts/kestrane-viewer/ChartWidget.h"

#include <QGestureEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPinchGesture>
#include <QWheelEvent>

#include <cmath>
#include <exception>

namespace hosts::viewer {

using pelorin::ui::chart::Axis;

namespace {

constexpr double cursorReach = 5.0; // Pixels beside its line where a cursor can be gripped.
constexpr double keyStep = 0.1;     // Of the plot.
constexpr double keyZoom = 1.25;
constexpr double wheelZoom = 1.15; // For a notch.
constexpr double notch = 120.0;
constexpr int burstTime = 800; // Milliseconds between steps that are undone together.

QPointF placeOf(const QMouseEvent& event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

} // namespace

// What goes on between the press of a button and its release. Places count in the plot as it was at
// the press: labels may grow meanwhile, and move it.
struct ChartWidget::Drag
{
    View base;
    MovableAxis::Grip x, y;
    QRectF plot;
    QPointF start;
    Part part;
    bool scales;
    int cursor = -1; // The one that is moved, or none.
    double cursorBase = 0.0;
    bool hasMoved = false;
};

ChartWidget::ChartWidget(QWidget* parent)
    : QWidget(parent)
    , m_clock(this)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    grabGesture(Qt::PinchGesture);
}

ChartWidget::~ChartWidget() = default;

void ChartWidget::setModel(std::unique_ptr<ChartModel> model)
{
    m_drag.reset();
    m_history.clear();
    m_model = std::move(model);
    if (m_model) {
        for (MovableAxis* axis : {&m_model->x(), &m_model->y()})
            connect(axis->shown().axis.data(), &Axis::parametersChanged, this,
                    &ChartWidget::refresh);
    }
    refresh();
    Q_EMIT historyChanged();
    Q_EMIT cursorsChanged();
}

QSize ChartWidget::sizeHint() const
{
    return m_model ? m_model->options().size : QSize(1000, 600);
}

QSize ChartWidget::minimumSizeHint() const
{
    return {160, 120};
}

void ChartWidget::refresh()
{
    m_drawing.reset();
    m_clock.request();
}

void ChartWidget::undo()
{
    if (m_model && !m_drag)
        setView(m_history.undo(m_model->view()));
}

void ChartWidget::redo()
{
    if (m_model && !m_drag)
        setView(m_history.redo(m_model->view()));
}

void ChartWidget::goHome()
{
    if (changeView(&ChartModel::goHome))
        Q_EMIT moved(true, true);
}

void ChartWidget::fitY()
{
    if (changeView(&ChartModel::fitY))
        Q_EMIT fitted();
}

bool ChartWidget::changeView(void (ChartModel::*change)())
{
    if (!m_model || m_drag)
        return false;
    const View before = m_model->view();
    try {
        (*m_model.*change)();
    } catch (const std::exception& error) {
        Q_EMIT failed(QString::fromUtf8(error.what()));
        return false;
    }
    m_burst.invalidate();
    m_history.leave(before);
    Q_EMIT historyChanged();
    return true;
}

void ChartWidget::zoomIn()
{
    zoomAt(m_plot.center(), keyZoom);
}

void ChartWidget::zoomOut()
{
    zoomAt(m_plot.center(), 1.0 / keyZoom);
}

void ChartWidget::addCursor()
{
    const QPointF pointer = mapFromGlobal(QCursor::pos());
    addCursorAt(m_plot.contains(pointer) ? pointer : m_plot.center());
}

void ChartWidget::addCursorAt(const QPointF& point)
{
    if (!m_model || !m_model->canAddCursor())
        return;
    const charting::ShownAxis& x = m_model->x().shown();
    m_model->addCursor(x.axis->inverseTransform(Axis::Linear, placeAt(point).x() * x.visible));
    refresh();
    Q_EMIT cursorsChanged();
}

void ChartWidget::removeCursor(int index)
{
    if (!m_model || index < 0 || index >= m_model->cursors().size())
        return;
    m_drag.reset();
    m_model->removeCursor(index);
    refresh();
    Q_EMIT cursorsChanged();
}

bool ChartWidget::event(QEvent* event)
{
    if (event->type() == QEvent::Gesture) {
        auto* const gestures = static_cast<QGestureEvent*>(event);
        if (QGesture* const gesture = gestures->gesture(Qt::PinchGesture)) {
            pinch(static_cast<QPinchGesture*>(gesture));
            return true;
        }
    }
    return QWidget::event(event);
}

void ChartWidget::paintEvent(QPaintEvent*)
{
    m_clock.began();
    QPainter painter(this);
    if (!m_model || !makeDrawing()) {
        painter.fillRect(rect(), palette().window());
        return;
    }
    QElapsedTimer time;
    time.start();
    m_drawing->paint(painter, devicePixelRatioF());
    m_cost.painting = time.nsecsElapsed();
    Q_EMIT framePainted(m_cost);
}

bool ChartWidget::makeDrawing()
{
    if (m_drawing)
        return true;
    QElapsedTimer time;
    time.start();
    if (m_model->setCanvas(size(), devicePixelRatioF()))
        Q_EMIT cursorsChanged(); // There may be other digits by now.
    try {
        m_drawing = m_model->drawing();
    } catch (const std::exception& error) {
        Q_EMIT failed(QString::fromUtf8(error.what()));
        return false;
    }
    m_cost.reduction = time.nsecsElapsed();
    m_plot = m_drawing->layout.plot;
    return true;
}

void ChartWidget::resizeEvent(QResizeEvent*)
{
    refresh();
}

void ChartWidget::mousePressEvent(QMouseEvent* event)
{
    const Part part = partAt(placeOf(*event));
    const bool scales = event->button() == Qt::RightButton;
    if (!m_model || m_drag || part == Nothing || (scales && part == Both) ||
        (!scales && event->button() != Qt::LeftButton)) {
        QWidget::mousePressEvent(event);
        return;
    }
    const QPointF place = placeAt(placeOf(*event));
    const int cursor = part == Both ? cursorAt(placeOf(*event)) : -1;
    m_drag.reset(new Drag{m_model->view(), m_model->x().gripAt(place.x()),
                          m_model->y().gripAt(place.y()), m_plot, placeOf(*event), part, scales,
                          cursor, cursor < 0 ? 0.0 : m_model->cursors()[cursor]});
    updatePointer(placeOf(*event));
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (m_drag)
        drag(placeOf(*event));
    else
        updatePointer(placeOf(*event));
}

void ChartWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (!m_drag || event->button() != (m_drag->scales ? Qt::RightButton : Qt::LeftButton))
        return;
    drag(placeOf(*event));
    if (m_drag && m_drag->hasMoved && m_drag->cursor < 0) {
        m_history.leave(m_drag->base);
        Q_EMIT historyChanged();
    }
    m_drag.reset();
    updatePointer(placeOf(*event));
}

void ChartWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && partAt(placeOf(*event)) == Both &&
        cursorAt(placeOf(*event)) < 0)
        addCursorAt(placeOf(*event));
}

void ChartWidget::wheelEvent(QWheelEvent* event)
{
    const QPoint turned = event->angleDelta();
    if (turned.x() != 0 && std::abs(turned.x()) > std::abs(turned.y()))
        scrollBySteps(-turned.x() / notch, 0.0);
    else
        zoomAt(event->position(), std::pow(wheelZoom, turned.y() / notch));
    event->accept();
}

void ChartWidget::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return scrollBySteps(-1.0, 0.0);
    case Qt::Key_Right:
        return scrollBySteps(1.0, 0.0);
    case Qt::Key_Down:
        return scrollBySteps(0.0, -1.0);
    case Qt::Key_Up:
        return scrollBySteps(0.0, 1.0);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return goHome();
    case Qt::Key_F:
        return fitY();
    case Qt::Key_C:
        return addCursor();
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        return removeCursor(cursorAt(mapFromGlobal(QCursor::pos())));
    case Qt::Key_Escape:
        return cancelDrag();
    default:
        QWidget::keyPressEvent(event);
    }
}

ChartWidget::Part ChartWidget::partAt(const QPointF& point) const
{
    const bool isBeside = point.y() >= m_plot.top() && point.y() <= m_plot.bottom();
    const bool isBelow = point.x() >= m_plot.left() && point.x() <= m_plot.right();
    if (isBeside && isBelow)
        return Both;
    if (isBelow && point.y() > m_plot.bottom())
        return XAxis;
    return isBeside && point.x() < m_plot.left() ? YAxis : Nothing;
}

int ChartWidget::cursorAt(const QPointF& point) const
{
    if (!m_model || partAt(point) != Both)
        return -1;
    const charting::ShownAxis& x = m_model->x().shown();
    int nearest = -1;
    double distance = cursorReach;
    for (int k = 0; k < m_model->cursors().size(); ++k) {
        const double place = x.axis->transform(Axis::Linear, m_model->cursors()[k]) / x.visible;
        const double away = std::abs(m_plot.left() + place * m_plot.width() - point.x());
        if (away <= distance) {
            nearest = k;
            distance = away;
        }
    }
    return nearest;
}

QPointF ChartWidget::placeAt(const QPointF& point) const
{
    const QRectF& plot = m_drag ? m_drag->plot : m_plot;
    return {(point.x() - plot.left()) / plot.width(), (plot.bottom() - point.y()) / plot.height()};
}

void ChartWidget::drag(const QPointF& point)
{
    if (point == m_drag->start && !m_drag->hasMoved)
        return;
    m_drag->hasMoved = true;
    const QPointF place = placeAt(point);
    if (m_drag->cursor >= 0) {
        const charting::ShownAxis& x = m_model->x().shown();
        const double within = qBound(0.0, place.x(), 1.0);
        m_model->moveCursor(m_drag->cursor,
                            x.axis->inverseTransform(Axis::Linear, within * x.visible));
        refresh();
        Q_EMIT cursorsChanged();
        return;
    }
    Q_EMIT moved(m_drag->part & XAxis && !m_drag->scales, m_drag->part & YAxis);
    const auto move = m_drag->scales ? &MovableAxis::scale : &MovableAxis::scroll;
    if (m_drag->part & XAxis)
        (m_model->x().*move)(m_drag->x, place.x());
    if (m_drag->part & YAxis)
        (m_model->y().*move)(m_drag->y, place.y());
}

void ChartWidget::cancelDrag()
{
    if (!m_drag)
        return;
    if (m_drag->cursor >= 0) {
        m_model->moveCursor(m_drag->cursor, m_drag->cursorBase);
        Q_EMIT cursorsChanged();
    } else {
        m_model->setView(m_drag->base);
    }
    m_drag.reset();
    refresh();
}

void ChartWidget::zoomAt(const QPointF& point, double factor)
{
    const Part part = partAt(point);
    if (!m_model || m_drag || part == Nothing)
        return;
    leaveViewInSteps();
    const QPointF place = placeAt(point);
    if (part & XAxis)
        m_model->x().zoom(place.x(), factor);
    if (part & YAxis)
        m_model->y().zoom(place.y(), factor);
    Q_EMIT moved(false, part & YAxis);
}

void ChartWidget::pinch(QPinchGesture* gesture)
{
    if (gesture->changeFlags() & QPinchGesture::ScaleFactorChanged)
        zoomAt(mapFromGlobal(gesture->centerPoint().toPoint()), gesture->scaleFactor());
}

void ChartWidget::scrollBySteps(double x, double y)
{
    if (!m_model || m_drag)
        return;
    leaveViewInSteps();
    constexpr double middle = 0.75; // Not where the halves of a bipolar axis meet.
    if (x != 0.0)
        m_model->x().scroll(m_model->x().gripAt(middle), middle - x * keyStep);
    if (y != 0.0)
        m_model->y().scroll(m_model->y().gripAt(middle), middle - y * keyStep);
    Q_EMIT moved(x != 0.0, y != 0.0);
}

// Steps that follow each other quickly are undone together.
void ChartWidget::leaveViewInSteps()
{
    const bool goesOn = m_burst.isValid() && m_burst.elapsed() < burstTime;
    m_burst.start();
    if (goesOn && m_history.canUndo())
        return;
    m_history.leave(m_model->view());
    Q_EMIT historyChanged();
}

void ChartWidget::setView(const std::optional<View>& view)
{
    m_burst.invalidate();
    if (!view)
        return;
    m_model->setView(*view);
    Q_EMIT historyChanged();
    Q_EMIT moved(true, true);
}

void ChartWidget::updatePointer(const QPointF& point)
{
    const Part part = partAt(point);
    if (m_drag ? m_drag->cursor >= 0 : cursorAt(point) >= 0)
        setCursor(Qt::SplitHCursor);
    else if (m_drag)
        setCursor(m_drag->scales ? (part == YAxis ? Qt::SizeVerCursor : Qt::SizeHorCursor)
                                 : Qt::ClosedHandCursor);
    else if (part == Both)
        setCursor(Qt::OpenHandCursor);
    else if (part == Nothing)
        unsetCursor();
    else
        setCursor(part == XAxis ? Qt::SizeHorCursor : Qt::SizeVerCursor);
}

} // namespace hosts::viewer
