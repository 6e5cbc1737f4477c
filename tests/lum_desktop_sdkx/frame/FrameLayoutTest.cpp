#include "lum_desktop_sdkx/frame/FrameLayout.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

constexpr const char* kTool = "/etc/Tarvona/config/Skyquill/Tool/DataProcess5/";

QByteArray contentOf(const QString& path)
{
    QFile file(QStringLiteral(SOURCE_FOLDER) + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void collectTexts(const FrameLayout::Menu& menu, QSet<QString>& texts)
{
    texts << menu.caption;
    for (const FrameLayout::MenuItem& item : menu.items) {
        texts << item.command.caption << item.command.tip;
        for (const FrameLayout::Menu& submenu : item.submenu)
            collectTexts(submenu, texts);
    }
}

/// Source texts with a finished translation.
QSet<QString> translatedTexts(const QByteArray& ts)
{
    QSet<QString> texts;
    QXmlStreamReader reader(ts);
    QString source;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (reader.name() == QLatin1String("source")) {
            source = reader.readElementText();
        } else if (reader.name() == QLatin1String("translation")) {
            const bool finished = !reader.attributes().hasAttribute(QLatin1String("type"));
            if (finished && !reader.readElementText().isEmpty())
                texts << source;
        }
    }
    return texts;
}

} // namespace

TEST(InstalledLayout, IsReadWholeAndTranslatedToChinese)
{
    FrameLayout layout;
    const QString fault = desktop::readFrameLayout(
        contentOf(QString::fromUtf8(kTool) + QStringLiteral("main_frame.xml")), layout);
    ASSERT_EQ(fault.toStdString(), "");
    EXPECT_EQ(layout.menus.size(), 8U);

    QSet<QString> texts;
    for (const FrameLayout::Menu& menu : layout.menus)
        collectTexts(menu, texts);
    for (const FrameLayout::ToolBar& bar : layout.toolBars)
        texts << bar.caption;
    for (const FrameLayout::Window& window : layout.windows)
        texts << window.caption;
    texts.remove(QString());
    texts -= translatedTexts(contentOf(QStringLiteral("/translations/frame_zh_CN.ts")));
    EXPECT_EQ(QStringList(texts.values()).join(QLatin1Char(';')).toStdString(), "");
}

TEST(InstalledLayout, EveryToolBarButtonIsACommandOfTheMenus)
{
    FrameLayout layout;
    ASSERT_TRUE(desktop::readFrameLayout(
                    contentOf(QString::fromUtf8(kTool) + QStringLiteral("main_frame.xml")), layout)
                    .isEmpty());
    QSet<QString> names;
    const auto collect = [&](const auto& self, const FrameLayout::Menu& menu) -> void {
        for (const FrameLayout::MenuItem& item : menu.items) {
            EXPECT_TRUE(item.command.name.isEmpty() || !names.contains(item.command.name))
                << "twice: " << item.command.name.toStdString();
            names << item.command.name;
            for (const FrameLayout::Menu& submenu : item.submenu)
                self(self, submenu);
        }
    };
    for (const FrameLayout::Menu& menu : layout.menus)
        collect(collect, menu);
    for (const FrameLayout::ToolBar& bar : layout.toolBars) {
        for (const QString& name : bar.commands)
            EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
}

TEST(FrameLayoutXml, AttributesReachTheComponentWhole)
{
    FrameLayout layout;
    ASSERT_TRUE(desktop::readFrameLayout(R"(<main_frame xmlns:x="other"><menu caption="M">
        <command class="C" name="N, with comma" reactor="R" tip="say &quot;hi&quot;" x:name="X"/>
        </menu></main_frame>)",
                                         layout)
                    .isEmpty());
    const FrameLayout::Command& command = layout.menus.at(0).items.at(0).command;
    basalt::Dictionary config;
    EXPECT_TRUE(csa_to_dictionary(config, command.config.constData()));
    EXPECT_EQ(config.text("name"), "N, with comma");
    EXPECT_EQ(config.text("tip"), "say \"hi\"");
    EXPECT_EQ(config.text("reactor"), "R");
    EXPECT_EQ(command.caption, command.name);
    EXPECT_EQ(config.text("caption"), "N, with comma") << "components read what the entry shows";
}

struct BadLayout
{
    const char* name;
    QByteArray xml;
    const char* fault; ///< must stand in the message
};

class BadFrameLayout : public testing::TestWithParam<BadLayout>
{
};

TEST_P(BadFrameLayout, IsRefusedWholeWithItsLine)
{
    FrameLayout layout = FrameLayout::minimal();
    const std::string fault = desktop::readFrameLayout(GetParam().xml, layout).toStdString();
    EXPECT_NE(fault.find(GetParam().fault), std::string::npos) << fault;
    EXPECT_EQ(layout.menus.size(), 1U);
    EXPECT_EQ(layout.windows.size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadFrameLayout,
    testing::Values(
        BadLayout{"Empty", "", "line 1"},
        BadLayout{"CutOff", "<main_frame>\n<menu caption=\"a\">\n<command", "line 3"},
        BadLayout{"OtherRoot", "<dictionary/>", "<main_frame>"},
        BadLayout{"UnknownPart", "<main_frame>\n<sidebar/></main_frame>",
                  "line 2: unknown element <sidebar>"},
        BadLayout{"UnknownItem", "<main_frame><menu caption=\"a\">\n<button/></menu></main_frame>",
                  "line 2: unknown element <button>"},
        BadLayout{"NoClass",
                  "<main_frame><menu caption=\"a\"><command name=\"n\"/></menu></main_frame>",
                  "<command> without class"},
        BadLayout{"NoArea", "<main_frame><window class=\"a\" name=\"b\"/></main_frame>",
                  "<window> without area"},
        BadLayout{"UnknownArea",
                  "<main_frame><window class=\"a\" name=\"b\" area=\"top\"/></main_frame>",
                  "\"top\""},
        BadLayout{"TooDeep",
                  "<main_frame>" + QByteArray("<menu caption=\"a\">").repeated(5000) +
                      QByteArray("</menu>").repeated(5000) + "</main_frame>",
                  "nested too deeply"}),
    [](const auto& test) { return test.param.name; });
