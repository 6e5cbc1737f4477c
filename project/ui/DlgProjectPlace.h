#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "project/ProjectPlace.h"

class QLabel;
class QLineEdit;
class QPushButton;

/// Asks for the name of a project and for the folder in which its own folder is made. Says while
/// the user types what is wrong with either, and cannot be accepted until both are right. For a bad
/// name it proposes a good one, which a click or Enter takes.
class DlgProjectPlace : public Dialog
{
    Q_OBJECT

public:
    /// \param ready  says where the project will be; its folder stands for "%1"
    DlgProjectPlace(QWidget* parent, const QString& title, const QString& ready);

    void setName(const QString& name);
    /// Refuses the folder of a project that must stay as it is.
    void keepApartFrom(const ProjectPlace& other);

    [[nodiscard]] ProjectPlace place() const;

private:
    /// What is wrong with the input, and the name that would be right.
    struct Fault
    {
        QString text;
        QString proposal;
    };

    void prepareProposal();
    [[nodiscard]] QWidget* makePathRow();
    void browse();
    [[nodiscard]] QString name() const;
    [[nodiscard]] QString location() const;
    [[nodiscard]] Fault fault() const;
    void judge();

    QString m_ready;
    QString m_otherFolder; ///< empty when every folder is right
    QLineEdit* m_name;
    QLineEdit* m_path;
    QLabel* m_hint;
    QPushButton* m_proposal;
    QPushButton* m_ok = nullptr;
};
