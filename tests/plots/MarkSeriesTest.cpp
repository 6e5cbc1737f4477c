#include "plots/MarkSeries.h"

#include <QPainter>
#include <QtTest>

#include <random>

namespace {

constexpr QRect kCanvas(20, 10, 300, 200);

/// An axis on which 8 pixels are 1; whole pixels are moved without rounding.
QwtScaleMap mapFrom(double value, double first, double pixels)
{
    QwtScaleMap map;
    map.setPaintInterval(first, first + pixels);
    map.setScaleInterval(value, value + pixels / 8);
    return map;
}

std::vector<PlotMark> someMarks()
{
    std::mt19937 random(3);
    std::uniform_real_distribution<double> at(-20, 60);
    std::vector<PlotMark> marks;
    for (std::uint32_t i = 0; i < 4000; ++i)
        marks.push_back({at(random), at(random), i, std::uint8_t(i % 2)});
    return marks;
}

/// \param left, bottom  what is seen at the canvas' corner
QImage pictureOf(const MarkSeries& series, double left, double bottom, double ratio = 1)
{
    QImage picture(QSize(340, 220) * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setClipRect(kCanvas);
    series.draw(&painter, mapFrom(left, kCanvas.left(), 300), mapFrom(bottom, 210, -200), kCanvas);
    return picture;
}

} // namespace

class MarkSeriesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMovedPictureIsThatOfItsPlace()
    {
        PlotSelection selection(4000, false);
        const auto made = [&] {
            return MarkSeries(someMarks(), {Qt::blue, Qt::red}, selection, Qt::yellow, Qt::black);
        };
        for (const double ratio : {1.0, 2.0}) {
            const MarkSeries kept = made();
            double left = 0;
            double bottom = 30;
            for (const QPoint& pixels : {QPoint(0, 0), QPoint(5, 0), QPoint(-31, 2), QPoint(0, -9),
                                         QPoint(60, 80), QPoint(-3, 190), QPoint(400, 0)}) {
                left -= pixels.x() / 8.0;
                bottom -= pixels.y() / 8.0;
                const QImage moved = pictureOf(kept, left, bottom, ratio);
                QVERIFY(moved == pictureOf(made(), left, bottom, ratio));
                selection[7 * std::size_t(std::abs(pixels.x()))] = true; // is seen at once
                QVERIFY(pictureOf(kept, left, bottom, ratio) ==
                        pictureOf(made(), left, bottom, ratio));
            }
        }
    }
};

QTEST_MAIN(MarkSeriesTest)
#include "MarkSeriesTest.moc"
