#include "lum_desktop_sdkx/controls/PropertyGridModel.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_sdk/Text.h"

#include <QColor>
#include <QIcon>

#include <algorithm>

namespace {

using Editor = PropertyGridRow::Editor;

/// The internal id of a group. That of a row is the number of its group + 1.
constexpr quintptr kGroup = 0;

std::string toStd(const QString& text)
{
    return text.toStdString();
}

bool isOn(const QString& value)
{
    return value.toInt() != 0;
}

} // namespace

void PropertyGridModel::setLayout(PropertyGridLayout layout)
{
    beginResetModel();
    m_layout = std::move(layout);
    m_faults.clear();
    m_notes.clear();
    endResetModel();
}

void PropertyGridModel::setValues(const IDictionary& values)
{
    m_values = basalt::Dictionary(values);
    m_faults.clear();
    for (int g = 0; g < rowCount(); ++g) {
        const QModelIndex group = index(g, 0);
        for (const PropertyGridRow& row : m_layout.groups[static_cast<std::size_t>(g)].rows)
            judge(row);
        if (const int count = rowCount(group); count > 0)
            Q_EMIT dataChanged(index(0, Caption, group), index(count - 1, Value, group));
    }
}

void PropertyGridModel::setValue(const QString& key, const QString& value)
{
    m_values.set(toStd(key), toStd(value));
    const QModelIndex cell = indexOfKey(key);
    if (!cell.isValid())
        return;
    judge(*row(cell));
    tellChanged(cell);
}

void PropertyGridModel::dropFault(const QString& key)
{
    if (m_faults.remove(key) > 0)
        tellChanged(indexOfKey(key));
}

void PropertyGridModel::mark(const QString& key, const QString& message)
{
    const QStringList keys = m_faults.keys();
    for (const QString& marked : keys) {
        if (m_faults.value(marked).isMark)
            dropFault(marked);
    }
    const QModelIndex cell = indexOfKey(key);
    if (!cell.isValid() || m_faults.contains(key))
        return;
    m_faults.insert(key, {{}, message, true});
    tellChanged(cell);
}

QModelIndex PropertyGridModel::firstFault() const
{
    for (const PropertyGridGroup& group : m_layout.groups) {
        for (const PropertyGridRow& row : group.rows) {
            if (m_faults.contains(row.key))
                return indexOfKey(row.key);
        }
    }
    return {};
}

void PropertyGridModel::setCaption(const QString& key, const QString& caption)
{
    if (PropertyGridRow* const row = rowOfKey(key); row != nullptr && row->caption != caption) {
        row->caption = caption;
        tellChanged(indexOfKey(key));
    }
}

void PropertyGridModel::setUnit(const QString& key, const QString& unit)
{
    if (PropertyGridRow* const row = rowOfKey(key); row != nullptr && row->unit != unit) {
        row->unit = unit;
        tellChanged(indexOfKey(key));
    }
}

void PropertyGridModel::addChoices(const QString& key,
                                   const std::vector<PropertyGridChoice>& choices)
{
    PropertyGridRow* const row = rowOfKey(key);
    if (row == nullptr)
        return;
    for (const PropertyGridChoice& choice : choices) {
        const bool isKnown =
            std::any_of(row->choices.begin(), row->choices.end(),
                        [&](const auto& other) { return other.value == choice.value; });
        if (!isKnown)
            row->choices.push_back(choice);
    }
    tellChanged(indexOfKey(key));
}

void PropertyGridModel::setReadOnlyBut(const QStringList& keys)
{
    for (PropertyGridGroup& group : m_layout.groups) {
        for (PropertyGridRow& row : group.rows) {
            row.readOnly = row.readOnly || !keys.contains(row.key);
            judge(row);
            tellChanged(indexOfKey(row.key));
        }
    }
}

QModelIndex PropertyGridModel::indexOfKey(const QString& key) const
{
    for (int g = 0; g < rowCount(); ++g) {
        const QModelIndex group = index(g, 0);
        for (int r = 0; r < rowCount(group); ++r) {
            const QModelIndex cell = index(r, Value, group);
            if (row(cell)->key == key)
                return cell;
        }
    }
    return {};
}

const PropertyGridRow* PropertyGridModel::row(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kGroup)
        return nullptr;
    const auto& group = m_layout.groups[static_cast<std::size_t>(index.internalId() - 1)];
    return &group.rows[static_cast<std::size_t>(index.row())];
}

QString PropertyGridModel::fault(const QModelIndex& index) const
{
    const PropertyGridRow* const at = row(index);
    return at == nullptr ? QString() : m_faults.value(at->key).message;
}

void PropertyGridModel::setNote(const QString& key, const QString& sentence)
{
    const QModelIndex cell = indexOfKey(key);
    if (!cell.isValid() || m_notes.value(key) == sentence)
        return;
    m_notes.insert(key, sentence);
    const QModelIndex caption = cell.siblingAtColumn(Caption);
    Q_EMIT dataChanged(caption, caption); // of the value, it would reset the text of an open editor
}

QString PropertyGridModel::note(const QModelIndex& index) const
{
    const PropertyGridRow* const at = row(index);
    return at == nullptr ? QString() : m_notes.value(at->key);
}

