#include "RibbonCategory.h"

#include "OfficeGallery_p.h"
#include "RibbonActionWidgetMap_p.h"
#include "RibbonApplication.h"
#include "RibbonCatActionGroup.h"
#include "RibbonCatActionGroupWidget.h"
#include "RibbonCatCheckBox.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonCatColorMenuAction.h"
#include "RibbonCatColorMenuButton.h"
#include "RibbonCatComboAction.h"
#include "RibbonCatComboWidget.h"
#include "RibbonCatFontFamilyAction.h"
#include "RibbonCatFontFamilyComboBox.h"
#include "RibbonCatListPreview.h"
#include "RibbonCatMenuAction.h"
#include "RibbonCatMenuButton.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonCategoryAction.h"
#include "RibbonCategoryLayout.h"
#include "RibbonPaint_p.h"
#include "RibbonPlatform.h"
#include "RibbonScale_p.h"
#include "RibbonStyle.h"

#include <QActionEvent>
#include <QPainter>
#include <QPointer>

namespace zel {

namespace {

// A menu command whose items show in the ribbon gets a gallery instead of a button.
QWidget *makeListPreview(QAction *action, QWidget *parent)
{
    auto *menu = qobject_cast<RibbonCatMenuAction *>(action);
    if (!menu || menu->popupType() != RibbonCatMenuAction::PopupListPreview)
        return nullptr;
    return new RibbonCatListPreview(*menu, parent);
}

// The control of a member, by its class; the first maker that accepts it wins.
const RibbonWidgetMaker controlMakers[] = {
    makeWidgetFor<RibbonCatColorMenuAction, RibbonCatColorMenuButton>,
    makeListPreview,
    makeWidgetFor<RibbonCatMenuAction, RibbonCatMenuButton>,
    makeWidgetFor<RibbonCatSimpleAction, RibbonCatSimpleButton>,
    makeWidgetFor<RibbonCatActionGroup, RibbonCatActionGroupWidget>,
    makeWidgetFor<RibbonCatFontFamilyAction, RibbonCatFontFamilyComboBox>,
    makeWidgetFor<RibbonCatCheckBoxAction, RibbonCatCheckBox>,
    makeWidgetFor<RibbonCatComboAction, RibbonCatComboWidget>,
};

const int kCapWidth = 3;
const int kImageWidth = 100;
const int kTopHoverOffset = 68;
const int kBottomHoverOffset = 17;

} // namespace

struct RibbonCategory::Priv
{
    QPointer<QAction> categoryAction;

    RibbonCategoryAction *action() const { return qobject_cast<RibbonCategoryAction *>(categoryAction); }

    RibbonCategoryLayout *layout = nullptr;
    RibbonActionWidgetMap<> widgets{[this](QWidget *control) { layout->removeWidget(control); }};
    QString caption;
    mutable int captionWidth = -1; // measured on demand; -1 until then

