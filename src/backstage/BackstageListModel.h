#pragma once

#include "zelribbon_export.h"

#include <QAbstractListModel>
#include <QIcon>
#include <QList>
#include <QRect>
#include <QSharedPointer>
#include <QString>
#include <QVariant>

#include <memory>

namespace zel {

// One entry of the recent-document list: a document path or, for a fixed entry, a
// caption with an icon. Entries are shared between the model and the views that show
// them, so a delegate may keep one (and its rect) after the model dropped it.
class ZELRIBBON_EXPORT BackstageListItem : public QObject
{
    Q_OBJECT
public:
    BackstageListItem(const QString &path, const bool &pinnable, QObject *parent = nullptr);
    // Entries made with an icon are fixed: added once by the host, never moved by selection.
    BackstageListItem(const QIcon &icon, const QString &path, const bool &pinnable,
                      QObject *parent = nullptr);
    ~BackstageListItem() override;

    QIcon icon() const;
    void setIcon(const QIcon &icon);

    QString path() const;
    void setPath(const QString &path);

    QString untranslatedText() const;
    void setUntranslatedText(const QString &text);

    QString folderName() const;
    void setFolderName(const QString &name);

    bool isPinnable() const;
    void setPinnable(bool pinnable);

    // The pin only counts while the entry can be pinned.
    bool isPinned() const;
    void setPinned(bool pinned);
    void togglePinned();

    QRect rect() const;
    void setRect(const QRect &rect);

    bool isSeparator() const;
    void setSeparator(bool separator);

    bool isFixed() const;
    void setFixed(bool fixed);

private:
    QIcon m_icon;
    QString m_path;
    QString m_untranslatedText;
    QString m_folderName;
    bool m_pinnable;
    bool m_pinned = false;
    QRect m_rect;
    bool m_separator = false;
    bool m_fixed = false;
};

// The history of recently used documents behind the backstage lists: most recent first,
// pinned entries on top followed by a separator row, fixed entries of the host, an
// optional maximum length and a state record the host stores between runs.
//
// Rows: the pinned entries in history order, then (when the last of them is not fixed)
// a separator entry, then every other entry in history order. Qt::DisplayRole gives an
// entry's path, Qt::UserRole its QSharedPointer<BackstageListItem>.
class ZELRIBBON_EXPORT BackstageListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    // A negative maximum means no limit.
    explicit BackstageListModel(QObject *parent = nullptr, int maxNumberOfItems = -1);
    ~BackstageListModel() override;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    // Display and edit role are accepted (the entry keeps its path, views re-read it);
    // every other role is refused.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    // Puts the entry for path at the top of the history, making it when there is none.
    // An existing entry keeps its pin state and its own pinnable flag.
    void addItem(const QString &path, bool pinnable = true);
    // Appends a fixed entry at the end of the history and returns its index.
    QModelIndex addItem(const QIcon &icon, const QString &text, bool pinnable = false);

    // Moves the entry to the front (fixed entries stay) and emits itemSelected().
    void selectItem(const QModelIndex &index);
    void pinItem(const QModelIndex &index);
    // The text itemSelected() reports for the entry instead of its path.
    void setUntranslatedText(const QModelIndex &index, const QString &text);

    int maxNumberOfItems() const;
    void setMaxNumberOfItems(int maxNumberOfItems);

    // One element per history entry: a QVariantList of the path and the pin state.
    QList<QVariant> saveState() const;
    // Appends the entries of a saved record, cut at the maximum length. Elements that are
    // not a list starting with a path string are skipped; a missing pin state reads as
    // unpinned. Entries already in the list stay.
    void restoreState(const QList<QVariant> &state);

public slots:
    void clearList();

signals:
    void itemSelected(const QString &text);

private:
    void updateRows();
    void applyRows();

    struct Priv;
    std::unique_ptr<Priv> d;
    Q_DISABLE_COPY(BackstageListModel)
};

} // namespace zel
