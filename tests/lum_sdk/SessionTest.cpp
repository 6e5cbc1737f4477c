#include "lum_sdk/Countly.h"
#include "lum_sdk/InstanceReceiver.h"
#include "lum_sdk/SingleInstance.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"

#include <QLocalSocket>
#include <QNetworkProxy>
#include <QProcess>
#include <QTcpServer>
#include <QtTest>

#include <csignal>
#include <thread>

namespace {

/// The other process; it is killed with the object.
struct Holder : QProcess
{
    Holder()
    {
        start(QCoreApplication::applicationFilePath(), {"hold"_q});
        isReady = waitForReadyRead() && readLine() == "free\n";
    }
    ~Holder() override
    {
        kill();
        waitForFinished();
    }
    void send(int signal) const { ::kill(static_cast<pid_t>(processId()), signal); }
    QByteArray nextLine()
    {
        while (!canReadLine() && waitForReadyRead())
            ;
        return readLine();
    }
    bool isReady = false;
};

} // namespace

/// The analytics session against a server of its own, and the lock of the single instance against
/// a second process: this program again, started with "hold", which prints what it receives.
class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsNothingWithoutAServer()
    {
        QTcpServer server; // as the proxy of this process, it would see a request to anywhere
        QVERIFY(server.listen(QHostAddress::LocalHost));
        QNetworkProxy::setApplicationProxy(
            {QNetworkProxy::HttpProxy, "127.0.0.1"_q, server.serverPort()});
        Countly session;
        session.begin("key", "1.0", "", server.serverPort());
        session.begin("key", "1.0", nullptr, server.serverPort());
        session.begin("key", "1.0", "not a host:", server.serverPort());
        QTest::qWait(100);
        QVERIFY(!server.hasPendingConnections());
        session.begin("key", "1.0", "analytics.invalid", 8081);
        QTRY_VERIFY(server.hasPendingConnections());
        QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    }

    void givesUpAServerThatDoesNotAnswer()
    {
        const LogCapture log;
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        Countly session(100);
        session.begin("key", "1.0", "127.0.0.1", server.serverPort()); // returns without an answer
        QTRY_VERIFY(log.holds("No analytics session"));
        session.begin("key", "1.0", "127.0.0.1", server.serverPort());
    } // ends with a request under way

    void aFileIsHandedToTheProcessThatHoldsTheLock()
    {
        {
            Holder first; // leaves a socket behind, as a crash does
            QVERIFY(first.isReady);
        }
        Holder holder;
        QVERIFY(holder.isReady);
        for (const char* file : {"/测区 1/a\\b.kelx", "", "/测区 1/a\\b.kelx"}) {
            QVERIFY(lum::handToInstance(holder.program(), QString::fromUtf8(file)));
            QCOMPARE(holder.nextLine(), QByteArray("got ") + file + '\n');
        }
        // What is no message, or half of one, is passed over.
        QLocalSocket stranger;
        QString path = lum::instanceFile(holder.program(), ".socket"_q);
        stranger.connectToServer(path);
        if (stranger.waitForConnected()) {
            stranger.write("GET / HTTP/1.1\r\n");
            QVERIFY(stranger.waitForBytesWritten());
        }
        QVERIFY(lum::handToInstance(holder.program(), "/after"_q));
        QCOMPARE(holder.nextLine(), QByteArray("got /after\n"));
    }

    void aProcessThatHangsGetsItsFileLater()
    {
        Holder holder;
        QVERIFY(holder.isReady);
        holder.send(SIGSTOP);
        QVERIFY(lum::handToInstance(holder.program(), "/later"_q, 200));
        holder.send(SIGCONT);
        QCOMPARE(holder.nextLine(), QByteArray("got /later\n"));
    }

    void aSecondProcessIsToldAndACrashFreesTheLock()
    {
        Holder holder;
        QVERIFY(holder.isReady);
        // By another path to the same program, only looking.
        QVERIFY(instance_is_run("./"_q + QFileInfo(holder.program()).fileName(), 0));
        QVERIFY(!instance_is_run("/another/program"_q, 0));
        holder.send(SIGKILL);
        QVERIFY(holder.waitForFinished());
        QVERIFY(!instance_is_run(holder.program(), 0));
    }

    // The last: this process has the lock then.
    void aProcessThatEndsLeavesTheLock()
    {
        Holder holder;
        QVERIFY(holder.isReady);
        holder.send(SIGSTOP);
        std::thread killer([&] {
            QThread::msleep(200);
            holder.send(SIGKILL);
        });
        QVERIFY(!lum::handToInstance(holder.program(), "/a"_q));
        killer.join();
        QVERIFY(!instance_is_run(holder.program(), 1)); // its own lock is no other instance
        QVERIFY(!Holder().isReady);
    }
};

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "hold") == 0) {
        const QString program = QString::fromLocal8Bit(argv[0]);
        const bool isTaken = instance_is_run(program, 1);
        lum::InstanceReceiver receiver(program);
        QObject::connect(&receiver, &lum::InstanceReceiver::startedAgain, [](const QString& file) {
            std::printf("got %s\n", qUtf8Printable(file));
            std::fflush(stdout);
        });
        std::puts(isTaken ? "taken" : "free");
        std::fflush(stdout);
        return QCoreApplication::exec();
    }
    SessionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SessionTest.moc"
