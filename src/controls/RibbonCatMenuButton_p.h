#pragma once

#include <QObject>
#include <QPointer>
#include <QSize>

class QActionEvent;
class QEvent;
class QMenu;
class QMouseEvent;
class QPaintEvent;
class QPainter;
class QPixmap;
class QRect;
class QWidget;

namespace zel {

class RibbonCatMenuAction;
class RibbonCatMenuButton;

// The presentation of a RibbonCatMenuButton; one implementation per menu type.
class RibbonCatMenuButtonPriv : public QObject
{
    Q_OBJECT
public:
    explicit RibbonCatMenuButtonPriv(RibbonCatMenuButton &owner);
    ~RibbonCatMenuButtonPriv() override;

    virtual void sizeHint(QSize *result) = 0;
    virtual void paintEvent(QPaintEvent *event) = 0;
    virtual void actionEvent(QActionEvent *event) = 0;
    virtual void mouseMoveEvent(QMouseEvent *event) = 0;
    virtual void mousePressEvent(QMouseEvent *event) = 0;
    virtual void mouseReleaseEvent(QMouseEvent *event) = 0;
    virtual void enterEvent(QEvent *event) = 0;
    virtual void leaveEvent(QEvent *event) = 0;

    bool drawBorder = false;
    bool popupShown = false;
    RibbonCatMenuButton &owner;

private:
    Q_DISABLE_COPY(RibbonCatMenuButtonPriv)
};

// The button presentation (menu type MenuTypeButton) in its three sizes.
class RibbonCatMenuButtonBPriv : public RibbonCatMenuButtonPriv
{
    Q_OBJECT
public:
    explicit RibbonCatMenuButtonBPriv(RibbonCatMenuButton &owner);
    ~RibbonCatMenuButtonBPriv() override;

    void sizeHint(QSize *result) override;
    void paintEvent(QPaintEvent *event) override;
    void actionEvent(QActionEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

    QSize textSize = QSize(0, 0);
    int lineCount = 2;
    bool captionPressed = false;
    bool menuPressed = false;
    QPointer<QWidget> savedFocus;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void popupClosed();

private:
    bool isLarge() const;
    // Whether a point of the button lies on the caption part of a split button.
    bool onCaption(const QPoint &pos) const;
    bool isHovered() const;
    void openPopup();
    QWidget *openMenu();
    QWidget *openViewPopup();
    QWidget *openPalettePopup();
    void watchPopup(QWidget *popup);
    // Sprite rows of a split button's caption and arrow parts from the hover and press
    // state (NoState: the part is not drawn). Only for a button with a default action.
    void splitButtonStates(int &captionState, int &arrowState) const;
    void paintLarge(QPainter &painter);
    void paintRow(QPainter &painter);

    // The drop-down currently open, to close it if the button goes first.
    QPointer<QWidget> m_popup;
};

} // namespace zel
