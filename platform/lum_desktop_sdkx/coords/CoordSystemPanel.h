#pragma once

#include "basalt_utilities/Dictionary.h"

#include <QWidget>

class CoordSystemSearch;
class DatumShiftChoice;
class PropertyGridCtrl;
class QLabel;

namespace lum {
class DatumShift;
}

/// Edits the dictionary of one coordinate system. From top to bottom: a search of the EPSG
/// register, a choice of its datum shifts, a property grid of the parameters, and the fault in
/// them, if any.
///
/// Only the parameters that count are shown: those of the chosen projection, and those of a
/// correction that is switched on. A dictionary without ellipsoid and projection holds no system,
/// which is no fault.
class CoordSystemPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CoordSystemPanel(QWidget* parent = nullptr);

    /// Replaces the parameters, without `changed`.
    void setParameters(const IDictionary& parameters);

    /// The parameters with the edits, in stored form (`lum::toStoredForm`). It takes the text of an
    /// open editor first. "coord_param_id" is as it came while nothing was edited. It is
    /// "EPSG:32650" and so on for a system of the register, with one of the register's datum shifts
    /// or none, and "Undefined" for any other.
    [[nodiscard]] basalt::Dictionary parameters();

    /// True while a row holds a bad value, or the parameters make no usable system.
    [[nodiscard]] bool hasFaults();

    /// Selects the first bad value.
    void goToFault();

Q_SIGNALS:
    /// The user has entered a good value or chosen a system.
    void changed();

private:
    void choose(const QString& code);
    void takeShift(const lum::DatumShift& shift);
    void takeEdit(const QString& key, const QString& value);
    void followEllipsoid(const QString& editedKey, const QString& value);
    void show(const IDictionary& parameters);
    void showAll();
    void showRows();
    void judge();
    void showFault();
    void showIdentity();

    CoordSystemSearch* m_search;
    QLabel* m_identity;
    DatumShiftChoice* m_shift;
    PropertyGridCtrl* m_grid;
    QLabel* m_fault;
    QString m_refusal; ///< why the coordinate service refuses the parameters; mostly empty
};
