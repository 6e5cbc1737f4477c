#include "views/problems/DlgAcceptProblems.h"

#include "lum_sdk/GroupedNumber.h"
#include "quality/problems/Problem.h"
#include "views/problems/ShowProblem.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidth = 460;
constexpr int kHeight = 170;
constexpr int kLongestReason = 500;

/// "1001/10015001: The design point has no result.", or "Too far from design: 3, Not surveyed: 1"
QString shown(const std::vector<const Problem*>& problems)
{
    if (problems.size() == 1) {
        const Problem& problem = *problems.front();
        const QString name = problemName(problem);
        const QString what = problem.kind->what(problem);
        return name.isEmpty() ? what : DlgAcceptProblems::tr("%1: %2").arg(name, what);
    }
    std::vector<std::pair<const ProblemKind*, int>> counts;
    for (const Problem* const problem : problems) {
        const auto found =
            std::ranges::find(counts, problem->kind, &std::pair<const ProblemKind*, int>::first);
        if (found == counts.end())
            counts.emplace_back(problem->kind, 1);
        else
            ++found->second;
    }
    QStringList texts;
    for (const auto& [kind, count] : counts)
        texts << DlgAcceptProblems::tr("%1: %2").arg(kind->captionText(),
                                                     lum::groupedNumber(count));
    return texts.join(QStringLiteral(", "));
}

} // namespace

DlgAcceptProblems::DlgAcceptProblems(QWidget* parent, const std::vector<const Problem*>& problems,
                                     const QStringList& reasons)
    : Dialog(parent), m_reason(new QComboBox(this))
{
    setWindowTitle(tr("Accept Problems"));
    auto* const what = new QLabel(shown(problems), this);
    auto* const hint =
        new QLabel(tr("They leave the list of the open problems. One comes back when "
                      "a record that it is about changes."),
                   this);
    for (QLabel* const label : {what, hint}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_reason->setEditable(true);
    m_reason->addItems(reasons);
    m_reason->setCurrentIndex(-1); // Down takes the latest
    m_reason->lineEdit()->setMaxLength(kLongestReason);
    m_reason->lineEdit()->setPlaceholderText(
        tr("such as: the stake was moved with the client's consent"));
    auto* const label = new QLabel(tr("&Reason:"), this);
    label->setBuddy(m_reason);

    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const accepts = buttons->addButton(tr("Accept"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    const auto follow = [this, accepts] { accepts->setEnabled(!reason().isEmpty()); };
    connect(m_reason, &QComboBox::editTextChanged, accepts, follow);
    follow();

    QVBoxLayout* const rows = makeMainLayout();
    for (QWidget* const widget : std::initializer_list<QWidget*>{what, hint, label, m_reason})
        rows->addWidget(widget);
    rows->addStretch(1);
    rows->addWidget(buttons);
    setMinimumSizeScaled(kWidth, kHeight);
    setMinimumHeight(std::max(minimumHeight(), rows->heightForWidth(minimumWidth())));
    m_reason->setFocus();
}

QString DlgAcceptProblems::reason() const
{
    return m_reason->currentText().trimmed();
}
