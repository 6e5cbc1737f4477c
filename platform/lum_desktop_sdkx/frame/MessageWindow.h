#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"

#include <QPlainTextEdit>

class IDesktopHost;

/// Shows the lines of the log, warnings and errors in colour.
class MessageWindow final : public QPlainTextEdit, public IWindowx
{
    Q_OBJECT

public:
    MessageWindow(const char* config, IDesktopHost* host);

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }

private:
    void showLines();

    basalt::Dictionary m_parameters;
};
