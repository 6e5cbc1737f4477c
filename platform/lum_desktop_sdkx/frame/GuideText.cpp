#include "lum_desktop_sdkx/frame/GuideText.h"

#include "lum_sdk/DpiScale.h"

#include <QImage>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace {

constexpr int kPictureWidth = 620;  // logical pixels
constexpr int kBesidePicture = 300; // the list of headings and the margins

} // namespace

std::vector<GuideText::Heading> GuideText::headings() const
{
    std::vector<Heading> found;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level > 0)
            found.push_back({level, block.text(), block.position()});
    }
    return found;
}

void GuideText::breakLongLines()
{
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format = block.blockFormat();
        if (!format.nonBreakableLines())
            continue;
        format.setNonBreakableLines(false);
        QTextCursor(block).setBlockFormat(format);
    }
}

void GuideText::goTo(int position)
{
    QTextCursor cursor(document());
    cursor.setPosition(position);
    setTextCursor(cursor);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
}

int GuideText::findAll(const QString& words)
{
    m_places.clear();
    QList<QTextEdit::ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(QColor(0xFF, 0xE0, 0x80));
    format.setForeground(Qt::black);
    QTextCursor at = words.isEmpty() ? QTextCursor() : document()->find(words);
    for (; !at.isNull(); at = document()->find(words, at)) {
        m_places.push_back(at);
        marks.append({at, format});
    }
    setExtraSelections(marks);
    const int from = textCursor().selectionStart();
    const auto next = std::find_if(m_places.begin(), m_places.end(), [from](const auto& place) {
        return place.selectionStart() >= from;
    });
    m_current = -1;
    if (!m_places.empty())
        goToPlace(next == m_places.end() ? 0 : static_cast<int>(next - m_places.begin()));
    return static_cast<int>(m_places.size());
}

void GuideText::step(bool forward)
{
    const int count = static_cast<int>(m_places.size());
    if (count > 0)
        goToPlace((m_current + (forward ? 1 : count - 1)) % count);
}

void GuideText::goToPlace(int place)
{
    m_current = place;
    setTextCursor(m_places[static_cast<std::size_t>(place)]);
    ensureCursorVisible();
}

QVariant GuideText::loadResource(int type, const QUrl& name)
{
    QVariant content = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource)
        return content;
    QImage picture = QImage::fromData(content.toByteArray());
    const int room = window()->width() - dpi_scaled(kBesidePicture);
    const int shown = std::min({picture.width(), dpi_scaled(kPictureWidth), room});
    const int pixels = qRound(shown * devicePixelRatioF());
    if (picture.width() > pixels)
        picture = picture.scaledToWidth(pixels, Qt::SmoothTransformation);
    if (shown > 0)
        picture.setDevicePixelRatio(double(picture.width()) / shown);
    return picture;
}
