#pragma once

#include "project/StoreResult.h"

#include <QDateTime>
#include <QLockFile>

#include <memory>

struct ProjectPlace;

/// Keeps two programs from changing one project: a file beside the database, as long as the project
/// is open. A crash does not leave it behind for good: the next program sees that its owner is
/// gone.
class ProjectLock
{
public:
    /// Gives up the lock that is held, and takes this one.
    /// \returns not done, and who has the project, when another program has it. Where the lock
    ///          cannot be written (a read-only folder, a full disk) the project can be looked at:
    ///          done, without the lock, and a message that says so.
    StoreResult take(const ProjectPlace& place);

    /// Before the project is written: takes the lock that could not be had at first.
    /// \returns not done, and why, when it cannot be had now either, or the database was changed
    ///          while this program had no lock on it
    StoreResult ensure(const ProjectPlace& place);
    void release() { m_file.reset(); }

private:
    std::unique_ptr<QLockFile> m_file; ///< null without a lock
    QDateTime m_lookedAt;              ///< when the database was last changed, without a lock
};
