#pragma once

#include "lum_desktop_sdkx/dialogs/Responder.h"

#include <QString>
#include <QStringList>

class QWidget;

/// Asks for a file or a folder. A filter reads "csv file(*.csv)"; several are joined by ";;".
///
/// A dialog starts in the folder in which the last one with the same title ended in this process.
/// Without a display nobody is asked; the log says so, and the answer is Cancel.
class FileDialog
{
public:
    enum class Kind
    {
        Open,
        OpenSeveral,
        Save,
        Folder
    };

    /// What a responder is asked. It answers with a path as the user would pick or type it, or with
    /// an empty one for Cancel; with several paths one a line.
    struct Request
    {
        using Answer = QString;

        Kind kind = Kind::Open;
        QString title;
        QString filter;
    };
    using Responder = ::Responder<Request>;

    /// Each returns an absolute path with "/", or an empty text when the user cancelled.
    static QString getOpenFileName(QWidget* parent, const QString& title,
                                   const QString& filter = {});
    /// The same for any number of files; an empty list when the user cancelled.
    static QStringList getOpenFileNames(QWidget* parent, const QString& title,
                                        const QString& filter = {});
    static QString getExistingDirectory(QWidget* parent, const QString& title);

    /// A name without a suffix gets the suffix of the chosen filter. When the file exists,
    /// `LumMessageBox` asks whether to replace it. After a No the dialog opens again; a responder
    /// is not asked again, which counts as Cancel.
    static QString getSaveFileName(QWidget* parent, const QString& title,
                                   const QString& filter = {});
};
