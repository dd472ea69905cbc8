#include "RibbonViewPopup.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"
#include "RibbonSimpleAction.h"
#include "RibbonViewButton.h"

#include <QActionGroup>
#include <QCursor>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QPointer>
#include <QSpacerItem>
#include <QVBoxLayout>

namespace zel {

namespace {

const QColor kBackground(QStringLiteral("#F9F8F7"));
const QColor kOutline(QStringLiteral("#C5C5C5"));
const QColor kGutter(QStringLiteral("#E9EEEE"));
const int kGutterWidth = 31;
const int kGutterLineX = 32;
const QSize kLineIndent(36, 4); // lines inside a list start right of the icon gutter

} // namespace

struct RibbonViewPopup::Priv
{
    int columns = 4;
    bool topIcons = true;
    bool bottomIcons = true;
    bool centredText = false;
    QVBoxLayout *mainLayout = nullptr;
    QVBoxLayout *topLayout = nullptr;
    QVBoxLayout *bottomLayout = nullptr;
    QGridLayout *gridLayout = nullptr;
    QFrame *firstLine = nullptr;
    QFrame *secondLine = nullptr;
    QPointer<QActionGroup> group;
    QList<RibbonSimpleAction *> topActions;
    QList<RibbonSimpleAction *> bottomActions;
    QPointer<RibbonViewButton> hovered;
    QList<RibbonViewButton *> buttons;
    // The rows addLine() made, each a layout holding a spacer and a line.
    QList<QHBoxLayout *> lineRows;
};

RibbonViewPopup::RibbonViewPopup(QList<RibbonSimpleAction *> top, QList<RibbonSimpleAction *> bottom,
                                 QActionGroup *group, QObject *parent)
    : RibbonViewPopup(top, bottom, group, 4, true, true, false, parent)
{
}

RibbonViewPopup::RibbonViewPopup(QList<RibbonSimpleAction *> top, QList<RibbonSimpleAction *> bottom,
                                 QActionGroup *group, int columns, bool topIcons, bool bottomIcons,
                                 bool centredText, QObject *parent)
    : QMenu(nullptr)
    , d(new Priv)
{
    d->columns = qMax(columns, 1);
    d->topIcons = topIcons;
    d->bottomIcons = bottomIcons;
    d->centredText = centredText;
    d->group = group;
    d->topActions = top;
    d->bottomActions = bottom;
    d->mainLayout = new QVBoxLayout(this);
    d->topLayout = new QVBoxLayout;
    d->bottomLayout = new QVBoxLayout;
    d->gridLayout = new QGridLayout;
    d->firstLine = new QFrame(this);
    d->secondLine = new QFrame(this);
    attachTo(parent);
    init();
}

RibbonViewPopup::~RibbonViewPopup()
{
    removeWidgets();
}

void RibbonViewPopup::attachTo(QObject *parent)
{
    if (!parent)
        return;
    if (QWidget *widget = qobject_cast<QWidget *>(parent)) {
        // Keep the popup window flags: with a widget parent it stays a top-level popup.
        setParent(widget, windowFlags());
        return;
    }
    // A QMenu can only have a widget parent; tie its life to any other owner instead.
    connect(parent, &QObject::destroyed, this, [this] {
        if (isVisible()) {
            hide();
            deleteLater();
        } else {
            delete this;
        }
    });
}

bool RibbonViewPopup::init()
{
    for (QFrame *line : {d->firstLine, d->secondLine}) {
        line->setFrameShape(QFrame::HLine);
        line->setFrameShadow(QFrame::Sunken);
    }
    d->mainLayout->setContentsMargins(1, 1, 1, 1);
    d->mainLayout->setSpacing(0);
    for (QLayout *layout : {static_cast<QLayout *>(d->topLayout), static_cast<QLayout *>(d->bottomLayout),
                            static_cast<QLayout *>(d->gridLayout)}) {
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(0);
    }
    d->mainLayout->addLayout(d->topLayout);
    d->mainLayout->addWidget(d->firstLine);
    d->mainLayout->addLayout(d->gridLayout);
    d->mainLayout->addWidget(d->secondLine);
    d->mainLayout->addLayout(d->bottomLayout);

    const auto applyFill = [this] {
        QPalette colours = palette();
        colours.setColor(QPalette::Window, RibbonPaint::paneFill(kBackground));
        setPalette(colours);
    };
    applyFill();
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, applyFill);

    buildWidgets();
    return true;
}

void RibbonViewPopup::addButton(RibbonViewButton *button)
{
    d->buttons.append(button);
    connect(button, SIGNAL(clicked()), this, SLOT(close()));
    connect(button, SIGNAL(mouseMoved()), this, SLOT(onMouseMoved()));
}

