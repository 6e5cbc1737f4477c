#include "lum_sdk/Countly.h"
#include "lum_sdk/SingleInstance.h"
#include "tests/support/LogCapture.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkProxy>
#include <QProcess>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>
#include <QUrl>
#include <QUrlQuery>

#include <csignal>

/// The analytics session against a server of its own, and the lock of the single instance against
/// a second process: this program again, started with "hold".
class SessionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void beginsWithOneRequest();
    void sendsNothingWithoutAServer();
    void givesUpAServerThatDoesNotAnswer();
    void aSecondProcessIsToldAndACrashFreesTheLock();
};

namespace {

/// The first line of the next request, which is answered; nothing when none comes.
QString nextRequest(QTcpServer& server)
{
    if (!QTest::qWaitFor([&] { return server.hasPendingConnections(); }))
        return {};
    QTcpSocket* const socket = server.nextPendingConnection();
    if (!QTest::qWaitFor([&] { return socket->peek(10000).contains("\r\n\r\n"); }))
        return {};
    const QByteArray line = socket->readLine().trimmed();
    socket->write("HTTP/1.1 200 OK\r\nContent-Length: 2\r\nConnection: close\r\n\r\n{}");
    return QString::fromLatin1(line);
}

} // namespace

void SessionTest::beginsWithOneRequest()
{
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    Countly session;
    session.begin("key & co", "1.0", "127.0.0.1", server.serverPort());

    const QString line = nextRequest(server);

    const QStringList words = line.split(QLatin1Char(' '));
    QCOMPARE(words.value(0), QStringLiteral("GET"));
    const QUrl url(words.value(1));
    QCOMPARE(url.path(), QStringLiteral("/i"));
    const QUrlQuery query(url);
    const auto item = [&](const char* name) {
        return query.queryItemValue(QLatin1String(name), QUrl::FullyDecoded);
    };
    QCOMPARE(item("app_key"), QStringLiteral("key & co"));
    QCOMPARE(item("begin_session"), QStringLiteral("1"));
    QVERIFY(item("device_id").size() >= 32);
    const auto metrics = QJsonDocument::fromJson(item("metrics").toUtf8()).object();
    QCOMPARE(metrics.value(QStringLiteral("_app_version")).toString(), QStringLiteral("1.0"));
    QTest::qWait(50);
    QVERIFY(!server.hasPendingConnections());
}

void SessionTest::sendsNothingWithoutAServer()
{
    QTcpServer server; // as the proxy of this process, it would see a request to anywhere
    QVERIFY(server.listen(QHostAddress::LocalHost));
    QNetworkProxy::setApplicationProxy(
        {QNetworkProxy::HttpProxy, QStringLiteral("127.0.0.1"), server.serverPort()});
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

void SessionTest::givesUpAServerThatDoesNotAnswer()
{
    const LogCapture log;
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress::LocalHost));
    Countly session(100);
    session.begin("key", "1.0", "127.0.0.1", server.serverPort()); // returns without an answer
    QTRY_VERIFY(log.holds("No analytics session"));
    session.begin("key", "1.0", "127.0.0.1", server.serverPort());
} // ends with a request under way

void SessionTest::aSecondProcessIsToldAndACrashFreesTheLock()
{
    QProcess holder;
    holder.start(QCoreApplication::applicationFilePath(), {QStringLiteral("hold")});
    QVERIFY(holder.waitForReadyRead());
    QCOMPARE(holder.readLine().trimmed(), QByteArray("free"));

    // By another path to the same program, only looking.
    QVERIFY(instance_is_run(QStringLiteral("./") + QFileInfo(holder.program()).fileName(), 0));
    QVERIFY(!instance_is_run(QStringLiteral("/another/program"), 0));

    ::kill(static_cast<pid_t>(holder.processId()), SIGKILL);
    QVERIFY(holder.waitForFinished());
    QVERIFY(!instance_is_run(holder.program(), 1));
    QVERIFY(!instance_is_run(holder.program(), 1)); // its own lock is no other instance
}

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    if (argc > 1 && qstrcmp(argv[1], "hold") == 0) {
        std::puts(instance_is_run(QString::fromLocal8Bit(argv[0]), 1) ? "taken" : "free");
        std::fflush(stdout);
        return QCoreApplication::exec();
    }
    SessionTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "SessionTest.moc"
