#include "project/DatabaseReason.h"

#include <QCoreApplication>

#include <array>

namespace {

struct Reason
{
    const char* part; ///< of the database's message
    const char* text;
};

constexpr std::array<Reason, 8> kReasons{{
    {"database is locked", QT_TRANSLATE_NOOP("ProjectStore", "another program is using it")},
    {"malformed", QT_TRANSLATE_NOOP("ProjectStore", "the file is damaged")},
    {"not a database", QT_TRANSLATE_NOOP("ProjectStore", "the file is no project database")},
    {"No space left", QT_TRANSLATE_NOOP("ProjectStore", "the disk is full")},
    {"is full", QT_TRANSLATE_NOOP("ProjectStore", "the disk is full")},
    {"readonly", QT_TRANSLATE_NOOP("ProjectStore", "file or folder cannot be written")},
    {"unable to open", QT_TRANSLATE_NOOP("ProjectStore", "the file cannot be opened")},
    {"no such table", QT_TRANSLATE_NOOP("ProjectStore", "a table is missing")},
}};

} // namespace

QString databaseReason(std::string_view message)
{
    QString original = QString::fromUtf8(message.data(), static_cast<int>(message.size()));
    for (const Reason& reason : kReasons) {
        if (message.find(reason.part) != std::string_view::npos)
            return QCoreApplication::translate("ProjectStore", reason.text) +
                   QStringLiteral(" (%1)").arg(original);
    }
    return original;
}
