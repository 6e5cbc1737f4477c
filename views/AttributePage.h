#pragma once

#include "basalt_utilities/Dictionary.h"

#include <QWidget>

class PropertyGridCtrl;
class QAction;
class QLabel;

/// The attributes of one kind of point in a property grid, or why that cannot be shown.
class AttributePage final : public QWidget
{
    Q_OBJECT

public:
    /// \param controlFile  the name of the file, without folder and suffix
    AttributePage(const QString& controlFile, QWidget* parent);

    /// Shows another point. A bad edit of the one before is dropped.
    void showPoint(const basalt::Dictionary& values);
    /// Shows new values of the same point. Where they are as before, a bad edit stays.
    void update(const basalt::Dictionary& values);
    /// Enters what is being typed.
    void commit();

    /// Marks an edit that is not taken over; empty key for none.
    void refuse(const QString& key, const QString& reason);

    [[nodiscard]] PropertyGridCtrl& grid() { return *m_grid; }

Q_SIGNALS:
    /// The user has entered another value than the one shown, which the control file allows.
    void edited(const QString& key, const QString& value);

private:
    void takeEdit(const QString& key, const QString& value);
    void restore(const QString& key);
    void dropBadEdits();
    void tellFault();

    QString m_file;
    PropertyGridCtrl* m_grid;
    QLabel* m_problem;           ///< why there is no grid
    QLabel* m_fault;             ///< what is wrong with the topmost bad edit
    QAction* m_drop;             ///< Escape, while there is a bad edit
    basalt::Dictionary m_values; ///< of the point, as they were shown last
    QString m_refused;           ///< the row with an edit that was not taken over
};
