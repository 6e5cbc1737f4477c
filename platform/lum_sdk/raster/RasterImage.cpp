#include "lum_sdk/raster/RasterImage.h"

#include "lum_sdk/raster/RasterBlockCache.h"
#include "lum_sdk/raster/RasterSource.h"
#include "lum_sdk/raster/TwoThreads.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <atomic>

namespace lum {

namespace {

constexpr std::size_t kLeastForTwo = 4; // blocks, for which a second thread is started
constexpr int kMostSubstitutes = 16;    // blocks that are read to stand for finer ones, a picture

QImage transparentBlock(const QSize& size)
{
    QImage block(size, QImage::Format_ARGB32_Premultiplied);
    block.fill(Qt::transparent);
    return block;
}

} // namespace

/// Reads blocks for one picture.
class RasterImage::Blocks final : public IRasterBlocks
{
public:
    Blocks(RasterImage& image, const RasterView& view) : m_image(image), m_view(view) {}

    /// Reads what is not in the cache, on two threads, each with a handle of its own.
    void want(const std::vector<RasterBlockId>& ids) override
    {
        std::vector<RasterBlockId> missing;
        for (const RasterBlockId& id : ids) {
            QImage found = RasterBlockCache::instance().find(m_image.m_owner, id);
            if (found.isNull())
                missing.push_back(id);
            m_blocks.emplace_back(id, std::move(found));
        }
        std::vector<QImage> read(missing.size());
        std::atomic<std::size_t> next = 0;
        const auto work = [&](RasterSource& source) {
            while (!m_view.isCancelled() && !m_view.isLate()) {
                const std::size_t i = next++;
                if (i >= missing.size())
                    return;
                read[i] = this->read(source, missing[i]);
            }
        };
        if (missing.size() >= kLeastForTwo && m_image.hasHelper())
            onTwoThreads(
                [&](int thread) { work(thread == 0 ? *m_image.m_source : *m_image.m_helper); });
        else
            work(*m_image.m_source);
        auto block = read.begin();
        for (auto& [id, found] : m_blocks) {
            if (found.isNull())
                found = *block++;
        }
        m_next = m_blocks.begin();
    }

    QImage block(const RasterBlockId& /*id*/) override { return m_next++->second; }

    QImage substitute(const RasterBlockId& id) override
    {
        QImage found = RasterBlockCache::instance().find(m_image.m_owner, id);
        const bool isQuick = id.level + 1 == m_image.m_info.levels.size() &&
                             m_image.m_info.levels[id.level].isStored;
        if (!found.isNull() || !isQuick || m_readSubstitutes >= kMostSubstitutes)
            return found;
        ++m_readSubstitutes;
        return read(*m_image.m_source, id);
    }

private:
    QImage read(RasterSource& source, const RasterBlockId& id)
    {
        QString reason;
        QImage block = source.readBlock(id.level, id.column, id.row, reason,
                                        [this] { return m_view.isCancelled(); });
        if (block.isNull() && reason.isEmpty())
            return {};
        if (block.isNull()) {
            m_image.noteFault(reason);
            block = transparentBlock(
                m_image.m_info.levels[id.level].blockArea(id.column, id.row).size());
        }
        RasterBlockCache::instance().add(m_image.m_owner, id, block);
        return block;
    }

    std::vector<std::pair<RasterBlockId, QImage>>
        m_blocks; ///< in the order in which they are wanted
    std::vector<std::pair<RasterBlockId, QImage>>::iterator m_next;
    RasterImage& m_image;
    const RasterView& m_view;
    int m_readSubstitutes = 0;
};

RasterImage::RasterImage(const QString& path)
    : m_path(path), m_owner(RasterBlockCache::instance().newOwner())
{
    m_source = RasterSource::open(path, m_fault);
    if (!m_source)
        return;
    m_info = m_source->info();
    m_isUsable = m_info.isPlaced;
    if (!m_isUsable)
        m_fault =
            QCoreApplication::translate(
                "Raster", "\"%1\" does not say where it lies: it has neither a position of its "
                          "own nor a world file beside it.")
                .arg(QFileInfo(path).fileName());
}

RasterImage::~RasterImage()
{
    RasterBlockCache::instance().remove(m_owner);
}

QString RasterImage::fault() const
{
    const QMutexLocker lock(&m_mutex);
    return m_fault;
}

void RasterImage::noteFault(const QString& reason)
{
    const QMutexLocker lock(&m_mutex);
    if (m_fault.isEmpty())
        m_fault = QCoreApplication::translate("Raster", "Parts of \"%1\" cannot be read: %2")
                      .arg(QFileInfo(m_path).fileName(), reason);
}

bool RasterImage::hasHelper()
{
    if (!m_helper && !m_isHelperTried) {
        QString ignored;
        m_helper = RasterSource::open(m_path, ignored);
        m_isHelperTried = true;
        if (m_helper && m_helper->info().levels != m_info.levels)
            m_helper.reset(); // the file is another one by now
    }
    return m_helper != nullptr;
}

QRectF RasterImage::extent(const IDictionary& system) const
{
    const QMutexLocker lock(&m_mutex);
    if (m_isUsable && !(m_extentSystem && dictionary_same(*m_extentSystem, system))) {
        m_extent = RasterPlace(m_info, system).extent();
        m_extentSystem.emplace(system);
    }
    return m_extent;
}

bool RasterImage::paint(const RasterView& view, QPainter& painter, double opacity)
{
    if (!m_isUsable)
        return true;
    if (!m_place || !m_place->isFor(view.system))
        m_place = std::make_unique<RasterPlace>(m_info, view.system);
    Blocks blocks(*this, view);
    return paintRaster(view, *m_place, blocks, painter, opacity) != RasterPainted::SomeMissing;
}

} // namespace lum
