#pragma once

#include <QLabel>

/// A sentence below fields: what they amount to, or in red what is wrong with them.
class NoteLabel final : public QLabel
{
public:
    /// \param lines for which there is always room, so that the window keeps its size
    NoteLabel(int lines, QWidget* parent);

    void say(const QString& sentence, bool isFault = false);
};
