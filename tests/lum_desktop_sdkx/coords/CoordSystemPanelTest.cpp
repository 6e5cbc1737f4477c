#include "lum_desktop_sdkx/coords/CoordSystemPanel.h"

#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/coords/DlgCoordParam.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/Text.h"

#include <QtTest>
#include <QtWidgets>

#include <algorithm>
#include <memory>

namespace {

const QString kControlFile = QStringLiteral(
    SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/ControlXml/DataProcess5/CoordSystem.xml");

basalt::Dictionary parameters(std::initializer_list<std::pair<const char*, const char*>> values)
{
    basalt::Dictionary result;
    for (const auto& [key, value] : values)
        result.set(key, value);
    return result;
}

/// Transverse Mercator on an ellipsoid of its own.
basalt::Dictionary ownSystem()
{
    return parameters({{"ellipsoid_name", "Custom"},
                       {"ellipsoid_a", "6378137.0000"},
                       {"ellipsoid_f", "300"},
                       {"project_type", "1"},
                       {"org_lon", "117"},
                       {"false_east", "500000"},
                       {"geoid_name", "左 alone"},
                       {"ver_mode", "2"}});
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// Drives the dialog as a user does, with mouse and keys.
class CoordSystemPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { m_dialog.reset(); }

    void fillsInASystemOfTheRegister_data();
    void fillsInASystemOfTheRegister();
    void walksTheListAndDropsASearch();
    void offersTheDatumShiftsOfTheRegister();
    void tellsWhyThereIsNoDatumShift_data();
    void tellsWhyThereIsNoDatumShift();
    void anEditMakesASystemItsOwn();
    void keepsNoValueOfAnotherProjection();
    void keepsAxisAndNameOfTheEllipsoidInStep();
    void showsWhatTheProjectionAndSwitchesUse();
    void refusesABadNumberWhereItStands();
    void marksTheParameterThatSpoilsTheSystem();
    void storesAShiftAboutAPivotWithoutIt();
    void handsOutWhatItDoesNotShow();
    void opensWithoutASystem();
    void controlFileOffersWhatTheServiceKnows();
    void controlFileIsTranslated();
    void speaksChinese();

private:
    void open(const basalt::Dictionary& values)
    {
        m_dialog = std::make_unique<DlgCoordParam>(nullptr, values);
        m_dialog->resize(660, 1600); // all rows in view
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        m_panel = m_dialog->findChild<CoordSystemPanel*>();
        m_field = m_dialog->findChild<QLineEdit*>();
        for (QTreeView* const view : m_dialog->findChildren<QTreeView*>())
            (view->model()->columnCount() == 3 ? m_list : m_grid) = view;
    }
    [[nodiscard]] QModelIndex cell(const QString& caption) const
    {
        const QAbstractItemModel& model = *m_grid->model();
        for (int g = 0; g < model.rowCount(); ++g) {
            const QModelIndex group = model.index(g, 0);
            for (int r = 0; r < model.rowCount(group); ++r) {
                if (model.index(r, 0, group).data().toString() == caption)
                    return model.index(r, 1, group);
            }
        }
        return {};
    }
    [[nodiscard]] bool isShown(const char* caption) const
    {
        const QModelIndex index = cell(QString::fromUtf8(caption));
        return !m_grid->isRowHidden(index.row(), index.parent());
    }
    [[nodiscard]] QString shown(const char* caption) const
    {
        return cell(QString::fromUtf8(caption)).data().toString();
    }
    [[nodiscard]] bool isMarked(const char* caption) const
    {
        return cell(QString::fromUtf8(caption)).data(Qt::BackgroundRole).isValid();
    }
    void click(const char* caption)
    {
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {},
                          m_grid->visualRect(cell(QString::fromUtf8(caption))).center());
    }
    void enter(const char* caption, const char* text)
    {
        click(caption);
        const QModelIndex index = cell(QString::fromUtf8(caption));
        QVERIFY2(m_grid->indexWidget(index) != nullptr, caption);
        QTest::keyClick(m_grid->indexWidget(index), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(m_grid->indexWidget(index), QString::fromUtf8(text));
        QTest::keyClick(m_grid->indexWidget(index), Qt::Key_Return);
        QTRY_VERIFY(m_grid->indexWidget(index) == nullptr);
    }
    void pick(const char* caption, const char* choice)
    {
        click(caption);
        const QModelIndex index = cell(QString::fromUtf8(caption));
        const QPointer<QComboBox> box(qobject_cast<QComboBox*>(m_grid->indexWidget(index)));
        QVERIFY2(!box.isNull(), caption);
        const int item = box->findText(QString::fromUtf8(choice));
        box->showPopup();
        box->view()->setCurrentIndex(box->model()->index(item, 0));
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(box.isNull()); // its list would keep the focus
        QCOMPARE(shown(caption), QString::fromUtf8(choice));
    }
    void check(const char* caption)
    {
        click(caption);
        QTest::keyClick(m_grid, Qt::Key_Space);
    }
    /// The choice of datum shifts, which stands outside of the grid; null while there is none.
    [[nodiscard]] QComboBox* shifts() const
    {
        QComboBox* const box = m_panel->findChild<QComboBox*>();
        return box->isVisible() ? box : nullptr;
    }
    void choose(const char* code)
    {
        search(code);
        QTest::keyClick(m_field, Qt::Key_Return);
        QCOMPARE(value("coord_param_id"), QStringLiteral("EPSG:") + QLatin1String(code));
    }
    void search(const char* text)
    {
        m_field->setFocus();
        QTest::keyClicks(m_field, QString::fromUtf8(text));
    }
    void press(QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(m_dialog->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    }
    [[nodiscard]] QString value(const char* key)
    {
        return lum::toQString(m_dialog->parameters().text(key));
    }
    [[nodiscard]] QStringList visibleTexts() const
    {
        QStringList texts;
        for (const QLabel* const label : m_panel->findChildren<QLabel*>()) {
            if (label->isVisible())
                texts += label->text();
        }
        return texts;
    }

    std::unique_ptr<DlgCoordParam> m_dialog;
    CoordSystemPanel* m_panel = nullptr;
    QLineEdit* m_field = nullptr;
    QTreeView* m_list = nullptr;
    QTreeView* m_grid = nullptr;
};

void CoordSystemPanelTest::fillsInASystemOfTheRegister_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("ellipsoid");
    QTest::addColumn<QString>("projection");
    QTest::addColumn<QString>("falseEasting");
    QTest::newRow("code") << QByteArray("32650") << QStringLiteral("EPSG:32650")
                          << QStringLiteral("WGS 84") << QStringLiteral("UTM") << QString();
    QTest::newRow("Gauss-Kruger") << QByteArray("Beijing 1954 / 3-degree GK CM 117E")
                                  << QStringLiteral("EPSG:2436")
                                  << QStringLiteral("Krassowsky 1940")
                                  << QStringLiteral("Transverse Mercator")
                                  << QStringLiteral("500000 m");
    QTest::newRow("feet") << QByteArray("NAD27 / Texas South Central")
                          << QStringLiteral("EPSG:32040") << QStringLiteral("Clarke 1866")
                          << QStringLiteral("Lambert conformal conic")
                          << QStringLiteral("2000000 ft");
}

void CoordSystemPanelTest::fillsInASystemOfTheRegister()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, falseEasting);
    open(ownSystem());
    const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
    search(text.constData());
    QVERIFY(m_list->isVisible());
    QCOMPARE(changed.count(), 0);

