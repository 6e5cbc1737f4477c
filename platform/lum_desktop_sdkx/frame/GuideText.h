#pragma once

#include <QTextBrowser>
#include <QTextCursor>

#include <vector>

/// Shows a Markdown file. Pictures that are too wide for comfortable reading are made smaller.
class GuideText final : public QTextBrowser
{
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

    /// A heading of the text.
    struct Heading
    {
        int level; ///< 1 for the highest
        QString text;
        int position; ///< in the document
    };
    [[nodiscard]] std::vector<Heading> headings() const;

    /// Lets lines of commands break, so that nothing has to be scrolled sideways.
    void breakLongLines();

    /// Goes to a position, which is then the first line shown.
    void goTo(int position);

    /// Marks every place where `words` stand, and goes to the first one from the cursor on.
    /// \returns how many there are
    int findAll(const QString& words);
    /// Goes to the next place or the one before; behind the last comes the first.
    void step(bool forward);
    /// Which of the places is the one gone to, counted from 1; 0 without any.
    [[nodiscard]] int current() const { return m_current + 1; }

protected:
    QVariant loadResource(int type, const QUrl& name) override;

private:
    void goToPlace(int place);

    std::vector<QTextCursor> m_places;
    int m_current = -1;
};
