#pragma once

#include "zelribbon_export.h"

#include <QList>
#include <QObject>
#include <QPointer>

#include <memory>

class QWidget;

namespace zel {

// Surrounds a frameless top-level window with eight small companion windows lying just
// outside its edges. They draw a soft shadow that fades away from the window and resize
// the window when dragged. The border follows the window through an event filter and is
// a child of the window, so it is deleted with it.
class ZELRIBBON_EXPORT RibbonWindowBorder : public QObject
{
    Q_OBJECT
public:
    // With stayOnTop the items are kept above other windows and hide their shadow while
    // the application is inactive or the window is maximised.
    RibbonWindowBorder(QWidget *window, bool stayOnTop);
    ~RibbonWindowBorder() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void update();
    void onUpdateBorders();
    void onFocusChanged(QWidget *, QWidget *);

private:
    class BorderItem;

    void placeItems();

    QWidget *m_window;
    bool m_closing;
    QPointer<QWidget> m_activeWindow;
    QList<std::shared_ptr<BorderItem>> m_items;

    Q_DISABLE_COPY(RibbonWindowBorder)
};

} // namespace zel
