#include "DarkRibbonStyle.h"

namespace zel {

DarkRibbonStyle::DarkRibbonStyle(const QString &imagePath)
{
    m_mainClientColor = QColor(43, 43, 43);
    m_activeTextColor = QColor(222, 222, 222);
    m_inactiveTextColor = QColor(140, 140, 140);
    m_activeTitleTextColor = QColor(138, 180, 240);
    m_inactiveTitleTextColor = QColor(140, 140, 140);
    m_normalCategoryTextColor = QColor(222, 222, 222);
    m_highlightedCategoryTextColor = QColor(235, 235, 235);
    m_disabledCategoryTextColor = QColor(118, 118, 118);
    m_categoryCaptionTextColor = QColor(180, 180, 180);
    m_categoryWrapperCaptionTextColor = QColor(222, 222, 222);
    m_frameOutlineColor = QColor(QStringLiteral("#5A5A5A"));
    m_frameNormalFillColor = QColor(43, 43, 43);
    m_frameHighlightedFillColor = QColor(58, 58, 58);
    m_frameSunkenColor = QColor(20, 20, 20);
    m_frameRaiseColor = QColor(90, 90, 90);
    m_fileMenuBarTextColor = QColor(255, 255, 255);
    m_separatorColor = QColor(74, 74, 74);
    m_frameBorderColor = QColor(QStringLiteral("#1F1F1F"));
    m_categoryColorUnderButton = QColor(QStringLiteral("#353535"));
    m_mainMenuBgColor = QColor(QStringLiteral("#353535"));
    m_statusBarTextColor = QColor(Qt::white);

    loadImages(imagePath);

    m_backstageSimpleButtonColor = QColor(58, 58, 58);
    m_backstageBlackTextColor = QColor(235, 235, 235);
    m_backstageGrayBorderColor = QColor(96, 96, 96);
    m_backstageGrayBorderHoverColor = QColor(110, 110, 110);
    m_backstageGrayBorderPressedColor = QColor(160, 160, 160);
    m_backstageBlueBorderHoverColor = QColor(74, 120, 184);
    m_backstageBlueBorderPressedColor = QColor(74, 120, 184);
    m_backstageBlueHoverColor = QColor(62, 74, 92);
    m_backstageBluePressedColor = QColor(47, 75, 115);
    m_backstageSeparatorColor = QColor(74, 74, 74);
    m_backstageScrollHandleHoverColor = QColor(70, 70, 70);
    m_backstageScrollGrooveColor = QColor(48, 48, 48);
    m_backstageTextColor = QColor(222, 222, 222);
    m_backstageLabelTextColor = QColor(222, 222, 222);
    m_backstageLightGrayColor = QColor(64, 64, 64);
    m_backstageBlueItemHoverColor = QColor(20, 20, 20);
    m_backstageBlueItemSelectedColor = QColor(60, 60, 60);
    m_backstagePrintPreviewBorderColor = QColor(90, 90, 90);

    buildStyleSheets({QStringLiteral("#2b2b2b"), QStringLiteral("#b4b4b4"), QStringLiteral("#5a5a5a")});
}

DarkRibbonStyle::~DarkRibbonStyle() = default;

} // namespace zel
