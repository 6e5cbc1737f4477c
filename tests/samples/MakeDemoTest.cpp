#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
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
    int run(const QString& program, const QStringList& arguments, const QString& locale)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("BUILD"), QStringLiteral(BUILD_FOLDER));
        environment.insert(QStringLiteral("LC_ALL"), locale);
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(program, arguments);
        process.waitForFinished(60000);
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    /// \returns how many points a file of the demo has
    [[nodiscard]] int pointsIn(const char* name) const
    {
        QFile file(m_folder.filePath(QStringLiteral("csv/") + QLatin1String(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll().count('\n') - 1 : -1;
    }

    QTemporaryDir m_folder;
    QString m_output;
    QByteArray m_errors;
};

void MakeDemoTest::makesAProjectInAnyLanguage_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("name");
    QTest::newRow("English") << QStringLiteral("en_GB.UTF-8") << QStringLiteral("demo");
    QTest::newRow("Chinese") << QStringLiteral("zh_CN.UTF-8") << QString::fromUtf8("示例工程");
}

void MakeDemoTest::makesAProjectInAnyLanguage()
{
    QFETCH(QString, locale);
    QFETCH(QString, name);
    const QString script = QStringLiteral(SCRIPT_FILE);
    QVERIFY2(run(script, {m_folder.path()}, locale) == 0, m_errors.constData());
    const QString project = m_output.trimmed();
    QCOMPARE(QFileInfo(project).dir().path(), m_folder.filePath(name));

    const QString tool = QStringLiteral(BUILD_FOLDER "/bin/skyquill-cli");
    QVERIFY2(run(tool, {QStringLiteral("info"), project}, locale) == 0, m_errors.constData());
    const QString design = QStringLiteral("design_points: %1\n").arg(pointsIn("design.csv"));
    const QString survey = QStringLiteral("survey_results: %1\n").arg(pointsIn("survey.csv"));
    QVERIFY2(m_output.contains(design) && m_output.contains(survey), qUtf8Printable(m_output));
    QVERIFY(m_output.contains(QStringLiteral("coordinate_system: EPSG:32650\n")));
}

void MakeDemoTest::refusesWhatIsNoSeed()
{
    const QString folder = m_folder.filePath(QStringLiteral("refused"));
    const QString program = QStringLiteral(BUILD_FOLDER "/bin/make_demo");
    QCOMPARE(run(program, {folder, QStringLiteral("one")}, QStringLiteral("C")), 2);
    QVERIFY(!QDir(folder).exists());
}

QTEST_GUILESS_MAIN(MakeDemoTest)
#include "MakeDemoTest.moc"