    // Background bands, recomputed on resize.
    RibbonSlices topEdge;
    RibbonSlices body;
    RibbonSlices captionBand;
    RibbonSlices bottomEdge;
    QRect captionRect;
};

RibbonCategory::RibbonCategory(QWidget *parent, RibbonCategoryAction &action)
    : QWidget(parent)
    , d(new Priv)
{
    d->categoryAction = &action;
    d->caption = action.text();
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    setMouseTracking(true);
    setAttribute(Qt::WA_Hover);
    // The category and its controls: a larger font would also push the second line of a
    // large caption into the category's own caption.
    capToDesignFont(*this);

    connect(&action, &RibbonCategoryAction::actionAdded, this, &RibbonCategory::addRibbonAction);
    connect(&action, &RibbonCategoryAction::actionRemoved, this, &RibbonCategory::removeRibbonAction);
    connect(&action, &QAction::changed, this, &RibbonCategory::onCategoryChanged);

    d->layout = new RibbonCategoryLayout(this);
    setLayout(d->layout);
    // Every addition recomputes the whole arrangement: arrange the initial controls once,
    // when first asked.
    d->layout->m_suppressed = true;
    for (RibbonAction *member : action.actions())
        QWidget::addAction(member);
    d->layout->m_suppressed = false;
    d->layout->m_pending = true;
    d->layout->invalidate();
}

RibbonCategory::~RibbonCategory() = default;

RibbonCategoryAction *RibbonCategory::action() const
{
    return d->action();
}

RibbonAction *RibbonCategory::action(QWidget *widget) const
{
    return qobject_cast<RibbonAction *>(d->widgets.action(widget));
}

QWidget *RibbonCategory::widget(RibbonAction *action) const
{
    return d->widgets.widget(action);
}

int RibbonCategory::actionRow(RibbonAction *action) const
{
    return d->action() ? d->action()->actionRow(action) : -1;
}

RibbonCategoryLayout *RibbonCategory::categoryLayout() const
{
    return d->layout;
}

QSize RibbonCategory::sizeHint() const
{
    if (d->captionWidth < 0)
        d->captionWidth = fontMetrics().horizontalAdvance(d->caption) + 6;
    const QSize layoutSize = d->layout->sizeHint();
    return QSize(qMax(qMax(layoutSize.width(), d->captionWidth), 50), layoutSize.height());
}

void RibbonCategory::invalidateSizeHint()
{
    d->captionWidth = -1;
    updateGeometry();
}

void RibbonCategory::addRibbonAction(RibbonAction *action)
{
    if (action)
        QWidget::addAction(action);
}

void RibbonCategory::removeRibbonAction(RibbonAction *action)
{
    if (action)
        QWidget::removeAction(action);
}

void RibbonCategory::actionEvent(QActionEvent *event)
{
    QWidget::actionEvent(event);
    switch (event->type()) {
    case QEvent::ActionAdded: {
        RibbonAction *action = qobject_cast<RibbonAction *>(event->action());
        if (!action || d->widgets.contains(action))
            return;
        QWidget *control = makeWidget(controlMakers, action, this).widget;
        if (!control)
            return;
        d->widgets.insert(action, control);
        // A child added to a visible widget stays hidden until shown, and a hidden
        // control would enter the arrangement with an empty size.
        if (isVisible())
            control->show();
        d->layout->addWidget(control);
        updateGeometry();
        update();
        break;
    }
    case QEvent::ActionRemoved:
        if (!d->widgets.drop(event->action()))
            return;
        updateGeometry();
        update();
        break;
    default:
        break;
    }
}

void RibbonCategory::onCategoryChanged()
{
    // The category also reports every change of a member; only a new caption matters here.
    if (d->action() && d->action()->text() != d->caption) {
        d->caption = d->action()->text();
        invalidateSizeHint();
        update();
    }
}

void RibbonCategory::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        invalidateSizeHint();
    QWidget::changeEvent(event);
}

void RibbonCategory::enterEvent(QEvent *event)
{
    QWidget::enterEvent(event);
    update();
}

void RibbonCategory::leaveEvent(QEvent *event)
{
    QWidget::leaveEvent(event);
    update();
}

void RibbonCategory::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    update();
}

void RibbonCategory::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int w = width();
    const QMargins caps(kCapWidth, 0, kCapWidth, 0);
    const int bodyHeight = scaled(66);
    const QRect topEdge(0, 0, w, 3);
    const QRect body(0, 3, w, bodyHeight);
    const QRect captionBand(0, bodyHeight + 3, w, scaled(13));
    const QRect bottomEdge(0, scaled(79) + 3, w, 3);

    d->topEdge.set(topEdge, QRect(0, 0, kImageWidth, 3), caps);
    d->body.set(body, QRect(0, 3, kImageWidth, 65), caps);
    d->captionBand.set(captionBand, QRect(0, 0, kImageWidth, 14), caps);
    d->bottomEdge.set(bottomEdge, QRect(0, 14, kImageWidth, 3), caps);
    d->captionRect = QRect(0, scaled(69), w, scaled(14)).adjusted(3, 0, -3, 0);
}

void RibbonCategory::paintEvent(QPaintEvent *)
{
    const RibbonStyle &style = RibbonApplication::theApp().ribbonStyle();
    const bool hovered = rect().contains(mapFromGlobal(RibbonPlatform::cursorPos()));
    QPainter painter(this);

    const QPixmap &top = style.categoryTop();
    const QPixmap &bottom = style.categoryBottom();
    // The hovered look lies below the normal one in both images.
    const int topOffset = hovered ? kTopHoverOffset : 0;
    const int bottomOffset = hovered ? kBottomHoverOffset : 0;
    d->topEdge.draw(painter, top, topOffset);
    d->body.draw(painter, top, topOffset);
    d->captionBand.draw(painter, bottom, bottomOffset);
    d->bottomEdge.draw(painter, bottom, bottomOffset);

    painter.setPen(style.categoryCaptionTextColor());
    painter.drawText(d->captionRect, Qt::AlignCenter | Qt::TextDontClip, d->caption);

    // In-ribbon galleries get a thin frame, in the colour of their own buttons' outline.
    painter.setPen(OfficeGallery::frameColor());
    painter.setBrush(Qt::NoBrush);
    for (const QWidget *control : d->widgets.widgets()) {
        if (qobject_cast<const RibbonCatListPreview *>(control)) {
            const QRect g = control->geometry();
            painter.drawRect(g.x() - 1, g.y() - 1, g.width() + 1, g.height() + 1);
        }
    }
}

} // namespace zel
