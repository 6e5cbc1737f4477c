#include "lum_sdk/raster/Legend.h"

#include "tests/support/Literals.h"
#include "tests/support/Pixels.h"

#include <QPainter>
#include <QtTest>

namespace {

/// A legend of so many colours, the first of which is red.
lum::Legend legendOf(int entries, const QString& text = "a"_q)
{
    lum::Legend legend{"Title"_q, {}};
    for (int i = 0; i < entries; ++i)
        legend.entries.push_back({i == 0 ? QColor(Qt::red) : QColor(Qt::blue), text, 1234});
    return legend;
}

struct Drawn
{
    explicit Drawn(const lum::Legend& legend, const QSize& screen = {600, 400}, double ratio = 1)
        : picture(screen * ratio, QImage::Format_RGB32)
    {
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::black);
        QPainter painter(&picture);
        place = lum::drawLegend(painter, screen, legend);
    }
    [[nodiscard]] int pixelsOf(const QColor& color) const
    {
        return countPixels(picture, picture.rect(), color);
    }

    QImage picture;
    QRect place;
};

} // namespace

class LegendTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void colorsStandOnPaperInTheUpperLeftCorner()
    {
        const Drawn drawn(legendOf(2));
        QCOMPARE(drawn.place.topLeft(), QPoint(12, 12));
        QVERIFY(drawn.pixelsOf(Qt::red) > 20 && drawn.pixelsOf(Qt::blue) > 20);
        QCOMPARE(drawn.pixelsOf(Qt::red), drawn.pixelsOf(Qt::blue));
        QCOMPARE(drawn.picture.pixelColor(drawn.place.bottomRight() + QPoint(1, 1)),
                 QColor(Qt::black));
        QVERIFY(drawn.picture.pixelColor(drawn.place.bottomRight()).lightness() > 150);
        const Drawn fine(legendOf(2), {600, 400}, 2);
        QCOMPARE(fine.place, drawn.place);
        QVERIFY(fine.pixelsOf(Qt::red) > 3 * drawn.pixelsOf(Qt::red));
    }

    void aCrowdedLegendLeavesRoomForTheMap()
    {
        const Drawn longText(legendOf(3, QString(300, QLatin1Char('w'))));
        QVERIFY(longText.place.width() > 200 && longText.place.right() < 300);
        QVERIFY(Drawn(legendOf(1, "w"_q)).place.width() < 150);
        const Drawn many(legendOf(100));
        QVERIFY(many.place.bottom() < 400 - 60); // the scale bar is below
        const Drawn some(legendOf(5));
        QVERIFY(some.place.height() < many.place.height());
        QCOMPARE(some.pixelsOf(Qt::blue), 4 * some.pixelsOf(Qt::red));
        QVERIFY(many.pixelsOf(Qt::blue) < 30 * many.pixelsOf(Qt::red));
    }
};

QTEST_MAIN(LegendTest)
#include "LegendTest.moc"
