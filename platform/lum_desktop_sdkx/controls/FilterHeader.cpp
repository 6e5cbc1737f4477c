#include "lum_desktop_sdkx/controls/FilterHeader.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_sdk/DpiScale.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPalette>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>
#include <utility>

namespace {

constexpr int kDelayMs = 200; // from the last key to the filtered table
constexpr int kMargin = 1;

} // namespace

FilterHeader::FilterHeader(QTableView* table)
    : QHeaderView(Qt::Horizontal, table), m_table(*table), m_strip(new QWidget(this))
{
    setSectionsClickable(true); // as a table's own header
    m_delay.setSingleShot(true);
    m_delay.setInterval(kDelayMs);
    connect(&m_delay, &QTimer::timeout, this, &FilterHeader::announce);
    connect(this, &QHeaderView::sectionResized, this, &FilterHeader::placeFields);
    connect(this, &QHeaderView::sectionMoved, this, &FilterHeader::placeFields);
    connect(this, &QHeaderView::sectionCountChanged, this, &FilterHeader::makeFields);
    connect(table->horizontalScrollBar(), &QScrollBar::valueChanged, this,
            &FilterHeader::placeFields);
}

void FilterHeader::setModel(QAbstractItemModel* model)
{
    QHeaderView::setModel(model);
    makeFields();
}

void FilterHeader::setFilter(int column, const QString& text)
{
    if (column == m_editedColumn)
        m_editedColumn = -1;
    m_fields.at(static_cast<std::size_t>(column))->setText(text);
}

QString FilterHeader::filter(int column) const
{
    return m_fields.at(static_cast<std::size_t>(column))->text();
}

void FilterHeader::clear()
{
    for (int column = 0; column < count(); ++column) {
        setFilter(column, {});
        setFault(column, {});
    }
}

void FilterHeader::setFault(int column, const QString& reason)
{
    QLineEdit& field = *m_fields.at(static_cast<std::size_t>(column));
    m_faults[static_cast<std::size_t>(column)] = reason;
    QPalette palette;
    if (!reason.isEmpty())
        palette.setColor(QPalette::Text, faultText(palette));
    field.setPalette(palette);
    field.setToolTip(reason.isEmpty() ? m_hint : reason);
}

void FilterHeader::setHint(const QString& hint)
{
    m_hint = hint;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (m_faults[i].isEmpty())
            m_fields[i]->setToolTip(hint);
    }
}

QSize FilterHeader::sizeHint() const
{
    return QHeaderView::sizeHint() + QSize(0, fieldHeight());
}

int FilterHeader::fieldHeight() const
{
    constexpr int kPadding = 8; // above and below the text, together
    return fontMetrics().height() + dpi_scaled(kPadding);
}

void FilterHeader::updateGeometries()
{
    setViewportMargins(0, 0, 0, fieldHeight());
    QHeaderView::updateGeometries();
    placeFields();
}

void FilterHeader::makeFields()
{
    for (int column = static_cast<int>(m_fields.size()); column < count(); ++column) {
        auto* const field = new QLineEdit(m_strip);
        field->setPlaceholderText(QStringLiteral("…"));
        field->setToolTip(m_hint);
        field->installEventFilter(this);
        connect(field, &QLineEdit::textEdited, this, [this, column] {
            if (m_editedColumn != column)
                announce();
            m_editedColumn = column;
            m_delay.start();
        });
        connect(field, &QLineEdit::returnPressed, this, &FilterHeader::announce);
        m_fields.push_back(field);
    }
    while (static_cast<int>(m_fields.size()) > count()) {
        m_fields.back()->deleteLater();
        m_fields.pop_back();
    }
    m_faults.resize(m_fields.size());
    placeFields();
}

void FilterHeader::placeFields()
{
    const QRect captions = viewport()->geometry();
    const int height = fieldHeight();
    m_strip->setGeometry(captions.left(), captions.bottom() + 1, captions.width(), height);
    for (int column = 0; column < static_cast<int>(m_fields.size()); ++column) {
        QLineEdit& field = *m_fields[static_cast<std::size_t>(column)];
        field.setVisible(sectionSize(column) > 0); // 0 is that of a hidden one
        field.setGeometry(sectionViewportPosition(column) + kMargin, kMargin,
                          sectionSize(column) - 2 * kMargin, height - 2 * kMargin);
    }
}

void FilterHeader::announce()
{
    m_delay.stop();
    const int column = std::exchange(m_editedColumn, -1);
    if (column >= 0 && column < count())
        Q_EMIT filterEdited(column, filter(column));
}

bool FilterHeader::eventFilter(QObject* watched, QEvent* event)
{
    const auto found = std::find(m_fields.begin(), m_fields.end(), watched);
    if (found == m_fields.end())
        return QHeaderView::eventFilter(watched, event);
    const int column = static_cast<int>(found - m_fields.begin());
    if (event->type() == QEvent::FocusIn)
        scrollTo(column);
    else if (event->type() == QEvent::FocusOut && m_editedColumn == column)
        announce();
    else if (event->type() == QEvent::KeyPress)
        return handleKey(column, static_cast<QKeyEvent*>(event)->key());
    return QHeaderView::eventFilter(watched, event);
}

/// \returns whether the key has done what it has to do
bool FilterHeader::handleKey(int column, int key)
{
    switch (key) {
    case Qt::Key_Escape:
        if (filter(column).isEmpty())
            m_table.setFocus();
        m_fields[static_cast<std::size_t>(column)]->clear();
        m_editedColumn = column;
        announce();
        return true;
    case Qt::Key_Down:
        announce();
        m_table.setFocus();
        return true;
    case Qt::Key_Tab:
        goToNext(column, 1);
        return true;
    case Qt::Key_Backtab:
        goToNext(column, -1);
        return true;
    default:
        return false;
    }
}

void FilterHeader::goToNext(int column, int step)
{
    int place = visualIndex(column) + step;
    while (place >= 0 && place < count() && isSectionHidden(logicalIndex(place)))
        place += step;
    if (place >= 0 && place < count())
        m_fields[static_cast<std::size_t>(logicalIndex(place))]->setFocus(Qt::TabFocusReason);
    else
        m_table.setFocus(Qt::TabFocusReason);
}

/// Scrolls sideways until the column can be seen.
void FilterHeader::scrollTo(int column)
{
    QScrollBar& bar = *m_table.horizontalScrollBar();
    const int left = sectionPosition(column);
    const int right = left + sectionSize(column);
    const int width = viewport()->width();
    if (right > bar.value() + width)
        bar.setValue(right - width);
    if (left < bar.value())
        bar.setValue(left);
}
