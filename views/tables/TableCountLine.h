#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

/// The line under a table: how many of its things are shown and selected, what the user has to know
/// about them, and a button that clears all filters.
class TableCountLine final : public QWidget
{
    Q_OBJECT

public:
    /// What is counted, translated.
    struct Texts
    {
        QString all;  ///< "Points: %1"
        QString some; ///< "Points: %1 of %2"
    };
    TableCountLine(QWidget* parent, Texts texts);

    struct Counts
    {
        int shown = 0;
        int all = 0; ///< before the filter
        int selected = 0;
        bool isFiltered = false;
    };
    void setCounts(const Counts& counts);

    /// \param html           may have a link; empty for none
    /// \param isAboutFilters clearing these ends it
    void setNote(const QString& html, bool isAboutFilters = true);

Q_SIGNALS:
    void clearFiltersRequested();
    void noteLinkActivated();

private:
    const Texts m_texts;
    QLabel* m_counts;
    QLabel* m_note;
    QToolButton* m_clear;
    bool m_isAboutFilters = false;
};
