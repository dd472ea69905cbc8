#include "DefaultRibbonStyle.h"

#include "RibbonApplication.h"
#include "RibbonPaint_p.h"

#include <initializer_list>

namespace zel {

namespace {

// The colour names the style sheets are written with, as QColor::name() gives them.
struct SheetColors
{
    QString accent;
    QString groove;
    QString handleHover;
    QString grayBorder;
    QString grayHover;
    QString grayPressed;
    QString blueBorder;
    QString blueHover;
    QString bluePressed;
    QString blueSelected;
    QString blueDark;
    QString separator;
    QString text;
    QString lightGray;
    QString base;
};

// Height of a list row in logical pixels, scaled by the vertical resolution.
QString rowHeightText(double pixelsAt96Dpi)
{
    return QString::number(RibbonApplication::theApp().dpiFactor().second * pixelsAt96Dpi);
}

// A small triangle drawn with borders, the only way a style sheet can draw one: one
// rule per state (appended to selector), all alike.
enum ArrowDirection { ArrowLeft, ArrowRight, ArrowUp, ArrowDown };

QString arrowRules(const char *selector, ArrowDirection direction, const QString &color,
                   std::initializer_list<const char *> states = {"", ":hover", ":pressed"})
{
    const QLatin1String solid("4px solid ");
    const QLatin1String clear("4px solid none");
    QString borders;
    switch (direction) {
    case ArrowLeft:
        borders = QLatin1String("border-right: ") + solid + color + QLatin1String("; border-top: ") + clear + QLatin1String("; border-bottom: ") + clear;
        break;
    case ArrowRight:
        borders = QLatin1String("border-left: ") + solid + color + QLatin1String("; border-top: ") + clear + QLatin1String("; border-bottom: ") + clear;
        break;
    case ArrowUp:
        borders = QLatin1String("border-left: ") + clear + QLatin1String("; border-right: ") + clear + QLatin1String("; border-bottom: ") + solid + color;
        break;
    case ArrowDown:
        borders = QLatin1String("border-left: ") + clear + QLatin1String("; border-right: ") + clear + QLatin1String("; border-top: ") + solid + color;
        break;
    }
    QString sheet;
    for (const char *state : states)
        sheet += QLatin1String(selector) + QLatin1String(state) + QLatin1String(" { ") + borders + QLatin1String("; width: 0px; height: 0px; }");
    return sheet;
}

QString greyScrollBarSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QScrollBar:horizontal { background-color: ") + c.groove + QLatin1String("; height: 15px; margin: 0px 15px 0px 15px; }");
    sheet += QLatin1String("QScrollBar::handle:horizontal { border: 1px solid; border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.base + QLatin1String("; min-width: 15px; }");
    sheet += QLatin1String("QScrollBar::handle:horizontal:hover { border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::handle:horizontal:pressed { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::add-line:horizontal { border: 1px solid; border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.base + QLatin1String("; width: 15px; subcontrol-position: right; subcontrol-origin: margin; }");
    sheet += QLatin1String("QScrollBar::add-line:horizontal:hover { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::add-line:horizontal:pressed { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::sub-line:horizontal { border: 1px solid; border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.base + QLatin1String("; width: 15px; subcontrol-position: left; subcontrol-origin: margin; }");
    sheet += QLatin1String("QScrollBar::sub-line:horizontal:hover { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::sub-line:horizontal:pressed { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += arrowRules("QScrollBar::left-arrow", ArrowLeft, c.grayPressed);
    sheet += arrowRules("QScrollBar::right-arrow", ArrowRight, c.grayPressed);
    sheet += QLatin1String("QScrollBar::add-page:horizontal, QScrollBar::sub-page:horizontal { background: none; }");
    sheet += QLatin1String("QScrollBar:vertical { background-color: ") + c.groove + QLatin1String("; width: 15px; margin: 15px 0px 15px 0px; }");
    sheet += QLatin1String("QScrollBar::handle:vertical { border: 1px solid; border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.base + QLatin1String("; min-height: 15px; }");
    sheet += QLatin1String("QScrollBar::handle:vertical:hover { border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::handle:vertical:pressed { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::add-line:vertical { border: 1px solid; border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.base + QLatin1String("; height: 15px; subcontrol-position: bottom; subcontrol-origin: margin; }");
    sheet += QLatin1String("QScrollBar::add-line:vertical:hover { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::add-line:vertical:pressed { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::sub-line:vertical { border: 1px solid; border-color: ") + c.grayHover + QLatin1String("; background-color: ") + c.base + QLatin1String("; height: 15px; subcontrol-position: top; subcontrol-origin: margin; }");
    sheet += QLatin1String("QScrollBar::sub-line:vertical:hover { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::sub-line:vertical:pressed { border-color: ") + c.grayPressed + QLatin1String("; background-color: ") + c.handleHover + QLatin1String("; }");
    sheet += arrowRules("QScrollBar::up-arrow", ArrowUp, c.grayPressed);
    sheet += arrowRules("QScrollBar::down-arrow", ArrowDown, c.grayPressed);
    sheet += QLatin1String("QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }");
    return sheet;
}

QString blueScrollBarSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QScrollBar:vertical { background-color: ") + c.accent + QLatin1String("; width: 15px; margin: 15px 0px 15px 0px; }");
    sheet += QLatin1String("QScrollBar::handle:vertical { border: 1px solid; border-color: white; background-color: ") + c.accent + QLatin1String(" ; min-height: 15px; }");
    sheet += QLatin1String("QScrollBar::handle:vertical:hover { border-color: white; background-color: ") + c.accent + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::handle:vertical:pressed { border-color: white; background-color: ") + c.accent + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::add-line:vertical { border: 1px solid; border-color: white; background-color: ") + c.accent + QLatin1String("; height: 15px; subcontrol-position: bottom; subcontrol-origin: margin; }");
    sheet += QLatin1String("QScrollBar::add-line:vertical:hover { border-color: white; background-color: ") + c.accent + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::add-line:vertical:pressed { border-color: white; background-color: ") + c.accent + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::sub-line:vertical { border: 1px solid; border-color: white; background-color: ") + c.accent + QLatin1String("; height: 15px; subcontrol-position: top; subcontrol-origin: margin; }");
    sheet += QLatin1String("QScrollBar::sub-line:vertical:hover { border-color: white; background-color: ") + c.accent + QLatin1String("; }");
    sheet += QLatin1String("QScrollBar::sub-line:vertical:pressed { border-color: white; background-color: ") + c.accent + QLatin1String("; }");
    sheet += arrowRules("QScrollBar::up-arrow", ArrowUp, QStringLiteral("white"));
    sheet += arrowRules("QScrollBar::down-arrow", ArrowDown, QStringLiteral("white"));
    sheet += QLatin1String("QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: none; }");
    return sheet;
}

QString lineEditSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QLineEdit { border: 1px solid; border-color: ") + c.grayBorder + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QLineEdit:focus { border-color: ") + c.blueBorder + QLatin1String("; }");
    return sheet;
}

