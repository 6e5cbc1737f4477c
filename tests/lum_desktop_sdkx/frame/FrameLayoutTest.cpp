#include "lum_desktop_sdkx/frame/FrameLayout.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/frame/Mnemonics.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

namespace {

QByteArray contentOf(const QString& path)
{
    return TestFolder::read(QStringLiteral(SOURCE_FOLDER) + path);
}

FrameLayout layoutOf(const QByteArray& xml)
{
    FrameLayout layout;
    EXPECT_EQ(desktop::readFrameLayout(xml, layout).toStdString(), "");
    return layout;
}

/// The finished translations of a catalogue, by their source texts.
QHash<QString, QString> translations(const QString& ts)
{
    static const QRegularExpression kFinished(
        "<source>([^<]+)</source>\\s*<translation>([^<]+)<"_q);
    QHash<QString, QString> texts;
    for (auto found = kFinished.globalMatch(ts); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        texts.insert(match.captured(1).replace("&amp;"_q, "&"_q),
                     match.captured(2).replace("&amp;"_q, "&"_q));
    }
    return texts;
}

/// A line for each caption without a mnemonic, and each whose mnemonic its menu has already.
void collectFaults(const std::vector<QString>& captions, const QHash<QString, QString>& texts,
                   QStringList& faults)
{
    QSet<QChar> taken;
    for (const QString& caption : captions) {
        const QString shown = texts.value(caption, caption);
        const QChar letter = desktop::mnemonicOf(shown);
        if (letter.isNull() || taken.contains(letter))
            faults << shown;
        taken << letter;
    }
}

/// The same for menus beside one another and all that is in them; adds the names of the commands.
void collectFaults(const std::vector<FrameLayout::Menu>& menus,
                   const QHash<QString, QString>& texts, QStringList& faults, QStringList& names)
{
    for (const FrameLayout::Menu& menu : menus) {
        std::vector<QString> captions;
        for (const FrameLayout::MenuItem& item : menu.items) {
            if (!item.command.name.isEmpty())
                names << item.command.name;
            if (!item.command.caption.isEmpty()) // else the command's class gives one
                captions.push_back(item.command.caption);
            for (const FrameLayout::Menu& submenu : item.submenu)
                captions.push_back(submenu.caption);
            collectFaults(item.submenu, texts, faults, names);
        }
        collectFaults(captions, texts, faults);
    }
}

} // namespace

TEST(InstalledLayout, EveryEntryHasANameAndInBothLanguagesAMnemonicOfItsOwn)
{
    const FrameLayout layout =
        layoutOf(contentOf("/etc/Tarvona/config/Skyquill/Tool/DataProcess5/main_frame.xml"_q));
    std::vector<QString> bar;
    for (const FrameLayout::Menu& menu : layout.menus)
        bar.push_back(menu.caption);
    const QString chinese = QString::fromUtf8(contentOf("/translations/frame_zh_CN.ts"_q));
    for (const auto& texts : {QHash<QString, QString>(), translations(chinese)}) {
        QStringList faults;
        QStringList names;
        collectFaults(bar, texts, faults);
        collectFaults(layout.menus, texts, faults, names);
        EXPECT_EQ(faults.join(QLatin1Char(';')).toStdString(), "");
        EXPECT_EQ(names.removeDuplicates(), 0);
        for (const FrameLayout::ToolBar& toolBar : layout.toolBars) {
            for (const QString& name : toolBar.commands)
                EXPECT_TRUE(name.isEmpty() || names.contains(name))
                    << "in no menu: " << name.toStdString();
        }
    }
}

TEST(Mnemonics, GoFromOneCaptionToAnother)
{
    EXPECT_EQ(desktop::withoutMnemonic("R&&D of &Lines..."_q), "R&D of Lines..."_q);
    EXPECT_EQ(desktop::withoutMnemonic("显示接收线(&R)..."_q), "显示接收线..."_q);
    const QChar letter = desktop::mnemonicOf("&Receiver Lines"_q);
    EXPECT_EQ(desktop::withMnemonic("hide all receivers"_q, letter), "hide all &receivers"_q);
    EXPECT_EQ(desktop::withMnemonic("draw"_q, letter), "d&raw"_q);
    EXPECT_EQ(desktop::withMnemonic("隐藏接收线..."_q, letter), "隐藏接收线(&R)..."_q);
    EXPECT_EQ(desktop::withMnemonic("隐藏(&H)"_q, letter), "隐藏(&H)"_q);
}

TEST(FrameLayoutXml, AttributesReachTheComponentWhole)
{
    const FrameLayout layout = layoutOf(R"(<main_frame xmlns:x="other"><menu caption="M">
        <command class="C" name="N, with comma" caption="&amp;N, with comma" reactor="R" tip="say &quot;hi&quot;" x:name="X"/>
        </menu></main_frame>)");
    const FrameLayout::Command& command = layout.menus.at(0).items.at(0).command;
    basalt::Dictionary config;
    EXPECT_TRUE(csa_to_dictionary(config, command.config.constData()));
    EXPECT_EQ(config.text("name"), "N, with comma");
    EXPECT_EQ(config.text("tip"), "say \"hi\"");
    EXPECT_EQ(config.text("reactor"), "R");
    EXPECT_EQ(command.caption, "&N, with comma"_q);
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
        {"<main_frame><menu caption=\"a\"><command class=\"c\" name=\"n\" enabled_while=\"k\"/>"
         "</menu></main_frame>",
         "\"enabled_while\" is no key=value"},
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
