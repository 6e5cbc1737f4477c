#include "lum_sdk/raster/RasterReader.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lum {

namespace {

constexpr int kSampleSide = 512;
constexpr qint64 kMostSampled = 4'000'000; // pixels of a level that is sampled as a whole
constexpr int kSampleSpots = 5;            // across and down, otherwise
constexpr int kSpotSide = 64;

/// Called by GDAL between lines; 0 ends the reading.
int CPL_STDCALL goesOn(double /*share*/, const char* /*message*/, void* stop)
{
    return (*static_cast<const RasterStop*>(stop))() ? 0 : 1;
}

void stopBy(const RasterStop& stop, GDALRasterIOExtraArg& extra)
{
    if (!stop)
        return;
    extra.pfnProgress = goesOn;
    extra.pProgressData = const_cast<RasterStop*>(&stop); // NOLINT(*-const-cast)
}

QSize sizeOf(GDALRasterBandH band)
{
    return {GDALGetRasterBandXSize(band), GDALGetRasterBandYSize(band)};
}

std::size_t countOf(const QRect& area)
{
    return std::size_t(area.width()) * std::size_t(area.height());
}

NoData noDataOf(GDALRasterBandH band)
{
    int isKnown = 0;
    const double value = GDALGetRasterNoDataValue(band, &isKnown);
    return isKnown != 0 ? NoData(static_cast<float>(value)) : std::nullopt;
}

/// The number of bits that a byte really uses.
int usedBits(GDALRasterBandH band)
{
    const char* const bits = GDALGetMetadataItem(band, "NBITS", "IMAGE_STRUCTURE");
    return bits == nullptr ? 8 : std::atoi(bits);
}

bool isSigned(GDALRasterBandH band)
{
    const char* const type = GDALGetMetadataItem(band, "PIXELTYPE", "IMAGE_STRUCTURE");
    return type != nullptr && qstrcmp(type, "SIGNEDBYTE") == 0;
}

/// Whether nothing was ever written to a part of a sparse file. Asking costs little where the
/// driver can tell, and otherwise says no.
bool isUnwritten(GDALRasterBandH band, const QRect& area)
{
    const int status = GDALGetDataCoverageStatus(band, area.x(), area.y(), area.width(),
                                                 area.height(), 0, nullptr);
    return status == GDAL_DATA_COVERAGE_STATUS_EMPTY;
}

void fillUnwritten(GDALRasterBandH band, GDALDataType type, void* values, std::size_t count)
{
    int isKnown = 0;
    const double value = GDALGetRasterNoDataValue(band, &isKnown);
    const double filler = isKnown != 0 ? value : 0;
    GDALCopyWords64(&filler, GDT_Float64, 0, values, type, GDALGetDataTypeSizeBytes(type),
                    static_cast<GPtrDiff_t>(count));
}

void addSample(GDALRasterBandH band, const QRect& area, const QSize& size,
               std::vector<float>& sample)
{
    const std::size_t before = sample.size();
    sample.resize(before + std::size_t(size.width()) * std::size_t(size.height()));
    if (GDALRasterIO(band, GF_Read, area.x(), area.y(), area.width(), area.height(),
                     sample.data() + before, size.width(), size.height(), GDT_Float32, 0,
                     0) != CE_None)
        sample.resize(before);
}

/// Small pieces all over a band that is too large to be sampled line by line.
void addSpots(GDALRasterBandH band, std::vector<float>& sample)
{
    const QSize size = sizeOf(band);
    const QSize spot = QSize(kSpotSide, kSpotSide).boundedTo(size);
    for (int i = 0; i < kSampleSpots * kSampleSpots; ++i) {
        const double across = (i % kSampleSpots + 0.5) / kSampleSpots; // NOLINT(*-integer-division)
        const double down = (i / kSampleSpots + 0.5) / kSampleSpots;   // NOLINT(*-integer-division)
        const QPoint corner(static_cast<int>(across * (size.width() - spot.width())),
                            static_cast<int>(down * (size.height() - spot.height())));
        addSample(band, QRect(corner, spot), spot, sample);
    }
}

} // namespace

RasterReader::RasterReader(GDALDatasetH dataset, const RasterLevels& levels) : m_levels(&levels)
{
    chooseBands(dataset);
    const GDALRasterBandH first = GDALGetRasterBand(dataset, m_bands.front().number);
    if (m_bands.size() == 1)
        choosePalette(first);
    const int mask = GDALGetMaskFlags(first);
    m_hasMask = m_alpha == 0 && (mask & (GMF_ALL_VALID | GMF_ALPHA | GMF_NODATA)) == 0;
    m_hasGaps = std::any_of(m_bands.begin(), m_bands.end(), [](const Band& band) {
        return band.noData.has_value() || !band.isByte; // a value that is no byte may be NaN
    });
    m_isPlain = m_bands.size() == 3 && !m_hasGaps && !m_hasMask && m_alpha == 0;
}

