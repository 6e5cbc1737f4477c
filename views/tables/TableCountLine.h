#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

/// The line under a point table: how many points are shown and selected, what the user has to know
/// about them, and a button that clears all filters.
class TableCountLine final : public QWidget
{
    Q_OBJECT

public:
    explicit TableCountLine(QWidget* parent);

    struct Counts
    {
        int shown = 0;
        int all = 0; ///< before the filter
        int selected = 0;
        bool isFiltered = false;
    };
    void setCounts(const Counts& counts);

    /// \param html may have a link; empty for none
    void setNote(const QString& html);

Q_SIGNALS:
    void clearFiltersRequested();
    void noteLinkActivated();

private:
    QLabel* m_counts;
    QLabel* m_note;
    QToolButton* m_clear;
};