    QTest::keyClick(m_field, Qt::Key_Return);

    QVERIFY(m_dialog->isVisible()); // Enter was for the list, not for OK
    QVERIFY(!m_list->isVisible() && m_field->text().isEmpty());
    QCOMPARE(changed.count(), 1);
    QTEST(value("coord_param_id"), "id");
    QTEST(value("ellipsoid_name"), "ellipsoid");
    QTEST(shown("Ellipsoid"), "ellipsoid");
    QTEST(shown("Projection"), "projection");
    QCOMPARE(isShown("False easting"), !falseEasting.isEmpty());
    if (!falseEasting.isEmpty())
        QCOMPARE(shown("False easting"), falseEasting);
    QCOMPARE(value("geoid_name"), QStringLiteral("左 alone"));
    press(QDialogButtonBox::Ok);
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void CoordSystemPanelTest::walksTheListAndDropsASearch()
{
    open({});
    search("utm zone");
    QCOMPARE(m_list->model()->rowCount(), 100);
    QTest::keyClick(m_field, Qt::Key_Down);
    QTest::keyClick(m_field, Qt::Key_Down);
    QTest::keyClick(m_field, Qt::Key_Up);
    QCOMPARE(m_list->currentIndex().row(), 1);
    QTest::keyClicks(m_field, QStringLiteral(" nowhere"));
    QVERIFY(!m_list->isVisible());
    QVERIFY(visibleTexts().contains(QStringLiteral("No coordinate system has this code or name.")));
    QTest::keyClick(m_field, Qt::Key_Return);
    QTest::keyClick(m_field, Qt::Key_Escape);
    QVERIFY(m_dialog->isVisible() && m_field->text().isEmpty());
    QCOMPARE(value("coord_param_id"), QStringLiteral("Undefined"));

    search("236");
    const QModelIndex second = m_list->model()->index(1, 1);
    const QString name = second.data().toString();
    const QString code = second.siblingAtColumn(0).data().toString();
    QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {}, m_list->visualRect(second).center());
    QCOMPARE(value("coord_param_id"), QStringLiteral("EPSG:") + code);
    QVERIFY(visibleTexts().contains(QStringLiteral("EPSG:%1   %2").arg(code, name)));
    QTest::keyClick(m_field, Qt::Key_Escape);
    QVERIFY(!m_dialog->isVisible());
}

