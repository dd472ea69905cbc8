#pragma once

#include "zelribbon_export.h"

#include <QDialog>

#include <memory>

class QAbstractButton;

namespace zel {

class RibbonMainWindow;
class RibbonOptionsPage;

// The application's options dialog: a column of page buttons at the left, the current
// page at the right, OK and Cancel at the bottom. The host derives one RibbonOptionsPage
// per page of settings; a page's window title labels its button. OK closes the dialog as
// accepted and then calls every page's accept() in the order the pages were added;
// Cancel does the same with reject(). Escape and the window's close control only close
// the dialog: the pages hear nothing, so they must not hold changes they applied early.
class ZELRIBBON_EXPORT RibbonOptionsDialog : public QDialog
{
    Q_OBJECT
public:
    // A dialog of mainWindow, which is also its parent.
    explicit RibbonOptionsDialog(RibbonMainWindow &mainWindow);
    ~RibbonOptionsDialog() override;

    RibbonMainWindow &mainWindow() const;

    // Adds a page made for this dialog, with a button under the others; the first page
    // added becomes current. Null, pages added before and pages of another dialog are
    // ignored. Deleting a page later removes its button.
    void addOptionsPage(RibbonOptionsPage *page);
    // Does nothing: pages stay for the dialog's lifetime (a host that wants one gone
    // deletes it, which takes its button with it).
    void removeOptionsPage(RibbonOptionsPage *page);
    // Shows page and checks its button; nothing for a page never added.
    void setCurrentPage(RibbonOptionsPage *page);

protected:
    void paintEvent(QPaintEvent *event) override;

private slots:
    void buttonClicked(QAbstractButton *button);

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(RibbonOptionsDialog)
};

} // namespace zel
