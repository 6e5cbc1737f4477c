#include "project/history/HistoryRows.h"

#include <QDataStream>

#include <algorithm>

namespace {

constexpr auto kStreamVersion = QDataStream::Qt_5_12;
/// Four times as fast as the usual level, and a sixth larger.
constexpr int kCompression = 1;
constexpr char kBetween = '\t';

void appendEscaped(std::string_view text, std::string& row)
{
    for (const char c : text) {
        if (c == '\\' || c == kBetween || c == '\n')
            row += '\\';
        row += c == kBetween ? 't' : c == '\n' ? 'n' : c;
    }
}

/// Takes the next text from a row. \returns false at its end
bool takeText(std::string_view row, std::size_t& at, std::string& text)
{
    text.clear();
    if (at > row.size())
        return false;
    for (; at < row.size() && row[at] != kBetween; ++at) {
        char c = row[at];
        if (c == '\\' && at + 1 < row.size()) {
            c = row[++at];
            c = c == 't' ? kBetween : c == 'n' ? '\n' : c;
        }
        text += c;
    }
    ++at;
    return true;
}

/// In front of a row, in the order of the changes.
constexpr std::string_view kMarks = "+-~";

void visitRows(const std::string& line, std::string_view rest, const HistoryRows::Visitor& visitor)
{
    PointName name{line, {}};
    for (std::size_t end = rest.find('\n'); end != std::string_view::npos; end = rest.find('\n')) {
        const std::string_view row = rest.substr(0, end);
        rest.remove_prefix(end + 1);
        const std::size_t mark = kMarks.find(row.empty() ? ' ' : row[0]);
        std::size_t at = 1;
        if (mark == std::string_view::npos || !takeText(row, at, name.point))
            continue;
        visitor(name, static_cast<HistoryChange>(mark), row.substr(std::min(at, row.size())));
    }
}

/// \returns false when it is damaged
bool visitCompressed(const std::string& line, const QByteArray& compressed,
                     const HistoryRows::Visitor& visitor)
{
    const QByteArray raw = qUncompress(compressed);
    visitRows(line, {raw.constData(), static_cast<std::size_t>(raw.size())}, visitor);
    return !raw.isEmpty();
}

} // namespace

std::string packedRow(std::span<const std::string_view> texts)
{
    std::string row;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0)
            row += kBetween;
        appendEscaped(texts[i], row);
    }
    return row;
}

std::vector<std::string> unpackedRow(std::string_view row)
{
    std::vector<std::string> texts;
    std::string text;
    for (std::size_t at = 0; takeText(row, at, text);)
        texts.push_back(text);
    return texts;
}

HistoryRows::HistoryRows(const QByteArray& blob)
{
    QDataStream stream(blob);
    stream.setVersion(kStreamVersion);
    QByteArray line;
    QByteArray rows;
    while (!stream.atEnd()) {
        stream >> line >> rows;
        m_isWhole = stream.status() == QDataStream::Ok;
        if (!m_isWhole)
            break;
        m_read[line.toStdString()] = rows;
    }
}

void HistoryRows::add(const PointName& name, HistoryChange change, const std::string& row)
{
    std::string& rows = m_added[name.line];
    rows += kMarks[static_cast<std::size_t>(change)];
    appendEscaped(name.point, rows);
    if (!row.empty())
        (rows += kBetween) += row;
    rows += '\n';
}

QByteArray HistoryRows::blob() const
{
    QByteArray blob;
    QDataStream stream(&blob, QIODevice::WriteOnly);
    stream.setVersion(kStreamVersion);
    for (const auto& [line, rows] : m_added)
        stream << QByteArray::fromStdString(line)
               << qCompress(reinterpret_cast<const uchar*>(rows.data()),
                            static_cast<int>(rows.size()), kCompression);
    for (const auto& [line, rows] : m_read)
        stream << QByteArray::fromStdString(line) << rows;
    return blob;
}

bool HistoryRows::visit(const Visitor& visitor) const
{
    bool isWhole = m_isWhole;
    for (const auto& [line, rows] : m_added)
        visitRows(line, rows, visitor);
    for (const auto& [line, rows] : m_read)
        isWhole = visitCompressed(line, rows, visitor) && isWhole;
    return isWhole;
}

bool HistoryRows::visitLine(const std::string& line, const Visitor& visitor) const
{
    const auto found = m_read.find(line);
    return (found == m_read.end() || visitCompressed(line, found->second, visitor)) && m_isWhole;
}
