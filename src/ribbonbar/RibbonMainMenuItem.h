#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>

namespace zel {

// Base of the buttons that live in the ribbon's keyboard-navigable menus. Key presses
// reaching an item are consumed: the menu holding it moves between items in answer to
// navigationKeyPressed(), which subclasses emit, not Qt's focus chain.
class ZELRIBBON_EXPORT RibbonMainMenuItem : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonMainMenuItem(QWidget *parent = nullptr);
    ~RibbonMainMenuItem() override;

signals:
    void navigationKeyPressed(Qt::Key key);
    void mouseMoved();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    // Paints nothing; subclasses draw the item.
    void paintEvent(QPaintEvent *event) override;
};

} // namespace zel
