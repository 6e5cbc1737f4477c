#include "project/ProjectPlace.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/ParameterFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <filesystem>

namespace {

constexpr int kLongestNameBytes = 200; // file systems take 255, and endings come behind the name
constexpr int kLongestFileNameBytes = 230; // a project's name and what a report adds to it

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectPlace", text);
}

QString joined(const QString& folder, const QString& name)
{
    return folder.endsWith(QLatin1Char('/')) ? folder + name : folder + QLatin1Char('/') + name;
}

/// The one path of a file, which need not exist.
std::filesystem::path resolved(const QString& path)
{
    const QFileInfo info(path);
    const QString target = info.isSymLink() ? info.symLinkTarget() : info.absoluteFilePath();
    std::error_code fault;
    return std::filesystem::weakly_canonical(target.toStdString(), fault);
}

bool isSameFile(const QString& first, const QString& second)
{
    std::error_code fault;
    return std::filesystem::equivalent(first.toStdString(), second.toStdString(), fault) ||
           resolved(first) == resolved(second);
}

const QRegularExpression& badCharacters()
{
    static const QRegularExpression pattern(QStringLiteral("[\\x00-\\x1f\\x7f\\\\/:*?\"<>|.]"));
    return pattern;
}

/// The same but for the dot.
const QRegularExpression& badFileCharacters()
{
    static const QRegularExpression pattern(QStringLiteral("[\\x00-\\x1f\\x7f\\\\/:*?\"<>|]"));
    return pattern;
}

/// Names that some systems keep for devices.
bool isReserved(const QString& name)
{
    static const QRegularExpression pattern(QStringLiteral("^(con|prn|aux|nul|com\\d|lpt\\d)$"),
                                            QRegularExpression::CaseInsensitiveOption);
    return pattern.match(name).hasMatch();
}

} // namespace

ProjectPlace ProjectPlace::planned(const QString& location, const QString& name)
{
    return in(joined(location, name), name);
}

ProjectPlace ProjectPlace::ofFile(const QString& file)
{
    const QFileInfo info(file);
    return {info.absolutePath(), info.baseName(), info.absoluteFilePath()};
}

ProjectPlace ProjectPlace::in(const QString& folder, const QString& name)
{
    return {folder, name, joined(folder, name) + QLatin1Char('.') + projectExtension()};
}

QString ProjectPlace::database() const
{
    return joined(folder, name) + QStringLiteral(".db");
}

bool ProjectPlace::owns(const QString& path) const
{
    if (name.isEmpty())
        return false;
    const QString own[] = {file, database(), folder + QLatin1String(ParameterFiles::kQualityFile),
                           folder + QLatin1String(ParameterFiles::kDesignFile)};
    return std::any_of(std::begin(own), std::end(own),
                       [&](const QString& mine) { return isSameFile(path, mine); });
}

QString projectExtension()
{
    return lum::toQString(get_system_config_parameter().dictionary().text("extension", "kelx"));
}

QString projectNameFault(const QString& name)
{
    if (name.isEmpty())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "Please enter a project name."));
    const QRegularExpressionMatch match = badCharacters().match(name);
    if (match.hasMatch() && match.captured().at(0).isPrint())
        return translated(
                   QT_TRANSLATE_NOOP("ProjectPlace", "A project name cannot contain \"%1\"."))
            .arg(match.captured());
    if (match.hasMatch())
        return translated(
            QT_TRANSLATE_NOOP("ProjectPlace", "A project name cannot contain control characters."));
    if (name != name.trimmed())
        return translated(
            QT_TRANSLATE_NOOP("ProjectPlace", "A project name cannot begin or end with a blank."));
    if (isReserved(name))
        return translated(QT_TRANSLATE_NOOP("ProjectPlace",
                                            "Some systems cannot have files named \"%1\"."))
            .arg(name);
    if (name.toUtf8().size() > kLongestNameBytes)
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "The project name is too long."));
    return {};
}

QString fileNameFault(const QString& name)
{
    if (name.isEmpty())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "Please enter a file name."));
    const QRegularExpressionMatch match = badFileCharacters().match(name);
    if (match.hasMatch() && match.captured().at(0).isPrint())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "A file name cannot contain \"%1\"."))
            .arg(match.captured());
    if (match.hasMatch())
        return translated(
            QT_TRANSLATE_NOOP("ProjectPlace", "A file name cannot contain control characters."));
    if (name != name.trimmed() || name.startsWith(QLatin1Char('.')) ||
        name.endsWith(QLatin1Char('.')))
        return translated(QT_TRANSLATE_NOOP(
            "ProjectPlace", "A file name cannot begin or end with a blank or a dot."));
    if (isReserved(name.section(QLatin1Char('.'), 0, 0).trimmed()))
        return translated(QT_TRANSLATE_NOOP("ProjectPlace",
                                            "Some systems cannot have files named \"%1\"."))
            .arg(name);
    if (name.toUtf8().size() > kLongestFileNameBytes)
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "The file name is too long."));
    return {};
}

QString projectNameProposal(const QString& name)
{
    static const QRegularExpression edges(QStringLiteral("^[-\\s]+|[-\\s]+$"));
    QString proposal = name;
    proposal.replace(badCharacters(), QStringLiteral("-")).remove(edges);
    return projectNameFault(proposal).isEmpty() ? proposal : QString();
}

bool hasProjectSuffix(const QString& file)
{
    return QFileInfo(file).suffix().compare(projectExtension(), Qt::CaseInsensitive) == 0;
}

QString projectSuffixFault(const QString& file)
{
    if (hasProjectSuffix(file))
        return {};
    QString fault =
        translated(QT_TRANSLATE_NOOP("ProjectPlace",
                                     "\"%1\" is no project file: its name would end in \".%2\"."))
            .arg(QDir::toNativeSeparators(file), projectExtension());
    const ProjectPlace beside = ProjectPlace::ofFile(file);
    const QString likely = ProjectPlace::in(beside.folder, beside.name).file;
    if (QFileInfo::exists(likely))
        fault +=
            QLatin1Char(' ') + translated(QT_TRANSLATE_NOOP("ProjectPlace", "Open \"%1\" instead."))
                                   .arg(QDir::toNativeSeparators(likely));
    return fault;
}

QString exportFolderFault(const QString& location)
{
    if (location.isEmpty())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "Please choose a folder."));
    const QFileInfo folder(location);
    if (!QDir::isAbsolutePath(location))
        return translated(
            QT_TRANSLATE_NOOP("ProjectPlace", "Please enter the whole path of the folder."));
    if (!folder.exists())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "The folder \"%1\" does not exist."))
            .arg(QDir::toNativeSeparators(location));
    if (!folder.isDir())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "\"%1\" is not a folder."))
            .arg(QDir::toNativeSeparators(location));
    if (!folder.isWritable())
        return translated(QT_TRANSLATE_NOOP("ProjectPlace", "The folder \"%1\" cannot be written."))
            .arg(QDir::toNativeSeparators(location));
    return {};
}

QString projectLocationFault(const QString& location)
{
    if (location.isEmpty())
        return translated(
            QT_TRANSLATE_NOOP("ProjectPlace", "Please choose the folder of the project."));
    return exportFolderFault(location);
}
