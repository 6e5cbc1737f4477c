#include "exchange/workbook/CellFormats.h"

#include <xlsxwriter.h>

#include <string>

namespace {

constexpr lxw_color_t kHeadingFill = 0xD9E2EC; // light enough for black text on paper
constexpr lxw_color_t kLines = 0xBFC7D0;
constexpr lxw_color_t kTitleText = 0x1F3A5F;
constexpr const char* kTimeFormat = "yyyy-mm-dd hh:mm:ss";
constexpr const char* kDateFormat = "yyyy-mm-dd";

std::string numberFormat(CellFormats::Form form, int decimals)
{
    using Form = CellFormats::Form;
    if (form == Form::Time)
        return kTimeFormat;
    if (form == Form::Date)
        return kDateFormat;
    if ((form != Form::Number && form != Form::Percent) || decimals == CellFormats::kAsNeeded)
        return {};
    std::string format = decimals > 0 ? "0." + std::string(std::size_t(decimals), '0') : "0";
    return form == Form::Percent ? format + '%' : format;
}

void setBody(lxw_format* format, CellFormats::Form form)
{
    using Form = CellFormats::Form;
    format_set_border(format, LXW_BORDER_THIN);
    format_set_border_color(format, kLines);
    format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    if (form == Form::Code || form == Form::Time || form == Form::Date)
        format_set_align(format, LXW_ALIGN_CENTER);
    else if (form == Form::Text)
        format_set_indent(format, 1); // away from a number to the left of it
}

void setHeading(lxw_format* format)
{
    format_set_bold(format);
    format_set_text_wrap(format);
    format_set_align(format, LXW_ALIGN_CENTER);
    format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    format_set_bg_color(format, kHeadingFill);
    format_set_border(format, LXW_BORDER_THIN);
    format_set_border_color(format, kLines);
}

void setTableTitle(lxw_format* format)
{
    format_set_bold(format);
    format_set_font_size(format, 16);
    format_set_align(format, LXW_ALIGN_CENTER);
    format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
}

void setPageText(lxw_format* format, CellFormats::Role role)
{
    using Role = CellFormats::Role;
    format_set_align(format, LXW_ALIGN_LEFT);
    format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    if (role == Role::Value || role == Role::Label) {
        format_set_text_wrap(format);
        return;
    }
    format_set_bold(format);
    format_set_font_color(format, kTitleText);
    format_set_font_size(format, role == Role::Title ? 16 : 12);
    if (role == Role::Chapter) {
        format_set_bottom(format, LXW_BORDER_MEDIUM);
        format_set_bottom_color(format, kTitleText);
    }
}

} // namespace

lxw_format* CellFormats::get(Role role, Form form, int decimals)
{
    if (m_book == nullptr)
        return nullptr;
    lxw_format*& format = m_formats[{role, form, decimals}];
    if (format != nullptr)
        return format;
    format = workbook_add_format(m_book);
    format_set_font_name(format, m_font.c_str());
    format_set_font_size(format, 10);
    if (form == Form::Number && role == Role::Body)
        format_set_align(format, LXW_ALIGN_RIGHT); // a text among numbers, too
    const std::string numbers = numberFormat(form, decimals);
    if (!numbers.empty())
        format_set_num_format(format, numbers.c_str());
    if (role == Role::Body)
        setBody(format, form);
    else if (role == Role::Heading)
        setHeading(format);
    else if (role == Role::TableTitle)
        setTableTitle(format);
    else
        setPageText(format, role);
    return format;
}

lxw_format* CellFormats::get(Colour colour)
{
    if (m_book == nullptr)
        return nullptr;
    lxw_format*& format = m_colours[colour];
    if (format != nullptr)
        return format;
    format = workbook_add_format(m_book);
    switch (colour) {
    case Colour::Fault:
        format_set_bold(format);
        format_set_bg_color(format, 0xF4B6B6);
        format_set_font_color(format, 0x8B0000);
        break;
    case Colour::Warning:
        format_set_bg_color(format, 0xFFEDB3);
        format_set_font_color(format, 0x5F4500);
        break;
    case Colour::Good:
        format_set_bg_color(format, 0xE2F2E0);
        format_set_font_color(format, 0x1E5B24);
        break;
    }
    return format;
}
