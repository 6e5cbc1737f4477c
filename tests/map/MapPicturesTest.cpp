#include "map/DesignMarks.h"
#include "map/NameWriter.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/SurveyPicture.h"
#include "map/WaitingNames.h"
#include "tests/map/PlainPictures.h"
#include "tests/map/TestSurvey.h"
#include "tests/support/Literals.h"
#include "tests/support/Pixels.h"

#include <QDir>
#include <QPainter>
#include <QtTest>

#include <algorithm>
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

QImage surveyPicture(const SurveyPoints& points, const PictureFrame& frame,
                     const SurveyPictureOptions& options = {}, const MarkColors& colors = {})
{
    const SurveyMarks marks(points, kToMap, colors);
    return pictureOf(
        [&](QPainter& painter) { paintSurvey(marks, frame, "Base"_q, painter, options); });
}

int farthestChannel(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b))});
}

/// The pixels of about this colour.
int pixelsOf(const QImage& picture, const QColor& color)
{
    return countPixels(picture, picture.rect(), [&](const QPoint& at) {
        return farthestChannel(picture.pixel(at), color.rgb()) < kChannelTolerance;
    });
}

int differingPixels(const QImage& a, const QImage& b)
{
    return countPixels(a, a.rect(), [&](const QPoint& at) {
        return farthestChannel(a.pixel(at), b.pixel(at)) > kChannelTolerance;
    });
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

    void theFirstClassLiesOnTopAndAllElseIsGrey()
    {
        SurveyPoints points = TestSurvey().results(1, 4, 1, 12);
        PictureFrame frame = frameAt(4400012, 500043, 1);
        auto& line = *points.findLine("1001");
        for (SurveyPoint& point : line) {
            point.surveyor = std::string(1, static_cast<char>('0' + (&point - &*line.begin()) % 3));
            if (point.surveyor != "2")
                point.east = 500006 + 25; // at one place: of the classes 0, 1, and 0 again
        }
        const MarkColors colors{{0xff8800fa, 0xff27995d, 0xff881a1c}, [](const SurveyPoint& point) {
                                    return static_cast<std::uint8_t>(point.surveyor[0] - '0');
                                }};
        const SurveyMarks marks(points, kToMap, colors);
        QCOMPARE(marks.classCounts(), (std::vector<std::size_t>{2, 1, 1}));
        const QImage picture = surveyPicture(points, frame, {}, colors);
        const auto colorAt = [&](double east) {
            return picture.pixelColor(frame.transform.SurveyToScreen(east, 4400012).toPoint() -
                                      QPoint(0, 1));
        };
        QCOMPARE(colorAt(500031), QColor(0x88, 0x00, 0xfa));
        QCOMPARE(colorAt(500056), QColor(0x88, 0x1a, 0x1c));
        for (const Qt::GlobalColor plain : {Qt::red, Qt::green, Qt::cyan, Qt::blue})
            QCOMPARE(pixelsOf(picture, plain), 0);
    }

    void noNameCoversAnotherOrAMark()
    {
        QImage picture(kSide, kSide, QImage::Format_RGB32);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        NameWriter writer(painter.font());
        const QPen red(Qt::red);
        const QPen blue(Qt::blue);
        const QPen black(Qt::black);
        const auto write = [&](const std::vector<WaitingNames::Name>& list, const QRectF& mark) {
            picture.fill(Qt::white);
            WaitingNames names;
            names.keepFree(mark);
            for (const WaitingNames::Name& name : list)
                names.add(name);
            names.write(painter, writer, QRectF(0, 0, kSide, kSide), QRectF(-50, -50, 356, 356),
                        [] { return false; });
            return picture.copy();
        };
        const int one = paintedPixels(write({{{100, 100}, "808", &black, 1}}, {}));
        QVERIFY(one > 10);
        std::vector<WaitingNames::Name> crowd; // all within the picture
        for (int i = 0; i < 20000; ++i)
            crowd.push_back({{i % 199 * 1.0, 20 + i % 223 * 1.0}, "808", &black, 1});
        crowd.push_back({{100, 100}, "808", &red, 0});
        crowd.push_back({{102, 104}, "808", &blue, 1});
        const QRect mark(150, 60, 60, 60);
        const QImage crowded = write(crowd, mark);
        const int all = paintedPixels(crowded);
        QCOMPARE(all % one, 0); // the pixels of whole names
        QVERIFY(all / one > 20);
        QVERIFY(pixelsOf(crowded, Qt::red) > 0 && pixelsOf(crowded, Qt::blue) == 0);
        QCOMPARE(countPixels(crowded, mark, Qt::white), mark.width() * mark.height());
        picture.fill(Qt::black);
        WaitingNames onDark;
        onDark.add({{100, 100}, "808", &black, 0});
        onDark.write(painter, writer, QRectF(0, 0, kSide, kSide), QRectF(0, 0, kSide, kSide),
                     [] { return false; });
        QVERIFY(pixelsOf(picture, Qt::white) > one);
        for (const double x : {-15.0, 251.0}) { // names that are cut
            QCOMPARE(paintedPixels(write({{{x, 50}, "808", &black, 1}}, {})), 0);
            QVERIFY(paintedPixels(write({{{x, 50}, "808", &black, 0}}, {})) > 0);
        }
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
