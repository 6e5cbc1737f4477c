#include "exchange/KmlFile.h"

#include <QCoreApplication>

#include <cpl_error.h>
#include <cpl_vsi.h>

#include <string_view>

namespace {

constexpr const char* kPrefix = "/vsikmlfile/";
constexpr std::string_view kDocument = "<Document ";
constexpr std::string_view kPoint = "      <Point>";

/// The file that the driver opens next: it asks for it by name only.
thread_local KmlFile* fileToOpen = nullptr;

/// Lets the driver write into a `KmlFile`. That notices a full disk, which the driver does not
/// tell.
void installFileSystem()
{
    static const bool isInstalled = [] {
        VSIFilesystemPluginCallbacksStruct* const calls = VSIAllocFilesystemPluginCallbacksStruct();
        calls->stat = [](void*, const char*, VSIStatBufL*, int) { return -1; };
        // Before it creates a file, GDAL looks whether there is one: there is none.
        calls->open = [](void*, const char*, const char* access) {
            return static_cast<void*>(*access == 'w' ? fileToOpen : nullptr);
        };
        calls->write = [](void* file, const void* text, std::size_t size, std::size_t count) {
            static_cast<KmlFile*>(file)->write({static_cast<const char*>(text), size * count});
            return count;
        };
        calls->close = [](void*) { return 0; };
        const bool isDone = VSIInstallPluginHandler(kPrefix, calls) == 0;
        VSIFreeFilesystemPluginCallbacksStruct(calls);
        return isDone;
    }();
    Q_UNUSED(isInstalled)
}

void keepFirst(CPLErr kind, CPLErrorNum /*number*/, const char* message)
{
    auto* const fault = static_cast<std::string*>(CPLGetErrorHandlerUserData());
    if (kind >= CE_Failure && fault->empty())
        *fault = message;
}

/// KML has the bytes of a colour the other way round.
std::string sharedStyle(const KmlStyle& style)
{
    const std::string color(style.color);
    const std::string turned = "ff" + color.substr(4) + color.substr(2, 2) + color.substr(0, 2);
    return std::string("<Style id=\"") + style.id + "\"><IconStyle><color>" + turned +
           "</color><scale>0.6</scale></IconStyle><LabelStyle><scale>0.7</scale></LabelStyle>"
           "</Style>\n";
}

} // namespace

KmlFile::KmlFile(const QString& path, const QString& name)
    : m_file(path), m_head("<name>" + name.toHtmlEscaped().toStdString() + "</name>\n")
{
    for (const KmlStyle& style : {kKmlReceiver, kKmlSource, kKmlResult, kKmlFailed})
        m_head += sharedStyle(style);
    installFileSystem();
    CPLPushErrorHandlerEx(keepFirst, &m_driverFault);
    const GDALDriverH driver = GDALGetDriverByName("KML");
    fileToOpen = this;
    if (driver != nullptr && m_file.fault().isEmpty())
        m_dataset.reset(GDALCreate(driver, (std::string(kPrefix) + "f.kml").c_str(), 0, 0, 0,
                                   GDT_Unknown, nullptr));
    fileToOpen = nullptr;
    if (!m_dataset && m_driverFault.empty())
        m_driverFault =
            QCoreApplication::translate("Kml", "the library GDAL has no driver for KML here")
                .toStdString();
}

KmlFile::~KmlFile()
{
    m_feature.reset();
    m_dataset.reset();
    CPLPopErrorHandler();
}

void KmlFile::beginPoints(const char* layer)
{
    beginLayer(layer, wkbPoint25D);
    if (m_feature)
        OGR_F_SetGeometryDirectly(m_feature.get(), OGR_G_CreateGeometry(wkbPoint25D));
}

void KmlFile::beginLines(const char* layer)
{
    beginLayer(layer, wkbLineString25D);
}

void KmlFile::beginLayer(const char* name, OGRwkbGeometryType type)
{
    m_feature.reset();
    m_layer =
        m_dataset ? GDALDatasetCreateLayer(m_dataset.get(), name, nullptr, type, nullptr) : nullptr;
    if (m_layer == nullptr)
        return;
    for (const char* field : {"Name", "Description"}) { // as the driver expects them
        const OGRFieldDefnH definition = OGR_Fld_Create(field, OFTString);
        OGR_L_CreateField(m_layer, definition, 1);
        OGR_Fld_Destroy(definition);
    }
    m_feature.reset(OGR_F_Create(OGR_L_GetLayerDefn(m_layer)));
}

void KmlFile::addPoint(const KmlLabel& label, const CoordTriple& position)
{
    if (!m_feature)
        return;
    OGR_G_SetPoint(OGR_F_GetGeometryRef(m_feature.get()), 0, position.second, position.first,
                   position.third);
    m_style = label.style;
    add(label);
    m_style = nullptr;
}

void KmlFile::addLine(const KmlLabel& label, std::span<const CoordTriple> positions)
{
    if (!m_feature || positions.empty())
        return;
    const OGRGeometryH line = OGR_G_CreateGeometry(wkbLineString25D);
    for (const CoordTriple& position : positions)
        OGR_G_AddPoint(line, position.second, position.first, position.third);
    if (positions.size() == 1) // which is no line to KML
        OGR_G_AddPoint(line, positions[0].second, positions[0].first, positions[0].third);
    OGR_F_SetGeometryDirectly(m_feature.get(), line);
    OGR_F_SetStyleString(m_feature.get(),
                         (std::string("PEN(c:#") + label.style->color + ",w:2px)").c_str());
    add(label);
}

void KmlFile::add(const KmlLabel& label)
{
    OGR_F_SetFID(m_feature.get(), OGRNullFID);
    OGR_F_SetFieldString(m_feature.get(), 0, label.name.c_str());
    OGR_F_SetFieldString(m_feature.get(), 1, label.description.c_str());
    if (OGR_L_CreateFeature(m_layer, m_feature.get()) != OGRERR_NONE && m_driverFault.empty())
        m_driverFault = CPLGetLastErrorMsg();
}

QString KmlFile::commit()
{
    m_feature.reset();
    m_dataset.reset();
    const QString why = fault();
    return why.isEmpty() ? m_file.commit() : why;
}

QString KmlFile::fault() const
{
    return m_file.fault().isEmpty() ? QString::fromStdString(m_driverFault) : m_file.fault();
}

void KmlFile::write(std::string_view text)
{
    if (m_style != nullptr && text.starts_with(kPoint))
        m_file.write(std::string("\t<styleUrl>#") + m_style->id + "</styleUrl>\n");
    m_file.write(text);
    if (!m_head.empty() && text.find(kDocument) != std::string_view::npos) {
        m_file.write(m_head);
        m_head.clear();
    }
}
