#pragma once

#include "design/DesignFields.h"

#include <QLineEdit>

/// How an azimuth is typed. The numbers are the places in the box of the formats.
enum class AzimuthFormat
{
    Degrees = 0,
    DegreesMinutesSeconds = 1,
};

/// The field of one parameter of a grid, red while its text is at fault.
class DesignEdit final : public QLineEdit
{
public:
    /// \param parameter of the table, any but a switch
    DesignEdit(const DesignParameter& parameter, QWidget* parent);

    [[nodiscard]] const DesignParameter& parameter() const { return m_parameter; }

    /// Shows a value of the design parameters: a number without exponent and without zeros at its
    /// end, any other text as it stands.
    void setValue(const QString& value);
    /// What was typed, as the design parameters have it: an azimuth as dd.mmss. A text with a fault
    /// is left as it is.
    [[nodiscard]] QString value() const;

    /// For an azimuth: the angle stays, its text changes.
    void setFormat(AzimuthFormat format);

    /// The tip is the fault, or what the field is for.
    void setFault(const QString& sentence);

private:
    const DesignParameter& m_parameter;
    QString m_hint;
    AzimuthFormat m_format = AzimuthFormat::DegreesMinutesSeconds;
};
