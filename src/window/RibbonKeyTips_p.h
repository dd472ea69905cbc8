#pragma once

// Key tips: the ribbon used from the keyboard by letters. Not installed.
//
// Alt pressed and released alone (or F10) shows small badges with letters on the File
// button, on every tab and on the quick-access commands of the main window. Typing a
// badge's letters activates it; a tab becomes current and its commands get badges in
// turn, a folded category opens its popup and badges its own commands, a command runs
// (a menu button opens its menu) and the badges go. Escape steps back one level; a
// mouse click, Alt or F10 again, or the window losing the focus hides them.
//
// While they are shown (F6 shows them with the current tab highlighted), the arrow
// keys move a highlight over the badges of the level in reading order, Enter or Space
// activates the highlighted one and Down opens a tab or a drop-down. The keyboard focus
// stays with the widget that had it, so Escape leaves the user where they were.
//
// The letters come from the host when it gives them (the "keyTip" property of an
// action, or the mnemonic "&" of its text); the others are chosen per level, unique
// and such that no tip's letters begin another's.

#include "RibbonAutotestExport_p.h"

#include <QHash>
#include <QList>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

class QAction;
class QKeyEvent;

namespace zel {

class RibbonCategory;
class RibbonMainWindow;

// One badge of a level.
struct RibbonKeyTip
{
    QString keys;    // the letters to type, upper case
    QString wanted;  // the letters the host asks for; empty when it leaves them to us
    QString caption; // where letters are taken from when none are wanted
    QPointer<QWidget> widget; // the control the badge labels
    QRect rect;      // the part of widget it labels (a cell of a strip); null for all of it
    bool below = false; // centred on the target's lower edge (tabs, title row, tall controls)
    bool dropDown = false; // opens a menu or popup: Down activates it
    std::function<void()> activate;
    // For a target that leads to a level of its own (a tab, a folded category): builds
    // that level once activate() has run; empty for a command.
    std::function<QList<RibbonKeyTip>()> open;
    // Undoes what activate() opened, when Escape leaves the level it led to.
    std::function<void()> close;
};

// Gives every tip of a level its letters: the wanted ones where they are free, then
// a single letter (the first of the caption when no other tip starts with it), then
// two letters.
ZELRIBBON_AUTOTEST_EXPORT void assignKeyTips(QList<RibbonKeyTip> &tips);

// The letters a host asks for on action: its "keyTip" property, else the mnemonic of
// its text; empty when neither is set.
ZELRIBBON_AUTOTEST_EXPORT QString wantedKeyTip(const QAction *action);

// The badges of the commands of a category widget, in its order.
ZELRIBBON_AUTOTEST_EXPORT QList<RibbonKeyTip> categoryKeyTips(RibbonCategory *category);

class ZELRIBBON_AUTOTEST_EXPORT RibbonKeyTips : public QObject
{
    Q_OBJECT
public:
    explicit RibbonKeyTips(RibbonMainWindow &window);
    ~RibbonKeyTips() override;

    bool isShown() const;
    // The number of levels entered: 1 for the tab row, 2 in a tab, 3 in a folded
    // category's popup; 0 while hidden.
    int depth() const;
    // The tips of the level shown that still match what has been typed.
    QList<RibbonKeyTip> tips() const;
    // Where the badges of those tips stand in the top-level widget window, in its
    // coordinates, in the order of tips().
    QVector<QRect> badgeRects(const QWidget *window) const;
    // The tip the arrow keys have highlighted; one without a widget when none.
    RibbonKeyTip highlighted() const;
    // Where the highlighted control stands in window, null when elsewhere or none.
    QRect highlightRect(const QWidget *window) const;

public slots:
    void show();
    void hide();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Level
    {
        QList<RibbonKeyTip> tips;
        std::function<void()> close;
        int highlighted = -1; // index into tips
    };

    bool filterKey(QWidget *receiver, QKeyEvent *event);
    bool type(QChar letter);
    void back();
    void move(int step);
    void enterHighlighted();
    void enter(const RibbonKeyTip &tip);
    void refresh();
    QList<RibbonKeyTip> topLevel() const;

    RibbonMainWindow &m_window;
    QList<Level> m_levels;
    QString m_typed;
    bool m_altAlone = false; // Alt is down and nothing else happened since
    QHash<const QWidget *, QPointer<QWidget>> m_overlays; // by the window they cover
    Q_DISABLE_COPY(RibbonKeyTips)
};

} // namespace zel