void RasterReader::chooseBands(GDALDatasetH dataset)
{
    std::array<int, 3> colors{};
    std::vector<int> others;
    const int count = GDALGetRasterCount(dataset);
    for (int number = 1; number <= count; ++number) {
        const GDALRasterBandH band = GDALGetRasterBand(dataset, number);
        const GDALColorInterp meaning = GDALGetRasterColorInterpretation(band);
        if (meaning == GCI_AlphaBand && m_alpha == 0) {
            m_alpha = number;
            const GDALDataType type = GDALGetRasterDataType(band);
            m_alphaMax = type == GDT_UInt16 ? 65535 : type == GDT_Int16 ? 32767 : 255;
        } else if (meaning >= GCI_RedBand && meaning <= GCI_BlueBand) {
            colors[std::size_t(meaning - GCI_RedBand)] = number;
        }
        if (meaning != GCI_AlphaBand)
            others.push_back(number);
    }
    if (others.empty()) { // nothing but alpha: shown as grey
        others.push_back(m_alpha);
        m_alpha = 0;
    }
    if (std::find(colors.begin(), colors.end(), 0) == colors.end())
        others.assign(colors.begin(), colors.end());
    others.resize(others.size() >= 3 ? 3 : 1);
    for (const int number : others)
        m_bands.push_back(describe(GDALGetRasterBand(dataset, number), number));
}

RasterReader::Band RasterReader::describe(GDALRasterBandH band, int number) const
{
    Band found{number, true, noDataOf(band), {}};
    const int bits = usedBits(band);
    if (GDALGetRasterDataType(band) != GDT_Byte || isSigned(band)) {
        found.isByte = false;
    } else if (bits < 8) {
        found.isByte = false;
        found.stretch = Stretch{0, double((1 << std::max(bits, 1)) - 1)};
    }
    return found;
}

void RasterReader::choosePalette(GDALRasterBandH band)
{
    const GDALColorTableH table = GDALGetRasterColorTable(band);
    if (table == nullptr)
        return;
    for (int i = 0; i < GDALGetColorEntryCount(table); ++i) {
        GDALColorEntry color{};
        GDALGetColorEntryAsRGB(table, i, &color);
        const bool isGap = m_bands.front().noData == static_cast<float>(i);
        m_palette.push_back(isGap ? 0 : qRgba(color.c1, color.c2, color.c3, color.c4));
    }
}

QImage RasterReader::read(std::size_t level, const QRect& area, const RasterStop& stop)
{
    const Piece piece{level, area, &stop};
    if (m_isPlain && m_levels->all()[level].isStored)
        return readWhole(piece);
    return m_palette.empty() ? readColors(piece) : readIndexes(piece);
}

QImage RasterReader::readWhole(const Piece& piece)
{
    std::array<int, 3> numbers{};
    bool isOneDataset = true;
    const GDALDatasetH dataset = GDALGetBandDataset(m_levels->band(piece.level, 1).band);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const int number = m_bands[i].number;
        numbers[i] = number;
        isOneDataset =
            isOneDataset && dataset != nullptr && number <= GDALGetRasterCount(dataset) &&
            GDALGetRasterBand(dataset, number) == m_levels->band(piece.level, number).band;
    }
    if (!isOneDataset)
        return readColors(piece);
    QImage image(piece.area.size(), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    image.fill(Qt::black);
    GDALRasterIOExtraArg extra;
    INIT_RASTERIO_EXTRA_ARG(extra);
    stopBy(*piece.stop, extra);
    // In memory a pixel is blue, green, red, opaque.
    const CPLErr result =
        GDALDatasetRasterIOEx(dataset, GF_Read, piece.area.x(), piece.area.y(), image.width(),
                              image.height(), image.bits() + 2, image.width(), image.height(),
                              GDT_Byte, 3, numbers.data(), 4, image.bytesPerLine(), -1, &extra);
    return result == CE_None ? image : QImage();
}

QImage RasterReader::readIndexes(const Piece& piece)
{
    std::vector<quint16> indexes(countOf(piece.area));
    std::vector<uchar> alpha;
    const LevelBand band = m_levels->band(piece.level, m_bands.front().number);
    if (!readPlane(piece, band, GDT_UInt16, indexes.data()) || !readAlpha(piece, alpha))
        return {};
    return imageOf(piece.area.size(), indexes, m_palette, alpha);
}

