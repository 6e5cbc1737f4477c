#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include <QStringList>

class QLabel;

/// Shows the name and version of the program, from the system configuration, and its purpose.
class DlgAbout : public Dialog
{
    Q_OBJECT

public:
    /// \param description the purpose of the program, half a sentence
    /// \param libraries name and version of each library besides Qt, such as "SQLite 3.40.1"
    DlgAbout(QWidget* parent, const QString& description, const QStringList& libraries = {});

private:
    [[nodiscard]] QLayout* makeHead(const QString& description);
    [[nodiscard]] QLabel* makeText(const QString& text);
};
