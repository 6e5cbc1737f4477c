#pragma once

#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QVector>

#include <array>
#include <string_view>

class QPainter;

/// Writes many short names with one font, without laying out each of them anew.
///
/// For one thread: the one that paints.
class NameWriter
{
public:
    explicit NameWriter(const QFont& font);

    /// Draws `text` (UTF-8) from `baseline` on, screen pixels, as `QPainter::drawText` does, in the
    /// painter's pen and font, which is the writer's.
    void write(QPainter& painter, const QPointF& baseline, std::string_view text);

    /// Names of up to so many bytes reach no farther than this, screen pixels.
    [[nodiscard]] double reach(std::size_t bytes) const;

private:
    static constexpr std::size_t kLetters = 128; ///< ASCII

    /// Places the glyphs of `text` one behind the other; false when it needs a layout.
    bool place(std::string_view text);

    QRawFont m_font;
    std::array<quint32, kLetters> m_glyphs{};
    std::array<double, kLetters> m_advances{};
    double m_widest = 0;
    QVector<quint32> m_run;
    QVector<QPointF> m_places;
};
