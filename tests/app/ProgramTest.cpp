#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

namespace {

using Variables = std::vector<std::pair<const char*, const char*>>; // of the environment

constexpr int kStartMs =
    30000; // the sanitizers' program takes its time, on a busy machine above all
constexpr const char* kToolFolder = "程序 dir/etc/Tarvona/config/Skyquill/Tool/DataProcess5/";

} // namespace

/// The program itself, started from an installation of its own: a copy of executable and
/// configuration on a path with blanks and Chinese characters.
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TestFolder>();
        QVERIFY(QDir().mkpath(path("程序 dir/bin")));
        QVERIFY(QDir().mkpath(path("run")));
        QVERIFY(QFile::setPermissions(path("run"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        QVERIFY(QFile::copy(QStringLiteral(PROGRAM_FILE), path("程序 dir/bin/skyquill")));
        const QStringList configuration{"-r"_q, QStringLiteral(CONFIGURATION_FOLDER),
                                        path("程序 dir/etc")};
        QCOMPARE(QProcess::execute("cp"_q, configuration), 0);
    }

    void cleanup() { m_folder.reset(); }

    void answersOnTheCommandLine()
    {
        QProcess process;
        QCOMPARE(run(process, {"--startup-time"_q}), 0);
        static const QRegularExpression report("^\\d+ ms of CPU time to the shown window\n$"_q);
        QVERIFY(report.match(QString::fromUtf8(process.readAllStandardOutput())).hasMatch());

        QVERIFY(run(process, {"--no-such-option"_q}) > 0);
        QVERIFY(process.readAllStandardError().contains("no-such-option"));

        QCOMPARE(run(process, {"--components"_q}), 0);
        QStringList registered;
        while (process.canReadLine())
            registered << QString::fromUtf8(process.readLine())
                              .simplified()
                              .section(QLatin1Char(' '), 1, 1);
        QVERIFY(registered.size() > 60);
        const QString architecture = QString::fromUtf8(
            TestFolder::read(QStringLiteral(SOURCE_FOLDER "/docs/architecture.md")));
        const QString documented =
            architecture.section("\nRegistered: "_q, 1).section("\n\n"_q, 0, 0);
        static const QRegularExpression name("`(\\w+)`"_q);
        QStringList names;
        for (auto match = name.globalMatch(documented); match.hasNext();)
            names << match.next().captured(1);
        names.removeOne("SystemSettings"_q); // of none of these kinds
        names.sort();
        registered.sort();
        QCOMPARE(registered.join(QLatin1Char(' ')), names.join(QLatin1Char(' ')));
    }

    void writesAPictureOfTheWindow()
    {
        QProcess process;
        for (const Variables& variables : {Variables{}, Variables{{"LC_ALL", "C"}}}) {
            QFile::remove(path("图 picture.png"));
            const QStringList arguments{"--screenshot"_q, path("图 picture.png")};
            QCOMPARE(run(process, arguments, variables), 0);
            const QImage picture(path("图 picture.png"));
            QVERIFY(picture.width() >= 640 && picture.height() >= 400);
            // Nothing of it needs an action.
            for (const char* line : {" info No texts", " warning ", " error "})
                QVERIFY2(!log().contains(line), log().constData());
        }
    }

    void bothProgramsAnswerWithoutADisplay()
    {
        QProcessEnvironment values = environment();
        values.remove("DISPLAY"_q);
        values.remove("WAYLAND_DISPLAY"_q);
        values.remove("QT_QPA_PLATFORM"_q);
        QProcessEnvironment broken = values;
        broken.insert("DISPLAY"_q, ":no"_q);
        broken.insert("QT_QPA_PLATFORM"_q, "no such"_q);
        static const QRegularExpression version("^\\S+ \\d+\\.\\d+\\.\\d+\n$"_q);
        for (const QProcessEnvironment& used : {values, broken}) {
            for (const QString& program :
                 {path("程序 dir/bin/skyquill"), QStringLiteral(CLI_FILE)}) {
                QProcess process;
                process.setProcessEnvironment(used);
                process.start(program, {"--help"_q});
                QVERIFY(process.waitForFinished());
                QCOMPARE(process.exitStatus(), QProcess::NormalExit);
                QCOMPARE(process.exitCode(), 0);
                QCOMPARE(process.readAllStandardError(), QByteArray());
                QVERIFY(process.readAllStandardOutput().contains("--version"));
                process.start(program, {"--version"_q});
                QVERIFY(process.waitForFinished());
                QCOMPARE(process.exitCode(), 0);
                const QString answer = QString::fromUtf8(process.readAll());
                QVERIFY2(version.match(answer).hasMatch(), qUtf8Printable(answer));
            }
        }
    }

    void aSecondStartLeavesAtOnceAndHandsItsFileOver()
    {
        QCOMPARE(runCli({"new"_q, path("测区 a"), "one"_q}), 0);
        const QByteArray project = path("测区 a/one/one.kelx").toUtf8();
        QProcess first;
        start(first);
        QTRY_VERIFY_WITH_TIMEOUT(log().contains("Window shown"), kStartMs);
        QProcess second;
        QCOMPARE(run(second, {}), 0);
        second.setWorkingDirectory(path("测区 a")); // not that of the first
        second.start(path("程序 dir/bin/skyquill"), {"./one/../one/one.kelx"_q});
        QVERIFY(second.waitForFinished());
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(second.readAllStandardOutput() + second.readAllStandardError(), QByteArray());
        // The first has it open: in the list of recent projects, and locked.
        QTRY_VERIFY_WITH_TIMEOUT(
            TestFolder::read(path("config/Tarvona/Skyquill/settings.xml")).contains(project),
            kStartMs);
        QCOMPARE(runCli({"set-quality"_q, QString::fromUtf8(project), "pdop_max=3"_q}), 1);
        QCOMPARE(log().count("Window shown"), 1);

        first.kill(); // a crash leaves no lock behind
        QVERIFY(first.waitForFinished());
        QProcess third;
        QCOMPARE(run(third, {"--startup-time"_q}), 0);
        QVERIFY(third.readAllStandardOutput().contains("shown window"));
    }

    void aMissingSystemFileIsFatalAndReported()
    {
        QVERIFY(QFile::remove(toolFile("data_process_5.sys")));
        QProcess process;
        QCOMPARE(run(process, {}), -1); // the exception is caught by nobody
        const QByteArray report = "sys->getSystemParameter()->load(" +
                                  QFile::encodeName(toolFile("data_process_5.sys")) + ") fail!";
        QVERIFY2(log().contains(report), log().constData());
        QVERIFY(process.readAllStandardError().contains(report));
    }

    void aBrokenLayoutLeavesTheMap()
    {
        writeToolFile("main_frame.xml", "<main_frame>\n<menu caption=\"x\">\n<oops/>");
        QProcess process; // no message box: nobody could answer it
        QCOMPARE(run(process, {"--screenshot"_q, path("broken.png")}), 0);
        QVERIFY(QFileInfo::exists(path("broken.png")));
        QVERIFY2(log().contains("line 3: unknown element <oops>"), log().constData());
        QVERIFY(log().contains("main_frame.xml"));
    }

    void beginsASessionWhereAServerIsConfigured()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        writeToolFile(
            "data_process_5.xml",
            "<dictionary><entry key=\"countlyIP\" value=\"127.0.0.1\"/><entry key=\"countlyPort\""
            " value=\"" +
                QByteArray::number(server.serverPort()) +
                "\"/><entry key=\"countlyAppKey\" value=\"k1\"/></dictionary>");
        QProcess process;
        start(process);
        QTRY_VERIFY_WITH_TIMEOUT(server.hasPendingConnections(), kStartMs);
        QTcpSocket* const socket = server.nextPendingConnection();
        QTRY_VERIFY(socket->peek(5000).contains("\r\n\r\n"));
        const QByteArray request = socket->readAll();
        QVERIFY2(request.startsWith("GET /i?app_key=k1&device_id="), request.constData());
        QVERIFY(request.contains("2.10.190508.MARLOKTE")); // the version's default
        process.kill();
        QVERIFY(process.waitForFinished());
    }

private:
    [[nodiscard]] QString path(const char* relative) const { return m_folder->path(relative); }
    [[nodiscard]] QString toolFile(const char* name) const
    {
        return path(kToolFolder) + QString::fromUtf8(name);
    }
    void writeToolFile(const char* name, const QByteArray& content) const
    {
        QVERIFY(!m_folder->write((kToolFolder + QByteArray(name)).constData(), content).isEmpty());
    }
    void writeSettings(const char* entries) const
    {
        QVERIFY(QDir().mkpath(path("config/Tarvona/Skyquill")));
        const QByteArray text = QByteArray("<dictionary>") + entries + "</dictionary>";
        QVERIFY(!m_folder->write("config/Tarvona/Skyquill/settings.xml", text).isEmpty());
    }
    [[nodiscard]] QByteArray log() const
    {
        return TestFolder::read(path("state/Tarvona/Skyquill/skyquill.log"));
    }
    [[nodiscard]] QProcessEnvironment environment() const;
    void start(QProcess& process, const QStringList& arguments = {},
               const Variables& variables = {}) const;
    /// To its end. \returns the exit status; -1 after a crash
    int run(QProcess& process, const QStringList& arguments, const Variables& variables = {}) const;
    static int runCli(const QStringList& arguments)
    {
        return QProcess::execute(QStringLiteral(CLI_FILE), arguments);
    }

    std::unique_ptr<TestFolder> m_folder;
};

QProcessEnvironment ProgramTest::environment() const
{
    QProcessEnvironment values = QProcessEnvironment::systemEnvironment();
    values.insert("XDG_CONFIG_HOME"_q, path("config"));
    values.insert("XDG_STATE_HOME"_q, path("state"));
    values.insert("XDG_RUNTIME_DIR"_q, path("run"));
    return values;
}

void ProgramTest::start(QProcess& process, const QStringList& arguments,
                        const Variables& variables) const
{
    QProcessEnvironment values = environment();
    for (const auto& [name, value] : variables)
        values.insert(QString::fromLatin1(name), QString::fromLatin1(value));
    process.setProcessEnvironment(values);
    process.setWorkingDirectory(m_folder->path());
    process.start(path("程序 dir/bin/skyquill"), arguments);
}

int ProgramTest::run(QProcess& process, const QStringList& arguments,
                     const Variables& variables) const
{
    start(process, arguments, variables);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return -1;
    return process.exitCode();
}

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
