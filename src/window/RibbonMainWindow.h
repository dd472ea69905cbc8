#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonMenuBar;

// The application's top-level ribbon window: the ribbon bar above the host's central
// widget.
class ZELRIBBON_EXPORT RibbonMainWindow : public QWidget
{
    Q_OBJECT
public:
    explicit RibbonMainWindow(QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    ~RibbonMainWindow() override;

    RibbonMenuBar &ribbonMenuBar() const;

    // Puts w below the ribbon bar, in place of the previous central widget (which is
    // neither hidden nor deleted: its owner keeps it). Null leaves an empty area.
    void setCentralWidget(QWidget *w);

private:
    class Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonMainWindow)
};

} // namespace zel
