#pragma once

#include <QRectF>

#include <cstddef>
#include <cstdint>
#include <vector>

/// The room on a screen that is still free for names, so that none covers another. Places are
/// rounded up to a grid of two pixels.
class NameRoom
{
public:
    /// \param screen names that begin outside of it are not asked for; screen pixels
    explicit NameRoom(const QRectF& screen);

    /// Takes the room of a name. \returns false, and takes nothing, when a part of it is taken
    [[nodiscard]] bool take(const QRectF& name);
    /// Takes the room of something else, also where it is taken already.
    void block(const QRectF& place);

private:
    /// Some cells of one row, in one word.
    struct Part
    {
        std::uint64_t& word;
        std::uint64_t bits;
    };

    /// Calls `visit` with each part of a place until it answers false.
    /// \returns whether it never did
    template <class Visit>
    bool visitParts(const QRectF& place, const Visit& visit);

    QPointF m_corner;
    std::size_t m_columns = 0;
    std::size_t m_rows = 0;
    std::size_t m_words = 0;            ///< of a row
    std::vector<std::uint64_t> m_taken; ///< a bit a cell, row after row
};
