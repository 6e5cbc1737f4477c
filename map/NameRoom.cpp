#include "map/NameRoom.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kCell = 2;          // pixels
constexpr std::size_t kBits = 64;    // of a word
constexpr double kMostCells = 16384; // along a side; more than any picture has

std::size_t cellsOf(double pixels)
{
    return static_cast<std::size_t>(std::clamp(std::ceil(pixels / kCell), 1.0, kMostCells));
}

} // namespace

NameRoom::NameRoom(const QRectF& screen)
    : m_corner(screen.topLeft()), m_columns(cellsOf(screen.width())),
      m_rows(cellsOf(screen.height())), m_words((m_columns + kBits - 1) / kBits),
      m_taken(m_words * m_rows)
{
}

template <class Visit>
bool NameRoom::visitParts(const QRectF& place, const Visit& visit)
{
    const QRectF own = place.translated(-m_corner);
    const auto cell = [](double pixels, std::size_t cells) {
        return static_cast<std::size_t>(
            std::clamp(std::floor(pixels / kCell), 0.0, static_cast<double>(cells - 1)));
    };
    const std::size_t left = cell(own.left(), m_columns);
    const std::size_t right = cell(own.right(), m_columns);
    const std::size_t bottom = cell(own.bottom(), m_rows);
    constexpr std::uint64_t kAll = ~std::uint64_t(0);
    for (std::size_t row = cell(own.top(), m_rows); row <= bottom; ++row) {
        for (std::size_t word = left / kBits; word <= right / kBits; ++word) {
            const std::uint64_t from = word == left / kBits ? kAll << (left % kBits) : kAll;
            const std::uint64_t to =
                word == right / kBits ? kAll >> (kBits - 1 - right % kBits) : kAll;
            if (!visit(Part{m_taken[row * m_words + word], from & to}))
                return false;
        }
    }
    return true;
}

bool NameRoom::take(const QRectF& name)
{
    const bool isFree =
        visitParts(name, [](const Part& part) { return (part.word & part.bits) == 0; });
    if (isFree)
        block(name);
    return isFree;
}

void NameRoom::block(const QRectF& place)
{
    visitParts(place, [](const Part& part) {
        part.word |= part.bits;
        return true;
    });
}
