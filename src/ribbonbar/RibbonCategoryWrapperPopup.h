#pragma once

#include "zelribbon_export.h"

#include <QWidget>

#include <memory>

namespace zel {

class RibbonCategory;
class RibbonCategoryWrapper;

// The popup of a collapsed group: a second, full-size RibbonCategory of the group,
// opened below the wrapper (or above it when there is no room). It closes as soon as
// a command of the group is used and deletes itself when closed.
class ZELRIBBON_EXPORT RibbonCategoryWrapperPopup : public QWidget
{
    Q_OBJECT
public:
    // Builds the group widget and shows itself.
    explicit RibbonCategoryWrapperPopup(RibbonCategoryWrapper &wrapper);
    ~RibbonCategoryWrapperPopup() override;

    // The wrapper that opened the popup; null once it is gone.
    RibbonCategoryWrapper *wrapper() const;
    RibbonCategory *category() const;

protected:
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void place();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonCategoryWrapperPopup)
};

} // namespace zel
