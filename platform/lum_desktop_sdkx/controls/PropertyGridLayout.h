#pragma once

#include <QString>

#include <optional>
#include <vector>

class QByteArray;

// The rows of a property grid, and the control file that they come from:
//
//     <property_grid>
//       <group caption="Accuracy">
//         <row key="hor_accu_max" caption="Horizontal accuracy" editor="number"
//              min="0" max="100" decimals="3" unit="m" default="0.5"
//              description="Largest horizontal RMS that passes."/>
//         <row key="type" caption="Type" editor="choice">
//           <choice value="0" caption="Source"/>
//           <choice value="1" caption="Receiver"/>
//         </row>
//       </group>
//     </property_grid>
//
// A row needs key and caption. `editor` is one of
//     text      (when left out)
//     number    a decimal number; `min`, `max`, `decimals` (the most that may be typed)
//     integer   a whole number; `min`, `max`
//     angle     as number, in decimal degrees; its unit is "°" unless `unit` says otherwise
//     choice    one of its <choice> children: `value` is stored, `caption` is shown
//     flag      a check box, stored as "1" or "0"
//     file      a path, with a button that asks for one; `filter` as in "csv file(*.csv)"
// `read_only="1"` shows a row of any editor without letting it be edited. `default` is shown, not
// stored, while the dictionary has no such key. Captions, units and descriptions are English, and
// are translated in the context "ControlXml".

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

/// Reads a control file into `layout`, which stays as it was when something is wrong: malformed
/// XML, an unknown element, attribute or editor, a limit that is no number, a key given twice.
/// \returns an empty text, or what is wrong and in which line
[[nodiscard]] QString readPropertyGridLayout(const QByteArray& xml, PropertyGridLayout& layout);
