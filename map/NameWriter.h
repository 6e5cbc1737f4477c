#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QRawFont>
#include <QRectF>
#include <QVector>

#include <array>
#include <string_view>

class QPainter;

/// Writes many short names in one font.
///
/// Kept beside `QPainter::drawText`, which lays out each text anew and so takes much longer; the
/// picture tests compare the two. A writer is made and used on the thread that paints.
class NameWriter
{
public:
    explicit NameWriter(const QFont& font);

    /// Draws `text` (UTF-8) as `QPainter::drawText` does, from `baseline` (screen pixels) on. The
    /// painter's font must be the writer's.
    void write(QPainter& painter, const QPointF& baseline, std::string_view text);

    /// The rectangle that `write` draws in, screen pixels.
    [[nodiscard]] QRectF area(const QPointF& baseline, std::string_view text) const;

    /// The greatest width of a name of this many bytes, screen pixels.
    [[nodiscard]] double reach(std::size_t bytes) const;

private:
    static constexpr std::size_t kLetters = 128; ///< ASCII

    /// Places the glyphs of `text` one behind the other.
    /// \returns false when the text must be left to `QPainter::drawText`
    bool place(std::string_view text);

    QRawFont m_font;
    std::array<quint32, kLetters> m_glyphs{};
    std::array<double, kLetters> m_advances{};
    QFontMetricsF m_metrics;
    QVector<quint32> m_run;
    QVector<QPointF> m_places;
};
