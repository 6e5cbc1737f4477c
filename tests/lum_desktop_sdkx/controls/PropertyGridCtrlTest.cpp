#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"

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
    result.set("hor", "0.50000000000000001");
    result.set("type", "0");
    result.set("geoid", "0");
    result.set("foreign", "left alone");
    return result;
}

} // namespace

/// Drives the grid as a user does, with mouse and keys.
class PropertyGridCtrlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void marksABadNumberUntilItIsCorrected();
    void storesAPointWhereACommaWasTyped();
    void leavesATextAloneThatWasOnlyLookedAt();
    void tabGoesFromValueToValueAndOut();
    void choosesByCaptionAndStoresTheValue();
    void checksAFlagByMouseAndKey();
    void asksForAFile();
    void handsOutWhatStandsInAnOpenEditor();
    void hidesRowsAndGroups();
    void staysAsItWasWhenTheFileIsBad_data();
    void staysAsItWasWhenTheFileIsBad();
    void keepsClosedGroupsWhenTheSameFileComesAgain();

private:
    [[nodiscard]] QModelIndex cell(int group, int row) const
    {
        return m_view->model()->index(row, 1, m_view->model()->index(group, 0));
    }
    void click(const QModelIndex& index)
    {
        QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {},
                          m_view->visualRect(index).center());
    }
    void typeInto(const QModelIndex& index, const QString& text)
    {
        click(index);
        QWidget* const editor = m_view->indexWidget(index);
        QVERIFY(editor != nullptr && editor->hasFocus());
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(editor, Qt::Key_Delete);
        QTest::keyClicks(editor, text);
    }
    void enterInto(const QModelIndex& index, const QString& text)
    {
        typeInto(index, text);
        QTest::keyClick(m_view->indexWidget(index), Qt::Key_Return);
        QTRY_VERIFY(m_view->indexWidget(index) == nullptr);
    }
    [[nodiscard]] QString value(const char* key)
    {
        return QString::fromStdString(std::string(m_grid->getData().text(key)));
    }

    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<PropertyGridCtrl> m_grid;
    QTreeView* m_view = nullptr;
};

void PropertyGridCtrlTest::init()
{
    m_path = m_folder.filePath(QStringLiteral("质量 limits.xml"));
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(kGrid) == kGrid.size());
    file.close();
    m_grid = std::make_unique<PropertyGridCtrl>();
    QVERIFY(m_grid->init(m_path, values()));
    m_grid->resize(500, 500);
    m_grid->show();
    m_grid->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_grid.get()));
    m_view = m_grid->findChild<QTreeView*>();
}

void PropertyGridCtrlTest::cleanup()
{
    m_grid.reset();
}

