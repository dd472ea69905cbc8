#pragma once

#include "IRibbonGroupWidget.h"
#include "zelribbon_export.h"

#include <QListWidget>

#include <memory>

namespace zel {

class OfficePopupButton;
class RibbonCatMenuAction;

// The in-ribbon gallery of a RibbonCatMenuAction whose popup type is PopupListPreview:
// one row of 60 x 60 tiles, one per enabled action of the menu action's icon group,
// with a narrow two-button scroll bar at its right and, under it, a button that opens
// the full menu (the view popup of the menu action). Clicking a tile triggers its
// action; the checked tile is scrolled into view and framed.
//
// The tiles are rebuilt whenever an action of the icon group changes or is destroyed.
// The group's membership is read when the gallery is made and at each rebuild, so the
// host fills the group before adding the menu action to a category.
class ZELRIBBON_EXPORT RibbonCatListPreview : public QListWidget, public IRibbonGroupWidget
{
    Q_OBJECT
public:
    RibbonCatListPreview(RibbonCatMenuAction &action, QWidget *parent);
    ~RibbonCatListPreview() override;

    // The action shown; null once it has been destroyed.
    RibbonCatMenuAction *action() const;

    // Makes the gallery exactly wide enough for count tiles (at least one), plus the
    // scroll bar when the icon group holds more actions than that.
    void setListWidth(int count);

    // Invalid: the gallery has a fixed size.
    QSize sizeHint() const override;

    // Hands over a press that reached a container keeping this gallery hidden.
    void processEvents(QEvent *event) override;

    // The button that opens the full menu.
    OfficePopupButton *popupButton() const;

protected:
    void actionEvent(QActionEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void fillContent();
    void onButtonClicked();
    void onItemClicked(QListWidgetItem *item);
    void onItemEntered(QListWidgetItem *item);
    void popupClosed();

private:
    void scrollToChecked();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCatListPreview)
};

} // namespace zel
