#pragma once

#include <QObject>

#include <vector>

class CustomTableWidget;
class QSplitter;

/// The widths of the table beside the plot and of the table's columns. The user's settings keep
/// those that he has given with the mouse.
class StatisticsWidths final : public QObject
{
    Q_OBJECT

public:
    /// \param areas holds the table and the plot
    StatisticsWidths(QSplitter& areas, CustomTableWidget& table);

    /// To be called when there are other columns.
    void fit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void read();
    void store();

    QSplitter& m_areas;
    CustomTableWidget& m_table;
    QObject* m_handle; ///< between the areas; also compared while these are destroyed
    /// The table's share of the width in thousandths, then of each column the pixels at 100 %; 0
    /// where the user has given none.
    std::vector<int> m_widths;
    bool m_isDragging = false; ///< the mouse is down on the captions
};
