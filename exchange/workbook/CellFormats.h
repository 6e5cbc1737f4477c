#pragma once

#include <QString>

#include <map>
#include <string>
#include <tuple>

struct lxw_format;
struct lxw_workbook;

/// The formats of a workbook's cells, each made when it is used first. The one style of all
/// workbooks is here.
class CellFormats
{
public:
    /// What a cell holds.
    enum class Form
    {
        Text,
        Code,    ///< a short text that stands in the middle
        Number,  ///< with decimals
        Percent, ///< a share, 0 to 1, with decimals
        Time,
        Date ///< a day without its time
    };
    enum class Role
    {
        Body,       ///< a cell of a table
        Heading,    ///< the head of a table's column, or of several
        TableTitle, ///< above a table
        Title,      ///< of a page
        Chapter,    ///< a heading on a page
        Label,      ///< the name of a value on a page
        Value       ///< a value or a sentence on a page, which may take several lines
    };
    /// The colours of conditional formats; they differ printed in black and white, too.
    enum class Colour
    {
        Fault,
        Warning,
        Good
    };

    static constexpr int kAsNeeded = -1;        ///< as many decimals as a number has
    static constexpr double kLineHeight = 13.5; ///< of a line of text, in points

    CellFormats(lxw_workbook* book, const QString& font) : m_book(book), m_font(font.toStdString())
    {
    }

    /// Null in a workbook that has failed.
    [[nodiscard]] lxw_format* get(Role role, Form form = Form::Text, int decimals = 0);
    [[nodiscard]] lxw_format* get(Colour colour);

private:
    lxw_workbook* m_book;
    std::string m_font;
    std::map<std::tuple<Role, Form, int>, lxw_format*> m_formats;
    std::map<Colour, lxw_format*> m_colours;
};
