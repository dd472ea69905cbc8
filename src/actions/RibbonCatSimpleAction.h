#pragma once

#include "RibbonSimpleAction.h"

namespace zel {

// A command button of a category, in one of three size classes.
class ZELRIBBON_EXPORT RibbonCatSimpleAction : public RibbonSimpleAction
{
    Q_OBJECT
public:
    enum eSize {
        SizeLarge = 0,  // 32 x 32 icon above a caption of up to two lines
        SizeMedium = 1, // 16 x 16 icon with the caption to its right
        SizeSmall = 2   // 16 x 16 icon only
    };
    Q_ENUM(eSize)

    explicit RibbonCatSimpleAction(eSize size = SizeLarge, QObject *parent = nullptr);
    RibbonCatSimpleAction(const QString &text, eSize size, QObject *parent);
    RibbonCatSimpleAction(const QIcon &icon, const QString &text, eSize size, QObject *parent);
    RibbonCatSimpleAction(QPointer<QAction> alias, eSize size, QObject *parent);
    RibbonCatSimpleAction(QPointer<QAction> alias, const QIcon &icon, const QString &text, eSize size,
                          QObject *parent);
    RibbonCatSimpleAction(QPointer<RibbonAction> alias, eSize size, QObject *parent);
    RibbonCatSimpleAction(QPointer<RibbonAction> alias, const QString &text, eSize size,
                          QObject *parent);
    ~RibbonCatSimpleAction() override;

    eSize size() const;

protected:
    QWidget *createWidget(QWidget *parent) override;

private:
    void init();

    eSize m_size;
};

} // namespace zel
