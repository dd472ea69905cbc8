#include "RibbonColorPickerPopup.h"

#include "RibbonApplication.h"
#include "RibbonCatSimpleAction.h"
#include "RibbonCatSimpleButton.h"
#include "RibbonStyle.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QColorDialog>
#include <QPainter>
#include <QPointer>
#include <QSignalBlocker>
#include <QStyle>
#include <QVBoxLayout>

namespace zel {

namespace {

// The popup's entries are the library's own: made without a text so that they do not
// enter the registry of the host's commands by name, which they would crowd with one
// "None" per colour button.
RibbonCatSimpleAction *makeEntry(const QString &text, bool checkable, QObject *parent)
{
    auto *action = new RibbonCatSimpleAction(RibbonCatSimpleAction::SizeMedium, parent);
    action->setText(text);
    action->setCheckable(checkable);
    // As wide as the grid, so that the entries' hover look spans the popup.
    action->setMinimalWidth(RibbonColorPickerItems::Columns * RibbonColorPickerItems::CellWidth);
    return action;
}

// A small square of colour for an entry's icon; an outline only for an invalid colour.
QIcon swatch(const QWidget &widget, const QColor &color)
{
    const int extent = widget.style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, &widget);
    QPixmap pixmap(extent, extent);
    pixmap.fill(widget.palette().color(QPalette::Button));
    QPainter painter(&pixmap);
    painter.setPen(Qt::gray);
    painter.setBrush(color.isValid() ? QBrush(color) : QBrush(Qt::NoBrush));
    painter.drawRect(2, 2, extent - 5, extent - 5);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

// RibbonColorPickerPopup ----------------------------------------------------------------

struct RibbonColorPickerPopup::Priv
{
    QVBoxLayout *layout = nullptr;
    ColorItems *colorItems = nullptr;
    QColor selectedColor;
    QColor automaticColor;
    QColor moreSwatchColor; // the colour "More colors..." shows, invalid for none
    RibbonCatSimpleAction *moreAction = nullptr;
    RibbonCatSimpleButton *moreButton = nullptr;
    RibbonCatSimpleAction *automaticAction = nullptr;
    RibbonCatSimpleButton *automaticButton = nullptr;
    RibbonCatSimpleAction *noneAction = nullptr;
    RibbonCatSimpleButton *noneButton = nullptr;
    // Made when first offered: a style sheet makes a check box costly, and most colour
    // buttons never offer it.
    QCheckBox *gradientBox = nullptr;
    bool gradient = false;

    void uncheckSpecialEntries() const { checkOnly(nullptr); }

    // Checks entry (one of the special entries, or none for null) and unchecks the other.
    void checkOnly(const RibbonCatSimpleAction *entry) const
    {
        for (RibbonCatSimpleAction *special : {automaticAction, noneAction}) {
            if (special)
                special->setChecked(special == entry);
        }
    }

    // Makes a special entry the choice: no cell and no swatch stand for a colour then.
    void chooseSpecial(const QWidget &popup, const RibbonCatSimpleAction *entry)
    {
        checkOnly(entry);
        colorItems->selectColor(QColor());
        setMoreColorsSwatch(popup, QColor());
    }

    void setMoreColorsSwatch(const QWidget &popup, const QColor &color)
    {
        moreSwatchColor = color;
        moreAction->setIcon(color.isValid() ? swatch(popup, color) : QIcon());
    }

