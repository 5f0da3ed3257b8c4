// SPDX-License-Identifier: Apache-2.0
#include "Benchmarks/Program.h"
#include "Charts/PlotChartView.h"
#include "Charts/PlotRenderer.h"

#include <QApplication>
#include <QChart>
#include <QGraphicsScene>
#include <QImage>
#include <QLegend>
#include <QLineSeries>
#include <QPainter>
#include <QValueAxis>

#include <array>
#include <cmath>
#include <cstdint>
#include <ctime>
#include <string>

// Draws three lines of samples, as on the performance screen, into an image of a phone's chart at two pixels a point:
// once with our chart and once with Qt Charts. Both draw lines and text antialiased, with a legend, a value axis with a
// dashed grid and an index axis. Both may keep anything from one drawing to the next.

namespace lodestar
{
namespace
{

const QSizeF chartSize(366, 400);
constexpr double pixelRatio = 2;
const std::array<QColor, 3> colors{QColor(0xD9, 0x7A, 0x00), QColor(0x00, 0x8B, 0x11), QColor(0x00, 0x30, 0x8B)};
const std::array<QString, 3> names{QStringLiteral("Total Processors"), QStringLiteral("Processors Allocated"),
                                   QStringLiteral("Processors Used")};

float sample(int series, int index, int count)
{
    // A day's load with noise: no line may be straight, or a reduction of straight lines would look fast.
    const double noise = static_cast<double>((std::int64_t{index} * 7919 + series * 104729) % 101) / 101.0;
    return static_cast<float>(16 - 4 * series + 2 * std::sin(6.28 * index / count) + noise);
}

/// Makes the call measure its thread's processor time. Drawing waits for nothing, and by the clock the longer of two
/// drawings would suffer more from whatever else the machine does.
template <typename Call>
auto measured(Call call)
{
    return [call] {
        const double start = bench::processorTime();
        call();
        return bench::processorTime() - start;
    };
}

QImage emptyImage()
{
    QImage image((chartSize * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::white);
    return image;
}

/// Throws when the drawing is empty: its time would mean nothing.
void requireInk(const QImage& image)
{
    int found = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            found += image.pixelColor(x, y).lightness() < 240 ? 1 : 0;
        }
    }
    bench::require(found >= 2000, "nothing was drawn");
}

class Ours
{
public:
    explicit Ours(int count)
    {
        for (int i = 0; i < count; ++i) {
            m_data.xVals << QString::number(i);
        }
        for (int series = 0; series < 3; ++series) {
            LineChartDataSet line;
            line.label = names.at(static_cast<std::size_t>(series));
            line.colors = {colors.at(static_cast<std::size_t>(series))};
            line.circleRadius = 0;
            for (int i = 0; i < count; ++i) {
                line.entries << ChartEntry{sample(series, i, count), i};
            }
            m_data.lineDataSets << line;
        }
        YAxis axis;
        axis.startAtZeroEnabled = false;
        axis.gridLineDashLengths = {5, 5};
        m_view.setLeftAxis(axis);
        axis.enabled = false;
        m_view.setRightAxis(axis);
        XAxis xAxis;
        xAxis.drawGridLinesEnabled = false;
        m_view.setXAxis(xAxis);
        m_view.setDrawGridBackgroundEnabled(false);
        Legend legend = m_view.legend();
        legend.form = LegendForm::Line;
        m_view.setLegend(legend);
        newData();
    }

    void newData() { m_view.setData(m_data); }
    void pan() { m_view.setViewport({m_view.viewport().x > 0.2 ? 0.1 : m_view.viewport().x + 0.001, 0, 0.5, 1}); }
    void draw()
    {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        m_renderer.draw(painter, {chartSize, {}, {}});
    }
    const QImage& image() const { return m_image; }

private:
    PlotChartData m_data;
    PlotChartView m_view;
    PlotRenderer m_renderer{m_view.model()};
    QImage m_image = emptyImage();
};

class Reference
{
public:
    explicit Reference(int count)
    {
        m_scene.addItem(m_chart);
        m_chart->resize(chartSize);
        m_chart->setBackgroundVisible(false);
        m_chart->legend()->setAlignment(Qt::AlignBottom);
        auto* xAxis = new QValueAxis;
        xAxis->setRange(0, count - 1);
        xAxis->setGridLineVisible(false);
        xAxis->setLabelFormat(QStringLiteral("%.0f"));
        auto* yAxis = new QValueAxis;
        yAxis->setRange(6, 20);
        yAxis->setTickCount(8);
        QPen dashes(QColor(0xC4, 0xCC, 0xD5), 1);
        dashes.setDashPattern({5, 5});
        yAxis->setGridLinePen(dashes);
        m_chart->addAxis(xAxis, Qt::AlignBottom);
        m_chart->addAxis(yAxis, Qt::AlignLeft);
        for (std::size_t series = 0; series < 3; ++series) {
            QList<QPointF> points;
            for (int i = 0; i < count; ++i) {
                points << QPointF(i, static_cast<double>(sample(static_cast<int>(series), i, count)));
            }
            auto* line = new QLineSeries;
            line->setName(names.at(series));
            line->setPen(QPen(colors.at(series), 1));
            line->replace(points);
            m_points.at(series) = points;
            m_series.at(series) = line;
            m_chart->addSeries(line);
            line->attachAxis(xAxis);
            line->attachAxis(yAxis);
        }
    }

