#pragma once

#include <QWidget>

#include <memory>

class CoordSystemCatalog;
class CoordSystemTable;
class QLabel;
class QLineEdit;
class QTreeView;

/// Searches the EPSG register while the user types: a field, and below it the list of what was
/// found. The list lies over the other widgets of the parent while the field has the focus.
///
/// The arrow keys move in the list, Enter or a click chooses, Escape clears the search. A code that
/// is not in the list is answered with the reason. The register is read at the first search.
class CoordSystemSearch : public QWidget
{
    Q_OBJECT

public:
    explicit CoordSystemSearch(QWidget* parent);
    ~CoordSystemSearch() override;

Q_SIGNALS:
    /// The user has chosen a system.
    /// \param code such as "32650"
    void chosen(const QString& code);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeList();
    void find(const QString& text);
    void tellNothing(const QString& wanted);
    void fitList();
    void choose(const QModelIndex& index);
    [[nodiscard]] bool handleKey(QKeyEvent& event);

    std::unique_ptr<CoordSystemCatalog> m_catalog; ///< null before the first search
    CoordSystemTable* m_found;
    QLineEdit* m_field;
    QTreeView* m_list;
    QLabel* m_nothing;
};
