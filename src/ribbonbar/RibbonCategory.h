#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonAction;
class RibbonCategoryAction;
class RibbonCategoryLayout;

// The captioned box of one category in a ribbon tab. It makes one control per member
// of its RibbonCategoryAction, chosen by the member's class, keeps the controls in step
// with members added to and removed from the category, and paints the box with its
// caption.
class ZELRIBBON_EXPORT RibbonCategory : public QWidget
{
    Q_OBJECT
public:
    RibbonCategory(QWidget *parent, RibbonCategoryAction &action);
    ~RibbonCategory() override;

    // The category shown; null once it has been destroyed.
    RibbonCategoryAction *action() const;
    // The member whose control is widget, null when none.
    RibbonAction *action(QWidget *widget) const;
    // The control made for action, null when none.
    QWidget *widget(RibbonAction *action) const;
    // The row the category gives action (-1 when no row was ever assigned).
    int actionRow(RibbonAction *action) const;

    RibbonCategoryLayout *categoryLayout() const;

    QSize sizeHint() const override;

public slots:
    void addRibbonAction(RibbonAction *action);
    void removeRibbonAction(RibbonAction *action);

protected:
    void actionEvent(QActionEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private slots:
    void onCategoryChanged();

private:
    void invalidateSizeHint();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCategory)
};

} // namespace zel
