#pragma once

#include "zelribbon_export.h"

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QProgressBar;

namespace zel {

class RibbonProgressAction;

// The display the status bar makes for a RibbonProgressAction: the action's text
// beside a progress bar, both following the action.
class ZELRIBBON_EXPORT RibbonProgressWidget : public QWidget
{
    Q_OBJECT
public:
    RibbonProgressWidget(RibbonProgressAction &action, QWidget *parent);
    ~RibbonProgressWidget() override;

    // The action shown; null once it has been destroyed.
    RibbonProgressAction *action() const;
    QLabel *label() const;
    QProgressBar *progressBar() const;

    QSize sizeHint() const override;

protected slots:
    void setProgressValue(int value);
    void setProgressText(const QString &text);
    void onProgressRangeChanged();

protected:
    void actionEvent(QActionEvent *event) override;

private:
    void applyTextColor();

    QPointer<QAction> m_action;
    QHBoxLayout *m_layout;
    QLabel *m_label;
    QProgressBar *m_progressBar;

    Q_DISABLE_COPY(RibbonProgressWidget)
};

} // namespace zel
