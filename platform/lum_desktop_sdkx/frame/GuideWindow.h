#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

class GuideText;
class QLabel;
class QLineEdit;
class QListWidget;

/// A window to read a Markdown file in, beside the program: the headings on the left, a field to
/// find words above. It deletes itself when it is closed.
class GuideWindow final : public Dialog
{
    Q_OBJECT

public:
    GuideWindow(QWidget* parent, const QString& title, const QString& file);

private:
    [[nodiscard]] QLayout* makeFindRow();
    [[nodiscard]] QWidget* makeBody();
    void listHeadings();
    void findWords();
    void step(bool forward);
    void tellPlace();

    GuideText* m_text;
    QListWidget* m_headings;
    QLineEdit* m_words;
    QLabel* m_place; ///< "3 of 12"
    int m_count = 0;
};