void CoordSystemPanelTest::offersTheDatumShiftsOfTheRegister()
{
    open({});
    QVERIFY(shifts() == nullptr);
    choose("2436");
    QCOMPARE(shifts()->currentText(), QStringLiteral("None"));
    QVERIFY(visibleTexts().join(QLatin1Char('\n')).contains(QStringLiteral("taken as WGS 84")));
    const QString ordos = QStringLiteral("Beijing 1954 to WGS 84 (1), 1 m, China - Ordos basin");
    const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
    shifts()->setFocus();
    while (shifts()->currentText() != ordos && changed.count() < 9)
        QTest::keyClick(shifts(), Qt::Key_Down);
    QCOMPARE(changed.count(), shifts()->currentIndex());
    QCOMPARE(shown("Model"), QStringLiteral("Coordinate frame rotation"));
    QCOMPARE(shown("Shift dX"), QStringLiteral("-12.646 m"));
    QVERIFY(!visibleTexts().join(QLatin1Char('\n')).contains(QStringLiteral("WGS 84.")));

    open(m_dialog->parameters()); // as a project is opened again
    QCOMPARE(value("coord_param_id"), QStringLiteral("EPSG:2436"));
    QCOMPARE(shifts()->currentText(), ordos);
    enter("False easting", "39500000"); // still on this datum
    QCOMPARE(shifts()->currentText(), ordos);
    enter("Shift dX", "-12.6");
    QCOMPARE(shifts()->currentText(), QStringLiteral("By the parameters below"));
    QTest::keyClick(shifts(), Qt::Key_Home);
    QCOMPARE(value("_7type"), QStringLiteral("0"));
    QCOMPARE(shifts()->currentText(), QStringLiteral("None"));
    pick("Ellipsoid", "WGS 84"); // but not on this one
    QVERIFY(shifts() == nullptr);
}

void CoordSystemPanelTest::tellsWhyThereIsNoDatumShift_data()
{
    QTest::addColumn<QByteArray>("code");
    QTest::addColumn<QString>("reason");
    QTest::newRow("other areas") << QByteArray("2436")
                                 << QStringLiteral("None of the register's datum shifts covers");
    QTest::newRow("none known") << QByteArray("4548")
                                << QStringLiteral("The register knows no datum shift");
    QTest::newRow("none needed") << QByteArray("32650") << QString();
    QTest::newRow("taken") << QByteArray("2100") << QString();
}

