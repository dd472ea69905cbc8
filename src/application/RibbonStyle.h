#pragma once

#include "zelribbon_export.h"

#include <QColor>
#include <QFont>
#include <QObject>
#include <QPixmap>
#include <QString>

#include <memory>

class QPainter;
class QRect;

namespace zel {

// Small vector symbols painted by RibbonStyle::drawSymbol() in the caller's pen and brush.
// Any int converts to it safely; values without a symbol paint nothing.
enum eSymbolType : int {
    SymbolNone = 0,
    SymbolArrowUp = 1,
    SymbolDropDown = 2,
    SymbolArrowLeft = 3,
    SymbolArrowRight = 4,
    SymbolBarArrowDown = 5,
    SymbolFirst = 6,
    SymbolPrevious = 7,
    SymbolNext = 8,
    SymbolLast = 9
};

// The palette: every colour, font, image and style sheet the library paints with.
// A read-only record; a concrete palette is a subclass whose constructor fills the
// entries. The base constructor leaves every entry empty (invalid colour, null pixmap,
// empty string, default font).
class ZELRIBBON_EXPORT RibbonStyle : public QObject
{
    Q_OBJECT
public:
    RibbonStyle();
    ~RibbonStyle() override;

    const QColor &mainClientColor() const { return m_mainClientColor; }
    const QColor &mainMenuBgColor() const { return m_mainMenuBgColor; }
    const QColor &activeTextColor() const { return m_activeTextColor; }
    const QColor &inactiveTextColor() const { return m_inactiveTextColor; }
    const QColor &activeTitleTextColor() const { return m_activeTitleTextColor; }
    const QColor &inactiveTitleTextColor() const { return m_inactiveTitleTextColor; }
    const QColor &normalCategoryTextColor() const { return m_normalCategoryTextColor; }
    const QColor &highlightedCategoryTextColor() const { return m_highlightedCategoryTextColor; }
    const QColor &disabledCategoryTextColor() const { return m_disabledCategoryTextColor; }
    const QColor &categoryCaptionTextColor() const { return m_categoryCaptionTextColor; }
    const QColor &categoryWrapperCaptionTextColor() const { return m_categoryWrapperCaptionTextColor; }
    const QColor &frameOutlineColor() const { return m_frameOutlineColor; }
    const QColor &frameBorderColor() const { return m_frameBorderColor; }
    const QColor &frameNormalFillColor() const { return m_frameNormalFillColor; }
    const QColor &toolBarFillColor() const { return m_toolBarFillColor; }
    const QColor &frameHighlightedFillColor() const { return m_frameHighlightedFillColor; }
    const QColor &frameSunkenColor() const { return m_frameSunkenColor; }
    const QColor &frameRaiseColor() const { return m_frameRaiseColor; }
    const QColor &fileMenuBarTextColor() const { return m_fileMenuBarTextColor; }
    const QColor &separatorColor() const { return m_separatorColor; }

