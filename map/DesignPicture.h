#pragma once

class DesignMarks;
class QColor;
class QPainter;
struct PictureFrame;

struct DesignPictureOptions
{
    double spacing = 10; ///< the smallest of the design, in the unit of the grid
    bool showsReceiverLines = true;
    bool showsSourceLines = true;
    /// A line's number is left out where it would cover another one: nobody zooms into paper.
    bool numbersNeedRoom = false;
};

/// Paints the design: its lines, and their points and labels where there is room for them.
///
/// A line has the colour of its type, and covers the lines before it. Where points stand less than
/// 10 logical pixels apart, a line is one straight segment. From 80 logical pixels on, points are
/// labelled. Blocks of marks out of sight are skipped by their bounds.
void paintDesign(const DesignMarks& marks, const PictureFrame& frame,
                 const DesignPictureOptions& options, QPainter& painter);

/// The colour of the lines and points of a type, see `DesignPoint::type`.
[[nodiscard]] QColor designColor(int type);
