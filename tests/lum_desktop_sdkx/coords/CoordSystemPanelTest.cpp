#include "lum_desktop_sdkx/coords/CoordSystemPanel.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/coords/DlgCoordParam.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/Text.h"
#include "tests/support/Literals.h"

#include <QtTest>
#include <QtWidgets>

#include <memory>

namespace {

const QString kControlFile = QStringLiteral(
    SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/ControlXml/DataProcess5/CoordSystem.xml");

/// Transverse Mercator on an ellipsoid of its own.
basalt::Dictionary ownSystem()
{
    return desktop::componentParameters(
        "ellipsoid_name=Custom,ellipsoid_a=6378137.0000,ellipsoid_f=300,project_type=1,"
        "org_lon=117,false_east=500000,geoid_name=左 alone,ver_mode=2");
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

    void fillsInASystemOfTheRegister()
    {
        open(ownSystem());
        const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
        search("32650");
        QVERIFY(m_list->isVisible());
        QCOMPARE(changed.count(), 0);
        QTest::keyClick(m_field, Qt::Key_Return);
        QVERIFY(m_dialog->isVisible()); // Enter was for the list, not for OK
        QVERIFY(!m_list->isVisible() && m_field->text().isEmpty());
        QCOMPARE(changed.count(), 1);
        QCOMPARE(value("coord_param_id"), "EPSG:32650"_q);
        QCOMPARE(shown("Ellipsoid"), "WGS 84"_q);
        QCOMPARE(shown("Projection"), "UTM"_q);
        QCOMPARE(value("geoid_name"), "左 alone"_q);
        press(QDialogButtonBox::Ok);
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
    }

    void namesTheUnitOfTheSystem()
    {
        const std::tuple<const char*, QString, QString> units[] = {
            {"32037", "ftUS, US survey foot (0.3048006096 m)"_q, "2000000 ftUS"_q},
            {"2222", "ft, international foot (0.3048 m)"_q, "700000 ft"_q},
            {"2100", {}, "500000 m"_q}};
        open({});
        for (const auto& [code, unit, easting] : units) {
            choose(code);
            QVERIFY2(visibleText().contains(unit), code);
            QCOMPARE(visibleText().contains("Coordinates are in"_q), !unit.isEmpty());
            QCOMPARE(shown("False easting"), easting);
        }
        choose("32037");
        open(m_dialog->parameters()); // as when a project is opened again
        enter("Central meridian", "102 00 00 W");
        QCOMPARE(value("org_lon"), "-102"_q);
        QVERIFY(visibleText().contains("by the parameters below.\nCoordinates are in ftUS"_q));
    }

    void walksTheListAndDropsASearch()
    {
        open({});
        const QRect before = m_grid->geometry();
        search("utm zone");
        QCOMPARE(m_list->model()->rowCount(), 100);
        QCoreApplication::processEvents();
        QCOMPARE(m_grid->geometry(), before); // the list lies over the page
        m_grid->setFocus();
        QVERIFY(!m_list->isVisible());
        m_field->setFocus();
        QVERIFY(m_list->isVisible());
        QTest::keyClick(m_field, Qt::Key_Down);
        QTest::keyClick(m_field, Qt::Key_Down);
        QTest::keyClick(m_field, Qt::Key_Up);
        QCOMPARE(m_list->currentIndex().row(), 1);
        QTest::keyClicks(m_field, " nowhere"_q);
        QVERIFY(!m_list->isVisible());
        QVERIFY(visibleTexts().contains("No coordinate system has this code or name."_q));
        m_field->clear();
        const std::pair<const char*, QString> refused[] = {
            {"4326", "EPSG:4326 (WGS 84) is geographic; choose a projected system."_q},
            {"2036", "is no longer in use"_q}, // replaced
            {"99999", "No coordinate system has this code or name."_q}};
        for (const auto& [code, answer] : refused) {
            m_field->clear();
            search(code);
            QVERIFY2(visibleText().contains(answer), qPrintable(visibleText()));
        }
        QTest::keyClick(m_field, Qt::Key_Return);
        QTest::keyClick(m_field, Qt::Key_Escape);
        QVERIFY(m_dialog->isVisible() && m_field->text().isEmpty());
        QCOMPARE(value("coord_param_id"), "Undefined"_q);

        search("236");
        const QModelIndex second = m_list->model()->index(1, 1);
        const QString name = second.data().toString();
        const QString code = second.siblingAtColumn(0).data().toString();
        QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                          m_list->visualRect(second).center());
        QCOMPARE(value("coord_param_id"), "EPSG:"_q + code);
        QVERIFY(visibleTexts().contains("EPSG:%1   %2"_q.arg(code, name)));
        QTest::keyClick(m_field, Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible());
    }

    void offersTheDatumShiftsOfTheRegister()
    {
        open({});
        QVERIFY(shifts() == nullptr);
        choose("2436");
        QCOMPARE(shifts()->currentText(), "None"_q);
        QVERIFY(visibleText().contains("taken as WGS 84"_q));
        const QString ordos = "Beijing 1954 to WGS 84 (1), 1 m, China - Ordos basin"_q;
        const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
        pickShift(ordos);
        QCOMPARE(changed.count(), 1); // not for each item on the way
        QCOMPARE(shown("Model"), "Coordinate frame rotation"_q);
        QCOMPARE(shown("Shift dX"), "-12.646 m"_q);
        QVERIFY(!visibleText().contains("WGS 84."_q));
        QVERIFY(
            visibleText().contains("does not cover this system's area. It is meant for: China"_q));

        open(m_dialog->parameters()); // as when a project is opened again
        QCOMPARE(value("coord_param_id"), "EPSG:2436"_q);
        QCOMPARE(shifts()->currentText(), ordos);
        QVERIFY(visibleText().contains("does not cover this system's area"_q));
        enter("False easting", "39500000"); // does not change the datum
        QCOMPARE(value("coord_param_id"), "Undefined"_q);
        QCOMPARE(shifts()->currentText(), ordos);
        enter("Shift dX", "-12.6");
        QCOMPARE(shifts()->currentText(), "By the parameters below"_q);
        QVERIFY(!visibleText().contains("this system's area"_q));
        pickShift("None"_q);
        QCOMPARE(value("_7type"), "0"_q);
        QCOMPARE(shifts()->currentText(), "None"_q);
        pick("Ellipsoid", "WGS 84"); // changes the datum
        QVERIFY(shifts() == nullptr);
    }

    void tellsWhyThereIsNoDatumShiftAndHowMuchOneCovers()
    {
        const std::pair<const char*, QString> reasons[] = {
            {"2436", "None of the register's datum shifts covers"_q},
            {"4548", "The register knows no datum shift"_q},
            {"32650", {}}, // none is needed
            {"5514", {}}}; // one is taken, of two countries
        open({});
        for (const auto& [code, reason] : reasons) {
            choose(code);
            QVERIFY2(visibleText().contains(reason), code);
            QCOMPARE(visibleText().contains("taken as WGS 84"_q), !reason.isEmpty());
        }
        QVERIFY(!visibleText().contains("this system's area"_q));
        pickShift("S-JTSK to WGS 84 (4), 1 m, Slovakia"_q);
        QVERIFY(visibleText().contains("covers 31 % of this system's area"_q)); // by its bounds
    }

    void keepsAxisAndNameOfTheEllipsoidInStep()
    {
        open(ownSystem());
        pick("Ellipsoid", "Krassowsky 1940");
        QCOMPARE(value("ellipsoid_name"), "Krassowsky 1940"_q);
        QCOMPARE(value("ellipsoid_a"), "6378245"_q);
        QCOMPARE(value("ellipsoid_f"), "298.3"_q);
        enter("Semi-major axis a", "6378140");
        QCOMPARE(shown("Ellipsoid"), "Custom"_q);
        enter("Inverse flattening 1/f", "298.257");
        QCOMPARE(value("ellipsoid_name"), "IAG 1975"_q);
        pick("Ellipsoid", "Custom");
        QCOMPARE(value("ellipsoid_a"), "6378140"_q);
        for (const char* name : {"CGCS2000", "GRS 1980"}) { // both have the same figures
            pick("Ellipsoid", name);
            enter("Semi-major axis a", "6378137.0");
            QCOMPARE(shown("Ellipsoid"), QLatin1String(name));
        }
    }

    void refusesABadNumberWhereItStands()
    {
        open(ownSystem());
        const QSignalSpy changed(m_panel, &CoordSystemPanel::changed);
        enter("Latitude of origin", "91");
        QCOMPARE(changed.count(), 0);
        m_grid->setCurrentIndex(cell("Projection"));
        const QString reason = "\"Latitude of origin\": Enter an angle from -90\u00b0"_q;
        QVERIFY(visibleText().contains(reason)); // also while another row is described
        press(QDialogButtonBox::Ok);
        QVERIFY(m_dialog->isVisible() && m_grid->hasFocus());
        QCOMPARE(m_grid->currentIndex(), cell("Latitude of origin"));

        enter("Latitude of origin", "31");
        QVERIFY(!visibleText().contains(reason));
        press(QDialogButtonBox::Ok);
        QVERIFY(!m_dialog->isVisible());
        QCOMPARE(value("org_lat"), "31"_q);
        QCOMPARE(changed.count(), 1);
    }

    void marksTheParameterThatSpoilsTheSystem()
    {
        open(ownSystem());
        pick("Projection", "Albers equal area"); // both parallels are 0
        QVERIFY(isMarked("First standard parallel") && m_panel->hasFaults());
        QVERIFY(visibleText().contains("\"First standard parallel\" and"_q));
        enter("First standard parallel", "x"); // a typed fault comes before the mark
        enter("Second standard parallel", "47");
        QVERIFY(isMarked("First standard parallel"));
        enter("First standard parallel", "25");
        QVERIFY(!isMarked("First standard parallel") && !m_panel->hasFaults());

        check("Use geoid");
        QVERIFY(isMarked("Geoid file"));
        enter("Inverse flattening 1/f", "0.5"); // the first fault gets the mark
        QVERIFY(isMarked("Inverse flattening 1/f") && !isMarked("Geoid file"));
        enter("Inverse flattening 1/f", "298");
        enter("Geoid file", "/no such/folder/geoid.gtx");
        QVERIFY(isMarked("Geoid file"));
        press(QDialogButtonBox::Ok);
        QVERIFY(m_dialog->isVisible());
        QCOMPARE(m_grid->currentIndex(), cell("Geoid file"));
        check("Use geoid");
        QVERIFY(!m_panel->hasFaults());
    }

    void opensWithoutASystem()
    {
        open(desktop::componentParameters("ellipsoid_a=0,project_type=0"));
        QVERIFY(!m_panel->hasFaults());
        QVERIFY(visibleTexts().constFirst().startsWith("No coordinate system is set"_q));
        pick("Ellipsoid", "WGS 84");
        QVERIFY(isMarked("Projection")); // an ellipsoid alone is no system
        pick("Projection", "UTM");
        QVERIFY(!m_panel->hasFaults());
    }

    void controlFileOffersWhatTheServiceKnows()
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
        QStringList ellipsoids{"Custom Custom"_q};
        for (const lum::KnownEllipsoid& known : lum::knownEllipsoids())
            ellipsoids += "%1 %1"_q.arg(QLatin1String(known.name));
        QStringList projections{"0 None"_q};
        for (const lum::ProjectionKind& kind : lum::projectionKinds())
            projections += "%1 %2"_q.arg(kind.code).arg(QLatin1String(kind.name));
        QCOMPARE(offered.value("ellipsoid_name"_q), ellipsoids);
        QCOMPARE(offered.value("project_type"_q), projections);
        QCOMPARE(offered.value("_7type"_q),
                 QStringList({"0 None"_q, "1 Position vector (Bursa-Wolf)"_q,
                              "2 Coordinate frame rotation"_q, "3 Molodensky-Badekas"_q}));
    }

private:
    void open(const basalt::Dictionary& values)
    {
        m_dialog = std::make_unique<DlgCoordParam>(nullptr, values);
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
        QCoreApplication::processEvents(); // it fits itself to the screen
        m_dialog->resize(660, 1600);       // all rows in view
        m_panel = m_dialog->findChild<CoordSystemPanel*>();
        m_field = m_dialog->findChild<QLineEdit*>();
        for (QTreeView* const view : m_dialog->findChildren<QTreeView*>())
            (view->model()->columnCount() == 3 ? m_list : m_grid) = view;
    }
    [[nodiscard]] QModelIndex cell(const char* caption) const
    {
        const QAbstractItemModel& model = *m_grid->model();
        for (int group = 0; group < model.rowCount(); ++group) {
            const QModelIndex first = model.index(0, 0, model.index(group, 0));
            const auto found = model.match(first, Qt::DisplayRole, QString::fromUtf8(caption), 1,
                                           Qt::MatchExactly | Qt::MatchCaseSensitive);
            if (!found.isEmpty())
                return found.front().siblingAtColumn(1);
        }
        return {};
    }
    [[nodiscard]] bool isShown(const char* caption) const
    {
        const QModelIndex index = cell(caption);
        return index.isValid() && !m_grid->isRowHidden(index.row(), index.parent());
    }
    [[nodiscard]] QString shown(const char* caption) const
    {
        return cell(caption).data().toString();
    }
    [[nodiscard]] bool isMarked(const char* caption) const
    {
        return cell(caption).data(Qt::BackgroundRole).isValid();
    }
    void click(const char* caption)
    {
        m_grid->scrollTo(cell(caption));
        QTest::mouseClick(m_grid->viewport(), Qt::LeftButton, {},
                          m_grid->visualRect(cell(caption)).center());
    }
    void enter(const char* caption, const char* text)
    {
        click(caption);
        const QModelIndex index = cell(caption);
        QVERIFY2(m_grid->indexWidget(index) != nullptr, caption);
        QTest::keyClick(m_grid->indexWidget(index), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(m_grid->indexWidget(index), QString::fromUtf8(text));
        QTest::keyClick(m_grid->indexWidget(index), Qt::Key_Return);
        QTRY_VERIFY(m_grid->indexWidget(index) == nullptr);
    }
    void pick(const char* caption, const char* choice)
    {
        click(caption);
        const QModelIndex index = cell(caption);
        const QPointer<QComboBox> box(qobject_cast<QComboBox*>(m_grid->indexWidget(index)));
        QVERIFY2(!box.isNull(), caption);
        const int item = box->findText(QString::fromUtf8(choice));
        box->showPopup();
        box->view()->setCurrentIndex(box->model()->index(item, 0));
        QTest::keyClick(box->view(), Qt::Key_Return);
        QTRY_VERIFY(box.isNull()); // until then the list has the focus
        QCOMPARE(shown(caption), QString::fromUtf8(choice));
    }
    void check(const char* caption)
    {
        click(caption);
        QTest::keyClick(m_grid, Qt::Key_Space);
    }
    void pickShift(const QString& name)
    {
        shifts()->setFocus();
        QTest::keyClick(shifts(), Qt::Key_Down); // opens the list
        QAbstractItemView* const list = shifts()->view();
        QTRY_VERIFY(list->isVisible());
        QTest::keyClick(list, Qt::Key_Home);
        for (int i = 0; i < 20 && list->currentIndex().data().toString() != name; ++i)
            QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCoreApplication::processEvents(); // the notice below moves the grid
        QCOMPARE(shifts()->currentText(), name);
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
        QCOMPARE(value("coord_param_id"), "EPSG:"_q + QLatin1String(code));
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

    [[nodiscard]] QString visibleText() const { return visibleTexts().join(QLatin1Char('\n')); }

    std::unique_ptr<DlgCoordParam> m_dialog;
    CoordSystemPanel* m_panel = nullptr;
    QLineEdit* m_field = nullptr;
    QTreeView* m_list = nullptr;
    QTreeView* m_grid = nullptr;
};

QTEST_MAIN(CoordSystemPanelTest)
#include "CoordSystemPanelTest.moc"