    const QPixmap &mainBorder() const { return image(m_mainBorder); }
    const QPixmap &mainBorderCaption() const { return image(m_mainBorderCaption); }
    const QPixmap &statusBar() const { return image(m_statusBar); }
    const QColor &statusBarTextColor() const { return m_statusBarTextColor; }
    const QPixmap &sysBtnBack() const { return image(m_sysBtnBack); }
    const QPixmap &toolBoxTabBack() const { return image(m_toolBoxTabBack); }
    const QPixmap &sysBtnClose() const { return image(m_sysBtnClose); }
    const QPixmap &sysBtnCloseSmall() const { return image(m_sysBtnCloseSmall); }
    const QPixmap &sysBtnMaximize() const { return image(m_sysBtnMaximize); }
    const QPixmap &sysBtnMaximizeSmall() const { return image(m_sysBtnMaximizeSmall); }
    const QPixmap &sysBtnMinimize() const { return image(m_sysBtnMinimize); }
    const QPixmap &sysBtnMinimizeSmall() const { return image(m_sysBtnMinimizeSmall); }
    const QPixmap &sysBtnRestore() const { return image(m_sysBtnRestore); }
    const QPixmap &sysBtnRestoreSmall() const { return image(m_sysBtnRestoreSmall); }
    const QPixmap &normalButtonSmall() const { return image(m_normalButtonSmall); }
    const QPixmap &menuBarButton() const { return image(m_menuBarButton); }
    const QPixmap &fileBarButton() const { return image(m_fileBarButton); }
    const QPixmap &categories() const { return image(m_categories); }
    const QColor &categoryColorUnderButton() const { return m_categoryColorUnderButton; }
    const QPixmap &categoryTop() const { return image(m_categoryTop); }
    const QPixmap &categoryBottom() const { return image(m_categoryBottom); }
    const QPixmap &categoryWrapperBack() const { return image(m_categoryWrapperBack); }
    const QPixmap &categoryWrapperIcon() const { return image(m_categoryWrapperIcon); }
    const QPixmap &mainPanelBack() const { return image(m_mainPanelBack); }
    const QPixmap &horizontalMenuButtonCaption() const { return image(m_horizontalMenuButtonCaption); }
    const QPixmap &horizontalMenuButtonMenu() const { return image(m_horizontalMenuButtonMenu); }
    const QPixmap &verticalMenuButtonCaption() const { return image(m_verticalMenuButtonCaption); }
    const QPixmap &verticalMenuButtonMenu() const { return image(m_verticalMenuButtonMenu); }
    const QPixmap &mainPanelBorder() const { return image(m_mainPanelBorder); }
    const QPixmap &mainPanelSeparator() const { return image(m_mainPanelSeparator); }
    const QPixmap &mainPanelButton() const { return image(m_mainPanelButton); }
    const QPixmap &paletteBtnTop() const { return image(m_paletteBtnTop); }
    const QPixmap &paletteBtnMiddle() const { return image(m_paletteBtnMiddle); }
    const QPixmap &paletteBtnBottom() const { return image(m_paletteBtnBottom); }
    const QPixmap &paletteItemLarge() const { return image(m_paletteItemLarge); }
    const QPixmap &paletteItemSmall() const { return image(m_paletteItemSmall); }
    const QPixmap &popupBorder() const { return image(m_popupBorder); }
    const QPixmap &popupResizeBarBack() const { return image(m_popupResizeBarBack); }
    const QPixmap &popupResizeBarIconB() const { return image(m_popupResizeBarIconB); }
    const QPixmap &popupResizeBarIconBR() const { return image(m_popupResizeBarIconBR); }
    const QPixmap &popupResizeBarIconTR() const { return image(m_popupResizeBarIconTR); }
    const QPixmap &checkableMenuItemBack() const { return image(m_checkableMenuItemBack); }
    const QPixmap &tabBarTabs() const { return image(m_tabBarTabs); }
    const QPixmap &sliderPlus() const { return image(m_sliderPlus); }
    const QPixmap &sliderMinus() const { return image(m_sliderMinus); }
    const QPixmap &sliderThumb() const { return image(m_sliderThumb); }
    const QPixmap &btnGroupFirst() const { return image(m_btnGroupFirst); }
    const QPixmap &btnGroupMidle() const { return image(m_btnGroupMidle); }
    const QPixmap &btnGroupLast() const { return image(m_btnGroupLast); }
    const QPixmap &comboBox() const { return image(m_comboBox); }
    const QPixmap &tabBarTabShape() const { return image(m_tabBarTabShape); }
    const QPixmap &tooltipBack() const { return image(m_tooltipBack); }
    const QColor &backstageSimpleButtonColor() const { return m_backstageSimpleButtonColor; }
    const QColor &backstageBlackTextColor() const { return m_backstageBlackTextColor; }
    const QColor &backstageGrayBorderColor() const { return m_backstageGrayBorderColor; }
    const QColor &backstageGrayBorderHoverColor() const { return m_backstageGrayBorderHoverColor; }
    const QColor &backstageGrayBorderPressedColor() const { return m_backstageGrayBorderPressedColor; }
    const QColor &backstageBlueBorderHoverColor() const { return m_backstageBlueBorderHoverColor; }
    const QColor &backstageBlueBorderPressedColor() const { return m_backstageBlueBorderPressedColor; }
    const QColor &backstageBlueHoverColor() const { return m_backstageBlueHoverColor; }
    const QColor &backstageBluePressedColor() const { return m_backstageBluePressedColor; }
    // Same entry as backstageBluePressedColor().
    const QColor &backstageWelcomeBluePressedColor() const { return m_backstageBluePressedColor; }
    const QColor &backstageSeparatorColor() const { return m_backstageSeparatorColor; }
    const QColor &backstagePrintPreviewBorderColor() const { return m_backstagePrintPreviewBorderColor; }
    const QString &backstageLineEditStyle() const { return m_backstageLineEditStyle; }
    const QString &backstageToolButtonStyle() const { return m_backstageToolButtonStyle; }
    const QString &backstageScrollBarStyle() const { return m_backstageScrollBarStyle; }
    const QString &backstageScrollBarStyleBlue() const { return m_backstageScrollBarStyleBlue; }
    const QString &backstageSpinBoxStyle() const { return m_backstageSpinBoxStyle; }
    const QString &backstageDateEditStyle() const { return m_backstageDateEditStyle; }
    const QString &backstageListWidgetStyle() const { return m_backstageListWidgetStyle; }
    const QString &backstageTextEditStyle() const { return m_backstageTextEditStyle; }
    const QString &backstageListWidgetWithBorderStyle() const { return m_backstageListWidgetWithBorderStyle; }
    const QString &backstageMenuStyle() const { return m_backstageMenuStyle; }
    const QString &backstageLabelXLargeStyle() const { return m_backstageLabelXLargeStyle; }
    const QString &backstageLabelXLargeWhiteStyle() const { return m_backstageLabelXLargeWhiteStyle; }
    const QString &backstageLabelLargeRecentWhiteStyle() const { return m_backstageLabelLargeRecentWhiteStyle; }
    const QString &backstageLabelLargeStyle() const { return m_backstageLabelLargeStyle; }
    const QString &backstageLabelLargeWhiteStyle() const { return m_backstageLabelLargeWhiteStyle; }
    const QString &backstageLabelLargeBlueStyle() const { return m_backstageLabelLargeBlueStyle; }
    const QString &backstageLabelMediumStyle() const { return m_backstageLabelMediumStyle; }
    const QString &backstageLabelSmallStyle() const { return m_backstageLabelSmallStyle; }
    const QString &backstageLabelSmallWhiteStyle() const { return m_backstageLabelSmallWhiteStyle; }
    const QString &backstageLabelSmallUnderlineStyle() const { return m_backstageLabelSmallUnderlineStyle; }
    const QString &backstageLabelSmallNotUnderlineStyle() const { return m_backstageLabelSmallNotUnderlineStyle; }
    const QString &backstageLabelXSmallNotUnderlineStyle() const { return m_backstageLabelXSmallNotUnderlineStyle; }
    const QString &backstageLabelXSmallUnderlineStyle() const { return m_backstageLabelXSmallUnderlineStyle; }
    const QString &backstageLabelXSmallWhiteStyle() const { return m_backstageLabelXSmallWhiteStyle; }
    const QString &backstageLabelXSmallGrayStyle() const { return m_backstageLabelXSmallGrayStyle; }
    const QString &backstageMainLeftListWidget() const { return m_backstageMainLeftListWidget; }
    const QString &backstageWelcomeRecentListWidgetStyle() const { return m_backstageWelcomeRecentListWidgetStyle; }
    const QString &backstageOpenRecentListWidgetStyle() const { return m_backstageOpenRecentListWidgetStyle; }
    const QFont &backstageSmallFont() const { return m_backstageSmallFont; }
    const QFont &backstageXSmallFont() const { return m_backstageXSmallFont; }
    const QFont &backstageXSmallBoldFont() const { return m_backstageXSmallBoldFont; }

