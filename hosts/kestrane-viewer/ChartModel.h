#ifndef HOSTS_KESTRANE_VIEWER_CHARTMODEL_H
#define HOSTS_KESTRANE_VIEWER_CHARTMODEL_H

#include "hosts/kestrane-chart/Drawing.h"
#include "hosts/kestrane-chart/LinePlot.h"
#include "hosts/kestrane-chart/Options.h"
#include "hosts/kestrane-chart/Plot.h"
#include "hosts/kestrane-chart/Recordings.h"
#include "hosts/kestrane-viewer/MovableAxis.h"
#include "hosts/kestrane-viewer/ViewHistory.h"

#include <QObject>
#include <QSize>
#include <QVector>

#include <memory>
#include <vector>

namespace hosts::viewer {

/// What a window shows: recordings as a plot, on axes that move, with cursors.
class ChartModel
{
public:
    static constexpr int mostCursors = 4;

    /// Reads the recordings that @p options name and shows the ranges that they ask for.
    /// @throws what Recordings::read(), Plot::of() and Drawing::of() throw
    explicit ChartModel(const chart::Options& options);

    /// Shows these recordings.
    ChartModel(const chart::Options& options, chart::Recordings recordings);

    ChartModel(const ChartModel&) = delete; // The plot refers to the options.
    ChartModel& operator=(const ChartModel&) = delete;

    /// Those of a picture of the present view.
    const chart::Options& options() const { return m_options; }

    MovableAxis& x() { return m_x; }
    MovableAxis& y() { return m_y; }

    View view() const { return {m_x.state(), m_y.state()}; }
    void setView(const View& view);
    void goHome();

    /// Lets y cover what is to be seen on x.
    /// @throws chart::WorkError if there is nothing
    void fitY();

    /// Takes what there is by now of the same series. All data are more then; the view stays.
    void setSeries(std::vector<data::Series> series);

    /// Shows a range of x of that length, at whose end the last sample is.
    void showLast(double length);

    /// Scrolls to the last sample.
    void scrollToLast();

    /// As fitY(), but only if values in sight are out of sight on y or take up little of it.
    void keepInSight();

    /// @param size in logical pixels
    /// @param deviceScale device pixels in one
    /// @return whether this is another one
    bool setCanvas(const QSize& size, double deviceScale);
    void setDark(bool isDark) { m_options.isDark = isDark; }

    chart::Drawing drawing();

    /// Writes what is shown into a file, whose ending says what it becomes.
    /// @throws what chart::PictureFile throws
    void savePicture(const QString& path);

    /// Samples whose x is in view; of a plot without an x for each sample, all of them.
    long long samplesInView() const;

    /// The plots that cursors cross; none where there are no crossings.
    const std::vector<std::shared_ptr<chart::SampledCurve>>& crossedCurves() const;
    QStringList curveNames() const { return m_plot->names(); }

    /// Values of x, in the order in which the cursors were set.
    const QVector<double>& cursors() const { return m_cursors; }

    /// Whether there is something to cross, and not too many cursors yet.
    bool canAddCursor() const;
    void addCursor(double x) { m_cursors.append(x); }
    void moveCursor(int index, double x) { m_cursors[index] = x; }
    void removeCursor(int index) { m_cursors.remove(index); }

    /// The axes as they are drawn, with labels.
    charting::AxisView xView() const;
    charting::AxisView yView() const;

    /// The same with labels for distances, which no reference is taken from.
    charting::AxisView xDistances() const;
    charting::AxisView yDistances() const;

private:
    double lastAbscissa() const;
    void showAskedRanges(const chart::Options& options);
    void tellCurves(const MovableAxis& axis);

    chart::Options m_options;
    QVector<double> m_cursors; // All of them; the options have those in sight.
    chart::Recordings m_recordings;
    std::unique_ptr<chart::Plot> m_plot;
    MovableAxis m_x;
    MovableAxis m_y;
    QObject m_listener; // Ends the connections to the axes.
};

} // namespace hosts::viewer

#endif
