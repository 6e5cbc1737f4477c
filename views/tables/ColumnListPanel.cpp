#include "views/tables/ColumnListPanel.h"

#include "lum_sdk/DpiScale.h"
#include "views/tables/ColumnListModel.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

ColumnListPanel::ColumnListPanel(const QString& title, const QString& note,
                                 ColumnListModel& columns, QWidget* parent)
    : QGroupBox(title, parent), m_columns(columns), m_search(new QLineEdit(this)),
      m_list(new QListView(this)), m_count(new QLabel(this)), m_all(new QPushButton(this)),
      m_none(new QPushButton(this))
{
    m_search->setPlaceholderText(tr("Search columns"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_list->setModel(&m_columns);
    m_list->setDragDropMode(QAbstractItemView::InternalMove);
    m_list->setDefaultDropAction(Qt::MoveAction);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setMinimumSize(dpi_scaled(220), dpi_scaled(80));
    m_list->setCurrentIndex(m_columns.index(0));

    auto* const top = new QHBoxLayout;
    top->addWidget(m_search, 1);
    m_up = addMove("go-up", tr("Move up"), QKeySequence(QStringLiteral("Alt+Up")), -1);
    m_down = addMove("go-down", tr("Move down"), QKeySequence(QStringLiteral("Alt+Down")), 1);
    for (QAction* const action : {m_up, m_down}) {
        auto* const button = new QToolButton(this);
        button->setDefaultAction(action);
        top->addWidget(button);
    }
    auto* const noteLabel = new QLabel(note, this);
    noteLabel->setWordWrap(true);
    auto* const column = new QVBoxLayout(this);
    column->addLayout(top);
    column->addWidget(m_list, 1);
    column->addWidget(m_count);
    column->addLayout(makeButtons());
    column->addWidget(noteLabel);

    connect(m_search, &QLineEdit::textChanged, this, &ColumnListPanel::narrow);
    connect(&m_columns, &QAbstractItemModel::modelReset, this, &ColumnListPanel::narrow);
    connect(&m_columns, &QAbstractItemModel::dataChanged, this, &ColumnListPanel::tell);
    narrow();
}

QLayout* ColumnListPanel::makeButtons()
{
    auto* const reset = new QPushButton(tr("Default"), this);
    reset->setToolTip(tr("All columns, in their first order"));
    connect(m_all, &QPushButton::clicked, this, [this] { checkShown(true); });
    connect(m_none, &QPushButton::clicked, this, [this] { checkShown(false); });
    connect(reset, &QPushButton::clicked, this, [this] {
        m_search->clear();
        m_columns.reset();
    });
    auto* const row = new QHBoxLayout;
    for (QPushButton* const button : {m_all, m_none, reset}) {
        button->setAutoDefault(false); // Enter is for OK
        row->addWidget(button);
    }
    return row;
}

QAction* ColumnListPanel::addMove(const char* icon, const QString& text, const QKeySequence& key,
                                  int step)
{
    auto* const action = new QAction(QIcon::fromTheme(QLatin1String(icon)), text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, [this, step] { moveCurrent(step); });
    addAction(action);
    return action;
}

void ColumnListPanel::narrow()
{
    const QString text = m_search->text().trimmed();
    int firstShown = -1;
    for (int row = m_columns.rowCount() - 1; row >= 0; --row) {
        const bool isShown =
            m_columns.index(row).data().toString().contains(text, Qt::CaseInsensitive);
        m_list->setRowHidden(row, !isShown);
        if (isShown)
            firstShown = row;
    }
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid() || m_list->isRowHidden(current.row()))
        m_list->setCurrentIndex(m_columns.index(firstShown));
    m_list->scrollTo(m_list->currentIndex());
    m_all->setText(text.isEmpty() ? tr("All") : tr("All Shown"));
    m_none->setText(text.isEmpty() ? tr("None") : tr("None Shown"));
    m_all->setEnabled(firstShown >= 0);
    m_none->setEnabled(firstShown >= 0);
    m_up->setEnabled(firstShown >= 0);
    m_down->setEnabled(firstShown >= 0);
    tell();
}

void ColumnListPanel::checkShown(bool isChecked)
{
    // From below, so that of a list that may not be empty the first column stays.
    for (int row = m_columns.rowCount() - 1; row >= 0; --row) {
        if (!m_list->isRowHidden(row))
            m_columns.setData(m_columns.index(row), isChecked ? Qt::Checked : Qt::Unchecked,
                              Qt::CheckStateRole);
    }
}

/// Moves the current column over the next one that is shown.
void ColumnListPanel::moveCurrent(int step)
{
    const int row = m_list->currentIndex().row();
    const int other = nextShown(row, step);
    if (row < 0 || other < 0)
        return;
    m_columns.moveRow({}, row, {}, step < 0 ? other : other + 1);
    m_list->scrollTo(m_list->currentIndex());
}

int ColumnListPanel::nextShown(int row, int step) const
{
    for (row += step; row >= 0 && row < m_columns.rowCount(); row += step) {
        if (!m_list->isRowHidden(row))
            return row;
    }
    return -1;
}

void ColumnListPanel::tell()
{
    int shown = 0;
    for (int row = 0; row < m_columns.rowCount(); ++row)
        shown += m_list->isRowHidden(row) ? 0 : 1;
    const QString checked = tr("%1 of %2 columns checked")
                                .arg(m_columns.checkedKeys().size())
                                .arg(m_columns.rowCount());
    if (shown == m_columns.rowCount())
        m_count->setText(checked);
    else if (shown == 0)
        m_count->setText(tr("No column has this name."));
    else
        m_count->setText(tr("%1; %2 shown").arg(checked).arg(shown));
}

bool ColumnListPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        const auto modifiers = static_cast<const QKeyEvent*>(event)->modifiers();
        const bool isEnter = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (isEnter || (key == Qt::Key_Down && modifiers == Qt::NoModifier)) {
            m_list->setFocus(Qt::OtherFocusReason); // and the dialog stays open
            return true;
        }
    }
    return QGroupBox::eventFilter(watched, event);
}
