#pragma once

// What one benchmark child builds and measures: a workload of T tabs x G groups x C
// commands, and one implementation ("kind") that builds it as a ribbon or as the
// plain-Qt floor.

#include <QIcon>
#include <QString>
#include <QVector>

#include <functional>
#include <memory>

class QWidget;

namespace bench {

struct Workload
{
    QString name;
    int tabs = 0;
    int groups = 0;
    int commands = 0;
    int repetitions = 100; // resize steps and tab switches
    int popupRepetitions = 20;
    // Width the window is shown at. The ribbon window cannot be narrower than its tab
    // row; the floor is shown at the width the ribbon's window actually took, so that
    // both paint (and keep a backing store of) the same number of pixels.
    int showWidth = 1600;
};

Workload workload(const QString &name);

// The command mix of one group: the kind of every slot, decided once so both kinds build
// exactly the same thing.
enum class Slot { Large, Small, Medium, Menu, Group, Combo, Check, Color, Palette };
QVector<Slot> groupSlots(int commands, int groupIndex);
// Buttons a slot stands for (a button group is a strip of three small buttons).
int buttonsOf(Slot slot);

// Besides the slots, the first group of every tab holds an in-ribbon gallery of this
// many tiles (a styles gallery) with the button that opens its full menu.
const int galleryTiles = 8;
// Buttons every tab holds besides those of its groups' slots.
int tabExtraButtons();

// A handful of distinct icons (32 and 16 pixels) drawn in memory and reused.
const QIcon &icon(int index);

// Pending layouts, resizes and paints processed to the end.
void settle();
// Processes events until done() holds, without spinning; false when the time ran out.
bool waitFor(const std::function<bool()> &done, int timeoutMs);
// Shows a window and settles once the window system exposed it.
void showAndSettle(QWidget *window);
// Resizes a shown window to a width and settles once the window system reported it.
void resizeAndSettle(QWidget *window, int width);
// How many of the waits above ran out of time (the window system never answered).
int waitTimeOuts();

class Kind
{
public:
    virtual ~Kind() = default;
    virtual void buildActions(const Workload &w) = 0;
    virtual void createAndShow(const Workload &w) = 0;
    virtual QWidget *window() const = 0;
    virtual void switchTab(int index) = 0;
    // Opens the popup of a folded group of the current page; false when none is folded.
    virtual bool openFoldedPopup() = 0;
    virtual void closeFoldedPopup() = 0;
    virtual int foldedCount() const = 0;
    virtual void prepareMinimised() = 0;
    virtual void openMinimisedPopup(int tab) = 0;
    virtual void closeMinimisedPopup() = 0;
};

std::unique_ptr<Kind> makeRibbonKind();
std::unique_ptr<Kind> makeFloorKind();

} // namespace bench