    void newData()
    {
        for (std::size_t series = 0; series < 3; ++series) {
            m_series.at(series)->replace(m_points.at(series));
        }
        QCoreApplication::processEvents();
    }
    void draw()
    {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        m_scene.render(&painter, QRectF(QPointF(), chartSize), QRectF(QPointF(), chartSize));
    }
    const QImage& image() const { return m_image; }

private:
    QGraphicsScene m_scene;
    QChart* m_chart = new QChart;
    std::array<QLineSeries*, 3> m_series{};
    std::array<QList<QPointF>, 3> m_points;
    QImage m_image = emptyImage();
};

void addRow(bench::Rows& rows, int count, double goal)
{
    Ours ours(count);
    Reference reference(count);
    const auto compare = [&](const std::string& what, double most, auto prepare) {
        const bench::Medians medians = bench::medianInterleaved(measured([&] {
                                                                    prepare(ours);
                                                                    ours.draw();
                                                                }),
                                                                measured([&] {
                                                                    prepare(reference);
                                                                    reference.draw();
                                                                }),
                                                                25);
        requireInk(ours.image());
        requireInk(reference.image());
        rows.add("line chart " + std::to_string(count) + " x 3, " + what + " / Qt Charts", medians.ours,
                 medians.reference, most);
    };
    compare("redrawn", goal, [](auto&) {});
    compare("new data", goal, [](auto& chart) { chart.newData(); });
}

void addMillion(bench::Rows& rows)
{
    Ours few(240);
    Ours many(1'000'000);
    const bench::Medians redrawn =
        bench::medianInterleaved(measured([&] { many.draw(); }), measured([&] { few.draw(); }), 201);
    requireInk(many.image());
    // Both do the same work, so the ratio scatters around 1.
    rows.add("line chart 1,000,000 x 3, redrawn / 240 x 3", redrawn.ours, redrawn.reference, 1.0);
    const auto pan = [](Ours& chart) {
        chart.pan();
        chart.draw();
    };
    const bench::Medians moved =
        bench::medianInterleaved(measured([&] { pan(many); }), measured([&] { pan(few); }), 201);
    rows.add("line chart 1,000,000 x 3, moved / 240 x 3", moved.ours, moved.reference, 2.0);
}

QString secondsText(const TimeTick& tick)
{
    return QString::number(tick.time);
}

/// The large chart of a tablet: bars and two lines over time, which a pointer reads.
class TimeChart
{
public:
    explicit TimeChart(int count) : m_count(count)
    {
        XAxis axis;
        axis.time = TimeScale{1'773'273'600, step, &secondsText};
        m_view.setXAxis(axis);
        PlotChartData data;
        data.barStyle = {.share = 0.8, .place = step};
        data.barDataSets.emplaceBack().entries = entries(0);
        for (int series = 1; series < 3; ++series) {
            LineChartDataSet& line = data.lineDataSets.emplaceBack();
            line.circleRadius = 0;
            line.entries = entries(series);
        }
        m_view.setData(data);
    }
    void draw()
    {
        m_view.setViewport({m_view.viewport().x > 0.2 ? 0.1 : m_view.viewport().x + 0.001, 0, 0.5, 1});
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        m_renderer.draw(painter, {size, {}, {}});
    }
    /// What a step of the pointer costs before the scene draws its marks, which the chart is not drawn for.
    void read()
    {
        m_at = (m_at + 7919) % m_count;
        m_view.setReadIndex(m_at * double{step});
        const PlotLayout layout = m_renderer.layout({size, {}, {}});
        bench::require(layout.hasPlot() && m_view.readIndex() == m_at * step, "nothing was read");
    }
    const QImage& image() const { return m_image; }

private:
    static constexpr int step = 180;
    static constexpr QSizeF size{1280, 700};

    QList<ChartEntry> entries(int series) const
    {
        QList<ChartEntry> made;
        for (int i = 0; i < m_count; ++i) {
            made << ChartEntry{sample(series, i, m_count), i * step};
        }
        return made;
    }

    int m_count;
    int m_at = 0;
    PlotChartView m_view;
    PlotRenderer m_renderer{m_view.model()};
    QImage m_image{(size * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied};
};

/// Both against the time that a frame has.
void addTimeChart(bench::Rows& rows)
{
    constexpr double frame = 1e9 / 60; // Nanoseconds.
    TimeChart chart(24'000);
    const bench::Medians times =
        bench::medianInterleaved(measured([&] { chart.draw(); }), measured([&] { chart.read(); }), 51);
    requireInk(chart.image());
    rows.add("time chart 24,000 x 3 with bars, moved / a frame", times.ours, frame, 1.0);
    rows.add("time chart 24,000 x 3 with bars, read / a frame", times.reference, frame, 0.1);
}

void redraw(benchmark::State& state)
{
    Ours ours(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        ours.draw();
    }
}
BENCHMARK(redraw)->Arg(240)->Arg(24'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);

void measureRows(bench::Rows& rows)
{
    addRow(rows, 240, 1.0);
    addRow(rows, 24'000, 0.15);
    addMillion(rows);
    addTimeChart(rows);
}

} // namespace
} // namespace lodestar

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return lodestar::bench::run(argc, argv, lodestar::measureRows);
}
