#pragma once

// What the stacked panes and the options dialog share: a column of page buttons in an
// exclusive group beside (or under) a stack of pages, the buttons' look, and the white
// box and grey frame their owner paints around the two. Not installed.

#include "RibbonPaint_p.h"

#include <QList>
#include <QMetaObject>
#include <QPointer>

class QAbstractButton;
class QButtonGroup;
class QPainter;
class QRect;
class QSize;
class QStackedWidget;
class QVBoxLayout;
class QWidget;

namespace zel {

class RibbonPanelPages
{
public:
    // Sets up buttonsLayout (one pixel round and between the buttons).
    RibbonPanelPages(QButtonGroup &group, QStackedWidget &stack, QVBoxLayout &buttonsLayout);
    ~RibbonPanelPages();

    // Whether page can be added: not null and not added before.
    bool canAdd(const QWidget *page) const;
    // Puts button in the group and the column and page in the stack, and records the
    // pair; the first pair becomes current. A page destroyed later takes its button
    // with it. page must pass canAdd().
    void add(QAbstractButton *button, QWidget *page);
    // Makes the page recorded for button current; nothing for another button.
    void showPageOf(QAbstractButton *button);
    // The button recorded for page, null for a page never added.
    QAbstractButton *buttonOf(const QWidget *page) const;
    // Drops the connections to the stack and the pages; the owner calls it first thing
    // in its destructor, as the stack destroys the pages after the owner's data is gone.
    void detach();

    // sizeHint of a page button: as wide as its text and 10 pixels, at least 120; 25 high.
    static QSize buttonSizeHint(const QAbstractButton &button);
    // Paints a page button: the mainPanelButton frame given (RibbonImageRows::PanelButton,
    // NoRow for none) and the text.
    static void paintButton(QPainter &painter, const QAbstractButton &button, int frame, RibbonSlices &slices);
    // The white box with a grey outline behind the button column and the grey frame
    // round the page stack.
    static void paintFrames(QPainter &painter, const QRect &buttonsArea, const QRect &stackArea);

private:
    struct Entry
    {
        QPointer<QAbstractButton> button;
        QPointer<QWidget> page;
        QMetaObject::Connection pageDestroyed;
    };

    void forgetPage(QAbstractButton *button);

    QButtonGroup &m_group;
    QStackedWidget &m_stack;
    QVBoxLayout &m_buttonsLayout;
    QList<Entry> m_entries;
    QMetaObject::Connection m_currentChanged;

    Q_DISABLE_COPY(RibbonPanelPages)
};

} // namespace zel
