#pragma once

#include "lum_desktop_sdkx/controls/AngleInput.h"

#include <QString>

#include <optional>
#include <vector>

class QByteArray;

// The rows of a property grid, and the control file that they come from:
//
//     <property_grid>
//       <group caption="Paper">
//         <row key="margin" caption="Margin" editor="number"
//              min="0" max="100" decimals="1" unit="mm" default="10"
//              description="Free space on all four sides."/>
//         <row key="format" caption="Format" editor="choice">
//           <choice value="0" caption="A4"/>
//           <choice value="1" caption="Letter"/>
//         </row>
//       </group>
//     </property_grid>
//
// A row needs a key and a caption. `editor` is one of
//     text      any text; used when `editor` is missing
//     number    a decimal number, with `min`, `max` and `decimals`, the most that may be typed
//     integer   a whole number, with `min` and `max`
//     angle     as number, in decimal degrees; its unit is "°" unless `unit` gives another. It may
//               be typed with minutes and seconds, and with the letters of `letters`, "NS" or "EW"
//     choice    one of its <choice> children: `value` is stored, `caption` is shown
//     flag      a check box, stored as "1" or "0"
//     file      a path, with a button that opens a file dialog; `filter` as in "csv file(*.csv)"
// `read_only="1"` makes that a row cannot be edited. `default` is shown, but not stored, while the
// dictionary does not hold the key. Captions, units and descriptions are English. They are
// translated in the context "ControlXml".

struct PropertyGridChoice
{
    QString value;
    QString caption;
};

struct PropertyGridRow
{
    enum class Editor
    {
        Text,
        Number,
        Integer,
        Angle,
        Choice,
        Flag,
        File
    };

    QString key;
    QString caption;
    QString description;
    Editor editor = Editor::Text;
    QString unit;
    std::optional<double> minimum;
    std::optional<double> maximum;
    std::optional<int> decimals;
    AngleLetters letters = AngleLetters::None;
    QString fallback; ///< the attribute `default`
    QString filter;
    bool readOnly = false;
    std::vector<PropertyGridChoice> choices;
};

struct PropertyGridGroup
{
    QString caption;
    std::vector<PropertyGridRow> rows;
};

struct PropertyGridLayout
{
    std::vector<PropertyGridGroup> groups;
};

/// Reads a control file into `layout`, which changes only on success. Faults are malformed XML, an
/// unknown element, attribute or editor, a limit that is no number, and a key given twice.
/// \returns an empty text, or the fault and its line
[[nodiscard]] QString readPropertyGridLayout(const QByteArray& xml, PropertyGridLayout& layout);
