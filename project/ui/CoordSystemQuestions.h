#pragma once

class IDictionary;
class QWidget;

/// What is asked before a project gets a coordinate system. The safe answer is No.
namespace CoordSystemQuestions {

/// Whether a new project may begin with this system; asks only when it is none.
[[nodiscard]] bool mayBegin(QWidget* parent, const IDictionary& chosen);

/// Whether the open project may go over to another system; asks only while it holds points, and
/// only when their positions get another meaning.
[[nodiscard]] bool mayChange(QWidget* parent, const IDictionary& present,
                             const IDictionary& chosen);

} // namespace CoordSystemQuestions
