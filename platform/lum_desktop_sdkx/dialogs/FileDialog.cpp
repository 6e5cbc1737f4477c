#include "lum_desktop_sdkx/dialogs/FileDialog.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/dialogs/ScreenFit.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStandardPaths>

namespace {

using Request = FileDialog::Request;

struct Choice
{
    QStringList paths; ///< empty when the user cancelled; one of them unless several are asked for
    QString filter;    ///< the one that was chosen
    bool byUser = false;

    [[nodiscard]] QString path() const { return paths.value(0); }
};

QHash<QString, QString>& lastFolders()
{
    static QHash<QString, QString> folders;
    return folders;
}

QString startFolder(const QString& title)
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString folder = lastFolders().value(title, documents);
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

void prepare(QFileDialog& dialog, FileDialog::Kind kind)
{
    switch (kind) {
    case FileDialog::Kind::Open:
        dialog.setFileMode(QFileDialog::ExistingFile);
        break;
    case FileDialog::Kind::OpenSeveral:
        dialog.setFileMode(QFileDialog::ExistingFiles);
        break;
    case FileDialog::Kind::Save:
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setOption(QFileDialog::DontConfirmOverwrite); // we ask, once the suffix is known
        break;
    case FileDialog::Kind::Folder:
        dialog.setFileMode(QFileDialog::Directory);
        dialog.setOption(QFileDialog::ShowDirsOnly);
        break;
    }
}

Choice show(QWidget* parent, const Request& request)
{
    QFileDialog dialog(parent, request.title, startFolder(request.title), request.filter);
    prepare(dialog, request.kind);
    dialog.resize(dialog.size().boundedTo(desktop::largestSize(dialog)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {{}, {}, true};
    return {dialog.selectedFiles(), dialog.selectedNameFilter(), true};
}

Choice ask(QWidget* parent, const Request& request)
{
    Choice choice;
    if (const auto answer = FileDialog::Responder::answer(request)) {
        choice = {answer->split(QLatin1Char('\n'), Qt::SkipEmptyParts),
                  request.filter.section(QStringLiteral(";;"), 0, 0), false};
    } else if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr) {
        choice = show(parent, request);
    } else {
        basalt::logWarning("Nobody to ask for a file: " + request.title.toStdString());
    }
    for (QString& path : choice.paths)
        path = QDir::fromNativeSeparators(QFileInfo(path).absoluteFilePath());
    if (!choice.paths.isEmpty())
        lastFolders().insert(request.title, request.kind == FileDialog::Kind::Folder
                                                ? choice.path()
                                                : QFileInfo(choice.path()).absolutePath());
    return choice;
}

QString withSuffix(const QString& path, const QString& filter)
{
    static const QRegularExpression pattern(QStringLiteral("\\*\\.(\\w[\\w.]*)"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    const QString suffix = pattern.match(filter).captured(1);
    const QString typed = QFileInfo(path).suffix();
    const bool isSuffix = !typed.isEmpty() && typed.at(0).isLetter(); // "lines 2024.05" has none
    if (suffix.isEmpty() || isSuffix)
        return path;
    return path.endsWith(QLatin1Char('.')) ? path + suffix : path + QLatin1Char('.') + suffix;
}

bool mayWrite(QWidget* parent, const QString& title, const QString& path)
{
    if (!QFileInfo::exists(path))
        return true;
    const QString text =
        QCoreApplication::translate("FileDialog", "The file \"%1\" exists already. Replace it?")
            .arg(QDir::toNativeSeparators(path));
    return LumMessageBox::question(parent, title, text) == LumMessageBox::Button::Yes;
}

} // namespace

QString FileDialog::getOpenFileName(QWidget* parent, const QString& title, const QString& filter)
{
    return ask(parent, {Kind::Open, title, filter}).path();
}

QStringList FileDialog::getOpenFileNames(QWidget* parent, const QString& title,
                                         const QString& filter)
{
    return ask(parent, {Kind::OpenSeveral, title, filter}).paths;
}

QString FileDialog::getExistingDirectory(QWidget* parent, const QString& title)
{
    return ask(parent, {Kind::Folder, title, {}}).path();
}

QString FileDialog::getSaveFileName(QWidget* parent, const QString& title, const QString& filter)
{
    for (;;) {
        const Choice choice = ask(parent, {Kind::Save, title, filter});
        if (choice.paths.isEmpty())
            return {};
        QString path = withSuffix(choice.path(), choice.filter);
        if (mayWrite(parent, title, path))
            return path;
        if (!choice.byUser)
            return {};
    }
}