void CoordSystemPanelTest::tellsWhyThereIsNoDatumShift()
{
    QFETCH(QByteArray, code);
    QFETCH(QString, reason);
    open({});
    choose(code.constData());
    const QString texts = visibleTexts().join(QLatin1Char('\n'));
    QVERIFY2(reason.isEmpty() || texts.contains(reason), qPrintable(texts));
    QCOMPARE(texts.contains(QStringLiteral("taken as WGS 84")), !reason.isEmpty());
}

void CoordSystemPanelTest::keepsNoValueOfAnotherProjection()
{
    open(ownSystem());
    pick("Projection", "Lambert conformal conic");
    enter("First standard parallel", "30");
    pick("Projection", "UTM");
    enter("Central meridian", "115");
    QCOMPARE(value("parallel_1_lat"), QStringLiteral("0"));
    QCOMPARE(value("factor"), QStringLiteral("0.9996"));
    QCOMPARE(value("org_lon"), QStringLiteral("117"));
    pick("Projection", "Lambert conformal conic"); // hidden is not lost
    QCOMPARE(value("parallel_1_lat"), QStringLiteral("30"));
}

void CoordSystemPanelTest::anEditMakesASystemItsOwn()
{
    open({});
    choose("32650");
    const basalt::Dictionary chosen = m_dialog->parameters();
    open(chosen);
    QCOMPARE(value("coord_param_id"), QStringLiteral("EPSG:32650"));
    const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
    enter("Central meridian", "111");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(value("org_lon"), QStringLiteral("111"));
    QCOMPARE(value("coord_param_id"), QStringLiteral("Undefined"));
}

void CoordSystemPanelTest::keepsAxisAndNameOfTheEllipsoidInStep()
{
    open(ownSystem());
    pick("Ellipsoid", "Krassowsky 1940");
    QCOMPARE(value("ellipsoid_name"), QStringLiteral("Krassowsky 1940"));
    QCOMPARE(value("ellipsoid_a"), QStringLiteral("6378245"));
    QCOMPARE(value("ellipsoid_f"), QStringLiteral("298.3"));
    enter("Semi-major axis a", "6378140");
    QCOMPARE(shown("Ellipsoid"), QStringLiteral("Custom"));
    enter("Inverse flattening 1/f", "298.257");
    QCOMPARE(value("ellipsoid_name"), QStringLiteral("IAG 1975"));
    pick("Ellipsoid", "Custom");
    QCOMPARE(value("ellipsoid_a"), QStringLiteral("6378140"));
}

void CoordSystemPanelTest::showsWhatTheProjectionAndSwitchesUse()
{
    open(ownSystem());
    QVERIFY(isShown("False easting") && !isShown("Second standard parallel"));
    pick("Projection", "Albers equal area");
    QVERIFY(isShown("First standard parallel") && isShown("Second standard parallel"));
    pick("Projection", "Oblique Mercator");
    QVERIFY(isShown("Rectified grid angle") && isShown("Azimuth of central line"));
    pick("Projection", "UTM");
    QVERIFY(!isShown("False easting") && isShown("False northing"));
    pick("Projection", "None");
    QVERIFY(!isShown("Central meridian") && !isShown("Height of projection surface"));
    QCOMPARE(value("false_east"), QStringLiteral("500000")); // hidden is not lost

    QVERIFY(!isShown("Correction height"));
    check("Use correction");
    QVERIFY(isShown("Correction height"));
    QCOMPARE(value("correct_valid"), QStringLiteral("1"));
    check("Use correction");
    QVERIFY(!isShown("Correction height"));
}

