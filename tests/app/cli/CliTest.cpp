#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

/// The tool itself, as a script would call it.
class CliTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void makesAProjectAndTellsAboutIt();
    void takesASystemByItsParameters();
    void refuses_data();
    void refuses();
    void helpNamesEveryCommand();

private:
    /// Runs the tool in the temporary folder. \returns its exit status
    int run(const QStringList& arguments)
    {
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(QStringLiteral(PROGRAM_FILE), arguments);
        process.waitForFinished(60000);
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    [[nodiscard]] QString told(const char* key) const
    {
        for (const QString& line : m_output.split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String(key) + QStringLiteral(": ")))
                return line.mid(int(qstrlen(key)) + 2);
        }
        return QStringLiteral("(no line \"%1\")").arg(QLatin1String(key));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_output;
    QString m_errors;
};

void CliTest::makesAProjectAndTellsAboutIt()
{
    QCOMPARE(run({QStringLiteral("new"), QStringLiteral("."), QStringLiteral("测区 1"),
                  QStringLiteral("--epsg"), QStringLiteral("32650")}),
             0);
    QCOMPARE(m_errors, QString());
    const QString file = m_output.trimmed();
    QCOMPARE(file, m_folder->filePath(QStringLiteral("测区 1/测区 1.kelx")));
    QCOMPARE(run({QStringLiteral("info"), file}), 0);
    QCOMPARE(m_errors, QString());
    QCOMPARE(told("project"), QStringLiteral("测区 1"));
    QCOMPARE(told("coordinate_system"), QStringLiteral("EPSG:32650"));
    QCOMPARE(told("projection"), QStringLiteral("UTM"));
    QCOMPARE(told("design_points"), QStringLiteral("0"));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("测区 1/测区 1.db.lock"))));
}

void CliTest::takesASystemByItsParameters()
{
    QCOMPARE(run({QStringLiteral("new"), m_folder->path(), QStringLiteral("a"),
                  QStringLiteral("--set"), QStringLiteral("ellipsoid_a=6378245"),
                  QStringLiteral("ellipsoid_f=298.3"), QStringLiteral("project_type=1"),
                  QStringLiteral("org_lon=114"), QStringLiteral("false_east=500000")}),
             0);
    QCOMPARE(run({QStringLiteral("info"), m_output.trimmed()}), 0);
    QCOMPARE(told("projection"), QStringLiteral("Transverse Mercator"));
}

void CliTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("why");
    const auto row = [](const char* name, const char* arguments, int status, const char* why) {
        QTest::newRow(name) << QString::fromUtf8(arguments).split(QLatin1Char(' '),
                                                                  Qt::SkipEmptyParts)
                            << status << QString::fromUtf8(why);
    };
    row("no command", "", 2, "no command");
    row("unknown command", "frobnicate", 2, "frobnicate");
    row("too few arguments", "new .", 2, "usage: skyquill-cli new");
    row("unknown option", "info a --all", 2, "--all");
    row("option without value", "new . a --epsg", 2, "--epsg");
    row("both systems", "new . a --epsg 32650 --set org_lon=1", 2, "exclude");
    row("impossible name", "new . a.b", 1, "\".\"");
    row("missing folder", "new missing a", 1, "missing");
    row("unknown system", "new . a --epsg 999999", 1, "999999");
    row("unknown parameter", "new . a --set colour=1", 1, "colour");
    row("impossible parameter", "new . a --set ellipsoid_a=x ellipsoid_f=298 project_type=1", 1,
        "ellipsoid_a");
    row("missing project", "info missing.kelx", 1, "missing.kelx");
}

void CliTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, why);
    QCOMPARE(run(arguments), status);
    QVERIFY2(m_errors.contains(why), qPrintable(m_errors));
    QCOMPARE(m_errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(m_output, QString());
    QVERIFY2(QDir(m_folder->path()).isEmpty(), "something was made");
}

void CliTest::helpNamesEveryCommand()
{
    QCOMPARE(run({QStringLiteral("--help")}), 0);
    for (const char* command : {"new DIR NAME", "info PROJECT"})
        QVERIFY(m_output.contains(QLatin1String(command)));
}

QTEST_GUILESS_MAIN(CliTest)
#include "CliTest.moc"
