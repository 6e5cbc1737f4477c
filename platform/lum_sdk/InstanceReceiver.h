#pragma once

#include <QObject>

class QLocalServer;
class QLocalSocket;

namespace lum {

/// Receives what later starts of the program hand over to the process that holds the lock of
/// `instance_is_run`.
class InstanceReceiver final : public QObject
{
    Q_OBJECT

public:
    /// The log says so when nothing can be received.
    /// \param program  as for `instance_is_run`
    explicit InstanceReceiver(const QString& program, QObject* parent = nullptr);

Q_SIGNALS:
    /// The program was started again; `file` is empty when no file was named.
    void startedAgain(const QString& file);

private:
    void read(QLocalSocket& socket);

    QLocalServer* m_server;
};

constexpr int kHandOverMs = 5000;

/// Hands a file, or an empty text, to the process that holds the lock. When that process is busy
/// for longer than `patienceMs`, it gets the file once it has time.
/// \returns false when that process has ended without taking it; this one has the lock now
[[nodiscard]] bool handToInstance(const QString& program, const QString& file,
                                  int patienceMs = kHandOverMs);

} // namespace lum
