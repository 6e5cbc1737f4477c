#include "design/ui/NoteLabel.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"

#include <QPalette>

namespace {

constexpr int kRounding = 2; // pixels that the height of a text may be more

} // namespace

NoteLabel::NoteLabel(int lines, QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeft);
    ensurePolished(); // has its font
    setMinimumHeight(lines * fontMetrics().lineSpacing() + kRounding);
}

void NoteLabel::say(const QString& sentence, bool isFault)
{
    QPalette colours;
    if (isFault)
        colours.setColor(QPalette::WindowText, faultText(colours));
    setPalette(colours);
    setText(sentence);
}