void CoordSystemPanelTest::refusesABadNumberWhereItStands()
{
    open(ownSystem());
    const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
    enter("Latitude of origin", "91");
    QVERIFY(isMarked("Latitude of origin"));
    QCOMPARE(changed.count(), 0);
    m_grid->setCurrentIndex(cell(QStringLiteral("Projection")));
    press(QDialogButtonBox::Ok);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_grid->currentIndex(), cell(QStringLiteral("Latitude of origin")));
    QVERIFY(m_grid->hasFocus());
    QVERIFY(visibleTexts()
                .join(QLatin1Char('\n'))
                .contains(QStringLiteral("from -90\u00b0 to 90\u00b0")));

    enter("Latitude of origin", "31");
    QVERIFY(!isMarked("Latitude of origin"));
    press(QDialogButtonBox::Ok);
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(value("org_lat"), QStringLiteral("31"));
}

void CoordSystemPanelTest::marksTheParameterThatSpoilsTheSystem()
{
    open(ownSystem());
    pick("Projection", "Albers equal area"); // both parallels are 0
    QVERIFY(isMarked("First standard parallel") && m_panel->hasFaults());
    QVERIFY(visibleTexts().join(QLatin1Char('\n')).contains(QStringLiteral("(parallel_1_lat,")));
    enter("First standard parallel", "x"); // what was typed goes before the mark
    enter("Second standard parallel", "47");
    QVERIFY(isMarked("First standard parallel"));
    enter("First standard parallel", "25");
    QVERIFY(!isMarked("First standard parallel") && !m_panel->hasFaults());

    check("Use geoid");
    QVERIFY(isMarked("Geoid file"));
    enter("Inverse flattening 1/f", "0.5"); // an earlier fault takes the mark over
    QVERIFY(isMarked("Inverse flattening 1/f") && !isMarked("Geoid file"));
    enter("Inverse flattening 1/f", "298");
    enter("Geoid file", "/no such/folder/geoid.gtx");
    QVERIFY(isMarked("Geoid file"));
    press(QDialogButtonBox::Ok);
    QVERIFY(m_dialog->isVisible());
    QCOMPARE(m_grid->currentIndex(), cell(QStringLiteral("Geoid file")));
    check("Use geoid");
    QVERIFY(!m_panel->hasFaults());
}

void CoordSystemPanelTest::storesAShiftAboutAPivotWithoutIt()
{
    open(ownSystem());
    pick("Model", "Molodensky-Badekas");
    enter("Shift dX", "-270");
    enter("Rotation rZ", "1");
    QVERIFY(isMarked("Rotation centre X") && m_panel->hasFaults());
    enter("Rotation centre Y", "5000000");
    QVERIFY(!m_panel->hasFaults());
    const basalt::Dictionary stored = m_dialog->parameters();
    QCOMPARE(stored.integer("_7type"), 2);
    QVERIFY(!stored.contains("_7py"));
    // X' = T + P + R (X - P): the turn about the axis through P moves X by -rz Py
    const double turn = 5000000 * 3.14159265358979 / 648000;
    QVERIFY(std::abs(stored.number("_7dx") - (-270 - turn)) < 1e-6);
    QCOMPARE(shown("Model"), QStringLiteral("Molodensky-Badekas")); // as long as it is open
}

void CoordSystemPanelTest::handsOutWhatItDoesNotShow()
{
    const basalt::Dictionary before = ownSystem();
    open(before);
    const basalt::Dictionary after = m_dialog->parameters();
    QCOMPARE(after.size(), before.size() + 2); // the identity, and a factor of 1
    for (std::size_t i = 0; i < before.size(); ++i)
        QCOMPARE(lum::toQString(after.text(before.keyAt(i))), lum::toQString(before.valueAt(i)));
}

void CoordSystemPanelTest::opensWithoutASystem()
{
    open(parameters({{"ellipsoid_a", "0"}, {"project_type", "0"}}));
    QVERIFY(!m_panel->hasFaults());
    QVERIFY(visibleTexts().constFirst().startsWith(QStringLiteral("No coordinate system is set")));
    pick("Ellipsoid", "WGS 84");
    QVERIFY(isMarked("Projection")); // half a system is none
    pick("Projection", "UTM");
    QVERIFY(!m_panel->hasFaults());
}

