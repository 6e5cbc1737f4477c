#include "lum_sdk/raster/RasterImage.h"

#include "lum_sdk/raster/RasterBlockCache.h"
#include "lum_sdk/raster/RasterSource.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace lum {

namespace {

constexpr int kMostSubstitutes = 16; // blocks that are read to stand for finer ones, a picture

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

    QImage block(const RasterBlockId& id) override
    {
        const QImage found = RasterBlockCache::instance().find(m_image.m_owner, id);
        if (!found.isNull() || m_view.isLate())
            return found;
        return read(id);
    }

    QImage substitute(const RasterBlockId& id) override
    {
        const QImage found = RasterBlockCache::instance().find(m_image.m_owner, id);
        const bool isQuick = id.level + 1 == m_image.m_info.levels.size() &&
                             m_image.m_info.levels[id.level].isStored;
        if (!found.isNull() || !isQuick || m_readSubstitutes >= kMostSubstitutes)
            return found;
        ++m_readSubstitutes;
        return read(id);
    }

private:
    QImage read(const RasterBlockId& id)
    {
        QString reason;
        QImage block = m_image.m_source->readBlock(id.level, id.column, id.row, reason,
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
    const QMutexLocker lock(&m_faultMutex);
    return m_fault;
}

void RasterImage::noteFault(const QString& reason)
{
    const QMutexLocker lock(&m_faultMutex);
    if (m_fault.isEmpty())
        m_fault = QCoreApplication::translate("Raster", "Parts of \"%1\" cannot be read: %2")
                      .arg(QFileInfo(m_path).fileName(), reason);
}

QRectF RasterImage::extent(const IDictionary& system) const
{
    return m_isUsable ? RasterPlace(m_info, system).extent() : QRectF();
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
