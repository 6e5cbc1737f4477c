#include "lum_desktop_sdkx/coords/CoordSystemSearch.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/coords/CoordSystemTable.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QApplication>
#include <QHeaderView>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kMostRows = 8;
constexpr double kMostOfWidth = 0.7; ///< share of the width that names may take

} // namespace

CoordSystemSearch::CoordSystemSearch(QWidget* parent)
    : QWidget(parent), m_found(new CoordSystemTable(this)), m_field(new QLineEdit(this)),
      m_list(new QTreeView(parent)), m_nothing(new QLabel(this))
{
    m_field->setPlaceholderText(tr("EPSG code or name"));
    m_field->setToolTip(tr("Search the EPSG register by code or by words of the name or area, such "
                           "as \"32650\" or \"Beijing 1954 117E\"."));
    m_field->setClearButtonEnabled(true);
    m_field->addAction(QIcon::fromTheme(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    m_field->installEventFilter(this);
    setFocusProxy(m_field);
    makeList();
    m_nothing->setWordWrap(true);
    m_nothing->hide();

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(dpi_scaled(4));
    layout->addWidget(m_field);
    layout->addWidget(m_nothing);
    connect(m_field, &QLineEdit::textChanged, this, &CoordSystemSearch::find);
}

CoordSystemSearch::~CoordSystemSearch() = default;

void CoordSystemSearch::makeList()
{
    m_list->setModel(m_found);
    m_list->setFrameStyle(QFrame::Box); // it lies over other texts
    m_list->setHeaderHidden(true);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setFocusPolicy(Qt::NoFocus);       // the field keeps the focus
    m_list->setTextElideMode(Qt::ElideMiddle); // names of zones differ at their end
    m_list->header()->setSectionResizeMode(CoordSystemTable::Code, QHeaderView::ResizeToContents);
    m_list->header()->setSectionResizeMode(CoordSystemTable::Area, QHeaderView::Stretch);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->hide();
    connect(m_list, &QTreeView::clicked, this, &CoordSystemSearch::choose);
}

void CoordSystemSearch::find(const QString& text)
{
    const QString wanted = text.trimmed();
    if (m_catalog == nullptr && !wanted.isEmpty()) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        m_catalog = std::make_unique<CoordSystemCatalog>();
        QApplication::restoreOverrideCursor();
    }
    m_found->setEntries(wanted.isEmpty() ? std::vector<const CoordSystemEntry*>()
                                         : m_catalog->search(wanted.toStdString()));
    const int rows = m_found->rowCount();
    m_list->setVisible(rows > 0 && m_field->hasFocus());
    m_nothing->setVisible(rows == 0 && !wanted.isEmpty());
    if (rows == 0) {
        tellNothing(wanted);
        return;
    }
    m_list->setCurrentIndex(m_found->index(0, 0));
    m_list->scrollToTop();
    fitList();
}

/// Says why a code of the register is not in the list, or that nothing has the code or name.
void CoordSystemSearch::tellNothing(const QString& wanted)
{
    static const QRegularExpression kCode(QStringLiteral("^(?:EPSG:)?\\s*([0-9]+)$"),
                                          QRegularExpression::CaseInsensitiveOption);
    const std::string code = kCode.match(wanted).captured(1).toStdString();
    const bool isRegistered = !code.empty() && !epsgName(code).empty();
    QString text = tr("No coordinate system has this code or name.");
    if (isRegistered) {
        basalt::Dictionary unused;
        const std::string reason = fillProjectionFromEpsg(code, unused);
        text = reason.empty() ? tr("EPSG:%1 (%2) is no longer in use; choose the system that has "
                                   "replaced it.")
                                    .arg(lum::toQString(code), lum::toQString(epsgName(code)))
                              : lum::toQString(reason);
    }
    m_nothing->setText(text);
}

/// Makes the list as high as its rows, up to a limit. Names get their width before the areas.
void CoordSystemSearch::fitList()
{
    const int rows = std::min(m_found->rowCount(), kMostRows);
    const int height = rows * m_list->sizeHintForRow(0) + 2 * m_list->frameWidth();
    const QPoint place = m_field->mapTo(parentWidget(), QPoint(0, m_field->height()));
    const int room = parentWidget()->height() - place.y();
    m_list->setGeometry(QRect(place, QSize(m_field->width(), std::min(height, room))));
    m_list->raise();
    m_list->resizeColumnToContents(CoordSystemTable::Name);
    const int widest = static_cast<int>(m_field->width() * kMostOfWidth);
    if (m_list->columnWidth(CoordSystemTable::Name) > widest)
        m_list->setColumnWidth(CoordSystemTable::Name, widest);
}

void CoordSystemSearch::choose(const QModelIndex& index)
{
    const CoordSystemEntry* const entry = m_found->entry(index);
    if (entry == nullptr)
        return;
    const QString code = lum::toQString(entry->code);
    m_field->clear();
    Q_EMIT chosen(code);
}

bool CoordSystemSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::FocusIn)
        find(m_field->text());
    if (watched == m_field && event->type() == QEvent::FocusOut)
        m_list->hide();
    if (watched == m_field && event->type() == QEvent::KeyPress &&
        handleKey(static_cast<QKeyEvent&>(*event)))
        return true;
    return QWidget::eventFilter(watched, event);
}

void CoordSystemSearch::resizeEvent(QResizeEvent* /*event*/)
{
    if (m_list->isVisible())
        fitList();
}

/// \returns true when the key was for the list and not for the text
bool CoordSystemSearch::handleKey(QKeyEvent& event)
{
    if (m_field->text().isEmpty())
        return false;
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(m_list, &event);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        choose(m_list->currentIndex());
        return true; // the dialog around must not take it as OK
    case Qt::Key_Escape:
        m_field->clear();
        return true;
    default:
        return false;
    }
}
