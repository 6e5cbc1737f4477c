#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include <QStringList>

class QLabel;

/// Name, version and purpose of the program, from the system configuration.
class DlgAbout : public Dialog
{
    Q_OBJECT

public:
    /// \param libraries  name and version of each library to be named besides Qt, such as
    ///                   "SQLite 3.40.1"
    explicit DlgAbout(QWidget* parent, const QStringList& libraries = {});

private:
    [[nodiscard]] QLayout* makeHead();
    [[nodiscard]] QLabel* makeText(const QString& text);
};
