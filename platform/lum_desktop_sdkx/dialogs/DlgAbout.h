#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include <QStringList>

class QLabel;

/// Name and version of the program, from the system configuration, and what it is for.
class DlgAbout : public Dialog
{
    Q_OBJECT

public:
    /// \param description what the program is for, half a sentence
    /// \param libraries   name and version of each library to be named besides Qt, such as
    ///                    "SQLite 3.40.1"
    DlgAbout(QWidget* parent, const QString& description, const QStringList& libraries = {});

private:
    [[nodiscard]] QLayout* makeHead(const QString& description);
    [[nodiscard]] QLabel* makeText(const QString& text);
};
