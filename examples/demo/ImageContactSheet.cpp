// A contact sheet of the palette's images: every image cut into its state frames, each
// shown at 1:1 and magnified, labelled with file, size, frame index and state, plus a
// stretched sample where the painting code slices the image, the icons, the vector
// symbols of RibbonStyle::drawSymbol, and the entries that are meant to stay empty.

#include "DemoScreens.h"

#include "RibbonApplication.h"
#include "RibbonStyle.h"

#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QWidget>

#include <algorithm>
#include <climits>
#include <vector>

namespace {

using zel::RibbonStyle;

const QColor kPanel(0xFA, 0xFA, 0xFA);
const QColor kClient(0xF0, 0xF0, 0xF0);
const QColor kStatus(0x2B, 0x57, 0x9A);

enum class Slice { None, Nine, Three };

struct ImageInfo
{
    const char *getter;
    QString file;
    const QPixmap &(RibbonStyle::*get)() const;
    bool alongX;        // frames side by side instead of stacked
    int step;           // frame height (or width); 0: the whole image is one frame
    QStringList states;
    QColor back;
    Slice slice;
    int cap;            // corner (nine-slice) or cap width (three-slice)
    QSize sample;       // size of the stretched sample
};

QPixmap onBackground(const QPixmap &image, const QColor &back, int zoom)
{
    QPixmap out(image.size() * zoom);
    out.fill(back);
    QPainter p(&out);
    p.drawPixmap(QRect(QPoint(0, 0), out.size()), image);
    return out;
}

// The same slicing the widgets do: fixed corners or caps, stretched middle pieces.
QPixmap stretched(const QPixmap &frame, Slice slice, int c, const QSize &size, const QColor &back)
{
    QPixmap out(size);
    out.fill(back);
    QPainter p(&out);
    const int w = size.width(), h = size.height(), fw = frame.width(), fh = frame.height();
    if (slice == Slice::Three) {
        p.drawPixmap(QRect(0, 0, c, h), frame, QRect(0, 0, c, fh));
        p.drawPixmap(QRect(c, 0, w - 2 * c, h), frame, QRect(c, 0, fw - 2 * c, fh));
        p.drawPixmap(QRect(w - c, 0, c, h), frame, QRect(fw - c, 0, c, fh));
    } else if (slice == Slice::Nine) {
        const int xs[3] = {0, c, w - c}, ws[3] = {c, w - 2 * c, c};
        const int ys[3] = {0, c, h - c}, hs[3] = {c, h - 2 * c, c};
        const int sxs[3] = {0, c, fw - c}, sws[3] = {c, fw - 2 * c, c};
        const int sys[3] = {0, c, fh - c}, shs[3] = {c, fh - 2 * c, c};
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j)
                p.drawPixmap(QRect(xs[j], ys[i], ws[j], hs[i]), frame, QRect(sxs[j], sys[i], sws[j], shs[i]));
        }
    }
    return out;
}

struct Row
{
    QString label;
    QPixmap actual;
    QPixmap magnified;
    QPixmap sample;
};

struct Card
{
    QString title;
    QString note;
    std::vector<Row> rows;
    QRect rect;
};

class ContactSheet : public QWidget
{
public:
    ContactSheet()
    {
        QFont f = font();
        f.setPointSize(8);
        setFont(f);
        QPalette pal = palette();
        pal.setColor(QPalette::Window, Qt::white);
        setPalette(pal);
        setAutoFillBackground(true);
        buildCards();
        layoutCards();
    }

    QSize sizeHint() const override { return m_size; }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        const QFontMetrics fm(font());
        QFont bold = font();
        bold.setBold(true);
        for (const Card &card : m_cards) {
            p.setPen(QColor(0xDD, 0xDD, 0xDD));
            p.setBrush(Qt::NoBrush);
            p.drawRect(card.rect.adjusted(0, 0, -1, -1));
            int y = card.rect.top() + kPad;
            const int x0 = card.rect.left() + kPad;
            p.setFont(bold);
            p.setPen(Qt::black);
            p.drawText(QRect(x0, y, card.rect.width() - 2 * kPad, fm.height()), Qt::AlignLeft | Qt::AlignVCenter, card.title);
            p.setFont(font());
            y += fm.height();
            if (!card.note.isEmpty()) {
                p.setPen(QColor(0x66, 0x66, 0x66));
                p.drawText(QRect(x0, y, card.rect.width() - 2 * kPad, fm.height()), Qt::AlignLeft | Qt::AlignVCenter, card.note);
                y += fm.height();
            }
            y += 4;
            for (const Row &row : card.rows) {
                const int h = rowHeight(row, fm);
                p.setPen(QColor(0x33, 0x33, 0x33));
                const bool textOnly = row.actual.isNull() && row.magnified.isNull() && row.sample.isNull();
                const int labelWidth = textOnly ? card.rect.width() - 2 * kPad : kLabel - 6;
                p.drawText(QRect(x0, y, labelWidth, h), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, row.label);
                int x = x0 + kLabel;
                for (const QPixmap *pm : {&row.actual, &row.magnified, &row.sample}) {
                    if (pm->isNull())
                        continue;
                    p.drawPixmap(x, y + (h - pm->height()) / 2, *pm);
                    x += pm->width() + kGap;
                }
                y += h + 4;
            }
        }
    }

