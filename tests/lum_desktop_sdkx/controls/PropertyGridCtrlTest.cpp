#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"

#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestFolder.h"

#include <QtTest>
#include <QtWidgets>

namespace {

const QByteArray kGrid =
    "<property_grid>\n"
    "<group caption='Accuracy'>\n"
    "<row key='hor' caption='Horizontal' editor='number' min='0' max='100' unit='m'/>\n"
    "<row key='note' caption='Note' read_only='1'/>\n"
    "</group>\n"
    "<group caption='Recording'>\n"
    "<row key='type' caption='Type' editor='choice'>"
    "<choice value='0' caption='Source'/><choice value='1' caption='Receiver'/></row>\n"
    "<row key='geoid' caption='Geoid' editor='flag'/>\n"
    "<row key='file' caption='Geoid file' editor='file' filter='grid(*.gtx)'/>\n"
    "</group>\n"
    "</property_grid>\n";

basalt::Dictionary values()
{
    basalt::Dictionary result;
    csa_to_dictionary(result, "hor=0.50000000000000001,type=0,geoid=0,foreign=left alone");
    return result;
}

} // namespace

/// Drives the grid as a user does, with mouse and keys.
class PropertyGridCtrlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_path = m_folder.write("质量 limits.xml", kGrid);
        m_grid = std::make_unique<PropertyGridCtrl>();
        QVERIFY(m_grid->init(m_path, values()));
        m_grid->resize(500, 500);
        m_grid->show();
        m_grid->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_grid.get()));
        m_view = m_grid->findChild<QTreeView*>();
    }

    void cleanup() { m_grid.reset(); }

    void takesOnlyWhatIsGoodAndWasEdited()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        const QSignalSpy changed(m_grid.get(), &PropertyGridCtrl::valueChanged);
        const QModelIndex horizontal = cell(0, 0);
        click(horizontal);
        QTest::keyClick(editor(horizontal), Qt::Key_Return);
        typeInto(horizontal, "9"_q);
        QTest::keyClick(editor(horizontal), Qt::Key_Escape);
        QTRY_VERIFY(editor(horizontal) == nullptr);
        QVERIFY(!m_grid->hasFaults());
        enterInto(horizontal, {});
        QVERIFY(m_grid->hasFaults() && horizontal.data(Qt::BackgroundRole).isValid());
        QCOMPARE(value("hor"), "0.50000000000000001"_q);
        QCOMPARE(value("foreign"), "left alone"_q);
        QCOMPARE(changed.count(), 0);

        typeInto(horizontal, "0,75"_q);
        QCOMPARE(value("hor"), "0.75"_q); // from the open editor
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0), QVariantList({"hor"_q, "0.75"_q}));
        QTest::keyClicks(editor(horizontal), "x"_q);
        QVERIFY(m_grid->hasFaults());
    }

    void tabGoesFromValueToValueAndOut()
    {
        typeInto(cell(0, 0), "2"_q);
        QTest::keyClick(editor(cell(0, 0)), Qt::Key_Tab); // past the read-only row and a header
        QCOMPARE(value("hor"), "2"_q);
        QCOMPARE(m_view->currentIndex(), cell(1, 0));
        QVERIFY(qobject_cast<QComboBox*>(editor(cell(1, 0))) != nullptr);

        QTest::keyClick(editor(cell(1, 0)), Qt::Key_Tab);
        QCOMPARE(m_view->currentIndex(), cell(1, 1));
        QTest::keyClick(m_view, Qt::Key_Tab);
        QCOMPARE(m_view->currentIndex(), cell(1, 2));
        QVERIFY(editor(cell(1, 2)) != nullptr);
        QTest::keyClick(editor(cell(1, 2)), Qt::Key_Backtab);
        QCOMPARE(m_view->currentIndex(), cell(1, 1));

        QPushButton after(m_grid.get());
        after.show();
        m_view->setCurrentIndex(cell(1, 2));
        m_view->setFocus();
        QTest::keyClick(m_view, Qt::Key_Tab);
        QVERIFY(after.hasFocus());
    }

    void choosesByCaptionAndStoresTheValue()
    {
        click(cell(1, 0));
        auto* const combo = qobject_cast<QComboBox*>(editor(cell(1, 0)));
        QVERIFY(combo != nullptr);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End}) {
            QTest::keyClick(combo, key); // opens the list
            QTRY_VERIFY(combo->view()->isVisible());
            QTest::keyClick(combo->view(), Qt::Key_Down);
            QTest::keyClick(combo->view(), Qt::Key_Escape);
            QTRY_VERIFY(!combo->view()->isVisible());
            QCOMPARE(cell(1, 0).data().toString(), "Source"_q);
            QCOMPARE(editor(cell(1, 0)), combo);
        }
        QWheelEvent wheel({5, 5}, combo->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, {}, {},
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(combo, &wheel);
        QCOMPARE(value("type"), "0"_q);
        QTest::keyClicks(combo, "r"_q);
        QTest::keyClick(combo->view(), Qt::Key_Return);
        QTRY_COMPARE(cell(1, 0).data().toString(), "Receiver"_q);
        QCOMPARE(value("type"), "1"_q);

        m_grid->setValue("type"_q, "7"_q); // none of the choices
        click(cell(1, 0));
        QTest::keyClick(editor(cell(1, 0)), Qt::Key_Return);
        QTRY_VERIFY(editor(cell(1, 0)) == nullptr);
        QCOMPARE(value("type"), "7"_q);
    }

    void asksForAFile()
    {
        const QString picked = "/data/大地水准面/egm 2008.gtx"_q;
        QString filter;
        const FileDialog::Responder responder([&](const FileDialog::Request& request) {
            QApplication::focusWidget()->clearFocus(); // as when a dialog opens
            filter = request.filter;
            return QString(picked);
        });
        click(cell(1, 2));
        auto* const browse = editor(cell(1, 2))->findChild<QToolButton*>();
        QVERIFY(browse != nullptr);
        QTest::mouseClick(browse, Qt::LeftButton);
        QCOMPARE(filter, "grid(*.gtx)"_q);
        QCOMPARE(value("file"), picked);
    }

    void aBadFileLeavesTheGridAndTheSameFileItsClosedGroups()
    {
        enterInto(cell(0, 0), "4"_q);
        const QModelIndex group = m_view->model()->index(0, 0);
        click(group);
        const QString bad = m_folder.write("bad.xml", "<property_grid>\n<group");
        for (const QString& file : {m_folder.path("missing.xml"), bad}) {
            const LogCapture log;
            QVERIFY(!m_grid->init(file, basalt::Dictionary()));
            QVERIFY2(log.holds(file.toStdString() + "\": "), log.text().c_str());
            QCOMPARE(value("hor"), "4"_q);
        }
        basalt::Dictionary other;
        other.set("hor", "8");
        QVERIFY(m_grid->init(m_path, other));
        QVERIFY(!m_view->isExpanded(group));
        QCOMPARE(cell(0, 0).data().toString(), "8 m"_q);
        QCOMPARE(m_grid->getData().size(), std::size_t(1));
    }

    void copiesAllRowsAndFindsNoFaultInHiddenOnes()
    {
        m_grid->setValue("note"_q, "two\nlines"_q);
        m_view->collapse(m_view->model()->index(1, 0));
        QTest::keyClick(m_view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(QGuiApplication::clipboard()->text(),
                 "Horizontal\t0.50000000000000001 m\nNote\ttwo lines\nType\tSource\nGeoid\t0\n"
                 "Geoid file\t\n"_q);
        enterInto(cell(0, 0), "bad"_q);
        m_grid->setRowVisible("hor"_q, false);
        QVERIFY(!m_grid->hasFaults());
        QTest::keyClick(m_view, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(QGuiApplication::clipboard()->text().startsWith("Note\t"_q));
        QVERIFY(!m_view->isRowHidden(0, {}));
        m_grid->setRowVisible("note"_q, false);
        QVERIFY(m_view->isRowHidden(0, {})); // the group
    }

private:
    [[nodiscard]] QModelIndex cell(int group, int row) const
    {
        return m_view->model()->index(row, 1, m_view->model()->index(group, 0));
    }
    [[nodiscard]] QWidget* editor(const QModelIndex& index) const
    {
        return m_view->indexWidget(index);
    }
    void click(const QModelIndex& index)
    {
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
                          m_view->visualRect(index).center());
    }
    void typeInto(const QModelIndex& index, const QString& text)
    {
        click(index);
        QVERIFY(editor(index) != nullptr && editor(index)->hasFocus());
        QTest::keyClick(editor(index), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor(index), Qt::Key_Delete);
        QTest::keyClicks(editor(index), text);
    }
    void enterInto(const QModelIndex& index, const QString& text)
    {
        typeInto(index, text);
        QTest::keyClick(editor(index), Qt::Key_Return);
        QTRY_VERIFY(editor(index) == nullptr);
    }
    [[nodiscard]] QString value(const char* key)
    {
        return QString::fromStdString(std::string(m_grid->getData().text(key)));
    }

    TestFolder m_folder;
    QString m_path;
    std::unique_ptr<PropertyGridCtrl> m_grid;
    QTreeView* m_view = nullptr;
};

QTEST_MAIN(PropertyGridCtrlTest)
#include "PropertyGridCtrlTest.moc"
