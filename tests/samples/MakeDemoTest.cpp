#include "tests/support/TestFolder.h"

#include <QDir>
#include <QProcess>
#include <QtTest>

/// The script that makes a project with the demo survey, as a user would call it.
class MakeDemoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makesAProjectInAnyLanguage_data();
    void makesAProjectInAnyLanguage();
    void refusesWhatIsNoSeed();

private:
    /// \returns the exit status
    int run(const char* program, const QStringList& arguments, const char* locale)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("BUILD"), QStringLiteral(BUILD_FOLDER));
        environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QString::fromUtf8(program), arguments);
        process.waitForFinished(60000);
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }

    TestFolder m_folder;
    QString m_output;
    QByteArray m_errors;
};

void MakeDemoTest::makesAProjectInAnyLanguage_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("en_GB.UTF-8") << QStringLiteral("demo");
    QTest::newRow("zh_CN.UTF-8") << QString::fromUtf8("示例工程");
}

void MakeDemoTest::makesAProjectInAnyLanguage()
{
    QFETCH(QString, name);
    const char* const locale = QTest::currentDataTag();
    QVERIFY2(run(SCRIPT_FILE, {m_folder.path()}, locale) == 0, m_errors.constData());
    const QString project = m_output.trimmed();
    QCOMPARE(QFileInfo(project).dir().path(), m_folder.path(name));

    QVERIFY2(run(BUILD_FOLDER "/bin/skyquill-cli", {QStringLiteral("info"), project}, locale) == 0,
             m_errors.constData());
    const auto tells = [&](const char* key, const char* file) {
        const int points = TestFolder::read(m_folder.path(file)).count('\n') - 1;
        return m_output.contains(QStringLiteral("%1: %2\n").arg(QLatin1String(key)).arg(points));
    };
    QVERIFY2(tells("design_points", "csv/design.csv"), qUtf8Printable(m_output));
    QVERIFY2(tells("survey_results", "csv/survey.csv"), qUtf8Printable(m_output));
    QVERIFY(m_output.contains(QStringLiteral("coordinate_system: EPSG:32650\n")));
    QVERIFY(TestFolder::read(project).contains("\"../csv/ground.tif\""));

    QCOMPARE(run(BUILD_FOLDER "/bin/skyquill-cli", {QStringLiteral("problems"), project}, locale),
             3); // some are found
    for (const char* const kind : {"solution_type", "height_off", "wrong_name", "pole_shift"})
        QVERIFY2(m_output.contains(QLatin1String(kind)), kind);
}

void MakeDemoTest::refusesWhatIsNoSeed()
{
    const QString folder = m_folder.path("refused");
    QCOMPARE(run(BUILD_FOLDER "/bin/make_demo", {folder, QStringLiteral("one")}, "C"), 2);
    QVERIFY(!QDir(folder).exists());
}

QTEST_GUILESS_MAIN(MakeDemoTest)
#include "MakeDemoTest.moc"
