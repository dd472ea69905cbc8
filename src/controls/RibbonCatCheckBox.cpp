#include "RibbonCatCheckBox.h"

#include "RibbonApplication.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonScale_p.h"
#include "RibbonScreenTip_p.h"
#include "RibbonStyle.h"

#include <QFontMetrics>

namespace zel {

namespace {

// The box's text in the palette's category text colour; read again when the palette changes.
void applyTextColor(QCheckBox &box)
{
    const QColor textColor = RibbonApplication::theApp().ribbonStyle().normalCategoryTextColor();
    box.setStyleSheet(QStringLiteral("QCheckBox {") + QLatin1Char(' ') + QStringLiteral("color: ")
                      + textColor.name() + QStringLiteral("; }"));
}

} // namespace

RibbonCatCheckBox::RibbonCatCheckBox(RibbonCatCheckBoxAction &action, QWidget *parent)
    : QCheckBox(parent)
    , m_action(&action)
{
    setText(action.textLabel());
    setToolTip(ribbonScreenTip(&action));
    setChecked(action.isChecked());
    setEnabled(action.isEnabled());
    applyTextColor(*this);
    // A style sheet set again on a placed box resolves its font anew from the
    // application's; the box keeps the font of the group it stands in.
    connect(&RibbonApplication::theApp(), &RibbonApplication::ribbonStyleChanged, this, [this] {
        const QFont inherited = font();
        applyTextColor(*this);
        if (font() != inherited)
            setFont(inherited);
    });

    // The action takes the new state first so that every box shown for it follows,
    // then announces the click.
    connect(this, &QAbstractButton::clicked, &action, &QAction::setChecked);
    connect(this, &QAbstractButton::clicked, &action, &QAction::triggered);
    connect(&action, &QAction::toggled, this, &QAbstractButton::setChecked);
    connect(&action, &RibbonCatCheckBoxAction::actionEnabled, this, &QWidget::setEnabled);
    connect(&action, &QAction::changed, this, &RibbonCatCheckBox::onActionChanged);
}

RibbonCatCheckBox::~RibbonCatCheckBox() = default;

QSize RibbonCatCheckBox::sizeHint() const
{
    const QString label = text();
    const int textWidth = label.isEmpty() ? 0 : fontMetrics().horizontalAdvance(label);
    // The indicator and its gap grow with the resolution like the text beside them.
    return QSize(textWidth + scaledX(20), textFitHeight(22, fontMetrics(), 2));
}

void RibbonCatCheckBox::onActionChanged()
{
    auto *action = qobject_cast<RibbonCatCheckBoxAction *>(m_action);
    if (!action)
        return;
    if (text() != action->textLabel()) {
        setText(action->textLabel());
        updateGeometry();
    }
    setToolTip(ribbonScreenTip(action));
}

} // namespace zel
