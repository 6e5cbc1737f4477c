#pragma once

#include <QGroupBox>

class ColumnListModel;
class QAction;
class QLabel;
class QLineEdit;
class QListView;
class QPushButton;

/// The columns of one list to check, narrow by typing, and bring into an order by drag or
/// Alt+Up/Down.
///
/// While a search text narrows the list, All and None concern the columns that are shown, and say
/// so; Default always concerns all.
class ColumnListPanel final : public QGroupBox
{
    Q_OBJECT

public:
    /// \param note what the user should know of these columns
    ColumnListPanel(const QString& title, const QString& note, ColumnListModel& columns,
                    QWidget* parent);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QLayout* makeButtons();
    QAction* addMove(const char* icon, const QString& text, const QKeySequence& key, int step);
    void narrow();
    void checkShown(bool isChecked);
    void moveCurrent(int step);
    [[nodiscard]] int nextShown(int row, int step) const;
    void tell();

    ColumnListModel& m_columns; // outlives the panel
    QLineEdit* m_search;
    QListView* m_list;
    QLabel* m_count;
    QPushButton* m_all;
    QPushButton* m_none;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
};
