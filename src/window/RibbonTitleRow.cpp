#include "RibbonTitleRow_p.h"

#include "RibbonApplication.h"
#include "RibbonMainWindow.h"
#include "RibbonPaint_p.h"
#include "RibbonQuickAccessBar.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"
#include "RibbonSysButton.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QSpacerItem>

#include <algorithm>

namespace zel {

namespace {

constexpr int kTitlePointSize = 10;
// Height of the contextual band's top line in the set's line colour.
constexpr int kBandTopLine = 4;

} // namespace

RibbonTitleRow::RibbonTitleRow(RibbonMainWindow *window)
    : m_window(window)
    , m_layout(new QHBoxLayout)
{
    m_layout->setContentsMargins(3, 0, 4, 0);

    m_sysMenuButton = new RibbonSysButton(window, RibbonSysButton::SystemMenu);
    m_sysMenuButton->setObjectName(QStringLiteral("sysMenuButton"));
    m_sysMenuButton->setAccessibleName(RibbonMainWindow::tr("System menu"));
    QObject::connect(m_sysMenuButton, SIGNAL(clicked()), window, SLOT(onShowSysMenu()));
    m_layout->addWidget(m_sysMenuButton);

    m_quickAccessBar = new RibbonQuickAccessBar(window);
    m_layout->addWidget(m_quickAccessBar);

    m_spacer = new QSpacerItem(1, titleHeight(), QSizePolicy::Expanding, QSizePolicy::Minimum);
    m_layout->addItem(m_spacer);

    // Queued: the window may close or change its state only after the click is over.
    const auto addWindowButton = [this, window](int type, const char *name, const QString &toolTip,
                                                const char *slot) {
        auto *button = new RibbonSysButton(window, type);
        button->setObjectName(QLatin1String(name));
        button->setToolTip(toolTip);
        button->setAccessibleName(toolTip);
        QObject::connect(button, SIGNAL(clicked()), window, slot, Qt::QueuedConnection);
        m_layout->addWidget(button);
        return button;
    };
    m_minimizeButton = addWindowButton(RibbonSysButton::Minimize, "minimizeButton", RibbonMainWindow::tr("Minimize"),
                                       SLOT(showMinimized()));
    m_maximizeButton = addWindowButton(RibbonSysButton::MaximizeRestore, "maximizeButton",
                                       RibbonMainWindow::tr("Maximize"), SLOT(showMaximizedRestored()));
    m_closeButton = addWindowButton(RibbonSysButton::Close, "closeButton", RibbonMainWindow::tr("Close"), SLOT(close()));
}

RibbonTitleRow::~RibbonTitleRow() = default;

QHBoxLayout *RibbonTitleRow::layout() const
{
    return m_layout;
}

RibbonQuickAccessBar &RibbonTitleRow::quickAccessBar() const
{
    return *m_quickAccessBar;
}

void RibbonTitleRow::setShown(bool showTitleBar, bool mainView)
{
    m_showTitleBar = showTitleBar;
    m_quickAccessBar->setVisible(showTitleBar && mainView);
    m_sysMenuButton->setVisible(showTitleBar && mainView);
    m_minimizeButton->setVisible(showTitleBar);
    m_maximizeButton->setVisible(showTitleBar);
    m_closeButton->setVisible(showTitleBar);
    if (showTitleBar)
        m_spacer->changeSize(1, titleHeight(), QSizePolicy::Expanding, QSizePolicy::Minimum);
    else
        m_spacer->changeSize(0, 0, QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_layout->invalidate();
}

void RibbonTitleRow::windowActivationChanged()
{
    m_minimizeButton->update();
    m_maximizeButton->update();
    m_closeButton->update();
}

void RibbonTitleRow::windowStateChanged()
{
    const QString name = m_window->isMaximized() ? RibbonMainWindow::tr("Restore") : RibbonMainWindow::tr("Maximize");
    m_maximizeButton->setToolTip(name);
    m_maximizeButton->setAccessibleName(name);
}

QString RibbonTitleRow::titleText() const
{
    QString title = m_window->windowTitle();
    title.replace(QLatin1String("[*]"), m_window->isWindowModified() ? QStringLiteral("*") : QString());
    return title;
}

QFont RibbonTitleRow::titleFont() const
{
    QFont font = m_window->font();
    font.setPointSize(kTitlePointSize);
    return font;
}

int RibbonTitleRow::titleHeight() const
{
    // The space the title is drawn in keeps the row at least this high.
    return textFitHeight(20, QFontMetrics(titleFont()), 2);
}

void RibbonTitleRow::preparePainter(QPainter &painter) const
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    painter.setFont(titleFont());
    painter.setPen(m_window->isActiveWindow() ? style.activeTextColor() : style.inactiveTextColor());
}

void RibbonTitleRow::paintOverPage(QPainter &painter, int leftWidth, int rightWidth, int extraTop) const
{
    preparePainter(painter);
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const QRect t = m_layout->geometry().adjusted(0, -extraTop, 0, 0);
    painter.fillRect(t, RibbonPaint::paneFill(Qt::white));
    painter.fillRect(QRect(t.left(), t.top(), leftWidth, t.height()), style.frameBorderColor());
    if (!m_showTitleBar)
        return;
    const QRect textRect(t.left() + leftWidth + 5, t.top(), rightWidth - 75, t.height());
    painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignVCenter,
                     QFontMetrics(painter.font()).elidedText(titleText(), Qt::ElideRight, textRect.width()));
}

