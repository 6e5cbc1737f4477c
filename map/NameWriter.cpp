#include "map/NameWriter.h"

#include <QPainter>
#include <QString>

#include <algorithm>

namespace {
constexpr unsigned char kFirstLetter = 32;
constexpr unsigned char kLastLetter = 126;
constexpr int kLongestRun = 64; // bytes; longer texts are rare and left to the painter
} // namespace

NameWriter::NameWriter(const QFont& font)
    : m_font(QRawFont::fromFont(font)), m_metrics(font), m_run(kLongestRun), m_places(kLongestRun)
{
    QString letters;
    for (unsigned char letter = kFirstLetter; letter <= kLastLetter; ++letter)
        letters.append(QLatin1Char(static_cast<char>(letter)));
    const QVector<quint32> glyphs = m_font.glyphIndexesForString(letters);
    const QVector<QPointF> advances = m_font.advancesForGlyphIndexes(glyphs);
    for (int i = 0; i < letters.size() && i < glyphs.size() && i < advances.size(); ++i) {
        m_glyphs[kFirstLetter + static_cast<std::size_t>(i)] = glyphs[i];
        m_advances[kFirstLetter + static_cast<std::size_t>(i)] = advances[i].x();
    }
}

void NameWriter::write(QPainter& painter, const QPointF& baseline, std::string_view text)
{
    if (!place(text)) {
        painter.drawText(baseline, QString::fromUtf8(text.data(), static_cast<int>(text.size())));
        return;
    }
    QGlyphRun run;
    run.setRawFont(m_font);
    run.setRawData(m_run.constData(), m_places.constData(), static_cast<int>(text.size()));
    painter.drawGlyphRun(baseline, run);
}

bool NameWriter::place(std::string_view text)
{
    if (text.size() > static_cast<std::size_t>(kLongestRun))
        return false;
    double x = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto letter = static_cast<unsigned char>(text[i]);
        if (letter >= kLetters || m_glyphs[letter] == 0) // not ASCII, or not in this font
            return false;
        m_run[static_cast<int>(i)] = m_glyphs[letter];
        m_places[static_cast<int>(i)] = QPointF(x, 0);
        x += m_advances[letter];
    }
    return true;
}

QRectF NameWriter::area(const QPointF& baseline, std::string_view text) const
{
    double width = 0;
    for (const char each : text) {
        const auto letter = static_cast<unsigned char>(each);
        if (letter >= kLetters || m_glyphs[letter] == 0) {
            width = m_metrics.horizontalAdvance(
                QString::fromUtf8(text.data(), static_cast<int>(text.size())));
            break;
        }
        width += m_advances[letter];
    }
    return {baseline.x(), baseline.y() - m_metrics.ascent(), width, m_metrics.height()};
}

double NameWriter::reach(std::size_t bytes) const
{
    return m_metrics.maxWidth() * static_cast<double>(bytes + 1);
}