void RibbonViewPopup::addRows(const QList<RibbonSimpleAction *> &actions, QVBoxLayout *layout, bool icons,
                              Qt::Alignment alignment)
{
    for (RibbonSimpleAction *action : actions) {
        if (!action)
            continue;
        if (action->isSeparator()) {
            addLine(layout);
            continue;
        }
        auto *button = new RibbonViewButton(action, true, icons, d->centredText, this);
        layout->addWidget(button, 0, alignment);
        addButton(button);
    }
}

void RibbonViewPopup::buildWidgets()
{
    addRows(d->topActions, d->topLayout, d->topIcons, Qt::AlignTop);

    if (d->group) {
        int shown = 0;
        const QList<QAction *> actions = d->group->actions();
        for (QAction *action : actions) {
            // A tile shows a simple action; disabled ones leave no gap.
            auto *simple = qobject_cast<RibbonSimpleAction *>(action);
            if (!simple || !simple->isEnabled())
                continue;
            auto *tile = new RibbonViewButton(simple, false, d->topIcons, true, nullptr);
            d->gridLayout->addWidget(tile, shown / d->columns, shown % d->columns, Qt::AlignTop);
            addButton(tile);
            ++shown;
        }
    }

    addRows(d->bottomActions, d->bottomLayout, d->bottomIcons, Qt::Alignment());
    updateLines();
}

void RibbonViewPopup::updateLines()
{
    // The lines separate sections that are there: no line above or below an empty one.
    const bool top = d->topLayout->count() > 0;
    const bool grid = d->gridLayout->count() > 0;
    const bool bottom = d->bottomLayout->count() > 0;
    d->firstLine->setVisible(top && (grid || bottom));
    d->secondLine->setVisible(grid && bottom);
}

void RibbonViewPopup::addLine(QVBoxLayout *layout)
{
    if (!layout)
        return;
    auto *row = new QHBoxLayout;
    row->setContentsMargins(0, 0, 0, 0);
    row->addSpacerItem(new QSpacerItem(kLineIndent.width(), kLineIndent.height(), QSizePolicy::Fixed,
                                       QSizePolicy::Fixed));
    auto *line = new QFrame(this);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    row->addWidget(line);
    layout->addLayout(row);
    d->lineRows.append(row);
}

void RibbonViewPopup::removeWidgets()
{
    d->hovered = nullptr;
    const QList<RibbonViewButton *> buttons = d->buttons;
    d->buttons.clear();
    for (RibbonViewButton *button : buttons) {
        for (QLayout *layout : {static_cast<QLayout *>(d->topLayout), static_cast<QLayout *>(d->gridLayout),
                                static_cast<QLayout *>(d->bottomLayout)})
            layout->removeWidget(button);
        delete button;
    }
    for (QHBoxLayout *row : qAsConst(d->lineRows)) {
        while (QLayoutItem *item = row->takeAt(0)) {
            delete item->widget();
            delete item;
        }
        delete row; // a child layout leaves its parent layout when deleted
    }
    d->lineRows.clear();
    updateLines();
}

QSize RibbonViewPopup::sizeHint() const
{
    return d->mainLayout->sizeHint();
}

int RibbonViewPopup::getWidgetWidth()
{
    return d->mainLayout->geometry().width();
}

int RibbonViewPopup::getWidgetHeight()
{
    return d->mainLayout->geometry().height();
}

QList<RibbonViewButton *> RibbonViewPopup::buttons() const
{
    return d->buttons;
}

RibbonViewButton *RibbonViewPopup::hoveredButton() const
{
    return d->hovered;
}

void RibbonViewPopup::onMouseMoved()
{
    const QPoint pos = mapFromGlobal(QCursor::pos());
    for (RibbonViewButton *button : qAsConst(d->buttons)) {
        if (!button->geometry().contains(pos))
            continue;
        if (button != d->hovered) {
            if (d->hovered)
                d->hovered->update();
            d->hovered = button;
        }
        return;
    }
}

void RibbonViewPopup::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));

    const QRect frame = d->mainLayout->geometry();
    painter.setPen(kOutline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(frame.x(), frame.y(), frame.width() - 1, frame.height() - 1);

    const auto gutter = [&painter](const QRect &area) {
        if (area.isEmpty())
            return;
        painter.fillRect(QRect(area.x(), area.y(), kGutterWidth, area.height()), kGutter);
        painter.fillRect(QRect(area.x() + kGutterLineX, area.y(), 1, area.height()), kOutline);
    };
    if (d->bottomIcons)
        gutter(d->bottomLayout->geometry());
    if (d->topIcons)
        gutter(d->topLayout->geometry());
}

} // namespace zel
