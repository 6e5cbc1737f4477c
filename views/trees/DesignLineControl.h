#pragma once

#include "views/trees/LineTree.h"

/// The window "Design Lines": the lines of the design, receiver and source lines apart.
class DesignLineControl final : public LineTree
{
    Q_OBJECT

public:
    DesignLineControl(const char* config, IDesktopHost* host);

protected:
    void rebuild() override;
    void announce(const LineItem& item) override;
    void fillMenu(QMenu& menu, const LineItem& first) override;

private:
    /// The items above the lines; without a line.
    struct Upper
    {
        LineItem& root;
        LineItem& sources;
        LineItem& receivers;
    };
    Upper makeUpper();
    static void addLines(const Upper& upper);
};