QString toolButtonSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QToolButton { border: 1px solid; border-color: ") + c.grayBorder + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QToolButton:hover { border-left: 1px solid; border-bottom: 1px solid; border-color: ") + c.blueBorder + QLatin1String("; width: 15px; height: 10px; background-color: ") + c.blueHover + QLatin1String("; }");
    sheet += QLatin1String("QToolButton:pressed { border-left: 1px solid; border-bottom: 1px solid; border-color: ") + c.blueBorder + QLatin1String("; width: 15px; height: 10px; background-color: ") + c.bluePressed + QLatin1String("; }");
    return sheet;
}

QString spinBoxSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QSpinBox { border: 1px solid; border-color: ") + c.grayBorder + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QSpinBox:hover { border-color: ") + c.blueBorder + QLatin1String("; }");
    sheet += arrowRules("QSpinBox::up-arrow", ArrowUp, c.grayPressed);
    sheet += QLatin1String("QSpinBox::up-button { width: 16px; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QSpinBox::up-button:hover { border-left: 1px solid; border-bottom: 1px solid; border-color: ") + c.blueBorder + QLatin1String("; width: 15px; height: 10px; background-color: ") + c.blueHover + QLatin1String("; }");
    sheet += QLatin1String("QSpinBox::up-button:pressed { border-left: 1px solid; border-bottom: 1px solid; border-color: ") + c.blueBorder + QLatin1String("; width: 15px; height: 10px; background-color: ") + c.bluePressed + QLatin1String("; }");
    sheet += arrowRules("QSpinBox::down-arrow", ArrowDown, c.grayPressed);
    sheet += QLatin1String("QSpinBox::down-button { width: 16px; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QSpinBox::down-button:hover { border-left: 1px solid; border-top: 1px solid; border-color: ") + c.blueBorder + QLatin1String("; width: 15px; height: 10px; background-color: ") + c.blueHover + QLatin1String("; }");
    sheet += QLatin1String("QSpinBox::down-button:pressed { border-left: 1px solid; border-top: 1px solid; border-color: ") + c.blueBorder + QLatin1String("; width: 15px; height: 10px; background-color: ") + c.bluePressed + QLatin1String("; }");
    return sheet;
}