void CoordSystemPanelTest::controlFileOffersWhatTheServiceKnows()
{
    PropertyGridLayout layout;
    QCOMPARE(readPropertyGridLayout(contentOf(kControlFile), layout), QString());
    QHash<QString, QStringList> offered;
    for (const PropertyGridGroup& group : layout.groups) {
        for (const PropertyGridRow& row : group.rows) {
            for (const PropertyGridChoice& choice : row.choices)
                offered[row.key] += choice.value + QLatin1Char(' ') + choice.caption;
        }
    }
    QStringList ellipsoids{QStringLiteral("Custom Custom")};
    for (const lum::KnownEllipsoid& known : lum::knownEllipsoids())
        ellipsoids += QStringLiteral("%1 %1").arg(QLatin1String(known.name));
    QStringList projections{QStringLiteral("0 None")};
    for (const lum::ProjectionKind& kind : lum::projectionKinds())
        projections += QStringLiteral("%1 %2").arg(kind.code).arg(QLatin1String(kind.name));
    QCOMPARE(offered.value(QStringLiteral("ellipsoid_name")), ellipsoids);
    QCOMPARE(offered.value(QStringLiteral("project_type")), projections);
    QCOMPARE(
        offered.value(QStringLiteral("_7type")),
        QStringList({QStringLiteral("0 None"), QStringLiteral("1 Position vector (Bursa-Wolf)"),
                     QStringLiteral("2 Coordinate frame rotation"),
                     QStringLiteral("3 Molodensky-Badekas")}));
}

void CoordSystemPanelTest::controlFileIsTranslated()
{
    const QByteArray texts =
        contentOf(QStringLiteral(SOURCE_FOLDER "/translations/control_zh_CN.ts"));
    QXmlStreamReader catalogue(texts);
    QSet<QString> sources;
    while (!catalogue.atEnd()) {
        if (catalogue.readNext() == QXmlStreamReader::StartElement &&
            catalogue.name() == QLatin1String("source"))
            sources += catalogue.readElementText();
    }
    QVERIFY(!catalogue.hasError());
    QXmlStreamReader rows(contentOf(kControlFile));
    int count = 0;
    while (!rows.atEnd()) {
        rows.readNext();
        for (const char* const name : {"caption", "description", "unit"}) {
            const QString text = rows.attributes().value(QLatin1String(name)).toString();
            QVERIFY2(text.isEmpty() || sources.contains(text), qPrintable(text));
            count += text.isEmpty() ? 0 : 1;
        }
    }
    QVERIFY(count > 100);
}

void CoordSystemPanelTest::speaksChinese()
{
    QTranslator chinese;
    QVERIFY(chinese.load(QStringLiteral("skyquill_zh_CN"),
                         QCoreApplication::applicationDirPath() +
                             QStringLiteral("/../etc/Tarvona/config/Skyquill/Language")));
    QCoreApplication::installTranslator(&chinese);
    basalt::Dictionary system = ownSystem();
    system.set("project_type", "7");
    system.set("org_lat", "0");
    open(system);
    QCoreApplication::removeTranslator(&chinese);

    QCOMPARE(shown("投影"), QStringLiteral("极球面投影"));
    QVERIFY(isMarked("原点纬度"));
    QVERIFY(isShown("真实比例纬线")); // a caption that depends on the projection
    QStringList texts{m_dialog->windowTitle(), m_field->placeholderText()};
    texts += visibleTexts();
    for (int g = 0; g < m_grid->model()->rowCount(); ++g)
        texts += m_grid->model()->index(g, 0).data().toString();
    for (const QString& text : qAsConst(texts)) {
        const bool isChinese = std::any_of(text.begin(), text.end(),
                                           [](QChar c) { return c.script() == QChar::Script_Han; });
        QVERIFY2(text.isEmpty() || isChinese, qPrintable(text));
    }
}

QTEST_MAIN(CoordSystemPanelTest)
#include "CoordSystemPanelTest.moc"
