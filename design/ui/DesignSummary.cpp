#include "design/ui/DesignSummary.h"

#include "design/ui/DesignTexts.h"
#include "design/ui/GridForm.h"
#include "design/ui/NoteLabel.h"

#include <QVBoxLayout>

namespace {

void describe(const GridForm& form, NoteLabel& note)
{
    if (!form.grid()) {
        note.say(form.faults().front().text, true);
        return;
    }
    const auto emptiness = emptinessOf(*form.grid());
    note.say(emptiness ? emptiness->text : DesignTexts::size(*form.grid()));
}

} // namespace

DesignSummary::DesignSummary(QWidget* parent)
    : QWidget(parent), m_receivers(new NoteLabel(2, this)), m_sources(new NoteLabel(2, this)),
      m_bins(new NoteLabel(2, this))
{
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    for (NoteLabel* const note : {m_receivers, m_sources, m_bins})
        rows->addWidget(note);
}

void DesignSummary::show(const GridForm& receivers, const GridForm& sources)
{
    describe(receivers, *m_receivers);
    describe(sources, *m_sources);
    m_bins->say(receivers.grid() && sources.grid()
                    ? DesignTexts::bins(*receivers.grid(), *sources.grid())
                    : QString());
}