QString dateEditSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QDateEdit { border: 1px solid; border-color: ") + c.grayBorder + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QDateEdit:focus { border-color: ") + c.blueBorder + QLatin1String("; }");
    sheet += arrowRules("QDateEdit::down-arrow", ArrowDown, c.text, {"", ":focus"});
    sheet += QLatin1String("QDateEdit::drop-down { background-color: ") + c.base + QLatin1String("; }");
    return sheet;
}

QString listWidgetRules(const SheetColors &c, const QString &rowHeight)
{
    QString sheet;
    sheet += QLatin1String("QListWidget { border-right: 1px solid ") + c.separator + QLatin1String("; font: 11pt \"Segoe UI\"; color: ") + c.text + QLatin1String("; }");
    sheet += QLatin1String("QListWidget::item { border: 0px solid white; height: ") + rowHeight + QLatin1String("px; }");
    sheet += QLatin1String("QListWidget::item:selected:!active { background: ") + c.blueBorder + QLatin1String("; color: ") + c.text + QLatin1String("; }");
    sheet += QLatin1String("QListWidget::item:hover { background: ") + c.blueHover + QLatin1String("; }");
    sheet += QLatin1String("QListWidget::item:disabled { background: transparent; }");
    return sheet;
}

QString listWidgetBorderRules(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QListWidget { border: 1px solid ") + c.lightGray + QLatin1String("; }");
    return sheet;
}

QString comboBoxRules(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QComboBox { font: 9pt \"Segoe UI\"; color: ") + c.text + QLatin1String("; border: 1px solid; border-color: ") + c.grayBorder + QLatin1String("; background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QComboBox:hover { border-color: ") + c.blueBorder + QLatin1String("; background-color: ") + c.blueHover + QLatin1String("; }");
    sheet += QLatin1String("QComboBox:pressed { border-color: ") + c.blueBorder + QLatin1String("; background-color: ") + c.bluePressed + QLatin1String("; }");
    sheet += QLatin1String("QComboBox::drop-down { border-width: 0px; }");
    sheet += arrowRules("QComboBox::down-arrow", ArrowDown, c.text, {"", "::hover", "::pressed"});
    sheet += QLatin1String("QComboBox QAbstractItemView { font: 9pt \"Segoe UI\"; color: ") + c.text + QLatin1String("; outline: 0px; border: 1px solid ") + c.grayBorder + QLatin1String(";selection-color: ") + c.text + QLatin1String("; selection-background-color: ") + c.blueHover + QLatin1String("; }");
    sheet += QLatin1String("QComboBox QAbstractItemView::item { border: 1px solid ") + c.base + QLatin1String("; }");
    return sheet;
}

