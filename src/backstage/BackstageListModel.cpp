#include "BackstageListModel.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <climits>

namespace zel {

// ---------------------------------------------------------------------------
// BackstageListItem

BackstageListItem::BackstageListItem(const QString &path, const bool &pinnable, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_pinnable(pinnable)
{
}

BackstageListItem::BackstageListItem(const QIcon &icon, const QString &path, const bool &pinnable,
                                     QObject *parent)
    : QObject(parent)
    , m_icon(icon)
    , m_path(path)
    , m_pinnable(pinnable)
    , m_fixed(true)
{
}

BackstageListItem::~BackstageListItem() = default;

QIcon BackstageListItem::icon() const { return m_icon; }
void BackstageListItem::setIcon(const QIcon &icon) { m_icon = icon; }

QString BackstageListItem::path() const { return m_path; }
void BackstageListItem::setPath(const QString &path) { m_path = path; }

QString BackstageListItem::untranslatedText() const { return m_untranslatedText; }
void BackstageListItem::setUntranslatedText(const QString &text) { m_untranslatedText = text; }

QString BackstageListItem::folderName() const { return m_folderName; }
void BackstageListItem::setFolderName(const QString &name) { m_folderName = name; }

bool BackstageListItem::isPinnable() const { return m_pinnable; }
void BackstageListItem::setPinnable(bool pinnable) { m_pinnable = pinnable; }

bool BackstageListItem::isPinned() const { return m_pinnable && m_pinned; }
void BackstageListItem::setPinned(bool pinned) { m_pinned = pinned; }
void BackstageListItem::togglePinned() { m_pinned = !m_pinned; }

QRect BackstageListItem::rect() const { return m_rect; }
void BackstageListItem::setRect(const QRect &rect) { m_rect = rect; }

bool BackstageListItem::isSeparator() const { return m_separator; }
void BackstageListItem::setSeparator(bool separator) { m_separator = separator; }

bool BackstageListItem::isFixed() const { return m_fixed; }
void BackstageListItem::setFixed(bool fixed) { m_fixed = fixed; }

// ---------------------------------------------------------------------------
// BackstageListModel

using Entry = QSharedPointer<BackstageListItem>;

struct BackstageListModel::Priv
{
    // Every entry, most recent first; fixed entries where they were appended.
    QList<Entry> history;
    // What the views see: the pinned entries, the separator, then the recent entries.
    QList<Entry> rows;
    // Reused from one rebuild to the next, so a view keeps seeing the same row object.
    Entry separator;
    int maxNumberOfItems = -1;
    // A receiver of the row signals may change the list again; that change waits until
    // the rows in progress are complete.
    bool updating = false;
    bool updatePending = false;

    Entry entryAt(const BackstageListModel *model, const QModelIndex &index) const
    {
        if (!index.isValid() || index.model() != model || index.column() != 0
            || index.row() < 0 || index.row() >= rows.size())
            return Entry();
        return rows.at(index.row());
    }

    int findInHistory(const QString &path) const
    {
        for (int i = 0; i < history.size(); ++i) {
            if (history.at(i)->path() == path)
                return i;
        }
        return -1;
    }

    void trim()
    {
        if (maxNumberOfItems < 0)
            return;
        while (history.size() > maxNumberOfItems)
            history.removeLast();
    }

    QList<Entry> targetRows()
    {
        QList<Entry> pinned;
        QList<Entry> recent;
        for (const Entry &entry : qAsConst(history))
            (entry->isPinned() ? pinned : recent).append(entry);
        // A fixed entry closes the pinned block by itself; anything else gets a line.
        if (!pinned.isEmpty() && !pinned.last()->isFixed()) {
            if (!separator) {
                separator = Entry(new BackstageListItem(QString(), true));
                separator->setSeparator(true);
            }
            pinned.append(separator);
        }
        return pinned + recent;
    }
};

BackstageListModel::BackstageListModel(QObject *parent, int maxNumberOfItems)
    : QAbstractListModel(parent)
    , d(new Priv)
{
    d->maxNumberOfItems = maxNumberOfItems < 0 ? -1 : maxNumberOfItems;
}

BackstageListModel::~BackstageListModel() = default;

int BackstageListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->rows.size();
}

int BackstageListModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 1;
}

