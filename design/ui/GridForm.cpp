#include "design/ui/GridForm.h"

#include "basalt_utilities/Dictionary.h"
#include "design/ui/DesignTexts.h"
#include "design/ui/GridStart.h"
#include "design/ui/NoteLabel.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>

#include <algorithm>

namespace {

constexpr int kRowGap = 3;

QString titleOf(GridKind kind, bool isOfLines)
{
    if (kind == GridKind::Receiver)
        return isOfLines ? GridForm::tr("R-Line") : GridForm::tr("R-Point");
    return isOfLines ? GridForm::tr("S-Line") : GridForm::tr("S-Point");
}

bool isWithin(DesignField field, DesignField first, DesignField last)
{
    return field >= first && field <= last;
}

} // namespace

GridForm::GridForm(GridKind kind, QWidget* dialog)
    : QObject(dialog), m_kind(kind),
      m_lines(makeGroup(titleOf(kind, true), DesignField::LineDistance, DesignField::LineDigits,
                        m_linesNote, dialog)),
      m_points(makeGroup(titleOf(kind, false), DesignField::PointDistance, DesignField::PointDigits,
                         m_pointsNote, dialog)),
      m_start(new GridStart(kind, dialog))
{
    for (DesignEdit* const edit : m_start->edits())
        add(edit);
    int width = 0;
    for (const QWidget* const label : m_labels)
        width = std::max(width, label->sizeHint().width());
    for (QWidget* const label : m_labels)
        label->setMinimumWidth(width);
    connect(&m_start->reversal(), &QCheckBox::toggled, this, &GridForm::changed);
}

QGroupBox* GridForm::makeGroup(const QString& title, DesignField first, DesignField last,
                               NoteLabel*& note, QWidget* dialog)
{
    auto* const group = new QGroupBox(title, dialog);
    auto* const form = new QFormLayout(group);
    form->setVerticalSpacing(dpi_scaled(kRowGap));
    for (const DesignParameter& parameter : designParameters()) {
        if (parameter.kind != m_kind || !isWithin(parameter.field, first, last))
            continue;
        auto* const edit = new DesignEdit(parameter, group);
        form->addRow(parameter.label(), edit);
        m_labels.push_back(form->labelForField(edit));
        add(edit);
    }
    note = new NoteLabel(2, group);
    form->addRow(note);
    return group;
}

void GridForm::add(DesignEdit* edit)
{
    m_edits.push_back(edit);
    connect(edit, &QLineEdit::textChanged, this, &GridForm::changed);
}

DesignEdit& GridForm::edit(DesignField field)
{
    return **std::ranges::find(m_edits, field,
                               [](const DesignEdit* edit) { return edit->parameter().field; });
}

void GridForm::show(const IDictionary& parameters)
{
    const auto valueOf = [&](const DesignParameter& parameter) {
        return lum::toQString(parameters.text(parameter.key, parameter.fallback));
    };
    for (DesignEdit* const edit : m_edits)
        edit->setValue(valueOf(edit->parameter()));
    m_start->reversal().setChecked(
        valueOf(designParameter(m_kind, DesignField::Reversal)).toInt() != 0);
}

void GridForm::judge()
{
    basalt::Dictionary typed;
    for (const DesignEdit* const edit : m_edits)
        typed.set(edit->parameter().key, edit->value().toStdString());
    typed.set(designParameter(m_kind, DesignField::Reversal).key,
              m_start->reversal().isChecked() ? "1" : "0");
    m_faults = faultsOf(typed, m_kind);
    m_grid.reset();
    if (m_faults.empty())
        m_grid = DesignGrid::from(typed, m_kind);
    markFaults();
    writeNotes();
}

void GridForm::markFaults()
{
    for (DesignEdit* const edit : m_edits) {
        const auto fault =
            std::ranges::find(m_faults, edit->parameter().field, &DesignFault::field);
        edit->setFault(fault == m_faults.end() ? QString() : fault->text);
    }
}

void GridForm::writeNotes()
{
    const bool hasLines = m_grid && m_grid->lineCount() > 0;
    const bool hasPoints = m_grid && m_grid->pointsALine() > 0;
    writeNote(*m_linesNote, DesignField::LineDistance, DesignField::LineDigits,
              hasLines ? DesignTexts::lines(*m_grid) : QString());
    writeNote(*m_pointsNote, DesignField::PointDistance, DesignField::PointDigits,
              hasPoints ? DesignTexts::points(*m_grid) : QString());
    writeNote(m_start->note(), DesignField::FirstLine, DesignField::Azimuth,
              m_grid ? DesignTexts::direction(*m_grid) : QString());
}

/// Says what is wrong between two fields of the table; else what their group amounts to, or why it
/// amounts to nothing.
void GridForm::writeNote(NoteLabel& note, DesignField first, DesignField last,
                         const QString& amount)
{
    const auto isHere = [&](const DesignFault& fault) {
        return isWithin(fault.field, first, last);
    };
    const auto fault = std::ranges::find_if(m_faults, isHere);
    if (fault != m_faults.end()) {
        note.say(fault->text, true);
        return;
    }
    const auto emptiness = m_grid ? emptinessOf(*m_grid) : std::nullopt;
    note.say(emptiness && isHere(*emptiness) ? emptiness->text : amount);
}

void GridForm::store(IDictionary& parameters) const
{
    for (const DesignEdit* const edit : m_edits)
        parameters.set(edit->parameter().key, storedText(edit->parameter(), edit->value()));
    parameters.set(designParameter(m_kind, DesignField::Reversal).key,
                   m_start->reversal().isChecked() ? "1" : "0");
}
