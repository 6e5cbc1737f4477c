#include "lum_sdk/InstanceReceiver.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/SingleInstance.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <unistd.h>

#include <algorithm>

namespace lum {

namespace {

constexpr auto kFormat = QDataStream::Qt_5_15;
constexpr int kLongestPath = 90; // of the 107 bytes that a socket's path can have
constexpr qint64 kMostBytes = 65536;
constexpr int kPauseMs = 50;

QString socketPath(const QString& program)
{
    QString path = instanceFile(program, QStringLiteral(".socket"));
    if (path.toLocal8Bit().size() <= kLongestPath)
        return path;
    const auto hash = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha1).toHex();
    return QStringLiteral("/tmp/%1.socket").arg(QString::fromLatin1(hash));
}

/// Sends the file and waits until it is taken. \returns false when it is not
bool send(const QString& program, const QString& file, int patienceMs)
{
    const QString path = socketPath(program);
    if (QFileInfo(path).ownerId() != ::getuid()) // also when there is none
        return false;
    QElapsedTimer clock;
    clock.start();
    const auto left = [&] { return std::max(1, patienceMs - static_cast<int>(clock.elapsed())); };
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(left()))
        return false;
    QDataStream stream(&socket);
    stream.setVersion(kFormat);
    stream << file;
    while (socket.bytesToWrite() != 0 && socket.waitForBytesWritten(left()))
        ;
    return socket.waitForReadyRead(left());
}

} // namespace

InstanceReceiver::InstanceReceiver(const QString& program, QObject* parent)
    : QObject(parent), m_server(new QLocalServer(this))
{
    const QString path = socketPath(program);
    QLocalServer::removeServer(path); // a crash has left it: the lock is ours
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(*socket); });
        }
    });
    if (!m_server->listen(path))
        basalt::logInfo("A second start will not show this window: " + path.toStdString() + ": " +
                        m_server->errorString().toStdString());
}

void InstanceReceiver::read(QLocalSocket& socket)
{
    QDataStream stream(&socket);
    stream.setVersion(kFormat);
    stream.startTransaction();
    QString file;
    stream >> file;
    if (!stream.commitTransaction()) { // the rest has still to come
        if (socket.bytesAvailable() > kMostBytes)
            socket.abort();
        return;
    }
    socket.putChar('+');
    socket.flush();
    Q_EMIT startedAgain(file);
}

bool handToInstance(const QString& program, const QString& file, int patienceMs)
{
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < patienceMs) {
        if (send(program, file, patienceMs - static_cast<int>(clock.elapsed())))
            return true;
        if (!instance_is_run(program, 1))
            return false;
        QThread::msleep(kPauseMs); // it may be about to listen, or about to end
    }
    basalt::logInfo("The running program does not answer a second start");
    return true;
}

} // namespace lum
