#include "lum_sdk/Countly.h"

#include "basalt_utilities/Files.h"
#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/files/WholeFile.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSysInfo>
#include <QUrl>
#include <QUrlQuery>
#include <QUuid>

namespace {

std::unique_ptr<ICountly>& session()
{
    static std::unique_ptr<ICountly> instance;
    return instance;
}

/// The random identifier of this installation, made at the first session.
QString deviceId()
{
    const std::string folder = basalt::settingsFolder();
    const QString path = QString::fromStdString(folder) + QStringLiteral("/device_id");
    QFile file(path);
    if (file.open(QIODevice::ReadOnly)) {
        const QUuid stored(QString::fromLatin1(file.readAll().trimmed()));
        if (!stored.isNull())
            return stored.toString(QUuid::WithoutBraces);
    }
    QString fresh = QUuid::createUuid().toString(QUuid::WithoutBraces);
    if (!file_system_create_dir(folder) || !lum::writeWholeFile(path, fresh.toLatin1()).isEmpty())
        basalt::logWarning("Cannot keep the device identifier: " + path.toStdString());
    return fresh;
}

QString metrics(const char* version)
{
    const QJsonObject values{
        {QStringLiteral("_os"), QSysInfo::kernelType()},
        {QStringLiteral("_os_version"), QSysInfo::productVersion()},
        {QStringLiteral("_locale"), QLocale::system().name()},
        {QStringLiteral("_app_version"), QString::fromUtf8(version)},
    };
    return QString::fromUtf8(QJsonDocument(values).toJson(QJsonDocument::Compact));
}

QUrl sessionUrl(const char* appKey, const char* version, const char* server, int port)
{
    QUrl url;
    url.setScheme(QStringLiteral("http"));
    url.setHost(QString::fromUtf8(server));
    url.setPort(port);
    url.setPath(QStringLiteral("/i"));
    const auto encoded = [](const QString& text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("app_key"), encoded(QString::fromUtf8(appKey)));
    query.addQueryItem(QStringLiteral("device_id"), encoded(deviceId()));
    query.addQueryItem(QStringLiteral("begin_session"), QStringLiteral("1"));
    query.addQueryItem(QStringLiteral("metrics"), encoded(metrics(version)));
    url.setQuery(query);
    return url;
}

} // namespace

Countly::Countly(int timeoutMs) : m_timeoutMs(timeoutMs) {}
Countly::~Countly() = default;

void Countly::begin(const char* appKey, const char* version, const char* server, int port)
{
    if (server == nullptr || server[0] == '\0')
        return;
    const QUrl url = sessionUrl(appKey, version, server, port);
    if (!url.isValid() || url.host().isEmpty()) {
        basalt::logWarning(std::string("No analytics session, not an address: ") + server);
        return;
    }
    m_network = std::make_unique<QNetworkAccessManager>();
    m_network->setTransferTimeout(m_timeoutMs);
    // The network cannot outlive the application object.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, m_network.get(),
                     [this] { m_network.reset(); });
    QNetworkReply* reply = m_network->get(QNetworkRequest(url));
    QObject::connect(reply, &QNetworkReply::finished, reply, [reply] {
        if (reply->error() != QNetworkReply::NoError)
            basalt::logDebug("No analytics session: " + reply->errorString().toStdString());
        reply->deleteLater();
    });
}

ICountly* s_get_instance_ICountly()
{
    if (!session())
        session() = std::make_unique<Countly>();
    return session().get();
}

void s_release_instance_ICountly()
{
    session().reset();
}
