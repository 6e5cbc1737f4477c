#pragma once

#include "quality/CheckKinds.h"

#include <memory>
#include <utility>

class IDesktopHost;
class QString;

/// What the commands of the checks have in common.
namespace CheckRun {

/// Runs a check, and tells in status bar and log what it has found.
[[nodiscard]] CheckResult run(IDesktopHost& host, const CheckKind& kind);

/// The box at the end of a check, with what was found below its text.
/// \param silenceKey see LumMessageBox
void tellComplete(IDesktopHost& host, const QString& text, const CheckResult& result,
                  const char* silenceKey);

/// Shows the list of a result. It is not modal, and deletes itself when it is closed.
template <class List>
void show(IDesktopHost& host, CheckResult result)
{
    auto list = std::make_unique<List>(host, std::move(result));
    list.release()->show();
}

} // namespace CheckRun
