#include "views/tables/TableCountLine.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QToolButton>

#include <utility>

namespace {

constexpr int kSideMargin = 6;
constexpr int kGap = 16; // between the counts and the note

} // namespace

TableCountLine::TableCountLine(QWidget* parent, Texts texts)
    : QWidget(parent), m_texts(std::move(texts)), m_counts(new QLabel(this)),
      m_note(new QLabel(this)), m_clear(new QToolButton(this))
{
    m_note->setTextFormat(Qt::RichText);
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a narrow window cuts it
    m_clear->setText(tr("Clear All Filters"));
    m_clear->setIcon(QIcon::fromTheme(QStringLiteral("edit-clear-all")));
    m_clear->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_clear->setAutoRaise(true);
    connect(m_clear, &QToolButton::clicked, this, &TableCountLine::clearFiltersRequested);
    connect(m_note, &QLabel::linkActivated, this, &TableCountLine::noteLinkActivated);

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(dpi_scaled(kSideMargin), 0, 0, 0);
    layout->setSpacing(dpi_scaled(kGap));
    layout->addWidget(m_counts);
    layout->addWidget(m_note, 1);
    layout->addWidget(m_clear);
    setCounts({});
}

void TableCountLine::setCounts(const Counts& counts)
{
    QString text = counts.isFiltered ? m_texts.some.arg(lum::groupedNumber(counts.shown),
                                                        lum::groupedNumber(counts.all))
                                     : m_texts.all.arg(lum::groupedNumber(counts.all));
    if (counts.selected > 0)
        text +=
            QStringLiteral("    ") + tr("Selected: %1").arg(lum::groupedNumber(counts.selected));
    m_counts->setText(text);
    m_clear->setEnabled(counts.isFiltered || m_isAboutFilters); // or an unreadable one
}

void TableCountLine::setNote(const QString& html, bool isAboutFilters)
{
    m_isAboutFilters = isAboutFilters && !html.isEmpty();
    m_note->setText(html);
}