QVariant BackstageListModel::data(const QModelIndex &index, int role) const
{
    const Entry entry = d->entryAt(this, index);
    if (!entry)
        return QVariant();
    switch (role) {
    case Qt::UserRole:
        return QVariant::fromValue(entry);
    case Qt::DisplayRole:
        return entry->path();
    default:
        return QVariant();
    }
}

bool BackstageListModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::DisplayRole && role != Qt::EditRole)
        return false;
    const Entry entry = d->entryAt(this, index);
    if (!entry)
        return false;
    // Paths are not edited in place. A differing value is refused by announcing the row
    // as changed, so an editor or view reads the path back; the same value needs nothing.
    if (value.toString() != entry->path())
        emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags BackstageListModel::flags(const QModelIndex &index) const
{
    const Entry entry = d->entryAt(this, index);
    if (entry && entry->isSeparator())
        return Qt::ItemNeverHasChildren;
    return QAbstractListModel::flags(index);
}

void BackstageListModel::addItem(const QString &path, bool pinnable)
{
    const int found = d->findInHistory(path);
    Entry entry = found < 0 ? Entry(new BackstageListItem(path, pinnable)) : d->history.takeAt(found);
    d->history.prepend(entry);
    d->trim();
    updateRows();
}

QModelIndex BackstageListModel::addItem(const QIcon &icon, const QString &text, bool pinnable)
{
    const Entry entry(new BackstageListItem(icon, text, pinnable));
    entry->setFolderName(QDir(QFileInfo(text).absolutePath()).dirName());
    d->history.append(entry);
    updateRows();
    return index(d->rows.indexOf(entry), 0);
}

void BackstageListModel::selectItem(const QModelIndex &index)
{
    const Entry entry = d->entryAt(this, index);
    if (!entry || entry->isSeparator())
        return;
    if (!entry->isFixed()) {
        // Move this very entry, not the first one of the same path: a restored record may
        // hold duplicates.
        const int at = d->history.indexOf(entry);
        if (at > 0)
            d->history.move(at, 0);
        d->trim();
        updateRows();
    }
    const QString untranslated = entry->untranslatedText();
    emit itemSelected(untranslated.isEmpty() ? entry->path() : untranslated);
}

void BackstageListModel::pinItem(const QModelIndex &index)
{
    const Entry entry = d->entryAt(this, index);
    if (!entry || !d->history.contains(entry))
        return;
    const bool wasPinned = entry->isPinned();
    entry->togglePinned();
    if (entry->isPinned() == wasPinned)
        return;
    updateRows();
    // The entry may keep its row (the first pin only adds the separator below it);
    // its pin mark changes all the same.
    const int row = d->rows.indexOf(entry);
    if (row >= 0 && !d->updating)
        emit dataChanged(this->index(row, 0), this->index(row, 0));
}

void BackstageListModel::setUntranslatedText(const QModelIndex &index, const QString &text)
{
    const Entry entry = d->entryAt(this, index);
    if (!entry || !d->history.contains(entry) || entry->untranslatedText() == text)
        return;
    entry->setUntranslatedText(text);
    emit dataChanged(index, index);
}

int BackstageListModel::maxNumberOfItems() const
{
    return d->maxNumberOfItems;
}

void BackstageListModel::setMaxNumberOfItems(int maxNumberOfItems)
{
    d->maxNumberOfItems = maxNumberOfItems < 0 ? -1 : maxNumberOfItems;
    d->trim();
    updateRows();
}

void BackstageListModel::clearList()
{
    d->history.clear();
    updateRows();
}

QList<QVariant> BackstageListModel::saveState() const
{
    QList<QVariant> state;
    state.reserve(d->history.size());
    for (const Entry &entry : qAsConst(d->history))
        state.append(QVariant(QVariantList{entry->path(), entry->isPinned()}));
    return state;
}

