#pragma once

#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/files/WholeFileWriter.h"

#include <gdal.h>
#include <ogr_api.h>

#include <memory>
#include <span>
#include <string>

/// How points and lines of one kind look.
struct KmlStyle
{
    const char* id;
    const char* color; ///< "RRGGBB"
};

inline constexpr KmlStyle kKmlReceiver{"receiver", "00B7EB"};
inline constexpr KmlStyle kKmlSource{"source", "FF8C00"};
inline constexpr KmlStyle kKmlResult{"result", "2E8B57"};
inline constexpr KmlStyle kKmlFailed{"failed", "E00000"};

/// What a feature says of itself.
struct KmlLabel
{
    std::string name;
    std::string description; ///< lines of text
    const KmlStyle* style = &kKmlResult;
};

/// A KML file: layers of points and of lines, one after the other, written by the KML driver of
/// GDAL. It appears as a whole with `commit`; without it the file at the path stays as it is.
///
/// The driver neither names the document nor styles points, so both are put into its text on the
/// way to the disk. One file at a time in a thread. Positions are latitude and longitude in
/// degrees, and height.
class KmlFile
{
public:
    /// \param name of the document
    KmlFile(const QString& path, const QString& name);
    ~KmlFile();
    KmlFile(const KmlFile&) = delete;
    KmlFile& operator=(const KmlFile&) = delete;

    /// Ends the layer before; what is added next goes into the new one.
    void beginPoints(const char* layer);
    void beginLines(const char* layer);

    void addPoint(const KmlLabel& label, const CoordTriple& position);
    /// A line of one position is written as one from there to there.
    void addLine(const KmlLabel& label, std::span<const CoordTriple> positions);

    /// \returns an empty text, or why the file could not be written
    [[nodiscard]] QString commit();
    /// Why it cannot be written, as far as that is known; empty so far when nothing went wrong.
    [[nodiscard]] QString fault() const;

    /// Takes a piece of the driver's text.
    void write(std::string_view text);

private:
    struct CloseDataset
    {
        void operator()(void* dataset) const { GDALClose(dataset); }
    };
    struct EndFeature
    {
        void operator()(OGRFeatureH feature) const { OGR_F_Destroy(feature); }
    };
    using Feature = std::unique_ptr<std::remove_pointer_t<OGRFeatureH>, EndFeature>;

    void beginLayer(const char* name, OGRwkbGeometryType type);
    void add(const KmlLabel& label);

    lum::WholeFileWriter m_file;
    std::string m_head;                ///< what follows the start of the document
    const KmlStyle* m_style = nullptr; ///< of the point that the driver writes now
    std::string m_driverFault;         ///< the first that the driver has told
    std::unique_ptr<void, CloseDataset> m_dataset;
    OGRLayerH m_layer = nullptr; ///< of the dataset
    Feature m_feature;           ///< used for each feature of the layer
};
