#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

class IDictionary;
class PropertyGridCtrl;

/// Edits the quality parameters in memory; the next save of the project writes them. Closing the
/// window without OK discards the edits.
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
    IDictionary& m_parameters;
    PropertyGridCtrl* m_grid;
};
