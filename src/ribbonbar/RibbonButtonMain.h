#pragma once

#include "zelribbon_export.h"

#include <QAbstractButton>
#include <QString>

namespace zel {

class RibbonMenuBar;

// The File button in front of the tab row. What a click does is up to the main window.
class ZELRIBBON_EXPORT RibbonButtonMain : public QAbstractButton
{
    Q_OBJECT
public:
    explicit RibbonButtonMain(RibbonMenuBar &menuBar);
    ~RibbonButtonMain() override;

    RibbonMenuBar &ribbonMenuBar() const;

    // The caption, kept apart from QAbstractButton's text.
    QString text() const;
    void setText(const QString &text);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    RibbonMenuBar &m_menuBar;
    QString m_text;
    Q_DISABLE_COPY(RibbonButtonMain)
};

} // namespace zel
