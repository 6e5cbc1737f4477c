#include "lum_desktop_sdkx/frame/LayerWindow.h"

#include "lum_desktop_sdkx/frame/LayerModel.h"
#include "lum_desktop_sdkx/ILayerItems.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/map/MapWindow.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "tests/lum_desktop_sdkx/TestHost.h"
#include "tests/support/Literals.h"
#include "tests/support/PopupMenu.h"

#include <QAbstractItemModelTester>

namespace {

/// A layer of pictures that only remembers what was done to them.
class Pictures final : public ILayerViewer, public ILayerItems
{
public:
    Pictures(const char* /*config*/, IDesktopHost* /*host*/)
    {
        for (const char* name : {"river", "village", "scan"})
            items.push_back({QString::fromLatin1(name), QString::fromLatin1(name)});
    }

    [[nodiscard]] std::string GetName() const override { return "Pictures"; }
    [[nodiscard]] QRectF GetExtent() const override { return {}; }
    void SetTransform(const Transform* /*transform*/) override {}
    void Paint(const PaintTarget& /*target*/, const QRectF& /*view*/,
               QPainter& /*painter*/) override
    {
    }
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override
    {
        return m_properties.integer("visible", 1) != 0;
    }

    [[nodiscard]] int itemCount() const override { return static_cast<int>(items.size()); }
    [[nodiscard]] LayerItem item(int index) const override { return at(index); }
    void showItem(int index, bool isVisible) override { at(index).isVisible = isVisible; }
    void setItemOpacity(int index, double opacity) override { at(index).opacity = opacity; }
    void moveItem(int from, int to) override
    {
        const LayerItem moved = at(from);
        items.erase(items.begin() + from);
        items.insert(items.begin() + to, moved);
    }
    void removeItem(int index) override { items.erase(items.begin() + index); }
    [[nodiscard]] QRectF itemExtent(int index) const override
    {
        return at(index).id == "village"_q ? QRectF(1000, 2000, 400, 300) : QRectF(0, 0, 1, 1);
    }
    [[nodiscard]] QVector<QPair<QString, QString>> itemProperties(int index) const override
    {
        return {{"File"_q, "/ground/"_q + at(index).id}};
    }
    [[nodiscard]] QStringList itemActions(int index) const override
    {
        return at(index).id == "scan"_q ? QStringList{"Sharpen"_q, "Blur"_q} : QStringList();
    }
    void runItemAction(int index, int action) override
    {
        done << at(index).id + QString::number(action);
    }

    /// The items from the top, a hidden one in brackets.
    [[nodiscard]] QString order() const
    {
        QStringList names;
        for (const LayerItem& each : items)
            names << (each.isVisible ? each.id : "("_q + each.id + ")"_q);
        return names.join(QLatin1Char(' '));
    }

    std::vector<LayerItem> items;
    QStringList done; ///< the actions, by item and number

private:
    [[nodiscard]] const LayerItem& at(int i) const { return items[static_cast<std::size_t>(i)]; }
    [[nodiscard]] LayerItem& at(int i) { return items[static_cast<std::size_t>(i)]; }

    basalt::Dictionary m_properties;
};

} // namespace

class LayerWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        registerMapComponents();
        desktop::registration::layer<Pictures>("Pictures", "");
    }

    void init()
    {
        get_system_status_dictionary().clear();
        m_host = std::make_unique<TestHost>();
        m_map = std::make_unique<MapWindow>(nullptr, m_host.get());
        m_map->resize(400, 300);
        m_host->windowRegistry.windows.insert("DataMap"_q, m_map.get());
        for (const char* name : {"Pictures", "BoundaryLayer"})
            m_map->addLayer(QString::fromLatin1(name), basalt::Dictionary());
        m_map->layers().find("BoundaryLayer"_q)->GetProperties().set("listed", "1");
        m_window = std::make_unique<LayerWindow>(nullptr, m_host.get());
        new QAbstractItemModelTester(&model(), m_window.get());
        m_window->resize(290, 220);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup()
    {
        m_window.reset();
        m_map.reset();
        m_host.reset();
    }

    void aCheckMarkShowsAndHides()
    {
        choose("village");
        press(Qt::Key_Space);
        QCOMPARE(pictures().order(), "river (village) scan"_q);
        press(Qt::Key_Up);
        press(Qt::Key_Up);
        press(Qt::Key_Space);
        QVERIFY(!pictures().IsVisible());
        QCOMPARE(pictures().order(), "river (village) scan"_q);

        QStyleOptionViewItem option;
        option.initFrom(&view());
        option.rect = view().visualRect(item("village"));
        option.features = QStyleOptionViewItem::HasCheckIndicator;
        const QPoint mark =
            view().style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option).center();
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, mark);
        QCOMPARE(pictures().order(), "river village scan"_q);
    }

    void dragging()
    {
        const struct
        {
            const char* dragged;
            const char* onto; ///< the parent; empty for the list itself
            int row;
            const char* order; ///< empty when it cannot be dropped there
        } cases[] = {{"river", "Pictures", 2, "village river scan"},
                     {"river", "Pictures", 3, "village scan river"},
                     {"scan", "Pictures", 0, "scan river village"},
                     {"scan", "Pictures", -1, "scan river village"}, // onto the layer
                     {"river", "", 2, "village scan river"},         // below the layer
                     {"village", "Pictures", 2, "river village scan"},
                     {"river", "BoundaryLayer", 0, ""},
                     {"scan", "", 0, ""}}; // above all layers
        const std::vector<LayerItem> before = pictures().items;
        for (const auto& [dragged, onto, row, order] : cases) {
            pictures().items = before;
            announceItems();
            const std::unique_ptr<QMimeData> data(model().mimeData({item(dragged)}));
            QModelIndex parent;
            for (int layer = 0; layer < model().rowCount({}); ++layer) {
                if (model().index(layer, 0, {}).data().toString() == QLatin1String(onto))
                    parent = model().index(layer, 0, {});
            }
            const bool isTaken = *order != '\0';
            QCOMPARE(model().canDropMimeData(data.get(), Qt::MoveAction, row, 0, parent), isTaken);
            QCOMPARE(model().dropMimeData(data.get(), Qt::MoveAction, row, 0, parent), isTaken);
            QCOMPARE(pictures().order(), QLatin1String(isTaken ? order : "river village scan"));
        }
    }

    void theSliderFollowsTheItem()
    {
        QVERIFY(slider().isVisible() && slider().isEnabled()); // of the first one
        press(Qt::Key_Up);
        QVERIFY(!slider().isEnabled()); // a layer has none
        choose("scan");
        QTest::keyClick(&slider(), Qt::Key_Left);
        QCOMPARE(pictures().items[2].opacity, 0.95);
        choose("river");
        QCOMPARE(slider().value(), 100);
        QCOMPARE(pictures().items[0].opacity, 1.0);
        choose("scan");
        QCOMPARE(slider().value(), 95);

        for (int i = 0; i < 3; ++i) {
            choose(pictures().items[0].id.toLatin1());
            press(Qt::Key_Delete);
        }
        QVERIFY(!slider().isVisible());
    }

    void aDoubleClickZoomsToTheItem()
    {
        const QRect row = view().visualRect(item("village"));
        QCursor::setPos(view().viewport()->mapToGlobal(row.center()));
        choose("village");
        QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, row.center());
        QCOMPARE(m_map->transform().center(), QPointF(1200, 2150));
        m_map->centerOn(0, 0);
        press(Qt::Key_Return);
        QCOMPARE(m_map->transform().center(), QPointF(1200, 2150));
    }

    void theMenuIsThatOfTheItem()
    {
        choose("scan");
        QStringList texts;
        QTimer::singleShot(0, qApp, [&] {
            const auto* const dialog = QApplication::activeModalWidget();
            if (dialog == nullptr)
                return;
            for (const QLabel* label : dialog->findChildren<QLabel*>())
                texts << label->text();
            QApplication::activeModalWidget()->close();
        });
        press(Qt::Key_Return, Qt::AltModifier);
        QCOMPARE(texts, QStringList({"/ground/scan"_q, "File:"_q}));

        const QPoint place = view().visualRect(item("scan")).center();
        chooseFrom(openMenuAt(*view().viewport(), place), "Blur"_q);
        QCOMPARE(pictures().done, QStringList{"scan1"_q});
        chooseFrom(openMenuAt(*view().viewport(), place)->findChild<QMenu*>(), "25 %"_q);
        QCOMPARE(pictures().items[2].opacity, 0.25);
        while (QMenu* const menu = openMenu())
            menu->close();
    }

    void aFaultIsMarked()
    {
        pictures().items[1].fault = "The file is gone."_q;
        announceItems();
        QCOMPARE(item("village").data(Qt::ToolTipRole).toString(), "The file is gone."_q);
        QVERIFY(item("village").data(Qt::DecorationRole).isValid());
        QVERIFY(!item("river").data(Qt::DecorationRole).isValid());
        const QPointF before = m_map->transform().center();
        choose("village");
        press(Qt::Key_Return);
        QCOMPARE(m_map->transform().center(), before);
    }

    void whatTheLayerHasChangedIsLeftAlone()
    {
        choose("scan");
        pictures().items.pop_back();
        for (const auto& [key, modifiers] :
             {std::pair(Qt::Key_Space, Qt::NoModifier), std::pair(Qt::Key_Up, Qt::ControlModifier),
              std::pair(Qt::Key_Delete, Qt::NoModifier), std::pair(Qt::Key_Return, Qt::NoModifier)})
            press(key, modifiers);
        slider().setValue(10);
        QCOMPARE(pictures().order(), "river village"_q);
        announceItems();
        QCOMPARE(model().rowCount(item("river").parent()), 2);
    }

    void whatIsNewIsSelected()
    {
        choose("village");
        pictures().items.insert(pictures().items.begin(), {"new"_q, "new"_q});
        announceItems();
        QCOMPARE(view().currentIndex(), item("new"));
        choose("village");
        pictures().items.erase(pictures().items.begin());
        announceItems();
        QCOMPARE(view().currentIndex(), item("village"));
    }

private:
    [[nodiscard]] Pictures& pictures()
    {
        return dynamic_cast<Pictures&>(*m_map->layers().find("Pictures"_q));
    }
    [[nodiscard]] QTreeView& view() { return *m_window->findChild<QTreeView*>(); }
    [[nodiscard]] LayerModel& model() { return *m_window->findChild<LayerModel*>(); }
    [[nodiscard]] QSlider& slider() { return *m_window->findChild<QSlider*>(); }
    [[nodiscard]] QModelIndex item(const char* id) const
    {
        return m_window->findChild<LayerModel*>()->find("Pictures"_q, QString::fromLatin1(id));
    }
    void choose(const char* id)
    {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                          view().visualRect(item(id)).center());
        QCOMPARE(view().currentIndex(), item(id));
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&view(), key, modifiers);
    }
    void announceItems()
    {
        m_host->events.publish("ON_LAYER_ITEMS_CHANGED", nullptr, 0);
        QCoreApplication::processEvents();
    }

    std::unique_ptr<TestHost> m_host;
    std::unique_ptr<MapWindow> m_map;
    std::unique_ptr<LayerWindow> m_window;
};

QTEST_MAIN(LayerWindowTest)
#include "LayerWindowTest.moc"
