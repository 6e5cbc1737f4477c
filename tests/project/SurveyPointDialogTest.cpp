#include "project/ui/DlgSurveyPoint.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/Widgets.h"

/// The editor of a survey result, by keys and mouse.
class SurveyPointDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QLocale::setDefault(QLocale(QLocale::German));
        m_project.emplace();
        m_boxes.emplace();
        SurveyPoint& point = m_project->results().set(surveyPoint("R1", "1", "dry"));
        point.antennaHeight = 2;
        point.elevation = 123.4567;
        m_project->results().set(surveyPoint("R2", "2", "another"));
    }
    void cleanup() { m_dialog.reset(); }
    void aHigherPoleLowersTheHeightsAndSaysByHowMuch()
    {
        open("R1", "1");
        auto* const moves = m_dialog->findChild<QCheckBox*>();
        QVERIFY(moves->isChecked() && !moves->isEnabled());
        type(2, "2.2"_q);
        QVERIFY(moves->isEnabled() && says("123.4567 → 123.2567"_q));
        QTest::mouseClick(moves, Qt::LeftButton, {}, {5, moves->height() / 2});
        QVERIFY(!says("→"_q));
        QTest::mouseClick(moves, Qt::LeftButton, {}, {5, moves->height() / 2});
        type(3, "at the fence"_q);
        pressEnter();
        QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
        QCOMPARE(find("R1", "1")->elevation, 123.2567);
        QCOMPARE(find("R1", "1")->remarks, std::string("at the fence"));

        open("R1", "1");
        type(2, "2"_q);
        QTest::mouseClick(m_dialog->findChild<QCheckBox*>(), Qt::LeftButton, {}, {5, 5});
        pressEnter();
        QCOMPARE(find("R1", "1")->elevation, 123.2567);
        QCOMPARE(find("R1", "1")->antennaHeight, 2.0);
    }

    void whatItRefusesHasAReasonAndTheFocus()
    {
        open("R1", "1");
        const QList<std::pair<int, QString>> bad{
            {0, {}}, {0, "R,1"_q},    {1, "  "_q},  {1, "\"1\""_q},   {2, "ten"_q},
            {2, {}}, {2, "10.001"_q}, {2, "-11"_q}, {2, "1.80001"_q}, {3, "dry, stony"_q}};
        for (const auto& [index, text] : bad) {
            const QString before = field(index)->text();
            type(index, text);
            field(index == 0 ? 1 : 0)->setFocus();
            pressEnter();
            QCOMPARE(m_boxes->told(), QStringList("Error|Input Correct Param!"_q));
            QVERIFY(!m_boxes->last.details.isEmpty());
            QVERIFY2(field(index)->hasFocus(), qPrintable(text));
            QVERIFY(m_dialog->isVisible());
            type(index, before);
        }
        QVERIFY(!m_project->manager->isChanged());
    }

    void aCommaIsNeverReadAsNothing()
    {
        open("R1", "1");
        type(2, "1,8"_q);
        pressEnter();
        QCOMPARE(find("R1", "1")->antennaHeight, 1.8);
        QLocale::setDefault(QLocale(QLocale::English));
        open("R1", "1");
        type(2, "1,9"_q);
        pressEnter();
        QCOMPARE(find("R1", "1")->antennaHeight, 1.9);
        for (const QString& bad : {"1,8,0"_q, "1,800.0"_q, "1 8"_q}) {
            open("R1", "1");
            type(2, bad);
            pressEnter();
            QCOMPARE(m_boxes->told(), QStringList("Error|Input Correct Param!"_q));
            QCOMPARE(find("R1", "1")->antennaHeight, 1.9);
        }
    }

    void asksBeforeItReplacesAResult()
    {
        m_project->results().find("R2", "2")->surveyor = "Wang";
        open("R1", "1");
        type(0, "R2"_q);
        type(1, "2"_q);
        pressEnter();
        QCOMPARE(m_boxes->told(), QStringList("Warning|New Point Name Exist, Want to Overload?"_q));
        for (const char* part : {"R2", "point 2", "1970/01/01 08:00:00", "Wang"})
            QVERIFY2(m_boxes->last.details.contains(QString::fromUtf8(part)), part);
        QVERIFY(m_dialog->isVisible() && !m_project->manager->isChanged());
        m_boxes->answer = Boxes::Button::Yes;
        pressEnter();
        QVERIFY((m_dialog->point() == PointName{"R2", "2"}));
        QCOMPARE(find("R2", "2")->remarks, std::string("dry"));
        QVERIFY(m_project->results().findLine("R1") == nullptr);
    }

    void withoutAChangeNothingHappens()
    {
        m_project->results().set(surveyPoint("R3", "C10012034_4", "from, a database"));
        open("R3", "C10012034_4");
        QCOMPARE(field(1)->text(), "C10012034"_q);
        type(3, "from, a database "_q);
        pressEnter();
        QCOMPARE(m_dialog->result(), int(QDialog::Rejected));
        QVERIFY(!m_dialog->isVisible() && !m_project->manager->isChanged());
        open("R1", "1");
        type(0, "R9"_q);
        QTest::keyClick(field(0), Qt::Key_Escape);
        QVERIFY(!m_dialog->isVisible() && find("R1", "1") != nullptr);
        QCOMPARE(m_boxes->told(), QStringList());
    }

    void aResultThatIsGoneIsTold()
    {
        open("R1", "1");
        type(3, "too late"_q);
        m_project->results().erase("R1", "1");
        pressEnter();
        QCOMPARE(m_boxes->last.title, "Error"_q);
        QVERIFY(m_boxes->last.text.contains("R1"_q));
        QVERIFY(!m_dialog->isVisible() && m_dialog->result() == QDialog::Rejected);
        open("R1", "1");
        QVERIFY(!field(0)->isEnabled() && says("no point 1"_q));
    }

private:
    void open(const char* line, const char* number)
    {
        m_dialog = std::make_unique<DlgSurveyPoint>(nullptr, PointName{line, number});
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    /// Line, point, antenna height, remarks, from 0.
    [[nodiscard]] QLineEdit* field(int index) const
    {
        return m_dialog->findChildren<QLineEdit*>().at(index);
    }
    void type(int index, const QString& text) { typeOver(*field(index), text); }
    void pressEnter() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }
    [[nodiscard]] bool says(const QString& part) const { return ::says(*m_dialog, part); }
    const SurveyPoint* find(const char* line, const char* number)
    {
        return m_project->results().find(line, number);
    }

    std::optional<OpenProject> m_project;
    std::optional<Boxes> m_boxes;
    std::unique_ptr<DlgSurveyPoint> m_dialog;
};

QTEST_MAIN(SurveyPointDialogTest)
#include "SurveyPointDialogTest.moc"
