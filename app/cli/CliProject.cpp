#include "app/cli/CliProject.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/Text.h"
#include "protocol/Events.h"

#include <QFileInfo>

#include <unistd.h>

#include <cstdio>

CliProject::CliProject()
    : m_manager(&m_host), m_subscription(*this, events::kProgress, m_host.eventManager())
{
}

Outcome CliProject::open(const QString& file, ProjectAccess access)
{
    if (!QFileInfo(file).isFile())
        return Outcome::failed(QStringLiteral("There is no project file \"%1\".").arg(file));
    m_place = ProjectPlace::ofFile(file);
    Outcome opening = m_manager.openProject(m_place, access);
    if (!opening.isDone())
        return opening;
    for (const QString& notice : {opening.text(), m_manager.seaHeightNotice()}) {
        if (!notice.isEmpty())
            std::fprintf(stderr, "%s\n", qUtf8Printable(notice));
    }
    return opening;
}

void CliProject::handleEvent(const char* /*eventName*/, const char* payload, int /*reserved*/)
{
    static const bool isTerminal = isatty(STDERR_FILENO) != 0;
    if (!isTerminal)
        return;
    basalt::Dictionary values;
    payload::read(payload, values);
    const bool isOver = values.integer("show", 1) == 0;
    const QString line = isOver ? QString()
                                : QStringLiteral("%1 %2 %")
                                      .arg(lum::toQString(values.text("text")))
                                      .arg(static_cast<int>(values.number("value")));
    if (line == m_shown)
        return;
    std::fprintf(stderr, "\r\x1b[K%s", qUtf8Printable(line));
    m_shown = line;
}
