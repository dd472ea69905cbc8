#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QString>
#include <QTimer>
#include <QWidget>

namespace zel {

class RibbonPercAction;

// The zoom slider the status bar makes for a RibbonPercAction: the percentage as text,
// a minus button, a track with a thumb and a plus button. 100 % sits in the middle of
// the track; the part below and the part above each have their own scale. The buttons
// repeat while held: a first step after 200 ms, then one every 50 ms.
class ZELRIBBON_EXPORT RibbonPercWidget : public QWidget
{
    Q_OBJECT
public:
    RibbonPercWidget(RibbonPercAction &action, QWidget *parent);
    ~RibbonPercWidget() override;

    // The action shown; null once it has been destroyed.
    RibbonPercAction *action() const;
    // The percentage shown and its text ("100 %").
    int value() const;
    QString text() const;

    QSize sizeHint() const override;

    // Horizontal centre of the thumb for the value v of the action's range.
    int thumbPosition(int v) const;

protected slots:
    void displayPercentage(int percentage);
    // Auto-repeat of a held minus or plus button.
    void timerEvent();

protected:
    using QWidget::timerEvent;

    void actionEvent(QActionEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRect minusRect() const;
    QRect plusRect() const;
    QRect thumbHitRect() const;
    int rowTop() const;
    int trackOffset() const;
    bool isHovered(const QRect &area) const;
    int valueAt(int x) const;
    int stepped(int delta) const;
    void dragTo(int x);

    QPointer<QAction> m_action;
    QTimer repeatTimer;
    int m_value = 0;
    bool m_minusPressed = false;
    bool m_plusPressed = false;
    bool m_thumbPressed = false;
    QString m_text;
    // Last cursor position seen over the widget; none after it left.
    QPoint m_mousePos;
    bool m_mouseInside = false;

    Q_DISABLE_COPY(RibbonPercWidget)
};

} // namespace zel
