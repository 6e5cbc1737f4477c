#pragma once

#include <QObject>

#include <string>
#include <vector>

class CustomTableWidget;
class QSplitter;

/// The widths of the window's parts: of the kinds and of the table's columns. The user's settings
/// keep those that he has given with the mouse. The sentences get what the other columns leave.
class ProblemWidths final : public QObject
{
    Q_OBJECT

public:
    /// \param areas  holds the kinds and the table, which has its model
    ProblemWidths(QSplitter& areas, CustomTableWidget& table);

    /// To be called when rows have come or there is another width in all.
    void fit();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void read();
    void store();

    QSplitter& m_areas;
    CustomTableWidget& m_table;
    QObject* m_handle; ///< between the areas; also compared while these are destroyed
    /// At 100 %, pixels: of the kinds, then of each column; 0 where the user has given none.
    std::vector<int> m_widths;
    bool m_isDragging = false; ///< the mouse is down on the captions
};