    // Withdraws one of the two special entries. Deleted later: the host may withdraw
    // an entry from a handler of the signal its own click sent.
    void dropEntry(RibbonCatSimpleAction *&action, RibbonCatSimpleButton *&button)
    {
        layout->removeWidget(button);
        button->hide();
        button->deleteLater();
        action->deleteLater();
        button = nullptr;
        action = nullptr;
    }
};

RibbonColorPickerPopup::RibbonColorPickerPopup(QWidget *parent)
    : QFrame(parent, Qt::Popup | Qt::FramelessWindowHint)
    , d(new Priv)
{
    d->layout = new QVBoxLayout(this);
    d->layout->setContentsMargins(3, 3, 3, 3);
    setFrameStyle(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);

    d->colorItems = new ColorItems(this);
    // Translated under the class name without its namespace, the context this entry's
    // text has always had in catalogues.
    d->moreAction = makeEntry(QCoreApplication::translate("RibbonColorPickerPopup", "More colors..."), false, this);
    d->moreButton = new RibbonCatSimpleButton(*d->moreAction, this);
    connect(d->colorItems, &ColorItems::colorSelected, this, &RibbonColorPickerPopup::colorClicked);
    connect(d->moreAction, &QAction::triggered, this, &RibbonColorPickerPopup::moreColorsClicked);
    d->layout->addWidget(d->colorItems);
    d->layout->addWidget(d->moreButton);

    // The swatches are drawn on the widget palette's button colour, which a change of
    // the ribbon's palette changes as well.
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, [this] {
        if (d->automaticAction)
            d->automaticAction->setIcon(swatch(*this, d->automaticColor));
        if (d->noneAction)
            d->noneAction->setIcon(swatch(*this, QColor()));
        d->setMoreColorsSwatch(*this, d->moreSwatchColor);
    });
}

RibbonColorPickerPopup::~RibbonColorPickerPopup() = default;

template<class Emit>
bool RibbonColorPickerPopup::emitAndStay(Emit emitSignal)
{
    // A choice may lead the host to remove the colour command, and its button and this
    // popup with it.
    QPointer<RibbonColorPickerPopup> self(this);
    emitSignal();
    return !self.isNull();
}

RibbonColorPickerPopup::ColorItems *RibbonColorPickerPopup::colorItems() const
{
    return d->colorItems;
}

void RibbonColorPickerPopup::selectColor(const QColor &color)
{
    d->selectedColor = color;
    d->uncheckSpecialEntries();
    const bool inGrid = d->colorItems->selectColor(color);
    d->setMoreColorsSwatch(*this, inGrid ? QColor() : color);
}

QColor RibbonColorPickerPopup::selectedColor() const
{
    return d->selectedColor;
}

void RibbonColorPickerPopup::setAutomaticColor(const QColor &color)
{
    d->automaticColor = color;
    if (d->automaticAction)
        d->automaticAction->setIcon(swatch(*this, color));
}

QColor RibbonColorPickerPopup::automaticColor() const
{
    return d->automaticColor;
}

void RibbonColorPickerPopup::setAutomaticColor()
{
    setAutomaticColorEnabled(true);
    d->chooseSpecial(*this, d->automaticAction);
}

bool RibbonColorPickerPopup::isAutomaticColor() const
{
    return d->automaticAction && d->automaticAction->isChecked();
}

void RibbonColorPickerPopup::setNoneColor()
{
    d->chooseSpecial(*this, d->noneAction);
}

bool RibbonColorPickerPopup::isNoneColor() const
{
    return d->noneAction && d->noneAction->isChecked();
}

void RibbonColorPickerPopup::setAutomaticColorEnabled(bool enabled)
{
    if (enabled == (d->automaticAction != nullptr))
        return;
    if (!enabled) {
        d->dropEntry(d->automaticAction, d->automaticButton);
        return;
    }
    d->automaticAction = makeEntry(tr("Automatic"), true, this);
    d->automaticAction->setIcon(swatch(*this, d->automaticColor));
    d->automaticButton = new RibbonCatSimpleButton(*d->automaticAction, this);
    d->layout->insertWidget(d->layout->indexOf(d->colorItems), d->automaticButton);
    connect(d->automaticAction, &QAction::triggered, this, &RibbonColorPickerPopup::automaticClicked);
}

void RibbonColorPickerPopup::setNoneColorEnabled(bool enabled)
{
    if (enabled == (d->noneAction != nullptr))
        return;
    if (!enabled) {
        d->dropEntry(d->noneAction, d->noneButton);
        return;
    }
    d->noneAction = makeEntry(tr("None"), true, this);
    // An empty swatch: no colour, and the caption lines up with the other entries'.
    d->noneAction->setIcon(swatch(*this, QColor()));
    d->noneButton = new RibbonCatSimpleButton(*d->noneAction, this);
    d->layout->insertWidget(0, d->noneButton);
    connect(d->noneAction, &QAction::triggered, this, &RibbonColorPickerPopup::noneClicked);
}

void RibbonColorPickerPopup::setGradientEnabled(bool enabled)
{
    const bool shown = d->gradientBox && d->layout->indexOf(d->gradientBox) >= 0;
    if (enabled == shown)
        return;
    if (!enabled) {
        d->layout->removeWidget(d->gradientBox);
        d->gradientBox->hide();
        return;
    }
    if (!d->gradientBox) {
        d->gradientBox = new QCheckBox(tr("Gradient"), this);
        QCheckBox *box = d->gradientBox;
        const auto applyTextColor = [box] {
            const QColor text = RibbonApplication::theApp().ribbonStyle().normalCategoryTextColor();
            box->setStyleSheet(QStringLiteral("QCheckBox { color: %1; }").arg(text.name()));
        };
        applyTextColor();
        connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, box, applyTextColor);
        d->gradientBox->setChecked(d->gradient);
        connect(d->gradientBox, &QCheckBox::stateChanged, this, &RibbonColorPickerPopup::onGradientChecked);
    }
    d->layout->insertWidget(d->layout->indexOf(d->colorItems) + 1, d->gradientBox);
    d->gradientBox->show();
}

