#pragma once

#include "zelribbon_export.h"

#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

namespace zel {

class RibbonMainWindow;

// The page behind the File button: a blue navigation column with a back button and named
// entries at the left, and at the right a stack with one pane per entry, supplied by the
// host. Choosing an entry shows its pane and reports the entry's name through
// itemClicked(); the back button reports "Back". Entries are found by name without
// regard to case.
class ZELRIBBON_EXPORT BackstageView : public QWidget
{
    Q_OBJECT
public:
    explicit BackstageView(RibbonMainWindow *mainWindow = nullptr);
    ~BackstageView() override;

    RibbonMainWindow *mainWindow() const;

    // Appends an entry; a non-null pane joins the stack and becomes a child of the page.
    // The first entry becomes current after every addition.
    void addItem(const QString &name, QWidget *pane);
    // Appends a 16-pixel separator line (an entry with an empty name and no pane).
    void addSeparator();

    void enableItem(const QString &name, bool enable);
    // An unknown name leaves no entry current.
    void setCurrentItem(const QString &name);

    QWidget *currentPane() const;
    QWidget *pane(const QString &name) const;

    // The navigation column and the area right of it, in screen coordinates, so that a
    // window can continue their colours into its title row.
    QRect leftPaneRect();
    QRect rightPaneRect();

signals:
    void itemClicked(const QString &name);

protected:
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private slots:
    void onCurrentRowChanged(int row);
    void onBackButtonClicked();

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(BackstageView)
};

} // namespace zel
