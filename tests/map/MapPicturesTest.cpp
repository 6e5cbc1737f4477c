#include "map/DesignMarks.h"
#include "map/DesignPicture.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/SurveyPicture.h"
#include "tests/map/PlainPictures.h"
#include "tests/map/TestSurvey.h"
#include "tests/support/Literals.h"

#include <QDir>
#include <QPainter>
#include <QtTest>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace {

constexpr int kSide = 256;            // pixels
constexpr int kChannelTolerance = 72; // of 255: antialiasing may differ
constexpr int kMostDiffering = 12;    // pixels that may differ by more
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

const ToMap kToMap = [](double north, double east) { return QPointF(east, north); };

/// A square picture around a place of the grid, at `scale` metres a pixel.
PictureFrame frameAt(double north, double east, double scale)
{
    PictureFrame frame;
    frame.transform.setSize({kSide, kSide});
    frame.transform.setView({east, north}, scale);
    frame.drawingArea = QRectF(0, 0, 1920, 1080);
    return frame;
}

template <class Paint>
QImage pictureOf(const Paint& paint)
{
    QImage picture(kSide, kSide, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter);
    return picture;
}

QImage designPicture(const DesignPoints& points, const PictureFrame& frame,
                     const DesignPictureOptions& options = {})
{
    const DesignMarks marks(points, kToMap);
    return pictureOf([&](QPainter& painter) { paintDesign(marks, frame, options, painter); });
}

QImage surveyPicture(const SurveyPoints& points, const PictureFrame& frame)
{
    const SurveyMarks marks(points, kToMap);
    return pictureOf([&](QPainter& painter) { paintSurvey(marks, frame, "Base"_q, painter); });
}

int farthestChannel(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

int differingPixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            count += farthestChannel(a.pixel(x, y), b.pixel(x, y)) > kChannelTolerance ? 1 : 0;
    }
    return count;
}

int paintedPixels(const QImage& picture)
{
    QImage white(picture.size(), picture.format());
    white.fill(Qt::white);
    return differingPixels(picture, white);
}

/// Compares two pictures, and saves them as files when they differ.
void compare(const char* name, const QImage& picture, const QImage& expected, int minPainted)
{
    QVERIFY2(paintedPixels(expected) >= minPainted, name); // an empty scene proves nothing
    const int count = differingPixels(picture, expected);
    if (count <= kMostDiffering)
        return;
    const QString file = QDir::tempPath() + QLatin1Char('/') + QString::fromLatin1(name);
    picture.save(file + ".png"_q);
    expected.save(file + "_expected.png"_q);
    QFAIL(qPrintable("%1 pixels differ, kept as %2.png"_q.arg(count).arg(file)));
}

} // namespace

class MapPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void designLooksAsDrawnPlainly()
    {
        TestSurvey survey;
        DesignPoints points = survey.design(9, 150, 5);
        survey.lineStepM = 37; // lines to the north that cross those of both types
        for (const auto& [number, line] : survey.design(7, 30, 3)) {
            for (DesignPoint point : line) {
                std::swap(point.north, point.east);
                point.north += 3900000;
                point.east -= 3900000;
                point.lineNumber = "1" + point.lineNumber;
                point.type = number == "1007" ? 7 : point.type;
                points.set(point);
            }
        }
        const auto check = [&](const char* name, const PictureFrame& frame, int minPainted = 150,
                               const DesignPictureOptions& options = {25}) {
            compare(name, designPicture(points, frame, options), pictureOf([&](QPainter& painter) {
                        paintDesignPlainly(points, frame, options, painter);
                    }),
                    minPainted);
        };
        check("whole lines", frameAt(4400500, 500500, 6));
        check("points", frameAt(4400500, 500500, 2.4));
        check("labels, where a block of marks ends", frameAt(4400510, 501590, 0.25));
        check("between the points", frameAt(4400500, 500510, 0.02));
        check("receiver lines only", frameAt(4400500, 500500, 6), 150, {25, true, false});
        check("source lines only", frameAt(4400500, 500500, 2.4), 150, {25, false, true});
        PictureFrame cut = frameAt(4400500, 500500, 6);
        cut.drawingArea = QRectF(60, 50, 120, 100); // smaller than the picture
        check("lines at the drawing area's edge", cut);
        cut.transform.setView({500500, 4400500}, 2.4);
        check("points in the drawing area alone", cut);
        cut.drawingArea = QRectF(3000, 0, 100, 100);
        cut.transform.setView({500500, 4400500}, 6);
        check("nothing in the drawing area", cut, 20);
    }

    void surveyLooksAsDrawnPlainly()
    {
        SurveyPoints points = TestSurvey().results(9, 100, 3, 12);
        for (SurveyPoint& point : *points.findLine("1004")) // not designed: one 0 is enough
            point.designNorth = 0;
        for (SurveyPoint& point : *points.findLine("1006"))
            point.designEast = 0;
        const auto check = [&](const char* name, const PictureFrame& frame) {
            compare(name, surveyPicture(points, frame), pictureOf([&](QPainter& painter) {
                        paintSurveyPlainly(points, frame, painter);
                    }),
                    150);
        };
        check("all results", frameAt(4400500, 500500, 6));
        check("results beside their base", frameAt(4400450, 500520, 1));
        check("offsets from the design", frameAt(4400310, 500310, 0.2));
        check("lines from out of sight", frameAt(4400450, 501600, 0.5));
        PictureFrame cut = frameAt(4400500, 500500, 4);
        cut.drawingArea = QRectF(60, 50, 120, 100);
        check("the drawing area's edge", cut);
    }

    void pointsAndLabelsNeedRoom()
    {
        const DesignPoints points = TestSurvey().design(1, 1, 1);
        const auto painted = [&](double spacing) {
            return paintedPixels(designPicture(points, frameAt(4400000, 500000, 1), {spacing}));
        };
        QVERIFY(painted(9.99) < painted(10)); // the circle is drawn
        QCOMPARE(painted(10), painted(79.99));
        QVERIFY(painted(79.99) < painted(80)); // the labels are drawn
    }

    void aDesignPlaceTakesTheBrushInUse()
    {
        SurveyPoints points;
        for (const int place : {1, 2, 3}) {
            SurveyPoint point;
            point.lineNumber = "1";
            point.pointNumber = std::to_string(place);
            point.north = 100;
            point.east = 100 + 40 * place;
            point.designNorth = 60;
            point.designEast = point.east;
            point.referenceNorth = place == 1 ? 1e6 : 180; // the first base is not on the screen
            point.referenceEast = 200;
            points.set(point);
        }
        const QImage picture = surveyPicture(points, frameAt(100, 200, 1));
        QCOMPARE(picture.pixelColor(68, 168), QColor(Qt::white)); // no brush yet
        QCOMPARE(picture.pixelColor(108, 168), QColor(Qt::red));  // of the first line's label
        QCOMPARE(picture.pixelColor(148, 168), QColor(Qt::blue)); // of the second point's base

        SurveyPoint far; // beside the picture, but on the screen, with its base
        far.lineNumber = "0";
        far.north = far.referenceNorth = 100;
        far.east = 1600;
        far.referenceEast = 1572;
        for (const char* number : {"1", "2"}) {
            far.pointNumber = number;
            points.set(far);
        }
        QCOMPARE(surveyPicture(points, frameAt(100, 200, 1)).pixelColor(68, 168),
                 QColor(Qt::blue)); // of that base
    }

    void brokenPlacesDoNoHarm()
    {
        DesignPoints design = TestSurvey().design(1, 3, 1);
        SurveyPoints results = TestSurvey().results(1, 3, 1, 5);
        const QImage cleanDesign = designPicture(design, frameAt(4400000, 500025, 1), {25});
        int number = 0;
        for (const double broken :
             {kNaN, -std::numeric_limits<double>::infinity(), 1e12, 1e300, 0.0}) {
            DesignPoint point = *design.findLine("1001")->begin();
            point.lineNumber = "2001"; // a line without sound points
            point.pointNumber = std::to_string(++number);
            point.north = broken;
            design.set(point);
            SurveyPoint result = *results.findLine("1001")->begin();
            result.pointNumber = point.pointNumber;
            result.north = broken;
            result.designEast = broken;
            result.referenceEast = broken;
            results.set(result);
        }
        for (const double scale : {1e13, 1e-11})
            designPicture(design, frameAt(4400000, 500025, scale), {25});
        const QImage picture = designPicture(design, frameAt(4400000, 500025, 1), {25});
        QCOMPARE(picture.pixelColor(128, 128), cleanDesign.pixelColor(128, 128));
        QCOMPARE(surveyPicture(results, frameAt(4400005, 500002.5, 1)).pixelColor(128, 128),
                 QColor(Qt::red));
        QVERIFY(paintedPixels(designPicture({}, frameAt(0, 0, 1))) == 0);
    }

    void fineScreensGetFineMarks()
    {
        const DesignMarks marks(TestSurvey().design(1, 1, 1), kToMap);
        QImage picture(2 * kSide, 2 * kSide, QImage::Format_RGB32);
        picture.setDevicePixelRatio(2);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        paintDesign(marks, frameAt(4400000, 500000, 1), {25}, painter);
        QCOMPARE(picture.pixelColor(256, 256), QColor(Qt::cyan));
        QCOMPARE(picture.pixelColor(256, 263), QColor(Qt::cyan)); // 8 device pixels and half a pen
        QCOMPARE(picture.pixelColor(256, 268), QColor(Qt::white));
    }
};

QTEST_MAIN(MapPicturesTest)
#include "MapPicturesTest.moc"
