#include "exchange/CsvFaults.h"

#include <QCoreApplication>

#include <new>

Outcome cannotRead(const QString& path, const QString& reason)
{
    return Outcome::failed(
        QCoreApplication::translate("CsvFaults", "\"%1\" cannot be read: %2").arg(path, reason));
}

Outcome readingBrokeOff(const QString& path, const QString& reason)
{
    Outcome outcome = cannotRead(path, reason);
    outcome.add(QCoreApplication::translate("CsvFaults", "The points are as they were before."));
    return outcome;
}

Outcome cannotWrite(const QString& path, const QString& reason)
{
    return Outcome::failed(
        QCoreApplication::translate("CsvFaults", "Cannot write \"%1\": %2").arg(path, reason));
}

QString reasonOf(const std::exception& fault)
{
    if (dynamic_cast<const std::bad_alloc*>(&fault) != nullptr)
        return QCoreApplication::translate("CsvFaults", "There is not enough memory.");
    return QString::fromLocal8Bit(fault.what());
}
