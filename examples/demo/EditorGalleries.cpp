#include "EditorGalleries.h"

#include "EditorDemoIcons.h"

#include "RibbonCatMenuAction.h"
#include "RibbonCategoryAction.h"
#include "RibbonPercAction.h"
#include "RibbonSimpleAction.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QFontMetrics>
#include <QInputDialog>
#include <QPainter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>

using namespace zel;

namespace {

// The context of this file's texts in the demo's catalogue.
struct EditorGalleries
{
    Q_DECLARE_TR_FUNCTIONS(EditorGalleries)
};

struct StyleDef
{
    QString name;
    int heading;
    qreal points; // 0: the document's size
    QColor color;  // invalid: the text colour
    bool italic;
    int weight;
};

const QList<StyleDef> &styleDefs()
{
    static const QList<StyleDef> defs = {
        {EditorGalleries::tr("Normal"), 0, 0, QColor(), false, QFont::Normal},
        {EditorGalleries::tr("Title"), 1, 26, QColor(0x26, 0x26, 0x26), false, QFont::Light},
        {EditorGalleries::tr("Heading 1"), 1, 20, EditorColors::Accent, false, QFont::Normal},
        {EditorGalleries::tr("Heading 2"), 2, 15, EditorColors::Accent, false, QFont::Normal},
        {EditorGalleries::tr("Quote"), 0, 0, QColor(0x66, 0x66, 0x66), true, QFont::Normal}};
    return defs;
}

// A 56-pixel tile previewing a style: a sample of text in the style's look over its name.
QIcon styleTile(const StyleDef &style)
{
    QPixmap pixmap(56, 56);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setPen(QColor(0xC8, 0xD0, 0xDA));
    p.setBrush(Qt::white);
    p.drawRoundedRect(QRectF(4.5, 4.5, 47, 47), 2, 2);

    QFont sample(QStringLiteral("DejaVu Sans"));
    sample.setPixelSize(style.heading == 0 ? 13 : 17 - 2 * (style.heading - 1) + (style.points > 20 ? 2 : 0));
    sample.setItalic(style.italic);
    sample.setWeight(style.weight);
    p.setFont(sample);
    p.setPen(style.color.isValid() ? style.color : EditorColors::Ink);
    p.drawText(QRect(5, 8, 46, 26), Qt::AlignCenter, QStringLiteral("AaBb"));

    // The name in 9 pixels, smaller down to 7 when a (translated) name is longer than the
    // tile, elided beyond that.
    const QRect nameRect(5, 34, 46, 14);
    QFont caption(QStringLiteral("DejaVu Sans"));
    caption.setPixelSize(9);
    while (caption.pixelSize() > 7 && QFontMetrics(caption).horizontalAdvance(style.name) > nameRect.width())
        caption.setPixelSize(caption.pixelSize() - 1);
    p.setFont(caption);
    p.setPen(QColor(0x55, 0x55, 0x55));
    p.drawText(nameRect, Qt::AlignCenter, p.fontMetrics().elidedText(style.name, Qt::ElideRight, nameRect.width()));
    p.end();
    return QIcon(pixmap);
}

// A 56-pixel tile for a zoom preset: a page seen at that size, with the percentage.
QIcon zoomTile(int percent)
{
    QPixmap pixmap(56, 56);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal side = 14 + 30 * qMin(percent, 200) / 200.0;
    const QRectF page(28 - side / 2, 6 + (32 - side * 0.75) / 2 + 2, side, side * 0.75);
    p.setPen(QColor(0x8A, 0x9A, 0xB0));
    p.setBrush(Qt::white);
    p.drawRect(page);
    p.setPen(QPen(QColor(0xB0, 0xBC, 0xCC), 1));
    for (qreal y = page.top() + 4; y < page.bottom() - 2; y += 4)
        p.drawLine(QPointF(page.left() + 3, y), QPointF(page.right() - 3, y));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(11);
    font.setBold(true);
    p.setFont(font);
    p.setPen(EditorColors::Accent);
    p.drawText(QRect(0, 38, 56, 16), Qt::AlignCenter, QStringLiteral("%1%").arg(percent));
    p.end();
    return QIcon(pixmap);
}

// Formats the paragraph at the cursor with style, as any word processor does: the whole
// paragraph takes it.
void applyStyle(QTextEdit *edit, const StyleDef &style)
{
    QTextCursor cursor = edit->textCursor();
    cursor.beginEditBlock();
    QTextBlockFormat block = cursor.blockFormat();
    block.setHeadingLevel(style.heading);
    cursor.setBlockFormat(block);
    QTextCharFormat chars;
    if (style.points > 0)
        chars.setFontPointSize(style.points);
    if (style.color.isValid())
        chars.setForeground(style.color);
    chars.setFontItalic(style.italic);
    chars.setFontWeight(style.weight);
    QTextCursor whole = cursor;
    whole.setPosition(cursor.block().position());
    whole.setPosition(cursor.block().position() + cursor.block().length() - 1, QTextCursor::KeepAnchor);
    whole.setCharFormat(chars);
    cursor.endEditBlock();
    edit->mergeCurrentCharFormat(chars);
    edit->setFocus();
}

// The style the paragraph at the cursor shows (an index into styleDefs()), judged by
// its heading level and, where two styles share a level, its size or slant.
int styleAt(const QTextEdit *edit)
{
    const QTextCursor cursor = edit->textCursor();
    const int heading = cursor.blockFormat().headingLevel();
    const QTextCharFormat chars = cursor.charFormat();
    enum { Normal, Title, Heading1, Heading2, Quote };
    if (heading == 1)
        return qFuzzyCompare(chars.fontPointSize(), styleDefs().at(Title).points) ? Title : Heading1;
    if (heading >= 2)
        return Heading2;
    return chars.fontItalic() ? Quote : Normal;
}

} // namespace

