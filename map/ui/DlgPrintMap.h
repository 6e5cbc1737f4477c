#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "map/sheet/MapSheet.h"
#include "protocol/Outcome.h"

class ChoiceBox;
class IDesktopHost;
class QCheckBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class SheetPreview;

/// Asks how the map comes on paper and shows the sheet while the user chooses; then writes a file,
/// or prints. Paper, orientation and dots to an inch are remembered in the settings.
class DlgPrintMap final : public Dialog
{
    Q_OBJECT

public:
    /// \param sheet with something to show, see `shownMap`
    /// \param view what the map window shows, map coordinates
    DlgPrintMap(IDesktopHost& host, MapSheet sheet, const QRectF& view);
    ~DlgPrintMap() override;

    /// Writes the sheet to a file that the user names. Closes the dialog when that is done.
    void saveAs();

    [[nodiscard]] const SheetPreview& preview() const { return *m_preview; }

private:
    void addFields(QFormLayout& form);
    void addButtons();
    void recall();
    void remember() const;
    /// Takes what the user has chosen into the sheet, and shows it.
    void follow();
    void print();
    /// Does the work while a progress dialog is shown, and tells how it ended.
    void run(const QString& caption, const std::function<Outcome(SheetWatch&)>& work);
    void tell(const Outcome& outcome);

    IDesktopHost& m_host;
    MapSheet m_sheet;
    QRectF m_whole; ///< the area of all data
    QRectF m_view;

    SheetPreview* m_preview;
    ChoiceBox* m_paper;
    ChoiceBox* m_orientation;
    ChoiceBox* m_area;
    QCheckBox* m_fits;
    QSpinBox* m_scale;
    QSpinBox* m_dpi;
    QLineEdit* m_title;
    QLabel* m_hint;
    QPushButton* m_save = nullptr;
    QPushButton* m_print = nullptr;
};