QImage RasterReader::readColors(const Piece& piece)
{
    const std::size_t count = countOf(piece.area);
    std::array<std::vector<uchar>, 3> planes;
    std::vector<uchar> hasData(m_hasGaps ? count : 0);
    for (std::size_t i = 0; i < m_bands.size(); ++i) {
        planes[i].resize(count);
        if (!readBytes(piece, m_bands[i], planes[i], hasData))
            return {};
    }
    std::vector<uchar> alpha;
    if (!readAlpha(piece, alpha))
        return {};
    if (alpha.empty())
        alpha.swap(hasData);
    for (std::size_t i = 0; i < hasData.size(); ++i)
        alpha[i] = alpha[i] & hasData[i];
    if (m_bands.size() == 1)
        return imageOf(piece.area.size(), {planes[0], planes[0], planes[0], alpha});
    return imageOf(piece.area.size(), {planes[0], planes[1], planes[2], alpha});
}

bool RasterReader::readBytes(const Piece& piece, Band& band, std::vector<uchar>& bytes,
                             std::vector<uchar>& hasData)
{
    const LevelBand from = m_levels->band(piece.level, band.number);
    if (band.isByte) {
        if (!readPlane(piece, from, GDT_Byte, bytes.data()))
            return false;
        if (m_hasGaps)
            markData(bytes, band.noData, hasData);
        return true;
    }
    if (!band.stretch)
        findStretch(band);
    std::vector<float> values(bytes.size());
    if (!readPlane(piece, from, GDT_Float32, values.data()))
        return false;
    stretchPlane(values, *band.stretch, band.noData, bytes, hasData);
    return true;
}

bool RasterReader::readAlpha(const Piece& piece, std::vector<uchar>& alpha)
{
    if (m_alpha == 0 && !m_hasMask)
        return true;
    alpha.resize(countOf(piece.area));
    if (m_alpha == 0)
        return readPlane(piece, maskBand(piece.level), GDT_Byte, alpha.data());
    const LevelBand band = m_levels->band(piece.level, m_alpha);
    if (m_alphaMax == 255)
        return readPlane(piece, band, GDT_Byte, alpha.data());
    std::vector<float> values(alpha.size());
    std::vector<uchar> hasData(alpha.size());
    if (!readPlane(piece, band, GDT_Float32, values.data()))
        return false;
    stretchPlane(values, {0, m_alphaMax}, {}, alpha, hasData);
    return true;
}

/// Overviews that were built without the mask are masked by that of the full resolution.
LevelBand RasterReader::maskBand(std::size_t level) const
{
    LevelBand band = m_levels->band(level, 0);
    const bool isOwn = (GDALGetMaskFlags(m_levels->band(level, 1).band) & GMF_ALL_VALID) == 0;
    if (isOwn)
        return band;
    const std::vector<RasterLevel>& levels = m_levels->all();
    band.band = m_levels->band(0, 0).band;
    band.stepX = double(levels[0].size.width()) / levels[level].size.width();
    band.stepY = double(levels[0].size.height()) / levels[level].size.height();
    return band;
}

bool RasterReader::readPlane(const Piece& piece, const LevelBand& band, GDALDataType type,
                             void* values) const
{
    const QRect& area = piece.area;
    GDALRasterIOExtraArg extra;
    INIT_RASTERIO_EXTRA_ARG(extra);
    extra.bFloatingPointWindowValidity = 1;
    extra.dfXOff = area.x() * band.stepX;
    extra.dfYOff = area.y() * band.stepY;
    const QSize size = sizeOf(band.band);
    extra.dfXSize = std::min(area.width() * band.stepX, size.width() - extra.dfXOff);
    extra.dfYSize = std::min(area.height() * band.stepY, size.height() - extra.dfYOff);
    const QRect window =
        QRectF(extra.dfXOff, extra.dfYOff, extra.dfXSize, extra.dfYSize).toAlignedRect() &
        QRect(QPoint(0, 0), size);
    stopBy(*piece.stop, extra);
    if (band.stepX > 1 && isUnwritten(band.band, window)) {
        fillUnwritten(band.band, type, values, countOf(area));
        return true;
    }
    return GDALRasterIOEx(band.band, GF_Read, window.x(), window.y(), window.width(),
                          window.height(), values, area.width(), area.height(), type, 0, 0,
                          &extra) == CE_None;
}

void RasterReader::findStretch(Band& band)
{
    const std::vector<RasterLevel>& levels = m_levels->all();
    std::size_t level = m_levels->lastStored();
    while (level > 0 &&
           std::max(levels[level].size.width(), levels[level].size.height()) < kSampleSide)
        --level;
    const QSize size = levels[level].size;
    const GDALRasterBandH from = m_levels->band(level, band.number).band;
    std::vector<float> sample;
    if (qint64(size.width()) * size.height() <= kMostSampled)
        addSample(from, QRect(QPoint(0, 0), size), size.boundedTo({kSampleSide, kSampleSide}),
                  sample);
    else
        addSpots(from, sample);
    if (band.noData)
        std::erase(sample, *band.noData);
    band.stretch = stretchOf(std::move(sample));
}

} // namespace lum
