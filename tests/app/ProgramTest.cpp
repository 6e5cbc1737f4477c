#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QtTest>

/// The program itself, started from an installation of its own: a copy of executable and
/// configuration on a path with blanks and Chinese characters.
class ProgramTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void reportsItsStartUpTime();
    void writesAPictureOfTheWindow();
    void aSecondInstanceLeavesSilentlyAtOnce();
    void aMissingSystemFileIsFatalAndReported();
    void aBrokenLayoutLeavesTheMap();
    void beginsASessionWhereAServerIsConfigured();
    void worksInThePlainLocale();
    void listsItsComponents();
    void refusesUnknownOptions();

private:
    [[nodiscard]] QString path(const char* relative) const
    {
        return m_folder->filePath(QString::fromUtf8(relative));
    }
    [[nodiscard]] QString toolFile(const char* name) const
    {
        return path("程序 dir/etc/Tarvona/config/Skyquill/Tool/DataProcess5/") +
               QString::fromUtf8(name);
    }
    void prepare(QProcess& process) const;
    [[nodiscard]] QByteArray log() const;
    static void replace(const QString& file, const QByteArray& content);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void ProgramTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir().mkpath(path("程序 dir/bin")));
    QVERIFY(QDir().mkpath(path("run")));
    QVERIFY(
        QFile::setPermissions(path("run"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(QFile::copy(QStringLiteral(PROGRAM_FILE), path("程序 dir/bin/skyquill")));
    const QDir from(QStringLiteral(CONFIGURATION_FOLDER));
    QDirIterator files(from.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString source = files.next();
        const QString target = path("程序 dir/etc/") + from.relativeFilePath(source);
        QVERIFY(QDir().mkpath(QFileInfo(target).path()));
        QVERIFY(QFile::copy(source, target));
    }
}

void ProgramTest::cleanup()
{
    m_folder.reset();
}

void ProgramTest::prepare(QProcess& process) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path("config"));
    environment.insert(QStringLiteral("XDG_STATE_HOME"), path("state"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), path("run"));
    process.setProcessEnvironment(environment);
    process.setProgram(path("程序 dir/bin/skyquill"));
    process.setWorkingDirectory(m_folder->path());
}