    // Paints a symbol into rect with the painter's current pen and brush; values
    // outside SymbolArrowUp..SymbolLast paint nothing.
    static void drawSymbol(QPainter &painter, const QRect &rect, eSymbolType symbol);

protected:
    // Fills an image entry from path, as RibbonPaint's loader does. The palettes the
    // application builds for itself decode each image on its first use instead; a
    // palette built by the host has every entry filled when its constructor returns.
    void loadImage(QPixmap &entry, const QString &path);

    // The entries, in getter order; a subclass fills them in its constructor.
    QColor m_mainClientColor;
    QColor m_mainMenuBgColor;
    QColor m_activeTextColor;
    QColor m_inactiveTextColor;
    QColor m_activeTitleTextColor;
    QColor m_inactiveTitleTextColor;
    QColor m_normalCategoryTextColor;
    QColor m_highlightedCategoryTextColor;
    QColor m_disabledCategoryTextColor;
    QColor m_categoryCaptionTextColor;
    QColor m_categoryWrapperCaptionTextColor;
    QColor m_frameOutlineColor;
    QColor m_frameBorderColor;
    QColor m_frameNormalFillColor;
    QColor m_toolBarFillColor;
    QColor m_frameHighlightedFillColor;
    QColor m_frameSunkenColor;
    QColor m_frameRaiseColor;
    QColor m_fileMenuBarTextColor;
    QColor m_separatorColor;
    // Spare colours without getters; the default palette leaves them unset.
    QColor m_reservedColor1;
    QColor m_reservedColor2;
    QColor m_reservedColor3;
    QColor m_reservedColor4;
    QColor m_reservedColor5;
    QColor m_reservedColor6;
    QPixmap m_mainBorder;
    QPixmap m_mainBorderCaption;
    QPixmap m_statusBar;
    QColor m_statusBarTextColor;
    QPixmap m_sysBtnBack;
    QPixmap m_toolBoxTabBack;
    QPixmap m_sysBtnClose;
    QPixmap m_sysBtnCloseSmall;
    QPixmap m_sysBtnMaximize;
    QPixmap m_sysBtnMaximizeSmall;
    QPixmap m_sysBtnMinimize;
    QPixmap m_sysBtnMinimizeSmall;
    QPixmap m_sysBtnRestore;
    QPixmap m_sysBtnRestoreSmall;
    QPixmap m_normalButtonSmall;
    QPixmap m_menuBarButton;
    QPixmap m_fileBarButton;
    QPixmap m_categories;
    QColor m_categoryColorUnderButton;
    QPixmap m_categoryTop;
    QPixmap m_categoryBottom;
    QPixmap m_categoryWrapperBack;
    QPixmap m_categoryWrapperIcon;
    QPixmap m_mainPanelBack;
    QPixmap m_horizontalMenuButtonCaption;
    QPixmap m_horizontalMenuButtonMenu;
    QPixmap m_verticalMenuButtonCaption;
    QPixmap m_verticalMenuButtonMenu;
    QPixmap m_mainPanelBorder;
    QPixmap m_mainPanelSeparator;
    QPixmap m_mainPanelButton;
    QPixmap m_paletteBtnTop;
    QPixmap m_paletteBtnMiddle;
    QPixmap m_paletteBtnBottom;
    QPixmap m_paletteItemLarge;
    QPixmap m_paletteItemSmall;
    QPixmap m_popupBorder;
    QPixmap m_popupResizeBarBack;
    QPixmap m_popupResizeBarIconB;
    QPixmap m_popupResizeBarIconBR;
    QPixmap m_popupResizeBarIconTR;
    QPixmap m_checkableMenuItemBack;
    QPixmap m_tabBarTabs;
    QPixmap m_sliderPlus;
    QPixmap m_sliderMinus;
    QPixmap m_sliderThumb;
    QPixmap m_btnGroupFirst;
    QPixmap m_btnGroupMidle;
    QPixmap m_btnGroupLast;
    QPixmap m_comboBox;
    QPixmap m_tabBarTabShape;
    QPixmap m_tooltipBack;
    // Image without a getter: the terminate button ("TerminateButton.png").
    QPixmap m_terminateButton;
    QColor m_backstageSimpleButtonColor;
    QColor m_backstageBlackTextColor;
    QColor m_backstageGrayBorderColor;
    QColor m_backstageGrayBorderHoverColor;
    QColor m_backstageGrayBorderPressedColor;
    QColor m_backstageBlueBorderHoverColor;
    QColor m_backstageBlueBorderPressedColor;
    QColor m_backstageBlueHoverColor;
    QColor m_backstageBluePressedColor;
    QColor m_backstageSeparatorColor;
    // Colours the backstage style sheets are written with, without getters.
    QColor m_backstageScrollHandleHoverColor;
    QColor m_backstageScrollGrooveColor;
    QColor m_backstageTextColor;
    QColor m_backstageLabelTextColor;
    QColor m_backstageLightGrayColor;
    QColor m_backstageBlueItemHoverColor;
    QColor m_backstageBlueItemSelectedColor;
    QColor m_backstagePrintPreviewBorderColor;
    QString m_backstageLineEditStyle;
    QString m_backstageToolButtonStyle;
    QString m_backstageScrollBarStyle;
    QString m_backstageScrollBarStyleBlue;
    QString m_backstageSpinBoxStyle;
    QString m_backstageDateEditStyle;
    QString m_backstageListWidgetStyle;
    QString m_backstageTextEditStyle;
    QString m_backstageListWidgetWithBorderStyle;
    QString m_backstageMenuStyle;
    QString m_backstageLabelXLargeStyle;
    QString m_backstageLabelXLargeWhiteStyle;
    QString m_backstageLabelLargeRecentWhiteStyle;
    QString m_backstageLabelLargeStyle;
    QString m_backstageLabelLargeWhiteStyle;
    QString m_backstageLabelLargeBlueStyle;
    QString m_backstageLabelMediumStyle;
    QString m_backstageLabelSmallStyle;
    QString m_backstageLabelSmallWhiteStyle;
    QString m_backstageLabelSmallUnderlineStyle;
    QString m_backstageLabelSmallNotUnderlineStyle;
    QString m_backstageLabelXSmallNotUnderlineStyle;
    QString m_backstageLabelXSmallUnderlineStyle;
    QString m_backstageLabelXSmallWhiteStyle;
    QString m_backstageLabelXSmallGrayStyle;
    QString m_backstageMainLeftListWidget;
    QString m_backstageWelcomeRecentListWidgetStyle;
    QString m_backstageOpenRecentListWidgetStyle;
    QFont m_backstageSmallFont;
    QFont m_backstageXSmallFont;
    QFont m_backstageXSmallBoldFont;

private:
    // The entry itself, or its image decoded on first use when loading was deferred.
    const QPixmap &image(const QPixmap &entry) const;

    struct Priv;
    std::unique_ptr<Priv> d;

    Q_DISABLE_COPY(RibbonStyle)
};

} // namespace zel
