#include "lum_desktop_sdkx/frame/MessageWindow.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/frame/MessageLog.h"

namespace {

QString html(const MessageLog::Line& line)
{
    QString text = line.text.toHtmlEscaped();
    if (line.level == ILogger::Level::Warning)
        text = QStringLiteral("<span style=\"color:#b26a00\">%1</span>").arg(text);
    else if (line.level == ILogger::Level::Error)
        text = QStringLiteral("<span style=\"color:#d1383d\">%1</span>").arg(text);
    return QStringLiteral("<span style=\"color:#808890\">%1</span>&nbsp;&nbsp;%2")
        .arg(line.time, text);
}

} // namespace

MessageWindow::MessageWindow(const char* config, IDesktopHost* /*host*/)
    : m_parameters(desktop::componentParameters(config))
{
    setReadOnly(true);
    setFrameStyle(QFrame::NoFrame);
    setMaximumBlockCount(2000);
    document()->setDocumentMargin(6);
    connect(&MessageLog::instance(), &MessageLog::linesWaiting, this, &MessageWindow::showLines);
    showLines();
}

void MessageWindow::showLines()
{
    for (const MessageLog::Line& line : MessageLog::instance().takeLines())
        appendHtml(html(line));
}