void PropertyGridCtrlTest::marksABadNumberUntilItIsCorrected()
{
    const QSignalSpy changed(m_grid.get(), &PropertyGridCtrl::valueChanged);
    const QModelIndex horizontal = cell(0, 0);
    for (const char* const bad : {"100.5", "a", ""}) {
        enterInto(horizontal, QString::fromLatin1(bad));
        QCOMPARE(horizontal.data().toString(), QString::fromLatin1(bad));
        QVERIFY(horizontal.data(Qt::BackgroundRole).isValid());
        QCOMPARE(horizontal.data(Qt::ToolTipRole).toString(),
                 QStringLiteral("Enter a number from 0 m to 100 m."));
        QCOMPARE(value("hor"), QStringLiteral("0.50000000000000001"));
        QVERIFY(m_grid->hasFaults());
    }
    QCOMPARE(changed.count(), 0);

    enterInto(horizontal, QStringLiteral("0.75"));
    QVERIFY(!m_grid->hasFaults());
    QVERIFY(!horizontal.data(Qt::BackgroundRole).isValid());
    QCOMPARE(value("hor"), QStringLiteral("0.75"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.at(0), QVariantList({QStringLiteral("hor"), QStringLiteral("0.75")}));
}

void PropertyGridCtrlTest::storesAPointWhereACommaWasTyped()
{
    QLocale::setDefault(QLocale(QLocale::German));
    enterInto(cell(0, 0), QStringLiteral("1,25"));
    QCOMPARE(value("hor"), QStringLiteral("1.25"));
}

void PropertyGridCtrlTest::leavesATextAloneThatWasOnlyLookedAt()
{
    const QSignalSpy changed(m_grid.get(), &PropertyGridCtrl::valueChanged);
    click(cell(0, 0));
    QTest::keyClick(m_view->indexWidget(cell(0, 0)), Qt::Key_Return);
    typeInto(cell(0, 0), QStringLiteral("9"));
    QTest::keyClick(m_view->indexWidget(cell(0, 0)), Qt::Key_Escape);
    QTRY_VERIFY(m_view->indexWidget(cell(0, 0)) == nullptr);

    QCOMPARE(changed.count(), 0);
    QCOMPARE(value("hor"), QStringLiteral("0.50000000000000001"));
    QCOMPARE(value("foreign"), QStringLiteral("left alone"));
    QCOMPARE(m_grid->getData().size(), values().size());
}

void PropertyGridCtrlTest::tabGoesFromValueToValueAndOut()
{
    typeInto(cell(0, 0), QStringLiteral("2"));
    QTest::keyClick(QApplication::focusWidget(),
                    Qt::Key_Tab); // past the read-only row and a header
    QCOMPARE(value("hor"), QStringLiteral("2"));
    QCOMPARE(m_view->currentIndex(), cell(1, 0));
    QVERIFY(qobject_cast<QComboBox*>(m_view->indexWidget(cell(1, 0))) != nullptr);

    QTest::keyClick(m_view->indexWidget(cell(1, 0)), Qt::Key_Tab);
    QCOMPARE(m_view->currentIndex(), cell(1, 1));
    QTest::keyClick(m_view, Qt::Key_Tab);
    QCOMPARE(m_view->currentIndex(), cell(1, 2));
    QVERIFY(m_view->indexWidget(cell(1, 2)) != nullptr);
    QTest::keyClick(m_view->indexWidget(cell(1, 2)), Qt::Key_Backtab);
    QCOMPARE(m_view->currentIndex(), cell(1, 1));

    QPushButton after(m_grid.get());
    after.show();
    m_view->setCurrentIndex(cell(1, 2));
    m_view->setFocus();
    QTest::keyClick(m_view, Qt::Key_Tab);
    QVERIFY(after.hasFocus());
}

void PropertyGridCtrlTest::choosesByCaptionAndStoresTheValue()
{
    click(cell(1, 0));
    auto* const combo = qobject_cast<QComboBox*>(m_view->indexWidget(cell(1, 0)));
    QVERIFY(combo != nullptr);
    QTest::keyClick(combo, Qt::Key_Down);
    QTest::keyClick(combo, Qt::Key_Return);
    QTRY_COMPARE(cell(1, 0).data().toString(), QStringLiteral("Receiver"));
    QCOMPARE(value("type"), QStringLiteral("1"));

    m_grid->setValue(QStringLiteral("type"), QStringLiteral("7")); // none of the choices
    click(cell(1, 0));
    QTest::keyClick(m_view->indexWidget(cell(1, 0)), Qt::Key_Return);
    QTRY_VERIFY(m_view->indexWidget(cell(1, 0)) == nullptr);
    QCOMPARE(value("type"), QStringLiteral("7"));
}

void PropertyGridCtrlTest::checksAFlagByMouseAndKey()
{
    QStyleOptionViewItem option;
    option.initFrom(m_view);
    option.rect = m_view->visualRect(cell(1, 1));
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect box =
        m_view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, m_view);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, {}, box.center());
    QCOMPARE(value("geoid"), QStringLiteral("1"));
    QTest::keyClick(m_view, Qt::Key_Space);
    QCOMPARE(value("geoid"), QStringLiteral("0"));
}