QString mainLeftListSheet(const SheetColors &c, const QString &rowHeight)
{
    QString sheet;
    sheet += QLatin1String("QListWidget {spacing: 0; background-color: ") + c.accent + QLatin1String("; border: 0px solid none; font: 9pt \"Segoe UI\"; color: white;}");
    sheet += QLatin1String("QListWidget::item { border: 0px solid white; height: ") + rowHeight + QLatin1String("px; }");
    sheet += QLatin1String("QListWidget::item:selected:!active { background: ") + c.blueSelected + QLatin1String("; color: white; }");
    sheet += QLatin1String("QListWidget::item:hover { background: ") + c.blueDark + QLatin1String("; color: white; }");
    sheet += QLatin1String("QListWidget::item:disabled { background: ") + c.accent + QLatin1String("; color: ") + c.blueSelected + QLatin1String("; }");
    return sheet;
}

QString welcomeRecentListSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QListView { background-color: ") + c.accent + QLatin1String("; }");
    sheet += QLatin1String("QListView { alternate-background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QListView::item:selected:!active { background: ") + c.blueSelected + QLatin1String("; }");
    sheet += QLatin1String("QListView::item:selected:active { background: ") + c.blueSelected + QLatin1String("; }");
    sheet += QLatin1String("QListView::item:hover { background: ") + c.blueDark + QLatin1String("; }");
    return sheet;
}

QString openRecentListSheet(const SheetColors &c)
{
    QString sheet;
    sheet += QLatin1String("QListView { background-color: ") + c.base + QLatin1String("; }");
    sheet += QLatin1String("QListView { alternate-background-color: ") + c.text + QLatin1String("; }");
    sheet += QLatin1String("QListView::item:selected:!active { background: ") + c.blueBorder + QLatin1String("; }");
    sheet += QLatin1String("QListView::item:selected:active { background: ") + c.blueBorder + QLatin1String("; }");
    sheet += QLatin1String("QListView::item:hover { background: ") + c.blueHover + QLatin1String("; }");
    return sheet;
}

} // namespace

DefaultRibbonStyle::DefaultRibbonStyle(const QString &imagePath)
{
    m_mainClientColor = QColor(240, 240, 240);
    m_activeTextColor = QColor(92, 98, 106);
    m_inactiveTextColor = QColor(138, 138, 138);
    m_activeTitleTextColor = QColor(53, 110, 170);
    m_inactiveTitleTextColor = QColor(138, 138, 138);
    m_normalCategoryTextColor = QColor(76, 83, 92);
    m_highlightedCategoryTextColor = QColor(76, 83, 92);
    m_disabledCategoryTextColor = QColor(167, 167, 167);
    m_categoryCaptionTextColor = QColor(83, 84, 89);
    m_categoryWrapperCaptionTextColor = QColor(76, 83, 92);
    m_frameOutlineColor = QColor(QStringLiteral("#828790"));
    m_frameNormalFillColor = QColor(240, 240, 240);
    m_frameHighlightedFillColor = QColor(240, 241, 242);
    m_frameSunkenColor = QColor(37, 37, 37);
    m_frameRaiseColor = QColor(204, 204, 204);
    m_fileMenuBarTextColor = QColor(255, 255, 255);
    m_separatorColor = QColor(229, 229, 229);
    m_frameBorderColor = QColor(QStringLiteral("#2B579A"));
    m_categoryColorUnderButton = QColor(QStringLiteral("#FAFAFA"));
    m_mainMenuBgColor = QColor(QStringLiteral("#FAFAFA"));
    m_statusBarTextColor = QColor(Qt::white);

    loadImages(imagePath);

    m_backstageSimpleButtonColor = QColor(253, 253, 253);
    m_backstageBlackTextColor = QColor(38, 38, 38);
    m_backstageGrayBorderColor = QColor(181, 181, 181);
    m_backstageGrayBorderHoverColor = QColor(171, 171, 171);
    m_backstageGrayBorderPressedColor = QColor(118, 118, 118);
    m_backstageBlueBorderHoverColor = QColor(122, 176, 231);
    m_backstageBlueBorderPressedColor = QColor(122, 176, 231);
    m_backstageBlueHoverColor = QColor(213, 225, 242);
    m_backstageBluePressedColor = QColor(163, 189, 227);
    m_backstageSeparatorColor = QColor(225, 225, 225);
    m_backstageScrollHandleHoverColor = QColor(240, 240, 240);
    m_backstageScrollGrooveColor = QColor(243, 243, 243);
    m_backstageTextColor = QColor(68, 68, 68);
    m_backstageLabelTextColor = QColor(68, 68, 68);
    m_backstageLightGrayColor = QColor(238, 238, 238);
    m_backstageBlueItemHoverColor = QColor(25, 71, 138);
    m_backstageBlueItemSelectedColor = QColor(62, 109, 181);
    m_backstagePrintPreviewBorderColor = QColor(192, 192, 192);

    buildStyleSheets({QStringLiteral("white"), QStringLiteral("rgb(100, 100, 100)"), QStringLiteral("rgb(198, 198, 198)")});
}

