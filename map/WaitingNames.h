#pragma once

#include <QPointF>
#include <QRectF>

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

class NameWriter;
class QPainter;
class QPen;

/// Names of a picture that are written in the end, where neither a more important one nor a mark
/// stands and the whole name can be seen.
class WaitingNames
{
public:
    struct Name
    {
        QPointF baseline; ///< where it begins, screen pixels
        std::string_view text;
        const QPen* pen = nullptr;
        std::uint32_t rank = 0; ///< 0 is the most important, may cover marks and be cut;
                                ///< it has a white edge, to be readable on them
    };

    /// Text and pen must stay until `write`.
    void add(const Name& name) { m_names.push_back(name); }
    /// \param place of a mark, screen pixels
    void keepFree(const QRectF& place) { m_marks.push_back(place); }

    /// Writes the names by rank, of one rank in the order in which they came.
    /// \param screen what can be seen, screen pixels
    /// \param around larger than the screen: all of them begin in it
    /// \param isStopped true ends it; called often
    void write(QPainter& painter, NameWriter& writer, const QRectF& screen, const QRectF& around,
               const std::function<bool()>& isStopped);

private:
    std::vector<Name> m_names;
    std::vector<QRectF> m_marks;
};
