#pragma once

#include "lum_sdk/coords/EpsgDatumShift.h"

#include <QWidget>

class ChoiceBox;
class QLabel;

/// Lets the user choose one of the datum shifts that the EPSG register has for a system. A text
/// below says what it means to have none, or how little of the system's area the chosen one covers.
/// Hidden for a system that is not of the register or needs no shift.
class DatumShiftChoice : public QWidget
{
    Q_OBJECT

public:
    explicit DatumShiftChoice(QWidget* parent = nullptr);

    /// \param code such as "2436"; empty for a system that is not of the register
    void setSystem(const QString& code);

    /// Selects the shift that the parameters hold.
    void showShiftOf(const IDictionary& parameters);

Q_SIGNALS:
    /// The user has chosen a shift, or none.
    void chosen(const lum::DatumShift& shift);

private:
    [[nodiscard]] int itemOf(const lum::DatumShift& shift) const;
    [[nodiscard]] QString notice(int item) const;
    [[nodiscard]] QString noticeWithoutShift() const;
    void choose(int item);

    lum::EpsgDatumShifts m_shifts;
    QWidget* m_row;
    ChoiceBox* m_names; ///< "None", the shifts, and an item for parameters that are none of them
    QLabel* m_notice;
};
