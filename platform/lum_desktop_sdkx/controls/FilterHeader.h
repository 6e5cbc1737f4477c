#pragma once

#include <QHeaderView>
#include <QTimer>

#include <vector>

class QLineEdit;
class QTableView;

/// The header of a table with a row of filter fields under the captions, one a column, which keep
/// to their columns when these are moved, resized, hidden or scrolled. What a filter means is the
/// model's matter.
///
/// Escape clears a field and leaves an empty one for the table, as the down key does; Tab goes to
/// the next column that is shown.
class FilterHeader final : public QHeaderView
{
    Q_OBJECT

public:
    explicit FilterHeader(QTableView* table);

    void setModel(QAbstractItemModel* model) override;

    /// Sets what a field holds, without announcing it.
    void setFilter(int column, const QString& text);
    [[nodiscard]] QString filter(int column) const;
    /// Empties all fields, without announcing it, and takes their faults back.
    void clear();
    /// Shows a field in red, with the reason as its tool tip; an empty reason takes both back.
    void setFault(int column, const QString& reason);
    /// The tool tip of all fields without a fault.
    void setHint(const QString& hint);

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user has changed a filter: a moment ago, or he pressed Return or Escape.
    void filterEdited(int column, const QString& text);

protected:
    void updateGeometries() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeFields();
    void placeFields();
    void announce();
    void scrollTo(int column);
    void goToNext(int column, int step);
    bool handleKey(int column, int key);
    [[nodiscard]] int fieldHeight() const;

    QTableView& m_table; // its parent
    QWidget* m_strip;    ///< cuts off the fields at both ends
    std::vector<QLineEdit*> m_fields;
    std::vector<QString> m_faults;
    QString m_hint;
    QTimer m_delay;
    int m_editedColumn = -1; ///< whose change is not announced yet
};
