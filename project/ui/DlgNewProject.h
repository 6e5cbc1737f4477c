#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the name of a new project and for the folder in which its own folder is made. Says
/// while the user types what is wrong with either, and cannot be accepted until both are right.
class DlgNewProject final : public Dialog
{
    Q_OBJECT

public:
    explicit DlgNewProject(QWidget* parent);

    [[nodiscard]] QString projectName() const;
    [[nodiscard]] QString projectPath() const;

private:
    [[nodiscard]] QWidget* makePathRow();
    void browse();
    void judge();

    QLineEdit* m_name;
    QLineEdit* m_path;
    QLabel* m_hint;
    QPushButton* m_ok = nullptr;
};
