#include "RibbonCatFontSizeAction.h"

#include "RibbonScale_p.h"

#include <QComboBox>
#include <QIntValidator>
#include <QLineEdit>
#include <QToolBar>

namespace zel {

namespace {

// Room the editable field keeps around a size at 96 DPI (its frame and text margins).
const int FieldMargin = 8;

// The first entry is a placeholder that always shows the current size.
const char *const fontSizeEntries[] = {"", "8", "9", "10", "11", "12", "14", "16", "18",
                                       "20", "24", "28", "32", "36", "40", "48", "72"};

} // namespace

RibbonCatFontSizeAction::RibbonCatFontSizeAction(int size, QObject *parent)
    : RibbonAction(parent)
    , m_fontSize(size)
{
}

RibbonCatFontSizeAction::~RibbonCatFontSizeAction() = default;

int RibbonCatFontSizeAction::sizeOf(const QComboBox *combo)
{
    bool ok = false;
    const int size = combo->currentText().toInt(&ok, 10);
    return ok ? size : 8;
}

short RibbonCatFontSizeAction::fontSize() const
{
    if (m_comboBox)
        return short(sizeOf(m_comboBox));
    return short(m_fontSize);
}

QList<QComboBox *> RibbonCatFontSizeAction::liveCombos() const
{
    QList<QComboBox *> combos;
    for (const QPointer<QComboBox> &combo : m_combos) {
        if (combo)
            combos.append(combo);
    }
    return combos;
}

QWidget *RibbonCatFontSizeAction::createWidget(QWidget *parent)
{
    if (!qobject_cast<QToolBar *>(parent))
        return nullptr;
    return createComboBox(parent);
}

QComboBox *RibbonCatFontSizeAction::createComboBox(QWidget *parent)
{
    auto *combo = new QComboBox(parent);
    for (const char *entry : fontSizeEntries)
        combo->addItem(QLatin1String(entry));
    combo->setItemText(0, QString::number(m_fontSize));
    combo->setCurrentIndex(0);
    // Sizes that are not in the list can be typed; they replace the first entry
    // instead of growing the list.
    combo->setEditable(true);
    combo->setInsertPolicy(QComboBox::NoInsert);
    combo->setValidator(new QIntValidator(1, 1638, combo));
    // One row of a ribbon group, like the family picker beside it.
    combo->setFixedHeight(comboRowHeight(combo->fontMetrics()));
    // The box measures its entries, but its frame and arrow keep their pixel widths, so
    // at a higher resolution the field is left too narrow and scrolls the size; it gets
    // the DPI factor's share of a field margin more (nothing at 96 DPI).
    const int extra = scaledX(FieldMargin) - FieldMargin;
    if (extra > 0)
        combo->setMinimumWidth(combo->sizeHint().width() + extra);
    combo->show();
    connect(combo, SIGNAL(currentIndexChanged(int)), this, SLOT(setFontSize(const int)));
    connect(combo->lineEdit(), SIGNAL(editingFinished()), this, SLOT(onSizeTyped()));

    m_combos.removeAll(QPointer<QComboBox>());
    m_combos.append(combo);
    m_comboBox = combo;
    return combo;
}

void RibbonCatFontSizeAction::setFontSize(int index)
{
    Q_UNUSED(index)
    auto *combo = qobject_cast<QComboBox *>(sender());
    if (!combo || !m_combos.contains(combo))
        combo = m_comboBox;
    if (combo)
        applySizeFrom(combo);
}

void RibbonCatFontSizeAction::applySizeFrom(const QComboBox *combo)
{
    const int size = sizeOf(combo);
    if (size == m_fontSize)
        return;
    m_fontSize = size;
    sendActionChangedEvt();
    emit fontSizeChanged(size);
    emit changed();
    emit ribbonActionActivated();

    // Moving a picker back to entry 0 re-enters setFontSize, which then finds the
    // stored size unchanged.
    const QString text = QString::number(size);
    for (QComboBox *picker : liveCombos()) {
        picker->setItemText(0, text);
        picker->setCurrentIndex(0);
    }
}

void RibbonCatFontSizeAction::updateFontSize(int size)
{
    // 0 means "no single size" (a selection of mixed sizes); negative sizes are nonsense.
    if (size <= 0)
        return;
    const QString text = QString::number(size);
    for (QComboBox *picker : liveCombos()) {
        picker->setItemText(0, text);
        picker->setCurrentIndex(0);
    }
    // A picker that already showed entry 0 sends no change; keep the stored size in
    // step with what is shown so that the next choice is compared with it.
    m_fontSize = size;
}

void RibbonCatFontSizeAction::onSizeTyped()
{
    auto *edit = qobject_cast<QLineEdit *>(sender());
    auto *combo = edit ? qobject_cast<QComboBox *>(edit->parentWidget()) : nullptr;
    if (!combo || !m_combos.contains(combo))
        return;

    bool ok = false;
    const int typed = edit->text().toInt(&ok, 10);
    if (!ok || typed <= 0) {
        combo->setCurrentIndex(0);
        combo->setEditText(combo->itemText(0));
        return;
    }
    combo->setItemText(0, QString::number(typed));
    combo->setCurrentIndex(0);
    applySizeFrom(combo);
}

} // namespace zel
