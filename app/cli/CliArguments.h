#pragma once

#include "protocol/Outcome.h"

#include <QMap>
#include <QStringList>

/// The arguments of a command: places in order, and options with their values. An option takes the
/// next argument as its value and may come once; "--overlay" may come several times. "--set" takes
/// all key=value pairs that follow it.
struct CliArguments
{
    QStringList places;                 ///< those that are neither options nor their values
    QMap<QString, QStringList> options; ///< by name with its dashes

    /// The value of an option that takes one; empty without it.
    [[nodiscard]] QString option(const QString& name) const;

    /// \param allowed  options that take a value
    /// \param flags    options that take none
    /// \returns refused, and why, when an option is unknown, lacks its value or comes twice
    static Outcome read(const QStringList& texts, const QStringList& allowed,
                        const QStringList& flags, CliArguments& arguments);
};
