#include "Hold.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"

#include <QByteArray>
#include <QLocale>
#include <QSet>

#include <cmath>
#include <cstdint>

namespace {

using Editor = PropertyGridRow::Editor;

void isWhole(const PropertyGridRow& row)
{
    hold(!row.key.isEmpty() && !row.caption.isEmpty(), "a row has key and caption");
    hold(row.choices.empty() == (row.editor != Editor::Choice), "only a choice row has choices");
    const bool isNumeric = row.editor == Editor::Number || row.editor == Editor::Integer ||
                           row.editor == Editor::Angle;
    hold(isNumeric || !(row.minimum || row.maximum || row.decimals), "only a number has limits");
    hold(std::isfinite(row.minimum.value_or(0)) && std::isfinite(row.maximum.value_or(0)),
         "limits are finite");
    hold(!row.minimum || !row.maximum || *row.minimum <= *row.maximum, "the range is not empty");
    const int decimals = row.decimals.value_or(0);
    hold(decimals >= 0 && decimals <= 30, "decimals can be typed");
}

/// Does with the default of a row what the grid does: shows it, checks it, stores it.
void takesItsDefault(const PropertyGridRow& row)
{
    (void)shownPropertyGridValue(row, row.fallback);
    const PropertyGridInput input = readPropertyGridInput(row, row.fallback);
    if (!input.fault.isEmpty())
        return;
    hold(propertyGridFault(row, input.value).isEmpty(), "what may be stored has no fault");
    const PropertyGridInput again = readPropertyGridInput(row, input.value);
    hold(again.fault.isEmpty() && again.value == input.value, "what is stored may stay as it is");
}

} // namespace

/// A German desktop, whose decimal comma is easily misread.
extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/)
{
    QLocale::setDefault(QLocale(QLocale::German));
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray xml(reinterpret_cast<const char*>(data), static_cast<int>(size));
    PropertyGridLayout layout;
    layout.groups.push_back({QStringLiteral("before"), {}});
    if (!readPropertyGridLayout(xml, layout).isEmpty()) {
        hold(layout.groups.size() == 1 && layout.groups[0].caption == QStringLiteral("before") &&
                 layout.groups[0].rows.empty(),
             "a refused text leaves the layout as it was");
        return 0;
    }
    QSet<QString> keys;
    for (const PropertyGridGroup& group : layout.groups) {
        hold(!group.caption.isEmpty(), "a group has a caption");
        for (const PropertyGridRow& row : group.rows) {
            hold(!keys.contains(row.key), "no key is given twice");
            keys.insert(row.key);
            isWhole(row);
            takesItsDefault(row);
        }
    }
    return 0;
}
