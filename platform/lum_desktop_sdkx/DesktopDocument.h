#pragma once

#include <QString>

/// What is open, as the title of the frame shows it.
struct DesktopDocument
{
    QString name = {}; ///< empty while nothing is open
    bool isReadOnly = false;
    bool isChanged = false; ///< has changes that are not saved
};
