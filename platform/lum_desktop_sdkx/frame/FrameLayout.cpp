#include "lum_desktop_sdkx/frame/FrameLayout.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/frame/Mnemonics.h"

#include <QXmlStreamReader>

namespace {

constexpr int kDeepestMenu = 8; // a limit, since menus are read recursively

class FrameLayoutReader
{
public:
    explicit FrameLayoutReader(const QByteArray& xml) : m_xml(xml) {}

    QString read(FrameLayout& layout)
    {
        if (m_xml.readNextStartElement()) {
            if (m_xml.name() != QLatin1String("main_frame"))
                fail(QStringLiteral("a frame layout begins with <main_frame>"));
            while (!m_xml.hasError() && m_xml.readNextStartElement())
                readPart(layout);
        }
        while (!m_xml.hasError() && !m_xml.atEnd())
            m_xml.readNext();
        if (!m_xml.hasError())
            return {};
        return QStringLiteral("line %1: %2").arg(m_xml.lineNumber()).arg(m_xml.errorString());
    }

private:
    void fail(const QString& reason) { m_xml.raiseError(reason); }

    void failUnknown() { fail(QStringLiteral("unknown element <%1>").arg(m_xml.name())); }

    [[nodiscard]] QString attribute(const char* name) const
    {
        return m_xml.attributes().value(QLatin1String(name)).toString();
    }

    QString required(const char* name)
    {
        QString value = attribute(name);
        if (value.isEmpty())
            fail(QStringLiteral("<%1> without %2").arg(m_xml.name()).arg(QLatin1String(name)));
        return value;
    }

    /// All attributes as the configuration text of a component, with the caption that is shown.
    [[nodiscard]] QByteArray config(const QString& caption) const
    {
        basalt::Dictionary values;
        for (const QXmlStreamAttribute& entry : m_xml.attributes())
            values.set(entry.qualifiedName().toString().toStdString(),
                       entry.value().toString().toStdString());
        values.set("caption", caption.toStdString());
        return QByteArray::fromStdString(dictionary_to_csa(values));
    }

    void readPart(FrameLayout& layout)
    {
        const QStringRef part = m_xml.name();
        if (part == QLatin1String("assistant")) {
            layout.assistants.push_back(required("class"));
            m_xml.skipCurrentElement();
        } else if (part == QLatin1String("menu")) {
            layout.menus.push_back(readMenu(1));
        } else if (part == QLatin1String("toolbar")) {
            layout.toolBars.push_back(readToolBar());
        } else if (part == QLatin1String("window")) {
            layout.windows.push_back(readWindow());
        } else {
            failUnknown();
        }
    }

    FrameLayout::Menu readMenu(int depth)
    {
        FrameLayout::Menu menu;
        menu.caption = required("caption");
        if (depth > kDeepestMenu)
            fail(QStringLiteral("menus are nested too deeply"));
        while (!m_xml.hasError() && m_xml.readNextStartElement())
            menu.items.push_back(readMenuItem(depth));
        return menu;
    }

    FrameLayout::MenuItem readMenuItem(int depth)
    {
        FrameLayout::MenuItem item;
        if (m_xml.name() == QLatin1String("menu")) {
            item.kind = FrameLayout::MenuItem::Kind::Submenu;
            item.submenu.push_back(readMenu(depth + 1));
            return item;
        }
        if (m_xml.name() == QLatin1String("command")) {
            item.kind = FrameLayout::MenuItem::Kind::Command;
            item.command = readCommand();
        } else if (m_xml.name() == QLatin1String("docks")) {
            item.kind = FrameLayout::MenuItem::Kind::Docks;
        } else if (m_xml.name() != QLatin1String("separator")) {
            failUnknown();
        }
        m_xml.skipCurrentElement();
        return item;
    }

    FrameLayout::Command readCommand()
    {
        FrameLayout::Command command;
        command.className = required("class");
        command.name = required("name");
        const bool hasCaption = m_xml.attributes().hasAttribute(QLatin1String("caption"));
        command.caption = hasCaption ? attribute("caption") : command.name;
        command.icon = attribute("icon");
        command.shortcut = attribute("shortcut");
        command.tip = attribute("tip");
        command.group = attribute("group");
        command.enabledWhile = statusRule("enabled_while");
        command.checkedWhile = statusRule("checked_while");
        command.config = config(desktop::withoutMnemonic(command.caption));
        return command;
    }

    FrameLayout::StatusRule statusRule(const char* name)
    {
        const std::string text = attribute(name).toStdString();
        const std::size_t sign = text.find('=');
        if (text.empty() || (sign != 0 && sign != std::string::npos))
            return {text.substr(0, sign), text.empty() ? text : text.substr(sign + 1)};
        m_xml.raiseError(QStringLiteral("\"%1\" is no key=value").arg(QString::fromLatin1(name)));
        return {};
    }

    FrameLayout::ToolBar readToolBar()
    {
        FrameLayout::ToolBar bar;
        bar.name = required("name");
        bar.caption = required("caption");
        while (!m_xml.hasError() && m_xml.readNextStartElement()) {
            if (m_xml.name() == QLatin1String("command"))
                bar.commands.push_back(required("name"));
            else if (m_xml.name() == QLatin1String("separator"))
                bar.commands.push_back(QString());
            else
                failUnknown();
            m_xml.skipCurrentElement();
        }
        return bar;
    }

    FrameLayout::Window readWindow()
    {
        FrameLayout::Window window;
        window.className = required("class");
        window.name = required("name");
        window.caption = attribute("caption");
        if (window.caption.isEmpty())
            window.caption = window.name;
        window.icon = attribute("icon");
        window.area = readArea();
        window.isBelow = attribute("place") == QLatin1String("below");
        window.isClosable = attribute("closable") != QLatin1String("0");
        window.width = attribute("width").toInt();
        window.height = attribute("height").toInt();
        window.config = config(window.caption);
        m_xml.skipCurrentElement();
        return window;
    }

    FrameLayout::Area readArea()
    {
        using Area = FrameLayout::Area;
        constexpr std::pair<const char*, Area> kAreas[] = {{"center", Area::Center},
                                                           {"left", Area::Left},
                                                           {"right", Area::Right},
                                                           {"bottom", Area::Bottom},
                                                           {"status", Area::Status}};
        const QString name = required("area");
        for (const auto& [areaName, area] : kAreas) {
            if (name == QLatin1String(areaName))
                return area;
        }
        if (!name.isEmpty())
            fail(QStringLiteral("unknown area \"%1\"").arg(name));
        return Area::Center;
    }

    QXmlStreamReader m_xml;
};

} // namespace

FrameLayout FrameLayout::minimal()
{
    FrameLayout layout;
    const QByteArray xml = R"(<main_frame>
        <menu caption="&amp;Project"><command class="ExitCommand" name="Exit"/></menu>
        <window class="MapWindow" name="DataMap" caption="Map" area="center" closable="0"/>
        </main_frame>)";
    [[maybe_unused]] const QString fault = desktop::readFrameLayout(xml, layout);
    Q_ASSERT(fault.isEmpty());
    return layout;
}

namespace desktop {

QString readFrameLayout(const QByteArray& xml, FrameLayout& layout)
{
    FrameLayout read;
    QString fault = FrameLayoutReader(xml).read(read);
    if (fault.isEmpty())
        layout = std::move(read);
    return fault;
}

} // namespace desktop
