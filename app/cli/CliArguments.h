#pragma once

#include <QMap>
#include <QStringList>

/// What stands behind a command: places in order, and options with their values. An option takes
/// the next argument, and comes once; "--set" takes key=value pairs as long as they come.
struct CliArguments
{
    QStringList places;
    QMap<QString, QStringList> options; ///< by name with its dashes

    /// The value of an option that takes one; empty without it.
    [[nodiscard]] QString option(const QString& name) const;

    /// \param flags  options that take no value
    /// \returns an empty text, or what is wrong
    [[nodiscard]] static QString read(const QStringList& texts, const QStringList& allowed,
                                      const QStringList& flags, CliArguments& arguments);
};
