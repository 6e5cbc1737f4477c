#pragma once

#include "lum_desktop_sdkx/dialogs/Responder.h"

#include <QString>

class QWidget;

/// Asks for a file or a folder. Filters read "csv file(*.csv)", several joined by ";;".
///
/// Each title is a purpose of its own, and begins in the folder where it ended last in this
/// process. Without a display nobody is asked, which is logged.
class FileDialog
{
public:
    enum class Kind
    {
        Open,
        Save,
        Folder
    };

    /// What a responder is asked; it answers with a path as the user would pick or type it, empty
    /// for Cancel.
    struct Request
    {
        using Answer = QString;

        Kind kind = Kind::Open;
        QString title;
        QString filter;
    };
    using Responder = ::Responder<Request>;

    /// Each returns an absolute path with "/", or an empty text when the user gave up.
    static QString getOpenFileName(QWidget* parent, const QString& title,
                                   const QString& filter = {});
    static QString getExistingDirectory(QWidget* parent, const QString& title);

    /// A name without a suffix gets the one of the chosen filter. When that file stands already,
    /// `LumMessageBox` asks whether to replace it; after a No the dialog comes again (a responder
    /// has given up).
    static QString getSaveFileName(QWidget* parent, const QString& title,
                                   const QString& filter = {});
};
