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

/// Edits one coordinate-parameter dictionary: a search of the EPSG register and a choice of its
/// datum shifts over a property grid of the parameters, and below them what keeps the system from
/// working.
///
/// Only the parameters that count are shown: those of the chosen projection, and those of a
/// correction while it is switched on. A system without ellipsoid and projection is not set, which
/// is no fault.
class CoordSystemPanel : public QWidget
{
    Q_OBJECT

public:
    explicit CoordSystemPanel(QWidget* parent = nullptr);

    /// Shows these parameters in place of those before; `changed` is not sent.
    void setParameters(const IDictionary& parameters);

    /// What came in, with the edits in place, in stored form (`lum::toStoredForm`).
    /// "coord_param_id" stays as it came while nothing was edited, is "EPSG:32650" and the like for
    /// a system as the register has it, with any of the datum shifts on offer or none, otherwise
    /// "Undefined". Takes the open editor's text first.
    [[nodiscard]] basalt::Dictionary parameters();

    /// True while a bad value stands in a row, or the parameters describe no coordinate system.
    [[nodiscard]] bool hasFaults();

    /// Selects the first bad value.
    void goToFault();

Q_SIGNALS:
    /// The user entered a good value or chose a system.
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
    void showIdentity();

    CoordSystemSearch* m_search;
    QLabel* m_identity;
    DatumShiftChoice* m_shift;
    PropertyGridCtrl* m_grid;
    QLabel* m_fault;
    bool m_isUsable = true; ///< the coordinate service takes the parameters, or none are set
};
