#pragma once

#include "RibbonSimpleAction.h"

#include <QColor>

namespace zel {

// A colour command of a category: holds the current colour, or one of the two special
// states "automatic" (the host's default colour) and "none" (no colour), and whether
// a gradient is asked for. Its icon is the icon given at construction with a bar of
// the current colour along its bottom. The button and its picker popup change the
// state through the slots; every change refreshes the action's widgets first and is
// then announced by the matching signal.
class ZELRIBBON_EXPORT RibbonCatColorMenuAction : public RibbonSimpleAction
{
    Q_OBJECT
public:
    // Size class of the button. The order is the reverse of RibbonCatSimpleAction's.
    enum eSize {
        ColorSizeSmall = 0,  // icon and arrow
        ColorSizeMedium = 1, // icon, caption and arrow
        ColorSizeLarge = 2   // 32 x 32 icon above a caption of up to two lines
    };
    Q_ENUM(eSize)

    RibbonCatColorMenuAction(const QIcon &icon, const QString &text, eSize size, QObject *parent);
    RibbonCatColorMenuAction(QPointer<QAction> alias, const QIcon &icon, const QString &text, eSize size,
                             QObject *parent);
    ~RibbonCatColorMenuAction() override;

    eSize size() const;

    // The colour in force when neither automatic nor none is (white after setNone()).
    QColor color() const;

    // The colour the icon shows while automatic is in force; white at first.
    QColor automaticColor() const;
    void setAutomaticColor(const QColor &color);
    // Whether the picker offers "Automatic"; without it setAutomatic() does nothing.
    bool hasAutomaticColor() const;
    void setHasAutomaticColor(bool has);
    bool isAutomatic() const;

    // Whether the picker offers "None"; without it setNone() does nothing.
    bool hasNoneColor() const;
    void setHasNoneColor(bool has);
    bool isNone() const;

    // With keep-selection (the default) choosing the colour in force again announces
    // nothing and the picker marks the colour in its grid; without it every choice is
    // announced and the grid marks none.
    bool keepsSelection() const;
    void setKeepSelection(bool keep);

    // Whether the picker offers the "Gradient" check box, and its state.
    bool hasGradient() const;
    void setHasGradient(bool has);
    bool gradient() const;

public slots:
    // Makes color the colour in force. An invalid colour means "no colour": it switches
    // to none when that is offered and is ignored otherwise.
    void setColor(const QColor &color);
    void setAutomatic();
    void setNone();
    void setGradient(bool gradient);

signals:
    void colorSet(const QColor &color);
    void automaticSet();
    void noneSet();
    void gradientSet(bool gradient);

protected:
    QWidget *createWidget(QWidget *parent) override;
    // Draws the icon: the base icon with a 4-pixel bar of the colour shown.
    void updateIcon();

private:
    // Offers or withdraws a special state (its "has" and "is" flags).
    void offer(int hasFlag, int isFlag, bool offered);
    // Refreshes the icon and the widgets after a change of what they show.
    void announceChange();

    enum Flag { HasAutomaticColor = 1, IsAutomatic = 2, HasNoneColor = 4, IsNone = 8 };

    QIcon m_baseIcon;
    QColor m_color = Qt::black;
    QColor m_automaticColor = Qt::white;
    int m_flags = 0;
    eSize m_size;
    bool m_keepSelection = true;
    bool m_hasGradient = false;
    bool m_gradient = false;
};

} // namespace zel
