#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include "lum_desktop_sdkx/dialogs/ScreenFit.h"
#include "lum_sdk/DpiScale.h"

#include <QHash>
#include <QHideEvent>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

constexpr int kMargin = 12;
constexpr int kSpacing = 10;
constexpr int kCornerGap = 10;
constexpr int kCornerStep = 36; // from one dialog to the next: a title bar and its frame

QHash<QString, QSize>& rememberedSizes()
{
    static QHash<QString, QSize> sizes;
    return sizes;
}

/// The least size with which nothing in the layout is cut off.
QSize neededSize(const QLayout& layout, int width)
{
    QSize size = layout.totalMinimumSize();
    if (layout.hasHeightForWidth()) // lines of text break
        size.setHeight(layout.totalHeightForWidth(std::max(width, size.width())));
    return size;
}

bool exceeds(const QSize& size, const QSize& room)
{
    return size.width() > room.width() || size.height() > room.height();
}

/// Appends the first item of a layout to another one.
void moveFirstItem(QVBoxLayout& from, QVBoxLayout& to)
{
    const int stretch = from.stretch(0);
    std::unique_ptr<QLayoutItem> item(from.takeAt(0));
    if (item->widget() != nullptr)
        to.addWidget(item->widget(), stretch, item->alignment()); // makes an item of its own
    else if (item->layout() != nullptr)
        to.addLayout(item.release()->layout(), stretch);
    else
        to.addItem(item.release());
}

} // namespace

Dialog::Dialog(QWidget* parent) : QDialog(parent)
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Dialog::setMinimumSizeScaled(int width, int height)
{
    setMinimumSize(dpi_scaled(width), dpi_scaled(height));
}

void Dialog::setFixedSizeScaled(int width, int height)
{
    setFixedSize(dpi_scaled(width), dpi_scaled(height));
}

QVBoxLayout* Dialog::makeMainLayout()
{
    auto* const layout = new QVBoxLayout(this);
    const int margin = dpi_scaled(kMargin);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(dpi_scaled(kSpacing));
    return layout;
}

void Dialog::moveIntoCorner()
{
    const QWidget* const parent = parentWidget();
    if (parent == nullptr)
        return;
    if (layout() != nullptr) // the size that it is shown in
        resize(size().expandedTo(layout()->totalMinimumSize()));
    const int gap = dpi_scaled(kCornerGap);
    const QPoint corner = parent->mapToGlobal(parent->rect().bottomRight());
    QPoint place = corner - rect().bottomRight() - QPoint(gap, gap);
    const QPoint step(dpi_scaled(kCornerStep), dpi_scaled(kCornerStep));
    const auto others = parent->findChildren<Dialog*>();
    const auto isTaken = [&] {
        return std::any_of(others.begin(), others.end(), [&](const Dialog* other) {
            const QPoint larger = other->rect().bottomRight() - rect().bottomRight();
            const QPoint away = other->pos() + larger - place; // of the lower right corners
            return other != this && other->isVisible() &&
                   away.manhattanLength() < step.manhattanLength();
        });
    };
    while (isTaken()) // ends, since the places move away from every dialog
        place -= step;
    move(place);
}

void Dialog::rememberSize(const QString& key)
{
    m_sizeKey = key;
    const QSize size = rememberedSizes().value(key);
    if (size.isValid())
        resize(size);
}

void Dialog::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        m_hasFrame = false;
        fit();
    }
    QDialog::setVisible(visible);
}

bool Dialog::event(QEvent* event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest && isVisible() && layout() != nullptr &&
        exceeds(neededSize(*layout(), width()), desktop::largestSize(*this)))
        fit(); // it has grown
    if (event->type() == QEvent::Paint && !m_hasFrame) {
        m_hasFrame = true;
        QTimer::singleShot(0, this, &Dialog::fit); // not inside of a paint
    }
    return handled;
}

void Dialog::fit()
{
    const QSize room = desktop::largestSize(*this);
    auto* const rows = qobject_cast<QVBoxLayout*>(layout());
    if (rows != nullptr && exceeds(neededSize(*rows, std::min(width(), room.width())), room))
        scrollContent(*rows);
    if (exceeds(minimumSize(), room))
        setMinimumSize(minimumSize().boundedTo(room));
    if (exceeds(size(), room))
        resize(size().boundedTo(room));
    desktop::fitToScreen(*this);
}

void Dialog::scrollContent(QVBoxLayout& rows)
{
    if (rows.count() < 2 || m_scrolls)
        return;
    m_scrolls = true;
    const QSize wanted = rows.totalSizeHint();
    QWidget* const focused = focusWidget(); // it loses the focus when it gets another parent
    auto* const content = new QWidget;
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(rows.spacing());
    while (rows.count() > 1)
        moveFirstItem(rows, *column);
    auto* const area = new QScrollArea(this);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setWidget(content);
    rows.insertWidget(0, area, 1);
    if (focused != nullptr)
        focused->setFocus();
    const int bar = area->verticalScrollBar()->sizeHint().width();
    resize(QSize(wanted.width() + bar, wanted.height()).expandedTo(size()));
}

void Dialog::hideEvent(QHideEvent* event)
{
    if (!m_sizeKey.isEmpty() && !event->spontaneous()) // false for a window that was minimised
        rememberedSizes().insert(m_sizeKey, size());
    QDialog::hideEvent(event);
    // Some window managers lose the focus when a question and its dialog close at once.
    if (isModal() && !event->spontaneous() && parentWidget() != nullptr)
        parentWidget()->activateWindow();
}