DefaultRibbonStyle::DefaultRibbonStyle() = default;

void DefaultRibbonStyle::loadImages(const QString &imagePath)
{
    // A file missing from imagePath leaves a null pixmap, which painting code skips.
    const auto image = [this, &imagePath](QPixmap &entry, const QString &fileName) {
        loadImage(entry, imagePath + fileName);
    };
    image(m_mainBorder, QStringLiteral("MainBorder.png"));
    image(m_mainBorderCaption, QStringLiteral("MainBorderCaption.png"));
    image(m_statusBar, QStringLiteral("StatusBar.png"));
    image(m_sysBtnBack, QStringLiteral("SysBtnBack.png"));
    image(m_toolBoxTabBack, QStringLiteral("ToolBoxBack.png"));
    image(m_sysBtnClose, QStringLiteral("SysBtnClose.png"));
    image(m_sysBtnCloseSmall, QStringLiteral("SysBtnCloseSmall.png"));
    image(m_sysBtnMaximize, QStringLiteral("SysBtnMaximize.png"));
    image(m_sysBtnMaximizeSmall, QStringLiteral("SysBtnMaximizeSmall.png"));
    image(m_sysBtnMinimize, QStringLiteral("SysBtnMinimize.png"));
    image(m_sysBtnMinimizeSmall, QStringLiteral("SysBtnMinimizeSmall.png"));
    image(m_sysBtnRestore, QStringLiteral("SysBtnRestore.png"));
    image(m_sysBtnRestoreSmall, QStringLiteral("SysBtnRestoreSmall.png"));
    image(m_normalButtonSmall, QStringLiteral("NormalButtonSmall.png"));
    image(m_menuBarButton, QStringLiteral("MenuBarButton.png"));
    image(m_fileBarButton, QStringLiteral("FileRibbonMenuBarButton.png"));
    image(m_categories, QStringLiteral("Categories.png"));
    image(m_categoryTop, QStringLiteral("CategoryTop.png"));
    image(m_categoryBottom, QStringLiteral("CategoryBottom.png"));
    image(m_categoryWrapperBack, QStringLiteral("CategoryWrapperBack.png"));
    image(m_categoryWrapperIcon, QStringLiteral("CategoryWrapperIcon.png"));
    image(m_mainPanelBack, QStringLiteral("MainPanelBack.png"));
    image(m_horizontalMenuButtonCaption, QStringLiteral("HMenuButtonCaption.png"));
    image(m_horizontalMenuButtonMenu, QStringLiteral("HMenuButtonMenu.png"));
    image(m_verticalMenuButtonCaption, QStringLiteral("VMenuButtonCaption.png"));
    image(m_verticalMenuButtonMenu, QStringLiteral("VMenuButtonMenu.png"));
    image(m_mainPanelBorder, QStringLiteral("MainPanelBorder.png"));
    image(m_mainPanelSeparator, QStringLiteral("MainPanelSeparator.png"));
    image(m_mainPanelButton, QStringLiteral("MainPanelButton.png"));
    image(m_paletteBtnTop, QStringLiteral("PaletteButtonTop.png"));
    image(m_paletteBtnMiddle, QStringLiteral("PaletteButtonMiddle.png"));
    image(m_paletteBtnBottom, QStringLiteral("PaletteButtonBottom.png"));
    image(m_paletteItemLarge, QStringLiteral("PaletteItemLarge.png"));
    image(m_paletteItemSmall, QStringLiteral("PaletteItemSmall.png"));
    image(m_popupBorder, QStringLiteral("PopupBorder.png"));
    image(m_popupResizeBarBack, QStringLiteral("PopupResizeBarBack.png"));
    image(m_popupResizeBarIconB, QStringLiteral("PopupResizeBarIconB.png"));
    image(m_popupResizeBarIconBR, QStringLiteral("PopupResizeBarIconBR.png"));
    image(m_popupResizeBarIconTR, QStringLiteral("PopupResizeBarIconTR.png"));
    image(m_checkableMenuItemBack, QStringLiteral("CheckableMenuItemBack.png"));
    image(m_tabBarTabs, QStringLiteral("TabBarTabs.png"));
    image(m_sliderPlus, QStringLiteral("SliderPlus.png"));
    image(m_sliderMinus, QStringLiteral("SliderMinus.png"));
    image(m_sliderThumb, QStringLiteral("SliderThumb.png"));
    image(m_btnGroupFirst, QStringLiteral("BtnGroupFirst.png"));
    image(m_btnGroupMidle, QStringLiteral("BtnGroupMidle.png"));
    image(m_btnGroupLast, QStringLiteral("BtnGroupLast.png"));
    image(m_comboBox, QStringLiteral("ComboBox.png"));
    image(m_tabBarTabShape, QStringLiteral("MenuPaneBarButton.png"));
    image(m_tooltipBack, QStringLiteral("TooltipBack.png"));
    image(m_terminateButton, QStringLiteral("TerminateButton.png"));
}

