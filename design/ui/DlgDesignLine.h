#pragma once

#include "basalt_utilities/Dictionary.h"
#include "design/ui/DesignEdit.h"
#include "design/ui/DesignPreview.h"
#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/ui/ClosesWithProject.h"

#include <array>

class ChoiceBox;
class DesignSummary;
class GridForm;
class IDesktopHost;
class NoteLabel;
class PlacePick;
class QBoxLayout;
class QPushButton;
class QStackedWidget;
enum class DesignLines;
struct DesignFault;
struct PickedPlace;

/// Edits the parameters of the receiver and the source grid, and generates the design from them in
/// place of the whole present one. Meanwhile the map shows both grids; the dialog says their sizes,
/// what is wrong where it stands, and what will be lost.
///
/// It is not modal, so that the map can be used beside it, deletes itself when it is closed, and
/// closes when its project is closed. It is accepted when a design was generated; announcing that
/// is the caller's task.
class DlgDesignLine final : public Dialog, public IEventHandler
{
    Q_OBJECT

public:
    explicit DlgDesignLine(IDesktopHost& host);

    /// Enters an azimuth, in degrees, into the start block in view.
    void takeAzimuth(double degrees);

    void done(int result) override;
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    /// Grows when a sentence needs more lines.
    bool event(QEvent* event) override;
    /// Enter goes to the next field, or presses the button that has the focus: a design is not
    /// replaced by a key too many.
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private Q_SLOTS:
    void onBtnClicked();
    /// Shows the start block of another grid.
    void cbChanged(int index);

private:
    [[nodiscard]] QBoxLayout* makeFields();
    [[nodiscard]] QWidget* makeStartBlock();
    [[nodiscard]] QBoxLayout* makeButtons();
    [[nodiscard]] QPushButton* addButton(const QString& text, const QString& tip, QBoxLayout& row);
    void watchForms();
    void orderTabs();
    void setFormat(AzimuthFormat format);
    void takePlaces(const QVector<PickedPlace>& places);
    void refresh();
    void showOnMap(std::vector<DesignGrid> grids);
    /// \returns false, and tells why, when a value cannot be stored
    bool hasGoodFields();
    /// As the fields say.
    [[nodiscard]] basalt::Dictionary parameters() const;
    void refuse(const DesignFault& fault, bool isBadStep);
    void generate(DesignLines lines);
    [[nodiscard]] GridForm& formInView();

    IDesktopHost& m_host;             // outlives the dialog
    std::array<GridForm*, 2> m_forms; ///< of the receivers, then of the sources
    ChoiceBox* m_kinds;
    QStackedWidget* m_pages;
    DesignSummary* m_summary;
    NoteLabel* m_outcome; ///< of the next generation
    QPushButton* m_ok = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_calcR = nullptr;
    QPushButton* m_calcS = nullptr;
    QPushButton* m_cancel = nullptr;
    PlacePick* m_pick;
    DesignPreview m_preview;
    EventSubscription m_subscription;
    ClosesWithProject m_closing;
};
