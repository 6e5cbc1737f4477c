#include "lum_desktop_sdkx/controls/OpenEdit.h"

#include <QAbstractItemView>
#include <QApplication>

void desktop::enterOpenEdit()
{
    QWidget* parent = nullptr;
    for (QWidget* each = QApplication::focusWidget(); each != nullptr; each = parent) {
        parent = each->parentWidget();
        auto* const view =
            parent == nullptr ? nullptr : qobject_cast<QAbstractItemView*>(parent->parentWidget());
        if (view == nullptr || view->indexWidget(view->currentIndex()) != each)
            continue;
        view->setFocus(); // an editor that loses the focus enters its text
        return;
    }
}
