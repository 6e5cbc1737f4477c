#pragma once

#include <QObject>
#include <QQueue>
#include <QString>

#include <atomic>
#include <functional>
#include <thread>

namespace lum {

/// How building the overviews of a file ended.
struct OverviewResult
{
    bool isBuilt = false;
    /// Why not, a sentence in the user's language that names the file; empty when it was cancelled.
    QString fault;
};

/// Builds overviews of a raster file, its reduced versions, as FILE.ovr beside it, where every
/// program looks for them. They appear as a whole or not at all, and the file stays as it is.
/// Takes about as long as reading the file twice. Any thread.
/// \param keepsGoing  is told the share that is done, 0 to 1, and answers false to cancel
[[nodiscard]] OverviewResult buildOverviews(const QString& path,
                                            const std::function<bool(double)>& keepsGoing);

/// Builds the overviews of one file after the other on a thread of its own. For the GUI thread.
///
/// The destructor cancels and waits, for a fraction of a second.
class OverviewBuilder final : public QObject
{
    Q_OBJECT

public:
    explicit OverviewBuilder(QObject* parent = nullptr);
    ~OverviewBuilder() override;

    /// Adds a file, unless it is waiting or in work already.
    void add(const QString& path);
    /// Ends the file in work and forgets those that wait. `finished` comes for each of them.
    void cancel();

    /// The file in work; empty when there is none.
    [[nodiscard]] const QString& current() const { return m_current; }
    /// How many wait behind it.
    [[nodiscard]] int waitingCount() const { return m_waiting.size(); }

Q_SIGNALS:
    void progressed(int percent); ///< of the file in work
    void finished(const QString& path, const lum::OverviewResult& result);

private:
    void startNext();
    void run(const QString& path);
    void end(const OverviewResult& result);

    QQueue<QString> m_waiting;
    QString m_current;
    std::atomic<bool> m_isCancelled = false;
    std::thread m_thread;
};

} // namespace lum
