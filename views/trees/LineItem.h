#pragma once

#include <QTreeWidgetItem>

class QIcon;

/// An item of a tree of lines: one line, or one of those above the lines, which tell a count.
class LineItem final : public QTreeWidgetItem
{
public:
    enum class Kind
    {
        Root = 1,
        Line = 2,
        SourceGroup = 3,
        ReceiverGroup = 4
    };

    // What an item tells besides its text.
    static constexpr int kKindRole = Qt::UserRole;           ///< `Kind` as a number
    static constexpr int kLineNumberRole = Qt::UserRole + 1; ///< of a line
    static constexpr int kValueRole = Qt::UserRole + 2;      ///< of a line: what its tree says
    static constexpr int kCountRole = Qt::UserRole + 3;      ///< of the others: how many lines

    /// \param caption translated, with "%1" for the count, which is 0 at first
    LineItem(Kind kind, const QString& caption, const QIcon& icon);

    struct Line
    {
        QString number;
        QString text;
        int value;
        /// Describes the line with this number, when the user rests the cursor on it.
        QString (*description)(const QString& number);
    };
    LineItem(const Line& line, const QIcon& icon);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] bool isLine() const { return m_kind == Kind::Line; }
    [[nodiscard]] const QString& lineNumber() const { return m_lineNumber; }
    void setCount(int count);

    [[nodiscard]] QVariant data(int column, int role) const override;

private:
    Kind m_kind;
    QString m_caption;
    QString m_lineNumber;
    QString (*m_description)(const QString& number) = nullptr;
};
