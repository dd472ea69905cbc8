#include "RibbonCatCheckBox.h"

#include "RibbonApplication.h"
#include "RibbonCatCheckBoxAction.h"
#include "RibbonMetaMethod_p.h"
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
    // then announces the click. Between meta-methods: a connection to a function
    // pointer would carry a slot object of its own, in every box.
    static const QMetaMethod boxClicked = ribbonMetaMethod<QAbstractButton>("clicked(bool)");
    static const QMetaMethod checkBox = ribbonMetaMethod<QAbstractButton>("setChecked(bool)");
    static const QMetaMethod checkAction = ribbonMetaMethod<QAction>("setChecked(bool)");
    static const QMetaMethod actionTriggered = ribbonMetaMethod<QAction>("triggered(bool)");
    static const QMetaMethod actionToggled = ribbonMetaMethod<QAction>("toggled(bool)");
    static const QMetaMethod actionEnabledChanged = ribbonMetaMethod<RibbonCatCheckBoxAction>("actionEnabled(bool)");
    static const QMetaMethod enableBox = ribbonMetaMethod<QWidget>("setEnabled(bool)");
    static const QMetaMethod actionChanged = ribbonMetaMethod<QAction>("changed()");
    static const QMetaMethod followAction = ribbonMetaMethod<RibbonCatCheckBox>("onActionChanged()");
    connect(this, boxClicked, &action, checkAction);
    connect(this, boxClicked, &action, actionTriggered);
    connect(&action, actionToggled, this, checkBox);
    connect(&action, actionEnabledChanged, this, enableBox);
    connect(&action, actionChanged, this, followAction);
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
