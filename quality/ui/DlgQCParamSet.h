#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/dialogs/Dialog.h"

class IDictionary;
class ProblemLimitsPage;
class PropertyGridCtrl;
class QTabWidget;

/// Edits the quality parameters in memory; the next save of the project writes them. Closing the
/// window without OK discards the edits. The limits of the problems stand on a page of their own.
/// Limits that contradict each other, and a minus that does not count, are told in their rows, and
/// allowed. When the rows cannot be shown, the dialog says why, and OK changes nothing.
class DlgQCParamSet final : public Dialog
{
    Q_OBJECT

public:
    /// \param parameters  outlives the dialog
    DlgQCParamSet(QWidget* parent, IDictionary& parameters);

private Q_SLOTS:
    /// Applies the edits and closes. When a value is bad or the resurvey code is not allowed, the
    /// user is told and the dialog stays open.
    void onBtnClicked();

private:
    void setUpGrid();
    [[nodiscard]] QWidget* makeChecksPage();
    [[nodiscard]] QWidget* makeProblem(const QString& controlFile);
    /// Shows the topmost bad value. \returns whether there is one
    [[nodiscard]] bool showFault();
    void writeNotes();

    IDictionary& m_parameters;
    basalt::Dictionary m_shown; ///< the parameters as the rows show them
    PropertyGridCtrl* m_grid;
    ProblemLimitsPage* m_problems;
    QTabWidget* m_pages;
};
