#pragma once

#include "lum_sdk/coords/EpsgDatumShift.h"

#include <QWidget>

class QComboBox;
class QLabel;

/// Offers the datum shifts that the EPSG register has for a system, by name; below, what it means
/// when there is none. Hidden for a system that is not the register's or is on WGS 84 itself.
class DatumShiftChoice : public QWidget
{
    Q_OBJECT

public:
    explicit DatumShiftChoice(QWidget* parent = nullptr);

    /// \param code  such as "2436"; empty for a system that is not the register's
    void setSystem(const QString& code);

    /// Shows which one the parameters hold, if any of these.
    void showShiftOf(const IDictionary& parameters);

Q_SIGNALS:
    /// The user picked one, or none.
    void chosen(const lum::DatumShift& shift);

private:
    [[nodiscard]] int itemOf(const lum::DatumShift& shift) const;
    [[nodiscard]] QString noticeWithoutShift() const;
    void choose(int item);

    lum::EpsgDatumShifts m_shifts;
    QWidget* m_row;
    QComboBox* m_names; ///< none, the shifts in their order, and parameters that are none of these
    QLabel* m_notice;
};
