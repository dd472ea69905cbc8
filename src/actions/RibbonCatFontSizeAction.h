#pragma once

#include "RibbonAction.h"

#include <QList>
#include <QPointer>

class QComboBox;

namespace zel {

// The font size of a size picker: a combo box whose first entry always shows the
// current size, followed by the usual sizes. Sizes can be chosen or typed.
class ZELRIBBON_EXPORT RibbonCatFontSizeAction : public RibbonAction
{
    Q_OBJECT
public:
    RibbonCatFontSizeAction(int size, QObject *parent);
    ~RibbonCatFontSizeAction() override;

    // The size shown by the picker made last (8 when its text is not a number), or
    // the stored size while no picker exists.
    short fontSize() const;

    // A size picker for a QToolBar parent, else null.
    QWidget *createWidget(QWidget *parent) override;
    // A size picker for any parent, for containers that place the picker themselves
    // (a ribbon group). It becomes the picker that fontSize() reads.
    QComboBox *createComboBox(QWidget *parent);

public slots:
    // Takes the size shown by the picker that sent the change (the index is not
    // used); a new size is announced and written into the first entry of every picker.
    void setFontSize(int index);
    // Shows the given size in the pickers; 0 (or a negative size) does nothing.
    void updateFontSize(int size);

signals:
    void fontSizeChanged(int size);

private slots:
    void onSizeTyped();

private:
    static int sizeOf(const QComboBox *combo);
    void applySizeFrom(const QComboBox *combo);
    QList<QComboBox *> liveCombos() const;

    int m_fontSize;
    QPointer<QComboBox> m_comboBox;
    // Every picker made, so that all of them show the same size.
    QList<QPointer<QComboBox>> m_combos;
};

} // namespace zel
