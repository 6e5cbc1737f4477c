#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include <QPair>
#include <QVector>

/// Shows what is known about an item: captions with values, which can be selected and copied.
class DlgItemProperties final : public Dialog
{
    Q_OBJECT

public:
    /// \param name of the item, for the title
    DlgItemProperties(QWidget* parent, const QString& name,
                      const QVector<QPair<QString, QString>>& properties);
};
