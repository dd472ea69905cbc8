#pragma once

#include "RibbonAction.h"

#include <QFont>

namespace zel {

// The font family of a ribbon group's font picker, shared by every picker made for it.
class ZELRIBBON_EXPORT RibbonCatFontFamilyAction : public RibbonAction
{
    Q_OBJECT
public:
    RibbonCatFontFamilyAction(const QFont &font, QObject *parent);
    ~RibbonCatFontFamilyAction() override;

    QFont fontFamily() const;

    // A RibbonCatFontFamilyComboBox for a QToolBar parent, else null.
    QWidget *createWidget(QWidget *parent) override;

public slots:
    void setFontFamily(const QFont &font);

signals:
    void fontFamilyChanged(const QFont &font);

private:
    QFont m_fontFamily;
};

} // namespace zel