QModelIndex PropertyGridModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kGroup);
}

QModelIndex PropertyGridModel::parent(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kGroup)
        return {};
    return createIndex(static_cast<int>(index.internalId()) - 1, 0, kGroup);
}

int PropertyGridModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_layout.groups.size());
    if (parent.internalId() != kGroup || parent.column() != 0)
        return 0;
    return static_cast<int>(m_layout.groups[static_cast<std::size_t>(parent.row())].rows.size());
}

int PropertyGridModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 2;
}

Qt::ItemFlags PropertyGridModel::flags(const QModelIndex& index) const
{
    const PropertyGridRow* const at = row(index);
    if (at == nullptr)
        return index.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (index.column() == Value && !at->readOnly)
        flags |= at->editor == Editor::Flag ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

QVariant PropertyGridModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const PropertyGridRow* const at = row(index);
    if (at == nullptr) {
        const bool isCaption = role == Qt::DisplayRole && index.column() == Caption;
        return isCaption ? m_layout.groups[static_cast<std::size_t>(index.row())].caption
                         : QVariant();
    }
    if (index.column() == Value)
        return valueData(*at, role);
    switch (role) {
    case Qt::DisplayRole:
        return at->caption;
    case Qt::ToolTipRole:
        return at->description;
    default:
        return {};
    }
}

QVariant PropertyGridModel::valueData(const PropertyGridRow& row, int role) const
{
    switch (role) {
    case Qt::DisplayRole:
        return shownOrTyped(row, true);
    case Qt::EditRole:
        return shownOrTyped(row, false);
    case Qt::ToolTipRole:
        return m_faults.contains(row.key) ? m_faults.value(row.key).message : row.description;
    case Qt::BackgroundRole:
        return m_faults.contains(row.key) ? faultBackground() : QVariant();
    case Qt::DecorationRole:
        if (!m_isEditableMarked || row.readOnly || row.editor == Editor::Flag)
            return {};
        return QIcon::fromTheme(QStringLiteral("document-edit"));
    case Qt::CheckStateRole:
        if (row.editor != Editor::Flag)
            return {};
        return isOn(value(row)) ? Qt::Checked : Qt::Unchecked;
    default:
        return {};
    }
}

bool PropertyGridModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    const PropertyGridRow* const at = row(index);
    if (at == nullptr || index.column() != Value || at->readOnly)
        return false;
    if (role == Qt::CheckStateRole && at->editor == Editor::Flag)
        return enter(index,
                     value.toInt() == Qt::Checked ? QStringLiteral("1") : QStringLiteral("0"));
    return role == Qt::EditRole && enter(index, value.toString());
}

QVariant PropertyGridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == Caption ? tr("Property") : tr("Value");
}

QString PropertyGridModel::value(const PropertyGridRow& row) const
{
    const auto found = m_values.find(toStd(row.key));
    return found ? lum::toQString(*found) : row.fallback;
}

QString PropertyGridModel::shownOrTyped(const PropertyGridRow& row, bool shown) const
{
    const auto fault = m_faults.constFind(row.key);
    if (fault != m_faults.constEnd() && !fault->isMark)
        return fault->typed;
    return shown ? shownPropertyGridValue(row, value(row)) : withoutExponent(row, value(row));
}

PropertyGridRow* PropertyGridModel::rowOfKey(const QString& key)
{
    const QModelIndex cell = indexOfKey(key);
    if (!cell.isValid())
        return nullptr;
    auto& group = m_layout.groups[static_cast<std::size_t>(cell.parent().row())];
    return &group.rows[static_cast<std::size_t>(cell.row())];
}

/// Marks a stored value that the user could not enter. An empty value is none, and is not marked.
void PropertyGridModel::judge(const PropertyGridRow& row)
{
    m_faults.remove(row.key);
    const QString stored = value(row);
    if (row.readOnly || stored.isEmpty())
        return;
    const QString message = propertyGridFault(row, stored);
    if (!message.isEmpty())
        m_faults.insert(row.key, {stored, message, false});
}

bool PropertyGridModel::enter(const QModelIndex& index, const QString& typed)
{
    const PropertyGridRow& at = *row(index);
    if (typed == shownOrTyped(at, false))
        return false; // an editor that is opened and closed must not store anything
    const auto [entered, message] = readPropertyGridInput(at, typed);
    if (!message.isEmpty()) {
        m_faults.insert(at.key, {typed, message, false});
        tellChanged(index);
        Q_EMIT faultChanged();
        return true;
    }
    const bool isMended = m_faults.remove(at.key) > 0;
    const bool isNew = entered != value(at);
    if (isNew)
        m_values.set(toStd(at.key), toStd(entered));
    tellChanged(index);
    if (isMended)
        Q_EMIT faultChanged();
    if (isNew)
        Q_EMIT valueEdited(QString(at.key), entered); // a copy: a listener may change the layout
    return true;
}

void PropertyGridModel::tellChanged(const QModelIndex& index)
{
    if (index.isValid())
        Q_EMIT dataChanged(index.siblingAtColumn(Caption), index.siblingAtColumn(Value));
}
