#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/ILineList.h"

#include <QWidget>

#include <functional>
#include <string>

class IDesktopHost;
class LineItem;
class LineTreeView;
class QAction;
class QLineEdit;
class QMenu;

/// A window with a tree of lines and a search field: what the design's and the results' windows
/// share. A click on an item, or Enter, announces it and brings the table of points forward. Going
/// there by key announces it, too; the table then covers nothing and the focus stays.
class LineTree : public QWidget, public IWindowx, public IEventHandler, public ILineList
{
    Q_OBJECT

public:
    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void followLine(const QString& lineNumber) override;

protected:
    struct Setup
    {
        const char* className;        ///< of this window
        const char* table;            ///< the class of the window that lists the points
        const char* refreshEvent;     ///< after which the tree is rebuilt
        const char* selectPointEvent; ///< for the table
    };

    LineTree(const char* config, IDesktopHost& host, const Setup& setup);

    /// Reads the lines anew, and announces what the table has to show.
    virtual void rebuild() = 0;
    /// Publishes what a click on the item means.
    virtual void announce(const LineItem& item) = 0;
    /// \param first the first selected item, which decides on the entries
    virtual void fillMenu(QMenu& menu, const LineItem& first) = 0;
    /// The user has pressed the Delete key.
    virtual void deleteSelection() {}

    [[nodiscard]] IDesktopHost& host() const { return m_host; }
    [[nodiscard]] LineTreeView& view() const { return *m_view; }
    [[nodiscard]] QLineEdit& searchField() const { return *m_field; }

    /// What the user looks at.
    struct Place
    {
        QStringList selected;
        QString current; ///< the number of the current line; empty for none
        int scrolled = 0;
    };

    /// To be asked for before the lines are read anew. Empty when another project is open now.
    [[nodiscard]] Place leave();
    /// Selects again what is still there. \returns the line to announce; null for none
    LineItem* goBackTo(const Place& place);

    /// \param payload none when it is empty
    void publish(const char* event, const QByteArray& payload = {}) const;

    void addExpanding(QMenu& menu);
    /// An entry that is disabled while no project is open.
    QAction* addEntry(QMenu& menu, const char* icon, const QString& text,
                      const std::function<void()>& action);

private:
    void makeLayout();
    void choose(const LineItem& item);
    void goTo(const LineItem& item);
    void search();
    void openMenu(const QPoint& globalPos);

    IDesktopHost& m_host; // outlives every window
    Setup m_setup;
    basalt::Dictionary m_parameters;
    EventSubscription m_subscription;
    QLineEdit* m_field;
    LineTreeView* m_view;
    std::string m_project; ///< the folder of the project whose lines the tree has
};
