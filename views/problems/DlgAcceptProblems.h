#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

#include <vector>

class QComboBox;
struct Problem;

/// Asks why problems are accepted. Without a reason nothing is.
class DlgAcceptProblems final : public Dialog
{
    Q_OBJECT

public:
    /// \param problems  what is accepted: a single one is told, several are counted
    /// \param reasons   earlier ones, to choose from
    DlgAcceptProblems(QWidget* parent, const std::vector<const Problem*>& problems,
                      const QStringList& reasons);

    [[nodiscard]] QString reason() const;

private:
    QComboBox* m_reason;
};
