#include "map/sheet/SheetText.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

QFont sheetFont(double pixels, bool isBold)
{
    QFont font(QGuiApplication::font().family());
    font.setPixelSize(std::max(1, static_cast<int>(std::round(pixels))));
    font.setBold(isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

QStringList wrapped(const QString& text, const QFont& font, double width, int lines,
                    Qt::TextElideMode elide)
{
    const QString plain = text.simplified();
    if (plain.isEmpty())
        return {};
    QTextLayout layout(plain, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList result;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const int start = line.textStart();
        if (result.size() + 1 == lines) {
            result << QFontMetricsF(font).elidedText(plain.mid(start), elide, width);
            break;
        }
        result << plain.mid(start, line.textLength()).trimmed();
    }
    layout.endLayout();
    return result;
}
