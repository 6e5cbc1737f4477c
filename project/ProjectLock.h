#pragma once

#include "protocol/Outcome.h"

#include <QDateTime>
#include <QLockFile>

#include <memory>

struct ProjectPlace;

/// Keeps two programs from changing one project: a file beside the database, as long as the project
/// is open. After a crash the file stays, but the next program sees that its owner has ended, and
/// takes it over.
class ProjectLock
{
public:
    /// Gives up the lock that is held, and takes that of `place`.
    /// \returns failed, naming the other program, when one has the project. Where the lock cannot
    ///          be written (a read-only folder, a full disk) the project can still be looked at:
    ///          done without the lock, with a notice that says so.
    [[nodiscard]] Outcome take(const ProjectPlace& place);

    /// Before the project is written: takes the lock if `take` could not write it.
    /// \returns failed when it cannot be had now either, when the database was changed while this
    ///          program had no lock, or when the folder is gone
    [[nodiscard]] Outcome ensure(const ProjectPlace& place);
    void release() { m_file.reset(); }
    [[nodiscard]] bool isHeld() const { return m_file != nullptr; }

private:
    std::unique_ptr<QLockFile> m_file; ///< null without a lock
    QDateTime m_lookedAt; ///< without a lock: the time of the database's last change at `take`
};
