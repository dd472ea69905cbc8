#pragma once

#include "zelribbon_export.h"

#include <QPixmap>
#include <QRect>
#include <QString>
#include <QWidget>

#include <memory>

namespace zel {

class BackstageListModel;
class RibbonMainWindow;

// The start page a main window shows before a document is open: a blue column at the
// left with the recently used documents of a host's BackstageListModel (each with its pin),
// and at the right a large "Blank document" tile followed by the host's templates.
class ZELRIBBON_EXPORT BackstageWelcomeScreen : public QWidget
{
    Q_OBJECT
public:
    explicit BackstageWelcomeScreen(RibbonMainWindow *mainWindow = nullptr);
    ~BackstageWelcomeScreen() override;

    RibbonMainWindow *mainWindow() const;

    // The large caption at the top of the blue column (the application's name).
    QString title() const;
    void setTitle(const QString &title);

    // The list of recent documents; not owned. Null empties the list.
    BackstageListModel *recentModel() const;
    void setRecentModel(BackstageListModel *model);

    // Appends a template tile after the blank document; choosing it reports name.
    void addTemplate(const QString &name, const QPixmap &preview);
    int templateCount() const;

    // The blue column and the area right of it, in screen coordinates.
    QRect leftPaneRect();
    QRect rightPaneRect();

signals:
    // The text the recent list reports for the chosen entry (its path unless the host
    // gave it an untranslated text). The entry also moves to the top of the list.
    void recentDocumentSelected(const QString &path);
    void blankDocumentSelected();
    void templateSelected(const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(BackstageWelcomeScreen)
};

} // namespace zel
