#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "map/ui/PlacePick.h"

#include <array>
#include <vector>

class IDesktopHost;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

/// Computes azimuth and length from a start to a destination, which are typed or clicked on the
/// map, and hands the azimuth to the dialog of the design lines.
///
/// It is not modal and touches no data of the project. Closing it hides it: what was typed is there
/// again the next time.
class CountAzimuthDlg final : public Dialog, private IEventHandler
{
    Q_OBJECT

public:
    explicit CountAzimuthDlg(IDesktopHost& host);

private Q_SLOTS:
    /// Of "Calculate" and "Clear".
    void pbClicked();
    /// Writes the azimuth in the form that is chosen now.
    void rbClicked();

private:
    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    [[nodiscard]] QGroupBox* makePlace(const QString& title, std::size_t first);
    [[nodiscard]] QGroupBox* makeType();
    [[nodiscard]] QLayout* makeResult();
    [[nodiscard]] QLayout* makeButtons();
    void orderTabs();
    /// \param first of the coordinates that it fills
    [[nodiscard]] QPushButton* makePick(const QString& text, std::size_t first, int clicks);
    void pick(QPushButton* button, std::size_t first, int clicks);
    void takePlaces(const QVector<PickedPlace>& places);
    /// Enables what is possible now, and names the unit of the open project.
    void showState();
    void onInput();
    void clearResult();
    /// Marks what is no coordinate and says so. \returns the first such field; null without one
    QLineEdit* judge();
    void say(const QString& sentence, bool isFault);
    /// What a sentence calls a field.
    [[nodiscard]] QString nameOf(std::size_t coordinate) const;
    [[nodiscard]] bool isFilled() const;
    void calculate();
    void handOver();
    [[nodiscard]] lum::AngleFormat format() const;

    IDesktopHost& m_host; // outlives the dialog
    /// North and east of the start, then of the destination.
    std::array<QLineEdit*, 4> m_coordinates{};
    std::array<QGroupBox*, 2> m_places{};
    QRadioButton* m_dms = nullptr;
    lum::AngleFormat m_shownFormat = lum::AngleFormat::DegreesMinutesSeconds; ///< of the azimuth
    QLineEdit* m_azimuth;
    QLineEdit* m_length;
    QLabel* m_unit;
    QLabel* m_note;
    QPushButton* m_calculate = nullptr;
    QPushButton* m_clear = nullptr;
    QPushButton* m_handOver = nullptr;
    std::vector<QPushButton*> m_picks;
    std::size_t m_firstPicked = 0; ///< of the coordinates that the pick under way fills
    PlacePick m_pick;
    EventSubscription m_subscription;
};