void RibbonTitleRow::paintOverMainView(QPainter &painter, const RibbonMenuBar::ContextBand &context) const
{
    preparePainter(painter);
    const QFontMetrics metrics(painter.font());
    const QString title = titleText();
    const QRect spacer = m_spacer->geometry();
    const auto drawCentred = [&] {
        painter.drawText(spacer, Qt::AlignHCenter | Qt::AlignVCenter,
                         metrics.elidedText(title, Qt::ElideRight, spacer.width()));
    };
    if (!context.rect.isValid()) {
        drawCentred();
        return;
    }

    // The band spans the set's tab buttons horizontally and the title row vertically.
    QRect band(m_window->mapFromGlobal(context.rect.topLeft()), context.rect.size());
    band.setTop(m_window->frameMargin());
    band.setHeight(m_layout->geometry().height());
    band.adjust(2, 0, -2, 0);
    if (m_quickAccessBar->isVisible() && m_quickAccessBar->geometry().intersects(band))
        return;
    // In a narrow window the set's tabs may sit below the window buttons; the band ends
    // where the free part of the title row does, and is left out when none of it is free.
    if (m_minimizeButton->isVisible()) {
        band.setRight(std::min(band.right(), m_minimizeButton->mapTo(m_window, QPoint(0, 0)).x() - 1));
        if (band.width() <= 0) {
            drawCentred();
            return;
        }
    }

    // A centred title that would run into the band moves to its right.
    QRect full(0, 0, metrics.horizontalAdvance(title), spacer.height());
    full.moveCenter(spacer.center());
    if (full.intersects(band)) {
        const QRect beside(band.right() + 11, spacer.top(), spacer.right() - band.right() - 10, spacer.height());
        if (beside.width() > 0)
            painter.drawText(beside, Qt::AlignLeft | Qt::AlignVCenter,
                             metrics.elidedText(title, Qt::ElideRight, beside.width()));
    } else {
        drawCentred();
    }

    painter.fillRect(band, context.backgroundColor);
    painter.fillRect(QRect(band.left(), band.top(), band.width(), qMin(kBandTopLine, band.height())),
                     context.topColor);
    painter.setPen(context.textColor);
    painter.setFont(m_window->font());
    const QRect textRect =
        QRect(band.left(), band.top(), band.width(), m_window->height() - band.top()).adjusted(6, 7, -6, 7);
    painter.drawText(textRect, Qt::AlignHCenter | Qt::AlignTop | Qt::TextSingleLine,
                     QFontMetrics(m_window->font()).elidedText(context.text, Qt::ElideRight, textRect.width()));
}

} // namespace zel
