#pragma once

#include <QWidget>

class GridForm;
class NoteLabel;

/// What both grids amount to: their sizes in numbers, or what is wrong, and their bins.
class DesignSummary final : public QWidget
{
public:
    explicit DesignSummary(QWidget* parent);

    void show(const GridForm& receivers, const GridForm& sources);

private:
    NoteLabel* m_receivers;
    NoteLabel* m_sources;
    NoteLabel* m_bins;
};
