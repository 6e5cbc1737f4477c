#pragma once

#include <QStringList>

#include <vector>

/// A workbook, read back from the XML in its package. A cell of text is the text; a number is
/// written as it stands in the file; an empty cell is an empty text.
class WorkbookReader
{
public:
    /// \throws std::runtime_error when a part is missing or is no XML
    explicit WorkbookReader(const QString& path);

    /// The names of the sheets, in their order.
    [[nodiscard]] const QStringList& sheets() const { return m_sheets; }
    /// All rows of a sheet.
    [[nodiscard]] std::vector<QStringList> rows(const QString& sheet) const;
    /// The widths of its columns.
    [[nodiscard]] std::vector<double> widths(const QString& sheet) const;
    /// The values of an attribute of all elements of this name in the sheet's part.
    [[nodiscard]] QStringList attributes(const QString& sheet, const char* element,
                                         const char* attribute) const;
    /// The texts of all elements of this name in the sheet's part.
    [[nodiscard]] QStringList texts(const QString& sheet, const char* element) const;
    /// Any part, such as "docProps/core.xml".
    [[nodiscard]] QByteArray part(const QString& name) const;

private:
    [[nodiscard]] QByteArray partOf(const QString& sheet) const;

    QString m_path;
    QStringList m_sheets;
};
