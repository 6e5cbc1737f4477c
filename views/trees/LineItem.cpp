#include "views/trees/LineItem.h"

#include <QIcon>

namespace {

constexpr int kToolTipWidth = 60; // characters

/// A long name has no blanks at which a tool tip could break it.
QString inShortLines(const QString& name)
{
    QString broken;
    for (int place = 0; place < name.size(); place += kToolTipWidth) {
        if (place > 0)
            broken += QLatin1Char('\n');
        broken += name.midRef(place, kToolTipWidth);
    }
    return broken;
}

} // namespace

LineItem::LineItem(Kind kind, const QString& caption, const QIcon& icon)
    : m_kind(kind), m_caption(caption)
{
    setIcon(0, icon);
    setData(0, kKindRole, static_cast<int>(kind));
    setCount(0);
}

LineItem::LineItem(const Line& line, const QIcon& icon)
    : m_kind(Kind::Line), m_lineNumber(line.number), m_description(line.description)
{
    setIcon(0, icon);
    setText(0, line.text);
    setData(0, kKindRole, static_cast<int>(Kind::Line));
    setData(0, kLineNumberRole, line.number);
    setData(0, kValueRole, line.value);
}

void LineItem::setCount(int count)
{
    setText(0, m_caption.arg(count));
    setData(0, kCountRole, count);
}

QVariant LineItem::data(int column, int role) const
{
    if (role != Qt::ToolTipRole || m_description == nullptr)
        return QTreeWidgetItem::data(column, role);
    // As rich text a name with "<" would lose its end.
    const QString plain = inShortLines(text(0)) + QLatin1Char('\n') + m_description(m_lineNumber);
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(plain.toHtmlEscaped());
}
