#pragma once

#include <QCoreApplication>
#include <QPair>
#include <QStringList>
#include <QVector>

class IDictionary;

namespace lum {
class RasterImage;
struct RasterInfo;
} // namespace lum

/// What the user reads about overlay images.
class OverlayTexts
{
    Q_DECLARE_TR_FUNCTIONS(OverlayTexts)

public:
    [[nodiscard]] static QString information();
    [[nodiscard]] static QString error();
    [[nodiscard]] static QString chooserTitle();
    [[nodiscard]] static QString chooserFilter();
    [[nodiscard]] static QString buildOverviewsEntry();
    [[nodiscard]] static QString chooseFileEntry();

    [[nodiscard]] static QString needsProject();
    /// \param isOutside all of them lie beside the survey
    [[nodiscard]] static QString added(int count, bool isOutside);
    [[nodiscard]] static QString notAdded(int count);
    /// Of images in the list.
    /// \param sentences one for each; not empty
    [[nodiscard]] static QString faults(const QStringList& sentences);

    /// The question whether to build the overviews of these images.
    [[nodiscard]] static QString offerOverviews(const QStringList& paths);
    /// Why that is not offered.
    [[nodiscard]] static QString overviewsImpossible(const QStringList& paths);
    [[nodiscard]] static QString noOverviews();
    [[nodiscard]] static QString overviewsEnded(const QString& name, bool isBuilt);

    [[nodiscard]] static QString tip(const QString& path, const lum::RasterInfo& info);
    /// Captions and values.
    /// \param system of the project
    [[nodiscard]] static QVector<QPair<QString, QString>> properties(const lum::RasterImage& image,
                                                                     const IDictionary& system);
};
