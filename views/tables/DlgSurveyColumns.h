#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

class ColumnListModel;
class IEventManager;

/// Chooses the columns that the survey table shows and those that are exported, each list with its
/// order.
class DlgSurveyColumns final : public Dialog
{
    Q_OBJECT

public:
    DlgSurveyColumns(QWidget* parent, IEventManager& events);

    /// Stores both lists in the settings and publishes "ON_SURVEY_COLUMNS_CHANGED".
    void accept() override;

private:
    IEventManager& m_events; // outlives the dialog
    ColumnListModel* m_table;
    ColumnListModel* m_export;
};
