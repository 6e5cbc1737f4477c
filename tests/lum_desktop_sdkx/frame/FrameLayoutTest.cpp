#include "lum_desktop_sdkx/frame/FrameLayout.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "tests/support/Literals.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(QStringLiteral(SOURCE_FOLDER) + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

FrameLayout layoutOf(const QByteArray& xml)
{
    FrameLayout layout;
    EXPECT_EQ(desktop::readFrameLayout(xml, layout).toStdString(), "");
    return layout;
}

/// The captions of menus, and all commands in them.
void collect(const std::vector<FrameLayout::Menu>& menus, QSet<QString>& texts,
             std::vector<FrameLayout::Command>& commands)
{
    for (const FrameLayout::Menu& menu : menus) {
        texts << menu.caption;
        for (const FrameLayout::MenuItem& item : menu.items) {
            commands.push_back(item.command);
            collect(item.submenu, texts, commands);
        }
    }
}

/// Source texts with a finished translation.
QSet<QString> translatedTexts(const QString& ts)
{
    static const QRegularExpression kFinished("<source>([^<]+)</source>\\s*<translation>[^<]"_q);
    QSet<QString> texts;
    for (auto match = kFinished.globalMatch(ts); match.hasNext();)
        texts << match.next().captured(1).replace("&amp;"_q, "&"_q);
    return texts;
}

} // namespace

TEST(InstalledLayout, IsReadWholeAndTranslatedToChinese)
{
    const FrameLayout layout =
        layoutOf(contentOf("/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml"_q));
    EXPECT_EQ(layout.menus.size(), 8U);
    QSet<QString> texts;
    std::vector<FrameLayout::Command> commands;
    collect(layout.menus, texts, commands);
    QSet<QString> names;
    for (const FrameLayout::Command& command : commands) {
        texts << command.caption << command.tip;
        EXPECT_TRUE(command.name.isEmpty() || !names.contains(command.name))
            << "twice: " << command.name.toStdString();
        names << command.name;
    }
    for (const FrameLayout::ToolBar& bar : layout.toolBars) {
        texts << bar.caption;
        for (const QString& name : bar.commands)
            EXPECT_TRUE(names.contains(name)) << "in no menu: " << name.toStdString();
    }
    for (const FrameLayout::Window& window : layout.windows)
        texts << window.caption;
    texts.remove(QString());
    texts -= translatedTexts(QString::fromUtf8(contentOf("/translations/frame_zh_CN.ts"_q)));
    EXPECT_EQ(QStringList(texts.values()).join(QLatin1Char(';')).toStdString(), "");
}

TEST(FrameLayoutXml, AttributesReachTheComponentWhole)
{
    const FrameLayout layout = layoutOf(R"(<main_frame xmlns:x="other"><menu caption="M">
        <command class="C" name="N, with comma" reactor="R" tip="say &quot;hi&quot;" x:name="X"/>
        </menu></main_frame>)");
    const FrameLayout::Command& command = layout.menus.at(0).items.at(0).command;
    basalt::Dictionary config;
    EXPECT_TRUE(csa_to_dictionary(config, command.config.constData()));
    EXPECT_EQ(config.text("name"), "N, with comma");
    EXPECT_EQ(config.text("tip"), "say \"hi\"");
    EXPECT_EQ(config.text("reactor"), "R");
    EXPECT_EQ(command.caption, command.name);
    EXPECT_EQ(config.text("caption"), "N, with comma") << "components read what the entry shows";
}

TEST(FrameLayoutXml, IsRefusedWholeWithItsLine)
{
    const std::pair<QByteArray, const char*> kCases[] = {
        // text, part of the message
        {"", "line 1"},
        {"<main_frame>\n<menu caption=\"a\">\n<command", "line 3"},
        {"<dictionary/>", "<main_frame>"},
        {"<main_frame>\n<sidebar/></main_frame>", "line 2: unknown element <sidebar>"},
        {"<main_frame><menu caption=\"a\">\n<button/></menu></main_frame>",
         "line 2: unknown element <button>"},
        {"<main_frame><menu caption=\"a\"><command name=\"n\"/></menu></main_frame>",
         "<command> without class"},
        {"<main_frame><window class=\"a\" name=\"b\"/></main_frame>", "<window> without area"},
        {"<main_frame><window class=\"a\" name=\"b\" area=\"top\"/></main_frame>", "\"top\""},
        {"<main_frame>" + QByteArray("<menu caption=\"a\">").repeated(5000) +
             QByteArray("</menu>").repeated(5000) + "</main_frame>",
         "nested too deeply"}};
    for (const auto& [xml, part] : kCases) {
        FrameLayout layout = FrameLayout::minimal();
        const std::string fault = desktop::readFrameLayout(xml, layout).toStdString();
        EXPECT_NE(fault.find(part), std::string::npos) << part << ": " << fault;
        EXPECT_EQ(layout.menus.size(), 1U);
        EXPECT_EQ(layout.windows.size(), 1U);
    }
}
