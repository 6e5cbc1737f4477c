#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

class QMainWindow;
class QTextBrowser;

/// The keys of a frame's commands, menu by menu, as text to be read, copied or printed. The list is
/// made from the actions as they are when the window opens. It deletes itself when it is closed.
class ShortcutsWindow final : public Dialog
{
    Q_OBJECT

public:
    explicit ShortcutsWindow(QMainWindow& frame);

private:
    void copyAll();
    void print();

    QTextBrowser* m_text;
};
