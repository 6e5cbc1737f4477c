#include "lum_desktop_sdkx/controls/PropertyGridCtrl.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/PropertyGridDelegate.h"
#include "lum_desktop_sdkx/controls/PropertyGridModel.h"
#include "lum_desktop_sdkx/controls/PropertyGridView.h"
#include "lum_sdk/DpiScale.h"

#include <QAction>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

namespace {

constexpr int kDescriptionLines = 3;

/// Reads a file into `xml`. \returns an empty text, or why it failed
QString readFile(const QString& path, QByteArray& xml)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    xml = file.readAll();
    return {};
}

} // namespace

PropertyGridCtrl::PropertyGridCtrl(QWidget* parent)
    : QWidget(parent), m_model(new PropertyGridModel(this)), m_view(new PropertyGridView(this)),
      m_description(new QLabel(this))
{
    m_view->setModel(m_model);
    auto* const delegate = new PropertyGridDelegate(*m_model, this);
    m_view->setItemDelegate(delegate);
    setResizeMode(ResizeMode::Interactive);
    setFocusProxy(m_view);

    m_description->setWordWrap(true);
    m_description->setTextFormat(Qt::RichText);
    m_description->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_description->setFrameShape(QFrame::StyledPanel);
    m_description->setMargin(dpi_scaled(5));
    m_description->setMinimumHeight(m_description->fontMetrics().height() * kDescriptionLines +
                                    dpi_scaled(14));

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(dpi_scaled(4));
    layout->addWidget(m_view, 1);
    layout->addWidget(m_description);

    makeCopyActions();
    connect(m_model, &PropertyGridModel::valueEdited, this, &PropertyGridCtrl::valueChanged);
    connect(delegate, &PropertyGridDelegate::typed, this, &PropertyGridCtrl::valueShown);
    connect(delegate, &QAbstractItemDelegate::closeEditor, this, [this] {
        if (const PropertyGridRow* const row = m_model->row(m_view->currentIndex()))
            Q_EMIT valueShown(row->key, m_model->value(*row));
    });
    connect(m_model, &PropertyGridModel::faultChanged, this, &PropertyGridCtrl::faultChanged);
    connect(m_model, &PropertyGridModel::dataChanged, this,
            [this] { describe(m_view->currentIndex()); });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) { describe(current); });
}

void PropertyGridCtrl::makeCopyActions()
{
    const auto add = [this](const QString& text, const QKeySequence& keys, auto copy) {
        auto* const action = new QAction(text, m_view);
        action->setShortcut(keys);
        action->setShortcutContext(Qt::WidgetShortcut); // the editors have their own
        action->setShortcutVisibleInContextMenu(true);
        connect(action, &QAction::triggered, m_view, copy);
        m_view->addAction(action);
    };
    m_view->setContextMenuPolicy(Qt::ActionsContextMenu);
    add(tr("&Copy Value"), QKeySequence::Copy, &PropertyGridView::copyValue);
    add(tr("Copy &All Rows"), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_C),
        &PropertyGridView::copyAll);
}

QAction* PropertyGridCtrl::addMenuEntry(const QString& text)
{
    auto* const entry = new QAction(text, m_view);
    m_view->addAction(entry);
    return entry;
}

PropertyGridCtrl::~PropertyGridCtrl()
{
    m_view->itemDelegate()->disconnect(this); // an open editor closes when this is a grid no more
}

bool PropertyGridCtrl::init(const QString& controlXmlPath, const IDictionary& values)
{
    QByteArray xml;
    PropertyGridLayout layout;
    QString& fault = m_initFault;
    fault = readFile(controlXmlPath, xml);
    const bool isShown = fault.isEmpty() && !xml.isEmpty() && xml == m_controlXml;
    if (fault.isEmpty() && !isShown)
        fault = readPropertyGridLayout(xml, layout);
    if (!fault.isEmpty()) {
        const QString line =
            QStringLiteral("Cannot read the control file \"%1\": %2").arg(controlXmlPath, fault);
        basalt::logError(line.toStdString());
        return false;
    }
    if (!isShown)
        init(std::move(layout), values);
    else
        m_model->setValues(values);
    m_controlXml = xml;
    describe(m_view->currentIndex());
    return true;
}

