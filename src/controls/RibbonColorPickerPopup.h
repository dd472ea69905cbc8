#pragma once

#include "RibbonColorPickerItems.h"
#include "zelribbon_export.h"

#include <QColor>
#include <QFrame>

#include <memory>

namespace zel {

class RibbonCatSimpleAction;

// The popup of a colour button: an 8 x 5 grid of fixed colours, optional "None" and
// "Automatic" entries above it, an optional "Gradient" check box below it and a
// "More colors..." entry that opens the standard colour dialog. A choice is announced
// by one of the signals and hides the popup.
class ZELRIBBON_EXPORT RibbonColorPickerPopup : public QFrame
{
    Q_OBJECT
public:
    // The grid of the fixed colours (declared outside: the meta-object compiler does not
    // take nested classes).
    using ColorItems = RibbonColorPickerItems;

    explicit RibbonColorPickerPopup(QWidget *parent = nullptr);
    ~RibbonColorPickerPopup() override;

    // Marks color as the current one: its cell in the grid, or a swatch on "More
    // colors..." when the grid does not hold it.
    void selectColor(const QColor &color);
    QColor selectedColor() const;

    // The colour the "Automatic" entry shows in its swatch.
    void setAutomaticColor(const QColor &color);
    QColor automaticColor() const;
    // Marks "Automatic" (offering it if needed) / "None" as the current choice.
    void setAutomaticColor();
    bool isAutomaticColor() const;
    void setNoneColor();
    bool isNoneColor() const;

    // Offer or withdraw the "Automatic" and "None" entries and the "Gradient" box.
    void setAutomaticColorEnabled(bool enabled);
    void setNoneColorEnabled(bool enabled);
    void setGradientEnabled(bool enabled);
    // The state of the "Gradient" box; setting it announces nothing.
    void setGradient(bool gradient);
    void setKeepSelection(bool keep);

    ColorItems *colorItems() const;

signals:
    void automaticColorSelected();
    void noneColorSelected();
    void colorSelected(const QColor &color);
    void hidden();
    void gradientChecked(bool checked);

protected:
    void hideEvent(QHideEvent *event) override;

private slots:
    void automaticClicked(bool checked);
    void noneClicked(bool checked);
    void colorClicked(const QColor &color);
    void moreColorsClicked();
    void onGradientChecked(int state);

private:
    // A click on the Automatic or None entry, announced by announce.
    void specialEntryClicked(RibbonCatSimpleAction *entry, bool checked, void (RibbonColorPickerPopup::*announce)());
    // Runs emitSignal; false when this popup was destroyed meanwhile.
    template<class Emit>
    bool emitAndStay(Emit emitSignal);

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonColorPickerPopup)
};

} // namespace zel
