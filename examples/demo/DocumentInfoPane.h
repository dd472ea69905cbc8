#pragma once

#include "RibbonStackedWidget.h"

#include <QList>
#include <QPair>

class QFormLayout;
class QLabel;
class QTextDocument;

// The body of the File page's Info pane: stacked panes with the current document's
// information, its statistics and the editor's keyboard shortcuts.
class DocumentInfoPane : public zel::RibbonStackedWidget
{
    Q_OBJECT
public:
    // shortcuts: (keys, what they do), listed in that order.
    explicit DocumentInfoPane(const QList<QPair<QString, QString>> &shortcuts, QWidget *parent = nullptr);

    struct Facts
    {
        QString name;
        QString path; // empty: never saved
        QString author;
        bool modified = false;
    };
    void showDocument(const Facts &facts, const QTextDocument &document);

private:
    void addRow(QFormLayout *form, const QString &name);

    QList<QPair<QString, QLabel *>> m_rows;
};