QByteArray ProgramTest::log() const
{
    QFile file(path("state/Tarvona/Skyquill/skyquill.log"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void ProgramTest::replace(const QString& file, const QByteArray& content)
{
    QFile target(file);
    QVERIFY(target.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(target.write(content), content.size());
}

void ProgramTest::reportsItsStartUpTime()
{
    QProcess process;
    prepare(process);
    process.setArguments({QStringLiteral("--startup-time")});
    process.start();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    static const QRegularExpression report(
        QStringLiteral("^\\d+ ms of CPU time to the shown window\n$"));
    QVERIFY(report.match(QString::fromUtf8(process.readAllStandardOutput())).hasMatch());
}

void ProgramTest::writesAPictureOfTheWindow()
{
    QProcess process;
    prepare(process);
    process.setArguments({QStringLiteral("--screenshot"), path("图 picture.png")});
    process.start();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    const QImage picture(path("图 picture.png"));
    QVERIFY(picture.width() >= 640 && picture.height() >= 400);
}

void ProgramTest::aSecondInstanceLeavesSilentlyAtOnce()
{
    QProcess first;
    prepare(first);
    first.start();
    QTRY_VERIFY(log().contains("Window shown"));

    QProcess second;
    prepare(second);
    second.start();
    QVERIFY(second.waitForFinished());
    QCOMPARE(second.exitCode(), 0);
    QCOMPARE(second.readAllStandardOutput() + second.readAllStandardError(), QByteArray());
    QCOMPARE(log().count("Window shown"), 1);

    first.kill(); // a crash leaves no lock behind
    QVERIFY(first.waitForFinished());
    QProcess third;
    prepare(third);
    third.setArguments({QStringLiteral("--startup-time")});
    third.start();
    QVERIFY(third.waitForFinished());
    QVERIFY(third.readAllStandardOutput().contains("shown window"));
}

void ProgramTest::aMissingSystemFileIsFatalAndReported()
{
    QVERIFY(QFile::remove(toolFile("data_process_5.sys")));
    QProcess process;
    prepare(process);
    process.start();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::CrashExit); // the exception is caught by nobody
    const QByteArray report = "sys->getSystemParameter()->load(" +
                              QFile::encodeName(toolFile("data_process_5.sys")) + ") fail!";
    QVERIFY2(log().contains(report), log().constData());
    QVERIFY(process.readAllStandardError().contains(report));
}

void ProgramTest::aBrokenLayoutLeavesTheMap()
{
    replace(toolFile("main_frame.xml"), "<main_frame>\n<menu caption=\"x\">\n<oops/>");
    QProcess process;
    prepare(process);
    process.setArguments({QStringLiteral("--screenshot"), path("broken.png")});
    process.start();
    QVERIFY(process.waitForFinished()); // nobody is asked where nobody can answer
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(QFileInfo::exists(path("broken.png")));
    QVERIFY2(log().contains("line 3: unknown element <oops>"), log().constData());
    QVERIFY(log().contains("main_frame.xml"));
}

void ProgramTest::beginsASessionWhereAServerIsConfigured()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    replace(toolFile("data_process_5.xml"),
            "<dictionary><entry key=\"countlyIP\" value=\"127.0.0.1\"/><entry key=\"countlyPort\""
            " value=\"" +
                QByteArray::number(server.serverPort()) +
                "\"/><entry key=\"countlyAppKey\" value=\"k1\"/></dictionary>");
    QProcess process;
    prepare(process);
    process.start();
    QTRY_VERIFY(server.hasPendingConnections());
    QTcpSocket* const socket = server.nextPendingConnection();
    QTRY_VERIFY(socket->peek(5000).contains("\r\n\r\n"));
    const QByteArray request = socket->readAll();
    QVERIFY2(request.startsWith("GET /i?app_key=k1&device_id="), request.constData());
    QVERIFY(request.contains("2.10.190508.MARLOKTE")); // the version's default
    process.kill();
    QVERIFY(process.waitForFinished());

    QProcess orderly; // leaves with the request under way
    prepare(orderly);
    orderly.setArguments({QStringLiteral("--startup-time")});
    orderly.start();
    QTRY_COMPARE(orderly.state(), QProcess::NotRunning);
    QCOMPARE(orderly.exitStatus(), QProcess::NormalExit);
    QCOMPARE(orderly.exitCode(), 0);
    QVERIFY(server.hasPendingConnections());
}

void ProgramTest::worksInThePlainLocale()
{
    QProcess process;
    prepare(process);
    QProcessEnvironment environment = process.processEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    process.setProcessEnvironment(environment);
    process.setArguments({QStringLiteral("--screenshot"), path("图 C.png")});
    process.start();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(QFileInfo::exists(path("图 C.png")));
    QVERIFY2(!log().contains("error"), log().constData());
}

void ProgramTest::listsItsComponents()
{
    QProcess process;
    prepare(process);
    process.setArguments({QStringLiteral("--components")});
    process.start();
    QVERIFY(process.waitForFinished());
    const QString list = QString::fromUtf8(process.readAllStandardOutput());
    const auto has = [&](const char* pattern) {
        return list.contains(QRegularExpression(QString::fromUtf8(pattern)));
    };
    QVERIFY(has("IGuiAssistant +DataProcess5 +助手\n"));
    QVERIFY(has("IWindow +ProgressStatusBarForSkyquill +Progress\n"));
    QVERIFY(has("ICommandExecuterx +AboutCommand +关于\n"));
}

void ProgramTest::refusesUnknownOptions()
{
    QProcess process;
    prepare(process);
    process.setArguments({QStringLiteral("--no-such-option")});
    process.start();
    QVERIFY(process.waitForFinished());
    QVERIFY(process.exitCode() != 0);
    QVERIFY(process.readAllStandardError().contains("no-such-option"));
}

QTEST_GUILESS_MAIN(ProgramTest)
#include "ProgramTest.moc"
