#pragma once

#include "design/DesignFaults.h"
#include "design/ui/DesignEdit.h"

#include <QObject>

#include <optional>
#include <vector>

class IDictionary;
class NoteLabel;
class QGroupBox;
class GridStart;

/// All fields of one grid: the groups of its lines and points, and its page of the start block.
class GridForm final : public QObject
{
    Q_OBJECT

public:
    /// \param dialog the parent of the widgets, which stand in no layout yet
    GridForm(GridKind kind, QWidget* dialog);

    [[nodiscard]] GridKind kind() const { return m_kind; }
    [[nodiscard]] QGroupBox* lines() { return m_lines; }
    [[nodiscard]] QGroupBox* points() { return m_points; }
    [[nodiscard]] GridStart* start() { return m_start; }
    [[nodiscard]] DesignEdit& edit(DesignField field);

    void show(const IDictionary& parameters);
    /// Marks the fields that are at fault, and says below each group what it amounts to.
    void judge();
    /// What the last `judge` found.
    [[nodiscard]] const std::vector<DesignFault>& faults() const { return m_faults; }
    /// Nothing while there is a fault.
    [[nodiscard]] const std::optional<DesignGrid>& grid() const { return m_grid; }

    /// Writes the values, which must have no fault, as they are stored.
    void store(IDictionary& parameters) const;

Q_SIGNALS:
    /// A value is another one.
    void changed();

private:
    [[nodiscard]] QGroupBox* makeGroup(const QString& title, DesignField first, DesignField last,
                                       NoteLabel*& note, QWidget* dialog);
    void add(DesignEdit* edit);
    void markFaults();
    void writeNotes();
    void writeNote(NoteLabel& note, DesignField first, DesignField last, const QString& amount);

    GridKind m_kind;
    std::vector<DesignEdit*> m_edits;
    std::vector<QWidget*> m_labels; ///< of both groups, as wide as each other
    NoteLabel* m_linesNote = nullptr;
    NoteLabel* m_pointsNote = nullptr;
    QGroupBox* m_lines;
    QGroupBox* m_points;
    GridStart* m_start;
    std::vector<DesignFault> m_faults;
    std::optional<DesignGrid> m_grid;
};
