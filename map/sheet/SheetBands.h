#pragma once

#include <functional>

class QImage;
struct MapSheet;
struct SheetLayout;
struct SheetWatch;

/// 80 MB; A3 at 300 dots to an inch is one band. More of them would be painted more often, fewer
/// would take longer to be cancelled.
inline constexpr int kDotsABand = 20'000'000;

/// Paints the map of a sheet, without its frame, in bands from top to bottom: a map on large paper
/// would not fit into memory as one image. The bands together are the picture that one image would
/// be.
/// \param take gets a band and its first row of dots; false ends it
/// \param dots the most that a band may have; there is a row at least
/// \returns false when it was ended, cancelled, or when there is not enough memory
bool paintBands(const MapSheet& sheet, const SheetLayout& layout, SheetWatch& watch,
                const std::function<bool(const QImage& band, int row)>& take,
                int dots = kDotsABand);
