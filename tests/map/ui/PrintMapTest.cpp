#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "map/PictureFrame.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/SheetLayout.h"
#include "map/ui/DlgPrintMap.h"
#include "map/ui/PrintMapCommand.h"
#include "map/ui/SheetPreview.h"
#include "map/ui/SheetPrinter.h"
#include "map/ui/SheetWork.h"
#include "map/ui/ShownMap.h"
#include "project/OverlayList.h"
#include "tests/map/TestSurvey.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/MadeRaster.h"
#include "tests/support/TestFolder.h"
#include "tests/support/Widgets.h"

#include <QPrinter>
#include <QtTest>
#include <QtWidgets>

/// The dialog that prints the map, of a project with 12 design lines from (4400000, 500000) on.
class PrintMapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerMapComponents(); }
    void init()
    {
        m_project = std::make_unique<OpenProject>();
        m_project->status().set(status::kProjectName, "测区 3");
        m_map = std::make_unique<MapWindow>("", &m_project->host);
        m_project->host.windowRegistry.windows["DataMap"_q] = m_map.get();
        m_project->design() = TestSurvey().design(12, 41, 6);
    }
    void cleanup()
    {
        m_map.reset();
        m_project.reset();
    }

    /// What is chosen is shown, written, and remembered for the next time.
    void writesWhatIsChosen()
    {
        const TestFolder folder;
        FileDialog::Responder files([&](const auto&) { return folder.path("测线 map.pdf"); });
        {
            DlgPrintMap dialog(m_project->host, shownMap(m_project->host),
                               {500000, 4400000, 200, 200});
            open(dialog);
            QCOMPARE(text(dialog, "&Title:"), "测区 3: design"_q);
            const QImage portrait = shown(dialog);
            takeFrom(dialog, "&Paper:", "A3");
            takeFrom(dialog, "&Orientation:", "Portrait");
            QVERIFY(shown(dialog) != portrait);
            auto* const scale = dialog.findChildren<QSpinBox*>().first();
            QVERIFY(!scale->isEnabled());
            QCOMPARE(scale->text(), "1:5,000"_q);
            auto* const fits = dialog.findChild<QCheckBox*>();
            QTest::mouseClick(fits, Qt::LeftButton, {}, QPoint(8, fits->height() / 2));
            QVERIFY(scale->isEnabled());
            scale->setFocus();
            scale->selectAll();
            QTest::keyClicks(scale, "2345"_q);
            QVERIFY(says(dialog, "a part of the area only"_q));
            takeFrom(dialog, "&Area:", "What");
            QVERIFY(!says(dialog, "a part of the area only"_q));
            press(dialog, "Save As...");
            QVERIFY(!dialog.isVisible());
            QVERIFY(m_project->host.told.contains("1:2,345 on A3"_q));
        }
        const QByteArray pdf = TestFolder::read(folder.path("测线 map.pdf"));
        QVERIFY(pdf.startsWith("%PDF") && pdf.contains("/MediaBox [0 0 842"));
        QCOMPARE(OpenProject::settings().text("print_paper"), std::string_view("A3"));
        DlgPrintMap again(m_project->host, shownMap(m_project->host), {});
        QVERIFY(choice(again, "&Paper:")->currentText().startsWith("A3"_q));
        QCOMPARE(choice(again, "&Orientation:")->currentIndex(), 0);
    }

    /// A file that cannot be written is told, and the dialog stays; so it does after Escape.
    void staysUntilItIsDone()
    {
        const TestFolder folder;
        Boxes boxes;
        QString answer = folder.path("missing/map.png");
        FileDialog::Responder files([&](const auto&) { return answer; });
        DlgPrintMap dialog(m_project->host, shownMap(m_project->host), {});
        open(dialog);
        press(dialog, "Save As...");
        QVERIFY(boxes.told().join(QString()).contains("Cannot write \""_q + answer));
        QVERIFY(dialog.isVisible() && dialog.isEnabled());
        answer.clear();
        press(dialog, "Save As...");
        QVERIFY(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
    }

    void anEmptyProjectIsTold()
    {
        Boxes boxes;
        m_project->design() = {};
        PrintMapCommand(nullptr, &m_project->host).execute();
        QCOMPARE(boxes.told(), QStringList("Print / Export Map|There is nothing to print: the "
                                           "project has no design points."_q));
    }

    /// Design or survey with its colours, and the images that are shown, the last of the list
    /// below.
    void takesWhatTheMapShows()
    {
        const TestFolder folder;
        for (const char* const name : {"top.tif", "hidden.tif", "low.tif"}) {
            const QColor color = *name == 't' ? Qt::red : Qt::blue;
            QVERIFY(plainRaster({40, 40}, color, {500000, 4400040}).write(folder.path(name)));
        }
        OverlayList::write({{folder.path("top.tif"), true, 1},
                            {folder.path("hidden.tif"), false, 1},
                            {folder.path("low.tif"), true, 1}},
                           "/a"_q, m_project->manager->project());
        m_project->results() = TestSurvey().results(2, 10, 1, 3);
        m_project->status().set(status::kViewShowWhich, "0");
        m_project->settings().set("result_colors", "verdict");

        const MapSheet sheet = shownMap(m_project->host);

        QVERIFY(sheet.drawing.isSurvey);
        QVERIFY(!sheet.drawing.legend.entries.empty());
        QImage picture(40, 40, QImage::Format_RGB32);
        Transform view;
        view.setSize({40, 40});
        view.setView({500020, 4400020}, 1);
        sheet.ground->paint(view, picture);
        QCOMPARE(picture.pixelColor(20, 20), QColor(Qt::red));
    }

    /// Its corner lies where the map has it, under the data.
    void printsTheBoundaryWhileItIsShown()
    {
        m_map->setExtent(500000, 4400000, 500100, 4400100);
        PictureFrame frame;
        frame.transform.setSize({100, 100});
        frame.transform.setView({500020, 4400020}, 1); // the corner is at (30, 70)
        const auto corner = [&] {
            QImage picture(100, 100, QImage::Format_RGB32);
            picture.fill(Qt::white);
            QPainter painter(&picture);
            MapDrawing drawing = shownMap(m_project->host).drawing;
            drawing.paint(frame, painter);
            return picture.pixelColor(31, 70);
        };
        m_project->design() = {};
        QCOMPARE(corner(), QColor(Qt::white));
        m_project->status().set(status::kDrawBoundaryRect, "1");
        QCOMPARE(corner(), QColor(0xd5, 0x5e, 0x00));
    }

    /// Without memory, say; and a window that changes its size while a file is written paints
    /// nothing, since both would use the same ground.
    void workEndsWhateverHappens()
    {
        SheetWork work;
        QSignalSpy finished(&work, &SheetWork::finished);
        work.start([](SheetWatch&) { throw std::bad_alloc(); });
        QVERIFY(finished.wait());
        QVERIFY(!work.isBusy());
        SheetPreview preview;
        preview.setSheet(shownMap(m_project->host));
        preview.stop();
        preview.resize(300, 500);
        preview.show();
        QVERIFY(preview.isUpToDate());
    }

    /// A printer of another resolution gets the same sheet, one page.
    void printsTheSheet()
    {
        const TestFolder folder;
        MapSheet sheet = shownMap(m_project->host);
        sheet.setup.isLandscape = true;
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(folder.path("printed.pdf"));
        setPaper(printer, sheet);
        SheetWatch watch;
        const Outcome outcome = printSheet(printer, sheet, watch);
        QVERIFY2(outcome.isDone(), qPrintable(outcome.text()));
        const QByteArray pdf = TestFolder::read(folder.path("printed.pdf"));
        QVERIFY(pdf.contains("/MediaBox [0 0 842"));
        QCOMPARE(pdf.count("/Type /Page\n"), 1);
    }

private:
    static void open(QDialog& dialog)
    {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
    }
    static QImage shown(DlgPrintMap& dialog)
    {
        QTest::qWait(0);
        const bool isShown = QTest::qWaitFor([&] { return dialog.preview().isUpToDate(); }, 20000);
        QTest::qWait(0);
        return isShown ? const_cast<SheetPreview&>(dialog.preview()).grab().toImage() : QImage();
    }
    static QWidget* field(QDialog& dialog, const char* label)
    {
        for (const QLabel* const each : dialog.findChildren<QLabel*>()) {
            if (each->text() == QString::fromUtf8(label))
                return each->buddy();
        }
        qFatal("no field %s", label);
    }
    static QComboBox* choice(QDialog& dialog, const char* label)
    {
        return qobject_cast<QComboBox*>(field(dialog, label));
    }
    static QString text(QDialog& dialog, const char* label)
    {
        return qobject_cast<QLineEdit*>(field(dialog, label))->text();
    }
    /// Opens the list of a box, and takes the entry that begins so.
    static void takeFrom(QDialog& dialog, const char* label, const char* entry)
    {
        QComboBox* const box = choice(dialog, label);
        box->showPopup();
        const int row = box->findText(QString::fromUtf8(entry), Qt::MatchStartsWith);
        QAbstractItemView* const list = box->view();
        list->setCurrentIndex(list->model()->index(row, 0));
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(box->currentIndex(), row);
    }
    std::unique_ptr<OpenProject> m_project;
    std::unique_ptr<MapWindow> m_map;
};

QTEST_MAIN(PrintMapTest)
#include "PrintMapTest.moc"
