#pragma once

#include "project/StoreResult.h"

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
    /// \returns not done, and who has the project, when another program has it. In a folder that
    ///          cannot be written there is nothing to keep apart: done, with a message that says
    ///          so.
    StoreResult take(const ProjectPlace& place);

    void release() { m_file.reset(); }

private:
    std::unique_ptr<QLockFile> m_file; ///< null without a lock
};