EditorStyles buildStylesCategory(const CurrentEditor &editor, QObject *owner)
{
    auto *styles = new RibbonCategoryAction(editorIcon(EditorIcon::StyleHeading1), EditorGalleries::tr("Styles"), owner);
    auto *gallery = new RibbonCatMenuAction(editorIcon(EditorIcon::StyleNormal), EditorGalleries::tr("Styles"),
                                            RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeLarge,
                                            RibbonCatMenuAction::PopupListPreview, owner);
    gallery->setToolTip(EditorGalleries::tr("Paragraph styles"));
    gallery->setListPreviewVisibleIconsCount(4);
    QList<RibbonSimpleAction *> tiles;
    for (const StyleDef &style : styleDefs()) {
        auto *tile = new RibbonSimpleAction(styleTile(style), style.name, owner);
        tile->setToolTip(QCoreApplication::translate("EditorGalleries", "Format the paragraph as %1").arg(style.name));
        tile->setCheckable(true);
        gallery->iconActionGroup()->addAction(tile);
        QObject::connect(tile, &QAction::triggered, owner, [editor, style] {
            if (QTextEdit *edit = editor())
                applyStyle(edit, style);
        });
        tiles.append(tile);
    }
    tiles.first()->setChecked(true);

    auto *clear = new RibbonSimpleAction(editorIcon(EditorIcon::ClearFormat), EditorGalleries::tr("Clear Formatting"), owner);
    QObject::connect(clear, &QAction::triggered, owner, [editor] {
        QTextEdit *edit = editor();
        if (!edit)
            return;
        applyStyle(edit, styleDefs().first());
        QTextCursor cursor = edit->textCursor();
        QTextCursor whole = cursor;
        whole.setPosition(cursor.block().position());
        whole.setPosition(cursor.block().position() + cursor.block().length() - 1, QTextCursor::KeepAnchor);
        whole.setCharFormat(QTextCharFormat());
        edit->setCurrentCharFormat(QTextCharFormat());
    });
    gallery->addBottomAction(clear);

    // The tile of the paragraph under the cursor stays checked.
    const auto follow = [editor, tiles] {
        const QTextEdit *edit = editor();
        QAction *current = edit ? tiles.at(styleAt(edit)) : nullptr;
        if (current && !current->isChecked())
            current->setChecked(true);
    };

    styles->addAction(gallery, -1);
    return {styles, follow};
}

RibbonCategoryAction *buildLayoutCategory(RibbonPercAction *zoom, const CurrentEditor &editor,
                                          std::function<void(bool)> printLayout, QObject *owner)
{
    auto *layout = new RibbonCategoryAction(editorIcon(EditorIcon::Page), EditorGalleries::tr("Layout"), owner);
    auto *button = new RibbonCatMenuAction(editorIcon(EditorIcon::Page), EditorGalleries::tr("Page Layout"),
                                           RibbonCatMenuAction::MenuTypeButton, RibbonCatMenuAction::MenuSizeLarge,
                                           RibbonCatMenuAction::PopupView, owner);
    button->setToolTip(EditorGalleries::tr("Page layout and zoom"));

    // The layouts on top: a checked one shows the check mark in the gutter.
    auto *layouts = new QActionGroup(owner);
    auto *print = new RibbonSimpleAction(EditorGalleries::tr("Print Layout"), owner);
    auto *web = new RibbonSimpleAction(EditorGalleries::tr("Web Layout"), owner);
    for (RibbonSimpleAction *a : {print, web}) {
        a->setCheckable(true);
        layouts->addAction(a);
    }
    print->setChecked(true);
    print->setToolTip(EditorGalleries::tr("The text as a page of fixed width"));
    web->setToolTip(EditorGalleries::tr("The text fills the window"));
    QObject::connect(print, &QAction::triggered, owner, [printLayout] { printLayout(true); });
    QObject::connect(web, &QAction::triggered, owner, [printLayout] { printLayout(false); });
    button->addTopAction(print);
    button->addTopAction(web);

    // Zoom presets as tiles; the one matching the zoom is checked.
    QList<QPair<int, RibbonSimpleAction *>> presets;
    for (int percent : {50, 75, 100, 125, 150, 200, 300, 400}) {
        auto *tile = new RibbonSimpleAction(zoomTile(percent), QStringLiteral("%1%").arg(percent), owner);
        tile->setToolTip(QCoreApplication::translate("EditorGalleries", "Zoom to %1%").arg(percent));
        tile->setCheckable(true);
        tile->setChecked(percent == zoom->percentage());
        button->iconActionGroup()->addAction(tile);
        QObject::connect(tile, &QAction::triggered, zoom, [zoom, percent] { zoom->setPercentage(percent); });
        presets.append({percent, tile});
    }
    QObject::connect(zoom, &RibbonPercAction::percentageChanged, button, [presets](int percentage) {
        for (const auto &preset : presets)
            preset.second->setChecked(preset.first == percentage);
    });

    auto *custom = new RibbonSimpleAction(editorIcon(EditorIcon::ZoomIn), EditorGalleries::tr("Custom Zoom..."), owner);
    QObject::connect(custom, &QAction::triggered, owner, [zoom, editor] {
        QTextEdit *edit = editor();
        bool ok = false;
        const int percent = QInputDialog::getInt(edit ? edit->window() : nullptr, EditorGalleries::tr("Zoom"), EditorGalleries::tr("Zoom (%):"), zoom->percentage(),
                                                 zoom->minimum(), zoom->maximum(), 5, &ok);
        if (ok)
            zoom->setPercentage(percent);
    });
    button->addBottomAction(custom);

    layout->addAction(button, -1);
    return layout;
}
