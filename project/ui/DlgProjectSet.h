#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include <functional>

class CoordSystemPanel;
class IDesktopHost;
class IDictionary;
class PropertyGridCtrl;
class QLabel;
class QListWidget;
class QStackedWidget;

/// The settings of a project: a page for general information and one for the coordinate system.
/// Shows a project dictionary (ProjectFile.h) and changes it when the user applies. While a value
/// is bad, applying shows that value instead.
class DlgProjectSet final : public Dialog
{
    Q_OBJECT

public:
    /// \param project  outlives the dialog
    DlgProjectSet(IDesktopHost& host, IDictionary& project);

    /// Shows the general information without letting the user change it, and says why: it would be
    /// stored nowhere. Nothing is done for an empty reason.
    void setInformationReadOnly(const QString& reason);

    /// What is asked when the user applies: whether the coordinate system may be this one. With a
    /// no the dialog stays open, on the page of the system.
    using SystemQuestion = std::function<bool(const IDictionary& coordSystem)>;
    void setSystemQuestion(SystemQuestion question) { m_question = std::move(question); }

    /// Applies: writes the values back and announces the change.
    void accept() override;

Q_SIGNALS:
    /// The dictionary holds the new values; the events have not been published yet.
    void applied();

private:
    void addPage(const QString& name, const QString& caption, const QString& icon, QWidget* page);
    [[nodiscard]] QWidget* makeGeneralPage();
    [[nodiscard]] QWidget* makeCoordPage();
    /// Brings the first bad value into view. \returns whether there is one
    bool showFault();
    void writeBack();

    IDesktopHost& m_host;
    IDictionary& m_project;
    SystemQuestion m_question;
    QListWidget* m_pages;
    QStackedWidget* m_stack;
    QLabel* m_reason = nullptr;
    PropertyGridCtrl* m_general = nullptr;
    CoordSystemPanel* m_coordSystem = nullptr;
};
