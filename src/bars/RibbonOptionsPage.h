#pragma once

#include "zelribbon_export.h"

#include <QWidget>

namespace zel {

class RibbonOptionsDialog;

// One page of settings in a RibbonOptionsDialog. A host derives from it, fills it with
// its controls, sets its window title (the text of the page's button) before adding it,
// and implements accept() (apply the settings) and reject() (discard the changes).
class ZELRIBBON_EXPORT RibbonOptionsPage : public QWidget
{
    Q_OBJECT
public:
    // A child of dialog with a white background.
    explicit RibbonOptionsPage(RibbonOptionsDialog &dialog);
    ~RibbonOptionsPage() override;

    RibbonOptionsDialog &dialog() const;

public slots:
    // Called after the dialog closed through OK.
    virtual void accept() = 0;
    // Called after the dialog closed through Cancel.
    virtual void reject() = 0;

private:
    RibbonOptionsDialog &m_dialog;

    Q_DISABLE_COPY(RibbonOptionsPage)
};

} // namespace zel