void RibbonColorPickerPopup::setGradient(bool gradient)
{
    d->gradient = gradient;
    if (d->gradientBox) {
        const QSignalBlocker blocker(d->gradientBox);
        d->gradientBox->setChecked(gradient);
    }
}

void RibbonColorPickerPopup::setKeepSelection(bool keep)
{
    d->colorItems->setKeepSelection(keep);
}

void RibbonColorPickerPopup::hideEvent(QHideEvent *event)
{
    emit hidden();
    QFrame::hideEvent(event);
}

void RibbonColorPickerPopup::automaticClicked(bool checked)
{
    specialEntryClicked(d->automaticAction, checked, &RibbonColorPickerPopup::automaticColorSelected);
}

void RibbonColorPickerPopup::noneClicked(bool checked)
{
    specialEntryClicked(d->noneAction, checked, &RibbonColorPickerPopup::noneColorSelected);
}

void RibbonColorPickerPopup::specialEntryClicked(RibbonCatSimpleAction *entry, bool checked,
                                                 void (RibbonColorPickerPopup::*announce)())
{
    if (!checked) {
        // A click on the entry in force unchecks it; it stays the choice, unannounced.
        entry->setChecked(true);
    } else {
        d->chooseSpecial(*this, entry);
        if (!emitAndStay([this, announce] { emit(this->*announce)(); }))
            return;
    }
    hide();
}

void RibbonColorPickerPopup::colorClicked(const QColor &color)
{
    d->selectedColor = color;
    d->uncheckSpecialEntries();
    d->setMoreColorsSwatch(*this, QColor());
    if (emitAndStay([this, color] { emit colorSelected(color); }))
        hide();
}

void RibbonColorPickerPopup::moreColorsClicked()
{
    // Hidden before the dialog opens: an open popup takes every mouse press, so the
    // first click on the dialog would only close the popup.
    hide();
    QPointer<RibbonColorPickerPopup> self(this);
    QWidget *owner = parentWidget() ? parentWidget()->window() : nullptr;
    const QColor chosen = QColorDialog::getColor(d->selectedColor, owner, QString(),
                                                 QColorDialog::ShowAlphaChannel);
    if (!self || !chosen.isValid())
        return;
    selectColor(chosen);
    emit colorSelected(d->selectedColor);
}

void RibbonColorPickerPopup::onGradientChecked(int state)
{
    d->gradient = state != Qt::Unchecked;
    const bool gradient = d->gradient;
    if (emitAndStay([this, gradient] { emit gradientChecked(gradient); }))
        hide();
}

} // namespace zel