void DefaultRibbonStyle::buildStyleSheets(const SheetTones &tones)
{
    SheetColors c;
    c.accent = m_frameBorderColor.name();
    c.groove = m_backstageScrollGrooveColor.name();
    c.handleHover = m_backstageScrollHandleHoverColor.name();
    c.grayBorder = m_backstageGrayBorderColor.name();
    c.grayHover = m_backstageGrayBorderHoverColor.name();
    c.grayPressed = m_backstageGrayBorderPressedColor.name();
    c.blueBorder = m_backstageBlueBorderHoverColor.name();
    c.blueHover = m_backstageBlueHoverColor.name();
    c.bluePressed = m_backstageBluePressedColor.name();
    c.blueSelected = m_backstageBlueItemSelectedColor.name();
    c.blueDark = m_backstageBlueItemHoverColor.name();
    c.separator = m_backstageSeparatorColor.name();
    c.text = m_backstageTextColor.name();
    c.lightGray = m_backstageLightGrayColor.name();
    c.base = tones.base;

    const QString scrollBars = greyScrollBarSheet(c);
    m_backstageLineEditStyle = lineEditSheet(c);
    m_backstageToolButtonStyle = toolButtonSheet(c);
    m_backstageScrollBarStyle = scrollBars;
    m_backstageScrollBarStyleBlue = blueScrollBarSheet(c);
    m_backstageSpinBoxStyle = spinBoxSheet(c);
    m_backstageDateEditStyle = dateEditSheet(c);
    m_backstageListWidgetStyle = listWidgetRules(c, rowHeightText(55.0)) + scrollBars;
    m_backstageListWidgetWithBorderStyle = m_backstageListWidgetStyle + listWidgetBorderRules(c);
    m_backstageMenuStyle = comboBoxRules(c) + scrollBars;
    m_backstageTextEditStyle = QLatin1String("border: 1px solid ") + tones.editBorder + QLatin1String("; font: 11pt \"Segoe UI\"; color: ") + tones.mutedText + QLatin1String(";");
    m_backstageLabelXLargeStyle = QLatin1String("font: 30pt \"Segoe UI Light\"; color: ") + c.text + QLatin1String(";");
    m_backstageLabelXLargeWhiteStyle = QLatin1String("font: 30pt \"Segoe UI Light\"; color: white;");
    m_backstageLabelLargeRecentWhiteStyle = QLatin1String("font: 16pt \"Segoe UI\"; color: white;");
    m_backstageLabelLargeStyle = QLatin1String("font: 16pt \"Segoe UI\"; color: ") + c.text + QLatin1String(";");
    m_backstageLabelLargeWhiteStyle = QLatin1String("font: 16pt \"Segoe UI\"; color: white;");
    m_backstageLabelLargeBlueStyle = QLatin1String("font: 16pt \"Segoe UI\"; color: ") + c.accent + QLatin1String(";");
    m_backstageLabelMediumStyle = QLatin1String("font: 13pt \"Segoe UI\"; color: ") + c.text + QLatin1String(";");
    m_backstageLabelSmallStyle = QLatin1String("font: 11pt \"Segoe UI\"; color: ") + c.text + QLatin1String(";");
    m_backstageLabelSmallWhiteStyle = QLatin1String("font: 11pt \"Segoe UI Semibold\"; color: white;");
    m_backstageLabelSmallUnderlineStyle = QLatin1String("font: 11pt \"Segoe UI Semibold\"; color: ") + tones.mutedText + QLatin1String(";border-left: 0px solid none; border-right: 0px solid none; border-top: 0px solid none; border-bottom: 1px solid ") + tones.mutedText + QLatin1String(";");
    m_backstageLabelSmallNotUnderlineStyle = QLatin1String("font: 11pt \"Segoe UI Semibold\"; color: ") + tones.mutedText + QLatin1String(";border-left: 0px solid none; border-right: 0px solid none; border-top: 0px solid none; border-bottom: 0px solid ") + tones.mutedText + QLatin1String(";");
    m_backstageLabelXSmallNotUnderlineStyle = QLatin1String("font: 9pt \"Segoe UI\"; color: ") + c.text + QLatin1String(";");
    m_backstageLabelXSmallUnderlineStyle = QLatin1String("font: 9pt \"Segoe UI\"; color: ") + c.text + QLatin1String(";border-left: 0px solid none; border-right: 0px solid none; border-top: 0px solid none; border-bottom: 1px solid ") + tones.mutedText + QLatin1String(";");
    m_backstageLabelXSmallWhiteStyle = QLatin1String("font: 9pt \"Segoe UI\"; color: white;");
    m_backstageLabelXSmallGrayStyle = QLatin1String("font: 9pt \"Segoe UI\"; color: ") + c.text + QLatin1String(";background-color: ") + c.lightGray + QLatin1String(";");
    m_backstageMainLeftListWidget = mainLeftListSheet(c, rowHeightText(38.0));
    m_backstageWelcomeRecentListWidgetStyle = welcomeRecentListSheet(c);
    m_backstageOpenRecentListWidgetStyle = openRecentListSheet(c);

    m_backstageSmallFont = QFont(QStringLiteral("Segoe UI"), 11);
    m_backstageXSmallFont = QFont(QStringLiteral("Segoe UI"), 9);
    m_backstageXSmallBoldFont = QFont(QStringLiteral("Segoe UI Semibold"), 9);
}

DefaultRibbonStyle::~DefaultRibbonStyle() = default;

} // namespace zel
