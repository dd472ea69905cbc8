#pragma once

#include "RibbonAction.h"

#include <QIcon>
#include <QList>
#include <QPointer>
#include <QStringList>
#include <QValidator>

namespace zel {

// A combo box in a ribbon group: the item list, the selected text and the editing
// options, shared by every combo box made for the action.
class ZELRIBBON_EXPORT RibbonCatComboAction : public RibbonAction
{
    Q_OBJECT
public:
    explicit RibbonCatComboAction(QObject *parent = nullptr);
    // The text is the label shown beside or above the combo.
    RibbonCatComboAction(const QString &label, QObject *parent);
    ~RibbonCatComboAction() override;

    void addItem(const QString &item);
    void addItem(const QIcon &icon, const QString &item);
    QStringList items() const;
    // One icon per item, or empty when no item has an icon.
    QList<QIcon> icons() const;

    QString comboLabel() const;
    void setComboLabel(const QString &label);

    QString selectionText() const;
    // Index of the first item equal to the selection text, -1 when there is none.
    int selectionIndex() const;

    bool isEditable() const;
    void setEditable(bool editable);
    bool isSearchable() const;
    void setSearchable(bool searchable);

    // Fixed width of the combo box, in pixels; a negative width is ignored.
    int width() const;
    void setWidth(int width);
    // Width of the item icons, in pixels; a negative width is ignored.
    int iconWidth() const;
    void setIconWidth(int width);

    QString comboInputMask() const;
    void setComboInputMask(const QString &mask);
    QPointer<QValidator> validator() const;
    void setValidator(QPointer<QValidator> validator);

    // Label above the combo instead of beside it.
    bool isVerticalAligned() const;
    void setVerticalAligned(bool vertical);

    void emitKeyPressed(int key);

public slots:
    // An empty text, or the text already selected, changes nothing.
    void setSelectionText(const QString &text);
    // An index outside the items changes nothing.
    void setSelectionIndex(int iconIndex);

signals:
    void itemAdded(const QIcon &icon, const QString &item);
    void selectionTextChanged();
    void selectionIndexChanged();
    void editableChanged();
    void keyPressed(int key);

public:
    // A RibbonCatComboComboBox for a QToolBar parent; null for any other parent,
    // since a ribbon group makes its own widget.
    QWidget *createWidget(QWidget *parent) override;

private:
    QStringList m_items;
    QList<QIcon> m_icons;
    QString m_comboLabel;
    QString m_selectionText;
    QString m_comboInputMask;
    bool m_editable = true;
    bool m_searchable = false;
    int m_width = 48;
    int m_iconWidth = 22;
    QPointer<QValidator> m_validator;
    bool m_verticalAligned = false;
};

} // namespace zel
