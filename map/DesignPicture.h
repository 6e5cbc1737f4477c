#pragma once

class DesignMarks;
class QPainter;
struct PictureFrame;

struct DesignPictureOptions
{
    double spacingM = 10; ///< the smallest of the design's spacings
    bool showsReceiverLines = true;
    bool showsSourceLines = true;
};

/// Paints the design: lines with their points and labels as far as there is room for them.
///
/// A line has the colour of its type and covers those before it. Where points lie closer than 10
/// pixels (of the screen's resolution), a line is one straight segment; from 80 pixels on points
/// are labelled. What cannot be seen costs a look at its bounds.
void paintDesign(const DesignMarks& marks, const PictureFrame& frame,
                 const DesignPictureOptions& options, QPainter& painter);