void PropertyGridCtrlTest::asksForAFile()
{
    const QString picked = QStringLiteral("/data/大地水准面/egm 2008.gtx");
    QString filter;
    const FileDialog::Responder responder([&](const FileDialog::Request& request) {
        QApplication::focusWidget()->clearFocus(); // as a dialog in front of the editor does
        filter = request.filter;
        return QString(picked);
    });
    click(cell(1, 2));
    auto* const browse = m_view->indexWidget(cell(1, 2))->findChild<QToolButton*>();
    QVERIFY(browse != nullptr);
    QTest::mouseClick(browse, Qt::LeftButton);
    QCOMPARE(filter, QStringLiteral("grid(*.gtx)"));
    QCOMPARE(value("file"), picked);
}

void PropertyGridCtrlTest::handsOutWhatStandsInAnOpenEditor()
{
    typeInto(cell(0, 0), QStringLiteral("3"));
    QCOMPARE(value("hor"), QStringLiteral("3"));
    QTest::keyClicks(m_view->indexWidget(cell(0, 0)), QStringLiteral("x"));
    QVERIFY(m_grid->hasFaults());
}

void PropertyGridCtrlTest::hidesRowsAndGroups()
{
    enterInto(cell(0, 0), QStringLiteral("bad"));
    m_grid->setRowVisible(QStringLiteral("hor"), false);
    QVERIFY(!m_grid->hasFaults());
    QVERIFY(!m_view->isRowHidden(0, {}));
    m_grid->setRowVisible(QStringLiteral("note"), false);
    QVERIFY(m_view->isRowHidden(0, {}));
    m_grid->setRowVisible(QStringLiteral("note"), true);
    QVERIFY(!m_view->isRowHidden(0, {}) && m_view->isRowHidden(0, cell(0, 0).parent()));
}

void PropertyGridCtrlTest::staysAsItWasWhenTheFileIsBad_data()
{
    QTest::addColumn<QByteArray>("content"); ///< null: there is no such file
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << QByteArray() << QStringLiteral("bad.xml\": ");
    QTest::newRow("malformed") << QByteArray("<property_grid>\n<group")
                               << QStringLiteral("bad.xml\": line 2: ");
}

void PropertyGridCtrlTest::staysAsItWasWhenTheFileIsBad()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QString path = m_folder.filePath(QStringLiteral("bad.xml"));
    QFile file(path);
    if (!content.isNull())
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) > 0 && file.flush());
    std::string log;
    basalt::setLogListener(
        [](void* context, ILogger::Level, std::string_view line) {
            *static_cast<std::string*>(context) += line;
        },
        &log);
    enterInto(cell(0, 0), QStringLiteral("4"));

    const bool isRead = m_grid->init(path, basalt::Dictionary());

    basalt::setLogListener(nullptr, nullptr);
    QVERIFY(!isRead);
    QVERIFY2(QString::fromStdString(log).contains(reason), log.c_str());
    QCOMPARE(m_view->model()->rowCount(), 2);
    QCOMPARE(value("hor"), QStringLiteral("4"));
}

void PropertyGridCtrlTest::keepsClosedGroupsWhenTheSameFileComesAgain()
{
    const QModelIndex group = m_view->model()->index(0, 0);
    click(group);
    QVERIFY(!m_view->isExpanded(group));
    basalt::Dictionary other;
    other.set("hor", "8");
    QVERIFY(m_grid->init(m_path, other));
    QVERIFY(!m_view->isExpanded(group));
    QCOMPARE(cell(0, 0).data().toString(), QStringLiteral("8 m"));
    QCOMPARE(m_grid->getData().size(), std::size_t(1));
}

QTEST_MAIN(PropertyGridCtrlTest)
#include "PropertyGridCtrlTest.moc"