void BackstageListModel::restoreState(const QList<QVariant> &state)
{
    // Restored entries go to the end and trimming cuts from the end, so reading stops
    // once the maximum is reached: a huge record costs no more than the list can hold.
    int room = INT_MAX;
    if (d->maxNumberOfItems >= 0)
        room = qMax(0, d->maxNumberOfItems - d->history.size());

    // Read the whole record before touching the model, so views never see half of it.
    QList<Entry> restored;
    for (const QVariant &element : state) {
        if (restored.size() >= room)
            break;
        const int type = element.userType();
        if (type != QMetaType::QVariantList && type != QMetaType::QStringList)
            continue;
        const QVariantList values = element.toList();
        if (values.isEmpty())
            continue;
        const QVariant &path = values.first();
        if (path.userType() != QMetaType::QString)
            continue;
        const Entry entry(new BackstageListItem(path.toString(), true));
        // A record cut after the path leaves the entry unpinned rather than reading the
        // path as the pin state.
        if (values.size() > 1 && values.last().toBool())
            entry->togglePinned();
        restored.append(entry);
    }

    d->history.append(restored);
    d->trim();
    updateRows();
}

void BackstageListModel::updateRows()
{
    if (d->updating) {
        d->updatePending = true;
        return;
    }
    d->updating = true;
    do {
        d->updatePending = false;
        applyRows();
    } while (d->updatePending);
    d->updating = false;
}

// Brings the rows in line with the history, announcing every removal, move and
// insertion in order so that views, proxies and persistent indexes follow each step.
void BackstageListModel::applyRows()
{
    const QList<Entry> target = d->targetRows();
    QList<Entry> &rows = d->rows;

    QSet<const BackstageListItem *> wanted;
    wanted.reserve(target.size());
    for (const Entry &entry : target)
        wanted.insert(entry.data());

    // Removals first, bottom up, one signal per contiguous run.
    for (int last = rows.size() - 1; last >= 0; --last) {
        if (wanted.contains(rows.at(last).data()))
            continue;
        int first = last;
        while (first > 0 && !wanted.contains(rows.at(first - 1).data()))
            --first;
        beginRemoveRows(QModelIndex(), first, last);
        rows.erase(rows.begin() + first, rows.begin() + last + 1);
        endRemoveRows();
        last = first;
    }

    QSet<const BackstageListItem *> present;
    present.reserve(rows.size());
    for (const Entry &entry : qAsConst(rows))
        present.insert(entry.data());

    // Every remaining row is wanted; place the target rows top down.
    for (int i = 0; i < target.size(); ++i) {
        const Entry &want = target.at(i);
        if (i < rows.size() && rows.at(i) == want)
            continue;

        if (!present.contains(want.data())) {
            int last = i;
            while (last + 1 < target.size() && !present.contains(target.at(last + 1).data()))
                ++last;
            beginInsertRows(QModelIndex(), i, last);
            for (int k = i; k <= last; ++k) {
                rows.insert(k, target.at(k));
                present.insert(target.at(k).data());
            }
            endInsertRows();
            i = last;
            continue;
        }

        if (i + 1 < rows.size() && rows.at(i + 1) == want) {
            // The row at i is out of place while the rest follows in order: move that one
            // down in front of its successor rather than shifting everything below it up.
            const Entry current = rows.at(i);
            int destination = rows.size();
            for (int k = target.indexOf(current) + 1; k < target.size(); ++k) {
                if (present.contains(target.at(k).data())) {
                    destination = rows.indexOf(target.at(k), i + 2);
                    break;
                }
            }
            if (destination < 0)
                destination = rows.size();
            beginMoveRows(QModelIndex(), i, i, QModelIndex(), destination);
            rows.move(i, destination - 1);
            endMoveRows();
            continue;
        }

        const int from = rows.indexOf(want, i + 1);
        beginMoveRows(QModelIndex(), from, from, QModelIndex(), i);
        rows.move(from, i);
        endMoveRows();
    }
}

} // namespace zel
