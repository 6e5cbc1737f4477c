#include "lum_sdk/raster/OverviewBuilder.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/files/FileSync.h"
#include "lum_sdk/raster/GdalFault.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cpl_conv.h>
#include <gdal.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace lum {

namespace {

constexpr int kSmallest = 256; ///< pixels; a level that fits into this is the last one

struct CloseDataset
{
    void operator()(void* dataset) const { GDALClose(dataset); }
};
using DatasetOwner = std::unique_ptr<void, CloseDataset>;

/// Options of the library for this thread while it lives.
class WriteOptions
{
public:
    WriteOptions()
    {
        for (const auto& [key, value] : kOptions)
            CPLSetThreadLocalConfigOption(key, value);
    }
    ~WriteOptions()
    {
        for (const auto& [key, value] : kOptions)
            CPLSetThreadLocalConfigOption(key, nullptr);
    }
    WriteOptions(const WriteOptions&) = delete;
    WriteOptions& operator=(const WriteOptions&) = delete;

private:
    static constexpr std::pair<const char*, const char*> kOptions[] = {
        {"COMPRESS_OVERVIEW", "DEFLATE"},   {"ZLEVEL_OVERVIEW", "1"},
        {"PREDICTOR_OVERVIEW", "2"},        {"INTERLEAVE_OVERVIEW", "PIXEL"},
        {"GDAL_TIFF_OVR_BLOCKSIZE", "256"}, {"BIGTIFF_OVERVIEW", "IF_SAFER"},
        {"SPARSE_OK_OVERVIEW", "TRUE"}};
};

QString faultText(const QString& path, const QString& reason)
{
    return QCoreApplication::translate("Raster", "The overviews of \"%1\" cannot be built: %2")
        .arg(QFileInfo(path).fileName(), reason);
}

int CPL_STDCALL report(double share, const char* /*message*/, void* keepsGoing)
{
    return (*static_cast<const std::function<bool(double)>*>(keepsGoing))(share) ? TRUE : FALSE;
}

/// A small file that stands for the raster in another folder: the library writes overviews beside
/// the file that it has opened.
bool makeStandIn(const QString& path, const QByteArray& standIn)
{
    const DatasetOwner raster(GDALOpenEx(path.toUtf8().constData(),
                                         GDAL_OF_RASTER | GDAL_OF_VERBOSE_ERROR, nullptr, nullptr,
                                         nullptr));
    if (raster == nullptr)
        return false;
    const DatasetOwner copy(GDALCreateCopy(GDALGetDriverByName("VRT"), standIn.constData(),
                                           raster.get(), FALSE, nullptr, nullptr, nullptr));
    return copy != nullptr;
}

bool writeOverviews(const QByteArray& standIn, const std::function<bool(double)>& keepsGoing)
{
    const DatasetOwner raster(
        GDALOpenEx(standIn.constData(), GDAL_OF_RASTER, nullptr, nullptr, nullptr));
    if (raster == nullptr)
        return false;
    const int longest =
        std::max(GDALGetRasterXSize(raster.get()), GDALGetRasterYSize(raster.get()));
    std::vector<int> factors;
    for (int factor = 2; factors.empty() || longest / factors.back() > kSmallest; factor *= 2)
        factors.push_back(factor);
    auto* const progress = const_cast<std::function<bool(double)>*>(&keepsGoing); // for a C pointer
    const WriteOptions options;
    return GDALBuildOverviews(raster.get(), "AVERAGE", static_cast<int>(factors.size()),
                              factors.data(), 0, nullptr, report, progress) == CE_None;
}

} // namespace

OverviewResult buildOverviews(const QString& path, const std::function<bool(double)>& keepsGoing)
{
    const QFileInfo file(path);
    const QTemporaryDir folder(file.absolutePath() + QStringLiteral("/.overviews-XXXXXX"));
    if (!folder.isValid())
        return {false, faultText(path, QCoreApplication::translate(
                                           "Raster", "the folder \"%1\" cannot be written.")
                                           .arg(QDir::toNativeSeparators(file.absolutePath())))};
    if (GDALGetDriverCount() == 0)
        GDALAllRegister();
    const QByteArray standIn = folder.filePath(QStringLiteral("raster.vrt")).toUtf8();
    bool isCancelled = false;
    const auto noting = [&](double share) {
        isCancelled = isCancelled || !keepsGoing(share);
        return !isCancelled;
    };
    GdalFault fault;
    const bool isWritten = makeStandIn(path, standIn) && writeOverviews(standIn, noting);
    if (isCancelled)
        return {};
    if (!isWritten || !fault.text().isEmpty()) // closing a file may tell what writing did not
        return {false, faultText(path, fault.text())};
    const std::string written = standIn.toStdString() + ".ovr";
    std::string reason = syncFile(written);
    if (reason.empty())
        reason = renameFile(written, path.toStdString() + ".ovr");
    if (!reason.empty())
        return {false, faultText(path, QString::fromStdString(reason))};
    syncFolderOf(path.toStdString());
    return {true, {}};
}

OverviewBuilder::OverviewBuilder(QObject* parent) : QObject(parent) {}

OverviewBuilder::~OverviewBuilder()
{
    m_isCancelled = true;
    if (m_thread.joinable())
        m_thread.join();
}

void OverviewBuilder::add(const QString& path)
{
    if (path == m_current || m_waiting.contains(path))
        return;
    m_waiting.enqueue(path);
    if (m_current.isEmpty())
        startNext();
}

void OverviewBuilder::cancel()
{
    m_isCancelled = true;
    for (const QString& path : std::exchange(m_waiting, {}))
        Q_EMIT finished(path, {});
}

void OverviewBuilder::startNext()
{
    if (m_waiting.isEmpty())
        return;
    m_current = m_waiting.dequeue();
    m_isCancelled = false;
    m_thread = std::thread([this, path = m_current] { run(path); });
}

void OverviewBuilder::run(const QString& path)
{
    OverviewResult result;
    try {
        int last = -1;
        result = buildOverviews(path, [&](double share) {
            const int percent = static_cast<int>(share * 100);
            if (std::exchange(last, percent) != percent)
                QMetaObject::invokeMethod(
                    this, [this, percent] { Q_EMIT progressed(percent); }, Qt::QueuedConnection);
            return !m_isCancelled;
        });
    } catch (const std::exception& thrown) {
        result = {false, faultText(path, QString::fromUtf8(thrown.what()))};
    }
    QMetaObject::invokeMethod(
        this, [this, result] { end(result); }, Qt::QueuedConnection);
}

void OverviewBuilder::end(const OverviewResult& result)
{
    m_thread.join();
    if (!result.fault.isEmpty())
        basalt::logError(result.fault.toStdString());
    const QString path = std::exchange(m_current, {});
    startNext();
    Q_EMIT finished(path, result);
}

} // namespace lum