private:
    static constexpr int kPad = 6;
    static constexpr int kGap = 8;
    static constexpr int kLabel = 150;
    static constexpr int kColumnWidth = 560;
    static constexpr int kColumns = 3;

    static int rowHeight(const Row &row, const QFontMetrics &fm)
    {
        return std::max({fm.height() * 2, row.actual.height(), row.magnified.height(), row.sample.height()});
    }

    void addImage(const RibbonStyle &style, const ImageInfo &info)
    {
        const QPixmap &image = (style.*info.get)();
        Card card;
        card.title = QStringLiteral("%1  %2 x %3  %4()").arg(info.file).arg(image.width()).arg(image.height())
                         .arg(QLatin1String(info.getter));
        if (image.isNull()) {
            card.note = QStringLiteral("MISSING: the palette entry is null");
            m_cards.push_back(card);
            return;
        }
        const int step = info.step > 0 ? info.step : (info.alongX ? image.width() : image.height());
        const int count = (info.alongX ? image.width() : image.height()) / step;
        for (int i = 0; i < count; ++i) {
            const QRect src = info.alongX ? QRect(i * step, 0, step, image.height()) : QRect(0, i * step, image.width(), step);
            const QPixmap frame = image.copy(src);
            Row row;
            const QString state = i < info.states.size() ? info.states.at(i) : QStringLiteral("(not read)");
            row.label = count == 1 ? state
                                   : QStringLiteral("%1 %2 (%3 %4): %5")
                                         .arg(info.alongX ? QStringLiteral("column") : QStringLiteral("row"))
                                         .arg(i)
                                         .arg(info.alongX ? QStringLiteral("x") : QStringLiteral("y"))
                                         .arg(info.alongX ? src.x() : src.y())
                                         .arg(state);
            row.actual = onBackground(frame, info.back, 1);
            const int longest = std::max(frame.width(), frame.height());
            const int zoom = longest <= 16 ? 4 : longest <= 110 ? 2 : 1;
            if (zoom > 1)
                row.magnified = onBackground(frame, info.back, zoom);
            if (info.slice != Slice::None)
                row.sample = stretched(frame, info.slice, info.cap, info.sample, info.back);
            card.rows.push_back(row);
        }
        m_cards.push_back(card);
    }

    void buildCards()
    {
        const RibbonStyle &style = zel::RibbonApplication::theApp().ribbonStyle();
        const QStringList buttonStates = {QStringLiteral("normal / outline"), QStringLiteral("hover"), QStringLiteral("pressed"),
                                          QStringLiteral("checked + hover"), QStringLiteral("checked")};
        const QStringList itemStates = {QStringLiteral("hover"), QStringLiteral("pressed"), QStringLiteral("checked"),
                                        QStringLiteral("checked + hover"), QStringLiteral("disabled")};
        const QStringList segmentStates = {QStringLiteral("normal / disabled"), QStringLiteral("hover"), QStringLiteral("pressed"),
                                           QStringLiteral("checked"), QStringLiteral("checked + hover")};
        const QStringList captionStates = {QStringLiteral("hover"), QStringLiteral("pressed / checked"), QStringLiteral("popup open"),
                                           QStringLiteral("checked + hover"), QStringLiteral("outline"), QStringLiteral("other part hovered")};
        const QStringList arrowStates = {QStringLiteral("hover"), QStringLiteral("pressed"), QStringLiteral("popup open"),
                                         QStringLiteral("outline"), QStringLiteral("other part hovered"), QStringLiteral("spare (checked)")};
        const QStringList smallSys = {QStringLiteral("pressed"), QStringLiteral("hover"), QStringLiteral("normal (child window)"),
                                      QStringLiteral("normal (title)"), QStringLiteral("inactive")};
        const QStringList largeSys = {QStringLiteral("pressed"), QStringLiteral("hover"), QStringLiteral("normal, active"),
                                      QStringLiteral("spare (disabled)"), QStringLiteral("normal, inactive")};
        const QStringList halves = {QStringLiteral("active window"), QStringLiteral("inactive window")};
        const QStringList slider = {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("pressed")};
        const QStringList one = {QStringLiteral("the image")};

        const std::vector<ImageInfo> images = {
            {"mainBorderCaption", QStringLiteral("MainBorderCaption.png"), &RibbonStyle::mainBorderCaption, true, 35, halves, kClient, Slice::Three, 7, QSize(140, 31)},
            {"mainBorder", QStringLiteral("MainBorder.png"), &RibbonStyle::mainBorder, true, 35, halves, kClient, Slice::None, 0, QSize()},
            {"statusBar", QStringLiteral("StatusBar.png"), &RibbonStyle::statusBar, true, 34, halves, Qt::white, Slice::Three, 10, QSize(140, 23)},
            {"sysBtnBack", QStringLiteral("SysBtnBack.png"), &RibbonStyle::sysBtnBack, false, 16, {QStringLiteral("hover"), QStringLiteral("pressed")}, kClient, Slice::None, 0, QSize()},
            {"sysBtnMinimizeSmall", QStringLiteral("SysBtnMinimizeSmall.png"), &RibbonStyle::sysBtnMinimizeSmall, false, 12, smallSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnMaximizeSmall", QStringLiteral("SysBtnMaximizeSmall.png"), &RibbonStyle::sysBtnMaximizeSmall, false, 12, smallSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnRestoreSmall", QStringLiteral("SysBtnRestoreSmall.png"), &RibbonStyle::sysBtnRestoreSmall, false, 12, smallSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnCloseSmall", QStringLiteral("SysBtnCloseSmall.png"), &RibbonStyle::sysBtnCloseSmall, false, 12, smallSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnMinimize", QStringLiteral("SysBtnMinimize.png"), &RibbonStyle::sysBtnMinimize, false, 16, largeSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnMaximize", QStringLiteral("SysBtnMaximize.png"), &RibbonStyle::sysBtnMaximize, false, 16, largeSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnRestore", QStringLiteral("SysBtnRestore.png"), &RibbonStyle::sysBtnRestore, false, 16, largeSys, kClient, Slice::None, 0, QSize()},
            {"sysBtnClose", QStringLiteral("SysBtnClose.png"), &RibbonStyle::sysBtnClose, false, 16, largeSys, kClient, Slice::None, 0, QSize()},
            {"menuBarButton", QStringLiteral("MenuBarButton.png"), &RibbonStyle::menuBarButton, false, 24,
             {QStringLiteral("normal (not read)"), QStringLiteral("pressed (not read)"), QStringLiteral("hover"), QStringLiteral("current tab"), QStringLiteral("current + hover")},
             kClient, Slice::Three, 5, QSize(80, 24)},
            {"fileBarButton", QStringLiteral("FileRibbonMenuBarButton.png"), &RibbonStyle::fileBarButton, false, 24,
             {QStringLiteral("hover / checked"), QStringLiteral("normal")}, kClient, Slice::Three, 5, QSize(60, 24)},
            {"categories", QStringLiteral("Categories.png"), &RibbonStyle::categories, false, 0, one, kClient, Slice::Three, 5, QSize(160, 92)},
            {"categoryTop", QStringLiteral("CategoryTop.png"), &RibbonStyle::categoryTop, false, 68, {QStringLiteral("normal"), QStringLiteral("hovered")}, kPanel, Slice::Three, 3, QSize(70, 68)},
            {"categoryBottom", QStringLiteral("CategoryBottom.png"), &RibbonStyle::categoryBottom, false, 17, {QStringLiteral("normal"), QStringLiteral("hovered")}, kPanel, Slice::Three, 3, QSize(70, 17)},
            {"categoryWrapperBack", QStringLiteral("CategoryWrapperBack.png"), &RibbonStyle::categoryWrapperBack, false, 85,
             {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("open")}, kPanel, Slice::Three, 3, QSize(64, 85)},
            {"categoryWrapperIcon", QStringLiteral("CategoryWrapperIcon.png"), &RibbonStyle::categoryWrapperIcon, false, 0, {QStringLiteral("drop-down arrow (0, 0, 5, 3)")}, kPanel, Slice::None, 0, QSize()},
            {"normalButtonSmall", QStringLiteral("NormalButtonSmall.png"), &RibbonStyle::normalButtonSmall, false, 22, buttonStates, kPanel, Slice::Nine, 2, QSize(30, 22)},
            {"btnGroupFirst", QStringLiteral("BtnGroupFirst.png"), &RibbonStyle::btnGroupFirst, false, 22, segmentStates, kPanel, Slice::None, 0, QSize()},
            {"btnGroupMidle", QStringLiteral("BtnGroupMidle.png"), &RibbonStyle::btnGroupMidle, false, 22, segmentStates, kPanel, Slice::None, 0, QSize()},
            {"btnGroupLast", QStringLiteral("BtnGroupLast.png"), &RibbonStyle::btnGroupLast, false, 22, segmentStates, kPanel, Slice::None, 0, QSize()},
            {"paletteItemSmall", QStringLiteral("PaletteItemSmall.png"), &RibbonStyle::paletteItemSmall, false, 22, itemStates, kPanel, Slice::Nine, 2, QSize(70, 22)},
            {"paletteItemLarge", QStringLiteral("PaletteItemLarge.png"), &RibbonStyle::paletteItemLarge, false, 66, itemStates, kPanel, Slice::Nine, 2, QSize(56, 66)},
            {"horizontalMenuButtonCaption", QStringLiteral("HMenuButtonCaption.png"), &RibbonStyle::horizontalMenuButtonCaption, false, 22, captionStates, kPanel, Slice::None, 0, QSize()},
            {"horizontalMenuButtonMenu", QStringLiteral("HMenuButtonMenu.png"), &RibbonStyle::horizontalMenuButtonMenu, false, 22, arrowStates, kPanel, Slice::None, 0, QSize()},
            {"verticalMenuButtonCaption", QStringLiteral("VMenuButtonCaption.png"), &RibbonStyle::verticalMenuButtonCaption, false, 39, captionStates, kPanel, Slice::None, 0, QSize()},
            {"verticalMenuButtonMenu", QStringLiteral("VMenuButtonMenu.png"), &RibbonStyle::verticalMenuButtonMenu, false, 27, arrowStates, kPanel, Slice::None, 0, QSize()},
            {"mainPanelButton", QStringLiteral("MainPanelButton.png"), &RibbonStyle::mainPanelButton, false, 23,
             {QStringLiteral("light hover"), QStringLiteral("hover / options checked"), QStringLiteral("checked")}, Qt::white, Slice::Nine, 2, QSize(120, 25)},
            {"popupBorder", QStringLiteral("PopupBorder.png"), &RibbonStyle::popupBorder, false, 0, one, kPanel, Slice::Nine, 3, QSize(60, 40)},
            {"popupResizeBarBack", QStringLiteral("PopupResizeBarBack.png"), &RibbonStyle::popupResizeBarBack, false, 0, one, Qt::white, Slice::Three, 1, QSize(60, 11)},
            {"popupResizeBarIconB", QStringLiteral("PopupResizeBarIconB.png"), &RibbonStyle::popupResizeBarIconB, false, 0, {QStringLiteral("grip, bottom (not read)")}, Qt::white, Slice::None, 0, QSize()},
            {"popupResizeBarIconBR", QStringLiteral("PopupResizeBarIconBR.png"), &RibbonStyle::popupResizeBarIconBR, false, 0, {QStringLiteral("grip, bottom right")}, Qt::white, Slice::None, 0, QSize()},
            {"popupResizeBarIconTR", QStringLiteral("PopupResizeBarIconTR.png"), &RibbonStyle::popupResizeBarIconTR, false, 0, {QStringLiteral("grip, top right")}, Qt::white, Slice::None, 0, QSize()},
            {"checkableMenuItemBack", QStringLiteral("CheckableMenuItemBack.png"), &RibbonStyle::checkableMenuItemBack, false, 22,
             {QStringLiteral("checked"), QStringLiteral("checked + hover"), QStringLiteral("checked + disabled")}, Qt::white, Slice::Nine, 2, QSize(22, 22)},
            {"tabBarTabs", QStringLiteral("TabBarTabs.png"), &RibbonStyle::tabBarTabs, false, 16, {QStringLiteral("normal"), QStringLiteral("current")}, Qt::white, Slice::None, 0, QSize()},
            {"sliderMinus", QStringLiteral("SliderMinus.png"), &RibbonStyle::sliderMinus, false, 18, slider, kStatus, Slice::None, 0, QSize()},
            {"sliderPlus", QStringLiteral("SliderPlus.png"), &RibbonStyle::sliderPlus, false, 18, slider, kStatus, Slice::None, 0, QSize()},
            {"sliderThumb", QStringLiteral("SliderThumb.png"), &RibbonStyle::sliderThumb, false, 15, slider, kStatus, Slice::None, 0, QSize()},
            {"comboBox", QStringLiteral("ComboBox.png"), &RibbonStyle::comboBox, false, 22,
             {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("open"), QStringLiteral("disabled")}, kPanel, Slice::Nine, 2, QSize(90, 22)},
            {"tabBarTabShape", QStringLiteral("MenuPaneBarButton.png"), &RibbonStyle::tabBarTabShape, false, 24,
             {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("selected")}, Qt::white, Slice::Nine, 2, QSize(80, 24)},
            {"toolBoxTabBack", QStringLiteral("ToolBoxBack.png"), &RibbonStyle::toolBoxTabBack, false, 24,
             {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("selected")}, Qt::white, Slice::Nine, 2, QSize(120, 24)},
            {"tooltipBack", QStringLiteral("TooltipBack.png"), &RibbonStyle::tooltipBack, false, 0, one, kPanel, Slice::Nine, 3, QSize(90, 22)},
            {"mainPanelBack", QStringLiteral("MainPanelBack.png"), &RibbonStyle::mainPanelBack, false, 0, {QStringLiteral("page backdrop (not read)")}, kClient, Slice::None, 0, QSize()},
            {"mainPanelBorder", QStringLiteral("MainPanelBorder.png"), &RibbonStyle::mainPanelBorder, false, 0, {QStringLiteral("panel frame (not read)")}, kClient, Slice::Nine, 3, QSize(60, 40)},
            {"mainPanelSeparator", QStringLiteral("MainPanelSeparator.png"), &RibbonStyle::mainPanelSeparator, false, 0, {QStringLiteral("separator (not read)")}, kPanel, Slice::None, 0, QSize()},
        };
        for (const ImageInfo &info : images)
            addImage(style, info);

        addComposites(style);
        addIcons();
        addSymbols();

        Card absent;
        absent.title = QStringLiteral("Entries without an image (must be null)");
        const std::vector<std::pair<QString, bool>> nulls = {
            {QStringLiteral("paletteBtnTop (PaletteButtonTop.png)"), style.paletteBtnTop().isNull()},
            {QStringLiteral("paletteBtnMiddle (PaletteButtonMiddle.png)"), style.paletteBtnMiddle().isNull()},
            {QStringLiteral("paletteBtnBottom (PaletteButtonBottom.png)"), style.paletteBtnBottom().isNull()},
            {QStringLiteral("TerminateButton.png"), QPixmap(QStringLiteral(":/zel/ribbon/windows/TerminateButton.png")).isNull()},
        };
        for (const auto &n : nulls)
            absent.rows.push_back({n.first + (n.second ? QStringLiteral(": null") : QStringLiteral(": PRESENT")), {}, {}, {}});
        m_cards.push_back(absent);
    }

    // Pieces put together the way the widgets put them together.
    void addComposites(const RibbonStyle &style)
    {
        Card card;
        card.title = QStringLiteral("Assembled as the widgets draw them");

        const auto strip = [&](int state, bool wide) {
            QPixmap out(wide ? 30 : 66, 22);
            out.fill(kPanel);
            QPainter p(&out);
            if (wide) {
                p.drawPixmap(QRect(0, 0, 20, 22), style.btnGroupFirst(), QRect(0, 22 * state, 20, 22));
                p.drawPixmap(QRect(20, 0, 8, 22), style.btnGroupMidle(), QRect(2, 22 * state, 10, 22));
                p.drawPixmap(QRect(28, 0, 2, 22), style.btnGroupLast(), QRect(20, 22 * state, 2, 22));
                p.setPen(QColor(76, 83, 92));
                p.setBrush(QColor(76, 83, 92));
                RibbonStyle::drawSymbol(p, QRect(20, 11, 5, 3), zel::SymbolDropDown);
            } else {
                p.drawPixmap(QRect(0, 0, 22, 22), style.btnGroupFirst(), QRect(0, 0, 22, 22));
                p.drawPixmap(QRect(22, 0, 22, 22), style.btnGroupMidle(), QRect(0, 22 * state, 22, 22));
                p.drawPixmap(QRect(44, 0, 22, 22), style.btnGroupLast(), QRect(0, 0, 22, 22));
            }
            return out;
        };
        const QStringList segmentStates = {QStringLiteral("normal"), QStringLiteral("hover"), QStringLiteral("pressed"),
                                           QStringLiteral("checked"), QStringLiteral("checked + hover")};
        for (int s = 0; s < 5; ++s) {
            card.rows.push_back({QStringLiteral("strip of 3, middle %1; wide cell").arg(segmentStates.at(s)),
                                 onBackground(strip(s, false), kPanel, 1), onBackground(strip(s, false), kPanel, 2),
                                 onBackground(strip(s, true), kPanel, 2)});
        }

        // Split buttons: caption state s over arrow state t.
        const auto split = [&](int s, int t) {
            const int w = 60;
            QPixmap out(w, 22);
            out.fill(kPanel);
            QPainter p(&out);
            const QPixmap &cap = style.horizontalMenuButtonCaption();
            const QPixmap &arr = style.horizontalMenuButtonMenu();
            p.drawPixmap(QRect(0, 0, 2, 22), cap, QRect(0, 22 * s, 2, 22));
            p.drawPixmap(QRect(2, 0, w - 14, 22), cap, QRect(2, 22 * s, 19, 22));
            p.drawPixmap(QRect(w - 12, 0, 1, 22), cap, QRect(21, 22 * s, 1, 22));
            p.drawPixmap(QRect(w - 11, 0, 11, 22), arr, QRect(0, 22 * t, 11, 22));
            p.setPen(QColor(76, 83, 92));
            p.setBrush(QColor(76, 83, 92));
            RibbonStyle::drawSymbol(p, QRect(w - 9, 11, 5, 3), zel::SymbolDropDown);
            return out;
        };
        const auto large = [&](int s, int t, bool plain) {
            const int w = 50;
            QPixmap out(w, 66);
            out.fill(kPanel);
            QPainter p(&out);
            const QPixmap &cap = style.verticalMenuButtonCaption();
            const QPixmap &arr = style.verticalMenuButtonMenu();
            p.drawPixmap(QRect(0, 0, 2, 39), cap, QRect(0, 39 * s, 2, 39));
            p.drawPixmap(QRect(2, 0, w - 4, 39), cap, QRect(2, 39 * s, 39, 39));
            p.drawPixmap(QRect(w - 2, 0, 2, 39), cap, QRect(41, 39 * s, 2, 39));
            if (plain) {
                p.drawPixmap(QRect(0, 37, 2, 27), arr, QRect(0, 27 * t, 2, 25));
                p.drawPixmap(QRect(2, 37, w - 4, 27), arr, QRect(2, 27 * t, 39, 25));
                p.drawPixmap(QRect(w - 2, 37, 2, 27), arr, QRect(41, 27 * t, 2, 25));
                p.drawPixmap(QRect(0, 64, 2, 2), arr, QRect(0, 27 * t + 25, 2, 2));
                p.drawPixmap(QRect(2, 64, w - 4, 2), arr, QRect(2, 27 * t + 25, 39, 2));
                p.drawPixmap(QRect(w - 2, 64, 2, 2), arr, QRect(41, 27 * t + 25, 2, 2));
            } else {
                p.drawPixmap(QRect(0, 39, 2, 27), arr, QRect(0, 27 * t, 2, 27));
                p.drawPixmap(QRect(2, 39, w - 4, 27), arr, QRect(2, 27 * t, 39, 27));
                p.drawPixmap(QRect(w - 2, 39, 2, 27), arr, QRect(41, 27 * t, 2, 27));
            }
            p.setPen(QColor(76, 83, 92));
            p.setBrush(QColor(76, 83, 92));
            RibbonStyle::drawSymbol(p, QRect((w - 5) / 2, 56, 5, 3), zel::SymbolDropDown);
            return out;
        };
        const struct { int s, t; const char *what; } splits[] = {
            {0, 4, "caption hovered"}, {5, 0, "arrow hovered"}, {1, 4, "caption pressed"},
            {5, 2, "menu open"}, {3, 4, "checked, caption hovered"}, {4, 3, "outline (drawn border)"}};
        for (const auto &sp : splits) {
            card.rows.push_back({QStringLiteral("split button: %1 (rows %2/%3)").arg(QLatin1String(sp.what)).arg(sp.s).arg(sp.t),
                                 split(sp.s, sp.t), onBackground(split(sp.s, sp.t), kPanel, 2),
                                 large(sp.s, sp.t, false)});
        }
        card.rows.push_back({QStringLiteral("plain large drop-down: hover / open"), large(0, 0, true), large(2, 2, true), {}});

        // A group: top and bottom images joined, normal then hovered, and the tab that joins the panel.
        const auto group = [&](int hovered) {
            const int w = 120;
            QPixmap out(w + 10, 92);
            out.fill(kPanel);
            QPainter p(&out);
            const QPixmap &top = style.categoryTop();
            const QPixmap &bottom = style.categoryBottom();
            const int ty = hovered ? 68 : 0, by = hovered ? 17 : 0;
            const struct { const QPixmap &pm; int sy, sh, dy, dh; } bands[] = {
                {top, ty, 3, 0, 3}, {top, ty + 3, 65, 3, 66}, {bottom, by, 14, 69, 13}, {bottom, by + 14, 3, 82, 3}};
            for (const auto &b : bands) {
                p.drawPixmap(QRect(0, b.dy, 3, b.dh), b.pm, QRect(0, b.sy, 3, b.sh));
                p.drawPixmap(QRect(3, b.dy, w - 6, b.dh), b.pm, QRect(3, b.sy, 94, b.sh));
                p.drawPixmap(QRect(w - 3, b.dy, 3, b.dh), b.pm, QRect(97, b.sy, 3, b.sh));
            }
            p.setPen(QColor(83, 84, 89));
            p.drawText(QRect(3, 69, w - 6, 14), Qt::AlignCenter, QStringLiteral("Clipboard"));
            return out;
        };
        card.rows.push_back({QStringLiteral("group normal / hovered"), group(0), group(1), {}});

        const auto tabs = [&](int hoverRow) {
            QPixmap out(200, 40);
            out.fill(kClient);
            QPainter p(&out);
            const QPixmap &cat = style.categories();
            p.drawPixmap(QRect(0, 24, 5, 16), cat, QRect(0, 0, 5, 16));
            p.drawPixmap(QRect(5, 24, 190, 16), cat, QRect(5, 0, 70, 16));
            p.drawPixmap(QRect(195, 24, 5, 16), cat, QRect(75, 0, 5, 16));
            const auto tab = [&](int x, int w, int row) {
                const QPixmap &mb = style.menuBarButton();
                p.drawPixmap(QRect(x, 0, 5, 24), mb, QRect(0, row, 5, 24));
                p.drawPixmap(QRect(x + 5, 0, w - 10, 24), mb, QRect(5, row, 47, 24));
                p.drawPixmap(QRect(x + w - 5, 0, 5, 24), mb, QRect(52, row, 5, 24));
            };
            const QPixmap &file = style.fileBarButton();
            p.drawPixmap(QRect(0, 0, 5, 24), file, QRect(0, 24, 5, 24));
            p.drawPixmap(QRect(5, 0, 40, 24), file, QRect(5, 24, 47, 24));
            p.drawPixmap(QRect(45, 0, 5, 24), file, QRect(52, 24, 5, 24));
            tab(50, 60, hoverRow);
            tab(110, 60, 48);
            p.setPen(Qt::NoPen);
            p.setBrush(QColor(0xFA, 0xFA, 0xFA));
            p.drawRect(50 + 3, 24, 60 - 6, 2);
            p.setPen(Qt::white);
            p.drawText(QRect(0, 0, 50, 24), Qt::AlignCenter, QStringLiteral("FILE"));
            p.setPen(QColor(76, 83, 92));
            p.drawText(QRect(50, 0, 60, 24), Qt::AlignCenter, QStringLiteral("HOME"));
            p.drawText(QRect(110, 0, 60, 24), Qt::AlignCenter, QStringLiteral("VIEW"));
            return out;
        };
        card.rows.push_back({QStringLiteral("tab row: current tab (y 72, y 96), hovered tab"), tabs(72), tabs(96), {}});

        const auto sheetTabs = [&]() {
            QPixmap out(260, 16);
            out.fill(Qt::white);
            QPainter p(&out);
            const QPixmap &t = style.tabBarTabs();
            p.drawPixmap(QRect(0, 0, 74, 16), t, QRect(4, 0, 1, 16));
            const int lefts[] = {74, 134, 194};
            const auto piece = [&](int left, int width, int row) {
                p.drawPixmap(left, 0, t, 0, row, 4, 16);
                p.drawPixmap(QRect(left + 4, 0, width - 9, 16), t, QRect(4, row, 1, 16));
                p.drawPixmap(left + width - 5, 0, t, 5, row, 16, 16);
            };
            for (int i = 2; i >= 0; --i) {
                if (i != 1)
                    piece(lefts[i], 60, 0);
            }
            piece(lefts[1], 60, 16);
            p.setPen(QColor(76, 83, 92));
            p.setBrush(QColor(76, 83, 92));
            for (int i = 0; i < 4; ++i)
                RibbonStyle::drawSymbol(p, QRect(4 + 18 * i, 4, 10, 8), zel::eSymbolType(6 + i));
            for (int i = 0; i < 3; ++i)
                p.drawText(QRect(lefts[i] + 8, 0, 44, 16), Qt::AlignLeft | Qt::AlignVCenter, QStringLiteral("Sheet%1").arg(i + 1));
            return out;
        };
        card.rows.push_back({QStringLiteral("sheet tabs (second current)"), sheetTabs(), {}, {}});

        // The status bar with two buttons (normal, hover, checked) and the zoom slider.
        const auto statusBar = [&](bool active) {
            const int w = 330, h = style.statusBar().height();
            QPixmap out(w, h);
            out.fill(Qt::white);
            QPainter p(&out);
            const QPixmap &bar = style.statusBar();
            const int k = active ? 0 : 34;
            p.drawPixmap(QRect(0, 0, 10, h), bar, QRect(k, 0, 10, h));
            p.drawPixmap(QRect(10, 0, w - 20, h), bar, QRect(k + 10, 0, 10, h));
            p.drawPixmap(QRect(w - 10, 0, 10, h), bar, QRect(k + 24, 0, 10, h));
            for (int frame = 0; frame < 3; ++frame)
                p.drawPixmap(QRect(4 + 24 * frame, 0, 20, 22), style.normalButtonSmall(), QRect(0, 22 * frame, 22, 23));
            const int x0 = 140, sw = 190;
            p.setPen(style.statusBarTextColor());
            p.drawText(QRect(x0 + 20, 3, 40, 17), Qt::AlignRight | Qt::AlignVCenter, QStringLiteral("100 %"));
            p.drawPixmap(x0 + 61, 1, style.sliderMinus(), 0, active ? 0 : 18, 18, 18);
            p.drawPixmap(x0 + sw - 19, 1, style.sliderPlus(), 0, 36, 18, 18);
            p.setPen(style.frameSunkenColor());
            p.drawLine(x0 + 80, 9, x0 + sw - 20, 9);
            p.drawLine(x0 + 125, 6, x0 + 125, 13);
            p.setPen(style.frameRaiseColor());
            p.drawLine(x0 + 80, 10, x0 + sw - 20, 10);
            p.drawLine(x0 + 126, 7, x0 + 126, 14);
            p.drawPixmap(x0 + 125 - 5, 10 - 7, style.sliderThumb(), 0, active ? 0 : 15, 11, 15);
            return out;
        };
        card.rows.push_back({QStringLiteral("status bar: buttons normal / hover / checked, zoom slider"), statusBar(true),
                             statusBar(false), {}});
        m_cards.push_back(card);
    }

    void addIcons()
    {
        Card card;
        card.title = QStringLiteral("Icons (loaded from the resources)");
        const QStringList files = {
            QStringLiteral(":/zel/ribbon/icons/DefaultAppIcon.png"), QStringLiteral(":/zel/ribbon/icons/Exit.ico"),
            QStringLiteral(":/zel/common/Resources/pinIcon.png"), QStringLiteral(":/zel/common/Resources/unpinIcon.png"),
            QStringLiteral(":/zel/common/Resources/PinRibbon.ico"), QStringLiteral(":/zel/common/Resources/MinimizeRibbon.ico"),
            QStringLiteral(":/zel/common/Resources/Check.ico"), QStringLiteral(":/zel/common/Resources/QuickAccessToolbar.ico")};
        for (const QString &file : files) {
            const QIcon icon(file);
            const QPixmap pm(file);
            Row row;
            row.label = QStringLiteral("%1  %2 x %3").arg(file.section(QLatin1Char('/'), -1)).arg(pm.width()).arg(pm.height());
            if (pm.isNull()) {
                row.label += QStringLiteral("  MISSING");
            } else {
                row.actual = onBackground(pm, Qt::white, 1);
                row.magnified = onBackground(pm, Qt::white, pm.width() <= 16 ? 4 : 2);
                row.sample = onBackground(icon.pixmap(16, 16, QIcon::Disabled), kClient, 2);
            }
            card.rows.push_back(row);
        }
        m_cards.push_back(card);
    }

    void addSymbols()
    {
        Card card;
        card.title = QStringLiteral("RibbonStyle::drawSymbol 1-9 (16 x 10, 12 x 12, 5 x 3)");
        const char *names[] = {"SymbolArrowUp", "SymbolDropDown", "SymbolArrowLeft", "SymbolArrowRight", "SymbolBarArrowDown",
                               "SymbolFirst", "SymbolPrevious", "SymbolNext", "SymbolLast"};
        for (int s = 1; s <= 9; ++s) {
            const auto draw = [s](const QSize &size) {
                QPixmap out(size + QSize(4, 4));
                out.fill(Qt::white);
                QPainter p(&out);
                p.setPen(QColor(76, 83, 92));
                p.setBrush(QColor(76, 83, 92));
                RibbonStyle::drawSymbol(p, QRect(QPoint(2, 2), size), zel::eSymbolType(s));
                return out;
            };
            const QPixmap a = draw(QSize(16, 10)), b = draw(QSize(12, 12)), c = draw(QSize(5, 3));
            card.rows.push_back({QStringLiteral("%1 %2").arg(s).arg(QLatin1String(names[s - 1])), onBackground(a, Qt::white, 2),
                                 onBackground(b, Qt::white, 2), onBackground(c, Qt::white, 4)});
        }
        m_cards.push_back(card);
    }

    void layoutCards()
    {
        const QFontMetrics fm(font());
        int heights[kColumns] = {};
        for (Card &card : m_cards) {
            int w = fm.horizontalAdvance(card.title) + 2 * kPad;
            int h = kPad * 2 + fm.height() + (card.note.isEmpty() ? 0 : fm.height()) + 4;
            for (const Row &row : card.rows) {
                int rw = kLabel;
                for (const QPixmap *pm : {&row.actual, &row.magnified, &row.sample}) {
                    if (!pm->isNull())
                        rw += pm->width() + kGap;
                }
                w = std::max(w, rw + 2 * kPad);
                h += rowHeight(row, fm) + 4;
            }
            const int span = std::min(kColumns, (w + kColumnWidth - 1) / kColumnWidth);
            // Place the card where the columns it needs end highest.
            int best = 0, bestTop = INT_MAX;
            for (int c = 0; c + span <= kColumns; ++c) {
                const int top = *std::max_element(heights + c, heights + c + span);
                if (top < bestTop) {
                    bestTop = top;
                    best = c;
                }
            }
            card.rect = QRect(8 + best * (kColumnWidth + 8), bestTop + 8, span * kColumnWidth + (span - 1) * 8, h);
            for (int c = best; c < best + span; ++c)
                heights[c] = card.rect.bottom() + 1;
        }
        m_size = QSize(8 + kColumns * (kColumnWidth + 8), *std::max_element(heights, heights + kColumns) + 8);
    }

    std::vector<Card> m_cards;
    QSize m_size;
};

const bool registered = registerDemoScreen(
    {QStringLiteral("palette-images"), QStringLiteral("Palette images"), [] { return new ContactSheet; }, 10});

} // namespace
