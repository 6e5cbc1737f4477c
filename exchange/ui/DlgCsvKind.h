#pragma once

#include "exchange/CsvHead.h"
#include "lum_desktop_sdkx/dialogs/Dialog.h"

/// Asks whether a CSV file that does not tell holds design points or survey results. Escape and
/// Enter leave the file alone.
class DlgCsvKind final : public Dialog
{
    Q_OBJECT

public:
    /// \param firstLines of the file, as a help to the user
    /// \returns `Unknown` when the user has cancelled
    [[nodiscard]] static CsvHead::Kind ask(QWidget* parent, const QString& path,
                                           const QStringList& firstLines);

private:
    DlgCsvKind(QWidget* parent, const QString& path, const QStringList& firstLines);
    void addButtons();

    CsvHead::Kind m_kind = CsvHead::Kind::Unknown;
};