void PropertyGridCtrl::init(PropertyGridLayout layout, const IDictionary& values)
{
    m_initFault.clear();
    m_controlXml.clear();
    m_model->setLayout(std::move(layout));
    m_view->spanGroups();
    m_model->setValues(values);
    describe(m_view->currentIndex());
}

void PropertyGridCtrl::setValue(const QString& key, const QString& text)
{
    m_model->setValue(key, text);
}

basalt::Dictionary PropertyGridCtrl::getData()
{
    m_view->commitEditor();
    return m_model->values();
}

bool PropertyGridCtrl::hasFaults()
{
    m_view->commitEditor();
    return m_model->hasFaults();
}

QString PropertyGridCtrl::faultText() const
{
    const QModelIndex cell = m_model->firstFault();
    const PropertyGridRow* const row = m_model->row(cell);
    return row == nullptr ? QString() : tr("\"%1\": %2").arg(row->caption, m_model->fault(cell));
}

void PropertyGridCtrl::markRow(const QString& key, const QString& message)
{
    m_model->mark(key, message);
}

void PropertyGridCtrl::setRowNote(const QString& key, const QString& sentence)
{
    m_model->setNote(key, sentence);
    m_view->viewport()->update(); // a note is painted across both columns
}

void PropertyGridCtrl::goToFault()
{
    const QModelIndex cell = m_model->firstFault();
    if (!cell.isValid())
        return;
    m_view->expand(cell.parent());
    m_view->setCurrentIndex(cell);
    m_view->scrollTo(cell);
    m_view->setFocus();
}

QString PropertyGridCtrl::rowCaption(const QString& key) const
{
    const PropertyGridRow* const row = m_model->row(m_model->indexOfKey(key));
    return row == nullptr ? QString() : row->caption;
}

void PropertyGridCtrl::setRowCaption(const QString& key, const QString& caption)
{
    m_model->setCaption(key, caption);
}

void PropertyGridCtrl::setRowUnit(const QString& key, const QString& unit)
{
    m_model->setUnit(key, unit);
}

void PropertyGridCtrl::addRowChoices(const QString& key,
                                     const std::vector<PropertyGridChoice>& choices)
{
    m_model->addChoices(key, choices);
}

void PropertyGridCtrl::setEditableMarked(bool marked)
{
    m_model->setEditableMarked(marked);
}

void PropertyGridCtrl::setReadOnlyBut(const QStringList& keys)
{
    m_model->setReadOnlyBut(keys);
}

void PropertyGridCtrl::setResizeMode(ResizeMode mode)
{
    QHeaderView* const header = m_view->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(PropertyGridModel::Value, QHeaderView::Stretch);
    header->setSectionResizeMode(PropertyGridModel::Caption,
                                 static_cast<QHeaderView::ResizeMode>(mode));
}

void PropertyGridCtrl::setHeaderVisible(bool visible)
{
    m_view->setHeaderHidden(!visible);
}

void PropertyGridCtrl::setDescriptionVisible(bool visible)
{
    m_description->setVisible(visible);
}

void PropertyGridCtrl::setRowVisible(const QString& key, bool visible)
{
    const QModelIndex cell = m_model->indexOfKey(key);
    if (!cell.isValid())
        return;
    const QModelIndex group = cell.parent();
    m_view->setRowHidden(cell.row(), group, !visible);
    if (!visible)
        m_model->dropFault(key);
    bool isAnyVisible = false;
    for (int i = 0; i < m_model->rowCount(group); ++i)
        isAnyVisible = isAnyVisible || !m_view->isRowHidden(i, group);
    m_view->setRowHidden(group.row(), {}, !isAnyVisible);
}

void PropertyGridCtrl::describe(const QModelIndex& index)
{
    const PropertyGridRow* const row = m_model->row(index);
    if (row == nullptr) {
        m_description->clear();
        return;
    }
    QString text = QStringLiteral("<b>%1</b><br>%2")
                       .arg(row->caption.toHtmlEscaped(), row->description.toHtmlEscaped());
    if (const QString fault = m_model->fault(index); !fault.isEmpty())
        text = QStringLiteral("<b>%1</b><br>%2")
                   .arg(row->caption.toHtmlEscaped(), fault.toHtmlEscaped());
    m_description->setText(text);
}
