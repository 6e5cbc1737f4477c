#pragma once

#include "project/edits/EditKinds.h"
#include "project/edits/EditPart.h"

#include <memory>
#include <vector>

/// One change of the open project that can be taken back: an import, a deletion, a new design.
///
/// `exchange` does it, takes it back, does it again, and so on. Whatever it needs for that is there
/// before anything changes.
class Edit
{
public:
    explicit Edit(const EditKind& kind, std::size_t points = 0, const QString& file = {})
        : m_kind(kind), m_points(points), m_file(file)
    {
    }

    void add(std::unique_ptr<EditPart> part) { m_parts.push_back(std::move(part)); }
    void setPoints(std::size_t points) { m_points = points; }

    /// An exception (no memory) leaves the project and the edit as they were. No two parts are of
    /// the same points.
    void exchange(const EditedData& data);
    void tell(const EditedData& data, IEditReader& reader) const;

    [[nodiscard]] const EditKind& kind() const { return m_kind; }
    [[nodiscard]] QString title() const { return m_kind.titleFor(m_points); }
    [[nodiscard]] std::size_t points() const { return m_points; }
    [[nodiscard]] const QString& file() const { return m_file; } ///< that it came from, or empty
    [[nodiscard]] unsigned scope() const;
    [[nodiscard]] std::size_t bytes() const;

private:
    const EditKind& m_kind;
    std::size_t m_points;
    QString m_file;
    std::vector<std::unique_ptr<EditPart>> m_parts;
};
