#include "ZelTest.h"

#include "BackstageListModel.h"

#include <QAbstractItemModelTester>
#include <QPixmap>
#include <QRandomGenerator>
#include <QSettings>
#include <QTemporaryDir>

#include <memory>

using namespace zel;

using Entry = QSharedPointer<BackstageListItem>;

namespace {

Entry entryAt(const BackstageListModel &model, int row)
{
    return model.data(model.index(row, 0), Qt::UserRole).value<Entry>();
}

// The rows as text: "|" is the separator, a leading "*" marks a pinned entry and a
// leading "#" a fixed one.
QStringList rowsOf(const BackstageListModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const Entry entry = entryAt(model, row);
        if (!entry) {
            rows << QStringLiteral("<null>");
        } else if (entry->isSeparator()) {
            rows << QStringLiteral("|");
        } else {
            QString text = entry->path();
            if (entry->isFixed())
                text.prepend(QLatin1Char('#'));
            if (entry->isPinned())
                text.prepend(QLatin1Char('*'));
            rows << text;
        }
    }
    return rows;
}

int rowOf(const BackstageListModel &model, const QString &path)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (model.index(row, 0).data().toString() == path && !entryAt(model, row)->isSeparator())
            return row;
    }
    return -1;
}

void pin(BackstageListModel &model, const QString &path)
{
    model.pinItem(model.index(rowOf(model, path), 0));
}

QVariant record(const QVariant &path, const QVariant &pinned)
{
    return QVariant(QVariantList{path, pinned});
}

// Every row must keep following its own entry through moves, insertions and removals:
// this holds only when the model announces each step correctly.
class RowTracker
{
public:
    explicit RowTracker(BackstageListModel &model)
        : m_model(model)
    {
        for (int row = 0; row < model.rowCount(); ++row) {
            m_indexes << QPersistentModelIndex(model.index(row, 0));
            m_entries << entryAt(model, row);
        }
    }

    // Returns an empty string when every tracked row is where it should be.
    QString verify() const
    {
        QSet<BackstageListItem *> present;
        for (int row = 0; row < m_model.rowCount(); ++row)
            present.insert(entryAt(m_model, row).data());
        for (int i = 0; i < m_indexes.size(); ++i) {
            const bool stillThere = present.contains(m_entries.at(i).data());
            if (stillThere != m_indexes.at(i).isValid())
                return QStringLiteral("index of %1: valid %2, entry present %3")
                    .arg(m_entries.at(i)->path())
                    .arg(m_indexes.at(i).isValid())
                    .arg(stillThere);
            if (stillThere && entryAt(m_model, m_indexes.at(i).row()) != m_entries.at(i))
                return QStringLiteral("index of %1 points at row %2 of another entry")
                    .arg(m_entries.at(i)->path())
                    .arg(m_indexes.at(i).row());
        }
        return QString();
    }

private:
    BackstageListModel &m_model;
    QList<QPersistentModelIndex> m_indexes;
    QList<Entry> m_entries;
};

// The rows must be the pinned entries, a separator unless the last of them is fixed, then
// the others, each part in the order of the saved history.
QString checkRowStructure(const BackstageListModel &model)
{
    QStringList pinned;
    QStringList recent;
    for (const QVariant &element : model.saveState()) {
        const QVariantList pair = element.toList();
        (pair.at(1).toBool() ? pinned : recent) << pair.at(0).toString();
    }
    QStringList expected = pinned;
    int pinnedRows = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        if (entryAt(model, row)->isPinned())
            pinnedRows = row + 1;
    }
    if (!pinned.isEmpty() && !entryAt(model, pinnedRows - 1)->isFixed())
        expected << QString();
    expected << recent;

    QStringList actual;
    for (int row = 0; row < model.rowCount(); ++row)
        actual << model.index(row, 0).data().toString();
    if (actual != expected)
        return QStringLiteral("rows %1, expected %2")
            .arg(actual.join(QLatin1Char(',')), expected.join(QLatin1Char(',')));
    return QString();
}

} // namespace

class tst_BackstageListModel : public QObject
{
    Q_OBJECT

    std::unique_ptr<BackstageListModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;

    void makeModel(int maxNumberOfItems)
    {
        tester.reset();
        model.reset(new BackstageListModel(nullptr, maxNumberOfItems));
        tester.reset(new QAbstractItemModelTester(
            model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest));
    }

    void addAll(const QStringList &paths)
    {
        for (const QString &path : paths)
            model->addItem(path);
    }

private slots:
    void init() { makeModel(-1); }

    void cleanup()
    {
        tester.reset();
        model.reset();
    }

    void metaObjects()
    {
        QCOMPARE(model->metaObject()->className(), "zel::BackstageListModel");
        BackstageListItem item(QStringLiteral("a"), true);
        QCOMPARE(item.metaObject()->className(), "zel::BackstageListItem");
        QCOMPARE(model->columnCount(), 1);
    }

    void addItemMovesToFront_data()
    {
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("empty") << QStringList() << QStringList();
        QTest::newRow("most recent first") << QStringList{"a", "b", "c"} << QStringList{"c", "b", "a"};
        QTest::newRow("again moves to front") << QStringList{"a", "b", "a"} << QStringList{"a", "b"};
        QTest::newRow("top again is no-op") << QStringList{"a", "b", "b"} << QStringList{"b", "a"};
        QTest::newRow("case sensitive") << QStringList{"a", "A"} << QStringList{"A", "a"};
        QTest::newRow("no trimming of whitespace") << QStringList{"a", "a "} << QStringList{"a ", "a"};
    }

    void addItemMovesToFront()
    {
        QFETCH(QStringList, added);
        QFETCH(QStringList, rows);
        addAll(added);
        QCOMPARE(rowsOf(*model), rows);
    }

    void addItemKeepsPinStateAndPinnable()
    {
        addAll({"a", "b", "c"});
        pin(*model, QStringLiteral("a"));
        model->addItem(QStringLiteral("x"), false);
        QCOMPARE(rowsOf(*model), (QStringList{"*a", "|", "x", "c", "b"}));

        // The flag passed again does not override the entry's own.
        model->addItem(QStringLiteral("a"), false);
        model->addItem(QStringLiteral("x"), true);
        QCOMPARE(rowsOf(*model), (QStringList{"*a", "|", "x", "c", "b"}));
        QVERIFY(!entryAt(*model, rowOf(*model, QStringLiteral("x")))->isPinnable());
    }

    void maximumLength_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QStringList>("rows");
        QTest::addColumn<int>("storedMaximum");
        QTest::newRow("3") << 3 << QStringList{"e", "d", "c"} << 3;
        QTest::newRow("unlimited") << -1 << QStringList{"e", "d", "c", "b", "a"} << -1;
        QTest::newRow("other negative is unlimited") << -7 << QStringList{"e", "d", "c", "b", "a"} << -1;
        QTest::newRow("0") << 0 << QStringList() << 0;
        QTest::newRow("exactly full") << 5 << QStringList{"e", "d", "c", "b", "a"} << 5;
    }

    void maximumLength()
    {
        QFETCH(int, maximum);
        QFETCH(QStringList, rows);
        QFETCH(int, storedMaximum);
        makeModel(maximum);
        addAll({"a", "b", "c", "d", "e"});
        QCOMPARE(rowsOf(*model), rows);
        QCOMPARE(model->maxNumberOfItems(), storedMaximum);
    }

    void setMaxNumberOfItemsTrimsTheTail()
    {
        addAll({"a", "b", "c", "d", "e"});
        QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy reset(model.get(), &QAbstractItemModel::modelReset);
        model->setMaxNumberOfItems(2);
        QCOMPARE(rowsOf(*model), (QStringList{"e", "d"}));
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.at(0).at(1).toInt(), 2);
        QCOMPARE(removed.at(0).at(2).toInt(), 4);
        QCOMPARE(reset.count(), 0);

        // Raising the maximum brings nothing back and announces nothing.
        removed.clear();
        model->setMaxNumberOfItems(10);
        QCOMPARE(rowsOf(*model), (QStringList{"e", "d"}));
        QCOMPARE(removed.count(), 0);
    }

    void maximumLengthCountsPinnedEntries()
    {
        makeModel(3);
        addAll({"a", "b", "c"});
        pin(*model, QStringLiteral("b"));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "|", "c", "a"}));

        // The pinned entry takes one of the three places: the oldest goes.
        model->addItem(QStringLiteral("d"));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "|", "d", "c"}));

        // The length counts in history order, so a pinned entry that became the oldest
        // is dropped as well, and its separator with it.
        model->addItem(QStringLiteral("e"));
        QCOMPARE(rowsOf(*model), (QStringList{"e", "d", "c"}));
        QCOMPARE(model->saveState().size(), 3);

        // Selecting a pinned entry keeps it recent, pinned and alive.
        pin(*model, QStringLiteral("e"));
        model->addItem(QStringLiteral("g"));
        QCOMPARE(rowsOf(*model), (QStringList{"*e", "|", "g", "d"}));
        model->selectItem(model->index(rowOf(*model, QStringLiteral("e")), 0));
        model->addItem(QStringLiteral("h"));
        QCOMPARE(rowsOf(*model), (QStringList{"*e", "|", "h", "g"}));
    }

    void separatorRow()
    {
        addAll({"a", "b", "c"});
        QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        pin(*model, QStringLiteral("b"));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "|", "c", "a"}));
        QCOMPARE(inserted.count(), 1);

        const Entry separator = entryAt(*model, 1);
        QVERIFY(separator->isSeparator());
        QVERIFY(separator->path().isEmpty());
        QVERIFY(separator->isPinnable());
        QVERIFY(!separator->isPinned());
        QVERIFY(!separator->isFixed());
        QCOMPARE(model->index(1, 0).data().toString(), QString());
        QVERIFY(!(model->flags(model->index(1, 0)) & Qt::ItemIsSelectable));
        QVERIFY(model->flags(model->index(0, 0)) & Qt::ItemIsSelectable);

        // One separator however many pins, always after the last pinned entry.
        pin(*model, QStringLiteral("a"));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "*a", "|", "c"}));
        pin(*model, QStringLiteral("c"));
        QCOMPARE(rowsOf(*model), (QStringList{"*c", "*b", "*a", "|"}));

        pin(*model, QStringLiteral("c"));
        pin(*model, QStringLiteral("a"));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "|", "c", "a"}));
        pin(*model, QStringLiteral("b"));
        QCOMPARE(rowsOf(*model), (QStringList{"c", "b", "a"}));

        // Selecting or pinning the separator does nothing.
        pin(*model, QStringLiteral("a"));
        QSignalSpy selected(model.get(), &BackstageListModel::itemSelected);
        const QStringList before = rowsOf(*model);
        model->selectItem(model->index(1, 0));
        model->pinItem(model->index(1, 0));
        QCOMPARE(rowsOf(*model), before);
        QCOMPARE(selected.count(), 0);
        QCOMPARE(model->saveState().size(), 3);
    }

    void pinningAnnouncesTheEntry()
    {
        addAll({"b", "a"});
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        // "a" stays in row 0; only its pin mark changes.
        pin(*model, QStringLiteral("a"));
        QCOMPARE(rowsOf(*model), (QStringList{"*a", "|", "b"}));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 0);
    }

    void pinningAnUnpinnableEntryChangesNothing()
    {
        model->addItem(QStringLiteral("a"), false);
        model->addItem(QStringLiteral("b"));
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy layout(model.get(), &QAbstractItemModel::rowsInserted);
        pin(*model, QStringLiteral("a"));
        QCOMPARE(rowsOf(*model), (QStringList{"b", "a"}));
        QCOMPARE(changed.count(), 0);
        QCOMPARE(layout.count(), 0);
        QCOMPARE(model->saveState().at(1).toList().at(1).toBool(), false);
    }

    void fixedEntries()
    {
        const QIcon icon(QPixmap(16, 16));
        const QModelIndex open = model->addItem(icon, QStringLiteral("/home/user/docs/Open"), true);
        QCOMPARE(open.row(), 0);
        Entry entry = open.data(Qt::UserRole).value<Entry>();
        QVERIFY(entry->isFixed());
        QVERIFY(!entry->icon().isNull());
        QCOMPARE(entry->folderName(), QStringLiteral("docs"));
        QCOMPARE(entry->path(), QStringLiteral("/home/user/docs/Open"));

        // Documents go in front of the fixed entries, later fixed entries after them.
        addAll({"a", "b"});
        const QModelIndex browse = model->addItem(icon, QStringLiteral("Browse"), false);
        QCOMPARE(rowsOf(*model), (QStringList{"b", "a", "#/home/user/docs/Open", "#Browse"}));
        QCOMPARE(browse.row(), 3);
        QVERIFY(!browse.data(Qt::UserRole).value<Entry>()->isPinnable());

        // With a pinned document the returned index is still that of the new entry.
        pin(*model, QStringLiteral("a"));
        const QModelIndex more = model->addItem(icon, QStringLiteral("More"), false);
        QCOMPARE(more.data().toString(), QStringLiteral("More"));
        QCOMPARE(more.row(), model->rowCount() - 1);

        // A fixed entry that closes the pinned block needs no separator.
        pin(*model, QStringLiteral("/home/user/docs/Open"));
        QCOMPARE(rowsOf(*model), (QStringList{"*a", "*#/home/user/docs/Open", "b", "#Browse", "#More"}));
        pin(*model, QStringLiteral("a"));
        QCOMPARE(rowsOf(*model), (QStringList{"*#/home/user/docs/Open", "b", "a", "#Browse", "#More"}));
    }

    void fixedEntriesAreNotTrimmedWhenAdded()
    {
        makeModel(2);
        addAll({"a", "b"});
        model->addItem(QIcon(), QStringLiteral("Open"), false);
        QCOMPARE(rowsOf(*model), (QStringList{"b", "a", "#Open"}));
        // The next document brings the history back to its maximum from the tail.
        model->addItem(QStringLiteral("c"));
        QCOMPARE(rowsOf(*model), (QStringList{"c", "b"}));
    }

    void selectItem_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::addColumn<QString>("untranslated");
        QTest::addColumn<QString>("reported");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("document moves to front")
            << "a" << QString() << "a" << QStringList{"a", "c", "b", "#Open"};
        QTest::newRow("top document stays")
            << "c" << QString() << "c" << QStringList{"c", "b", "a", "#Open"};
        QTest::newRow("untranslated text reported")
            << "b" << "B-id" << "B-id" << QStringList{"b", "c", "a", "#Open"};
        QTest::newRow("fixed entry stays")
            << "Open" << QString() << "Open" << QStringList{"c", "b", "a", "#Open"};
        QTest::newRow("fixed entry reports untranslated text")
            << "Open" << "open-command" << "open-command" << QStringList{"c", "b", "a", "#Open"};
    }

    void selectItem()
    {
        QFETCH(QString, selected);
        QFETCH(QString, untranslated);
        QFETCH(QString, reported);
        QFETCH(QStringList, rows);
        addAll({"a", "b", "c"});
        model->addItem(QIcon(), QStringLiteral("Open"), false);
        if (!untranslated.isEmpty())
            model->setUntranslatedText(model->index(rowOf(*model, selected), 0), untranslated);

        QSignalSpy spy(model.get(), &BackstageListModel::itemSelected);
        model->selectItem(model->index(rowOf(*model, selected), 0));
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), reported);
        QCOMPARE(rowsOf(*model), rows);
    }

    void selectItemKeepsThePin()
    {
        addAll({"a", "b", "c"});
        pin(*model, QStringLiteral("a"));
        pin(*model, QStringLiteral("b"));
        model->selectItem(model->index(rowOf(*model, QStringLiteral("a")), 0));
        QCOMPARE(rowsOf(*model), (QStringList{"*a", "*b", "|", "c"}));
    }

    void badIndexesChangeNothing()
    {
        addAll({"a", "b"});
        BackstageListModel other;
        other.addItem(QStringLiteral("x"));
        const QList<QModelIndex> bad{QModelIndex(), model->index(5, 0), other.index(0, 0)};
        QSignalSpy selected(model.get(), &BackstageListModel::itemSelected);
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        for (const QModelIndex &index : bad) {
            model->selectItem(index);
            model->pinItem(index);
            model->setUntranslatedText(index, QStringLiteral("t"));
            QVERIFY(!model->setData(index, QStringLiteral("z")));
            QVERIFY(!model->data(index, Qt::UserRole).isValid());
        }
        QCOMPARE(rowsOf(*model), (QStringList{"b", "a"}));
        QCOMPARE(selected.count(), 0);
        QCOMPARE(changed.count(), 0);
        QCOMPARE(rowsOf(other), QStringList{"x"});
    }

    void dataRoles()
    {
        model->addItem(QStringLiteral("a"));
        const QModelIndex index = model->index(0, 0);
        QCOMPARE(index.data(Qt::DisplayRole), QVariant(QStringLiteral("a")));
        const Entry first = index.data(Qt::UserRole).value<Entry>();
        QVERIFY(first);
        // The view gets the model's own entry, not a copy.
        QCOMPARE(index.data(Qt::UserRole).value<Entry>(), first);
        QVERIFY(!index.data(Qt::EditRole).isValid());
        QVERIFY(!index.data(Qt::DecorationRole).isValid());
        QVERIFY(!index.data(Qt::UserRole + 1).isValid());
        QCOMPARE(model->rowCount(index), 0);
        QCOMPARE(model->columnCount(index), 0);
        QVERIFY(!model->index(1, 0).isValid());
    }

    void setData_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<int>("changes");
        QTest::newRow("display, other text") << int(Qt::DisplayRole) << QVariant(QStringLiteral("z")) << true << 1;
        QTest::newRow("edit, other text") << int(Qt::EditRole) << QVariant(QStringLiteral("z")) << true << 1;
        QTest::newRow("edit, not a string") << int(Qt::EditRole) << QVariant(42) << true << 1;
        QTest::newRow("display, same text") << int(Qt::DisplayRole) << QVariant(QStringLiteral("a")) << true << 0;
        QTest::newRow("user role") << int(Qt::UserRole) << QVariant(QStringLiteral("z")) << false << 0;
        QTest::newRow("decoration") << int(Qt::DecorationRole) << QVariant(QStringLiteral("z")) << false << 0;
        QTest::newRow("tool tip") << int(Qt::ToolTipRole) << QVariant(QStringLiteral("z")) << false << 0;
    }

    void setData()
    {
        QFETCH(int, role);
        QFETCH(QVariant, value);
        QFETCH(bool, accepted);
        QFETCH(int, changes);
        addAll({"b", "a"});
        const QModelIndex index = model->index(0, 0);
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        QCOMPARE(model->setData(index, value, role), accepted);
        QCOMPARE(changed.count(), changes);
        if (changes) {
            QCOMPARE(changed.at(0).at(0).toModelIndex(), index);
            QCOMPARE(changed.at(0).at(1).toModelIndex(), index);
        }
        // The path is never edited in place.
        QCOMPARE(rowsOf(*model), (QStringList{"a", "b"}));
    }

    void setUntranslatedText()
    {
        addAll({"a", "b"});
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        const QModelIndex index = model->index(1, 0);
        model->setUntranslatedText(index, QStringLiteral("A"));
        QCOMPARE(entryAt(*model, 1)->untranslatedText(), QStringLiteral("A"));
        QCOMPARE(changed.count(), 1);
        model->setUntranslatedText(index, QStringLiteral("A"));
        QCOMPARE(changed.count(), 1);
        QCOMPARE(rowsOf(*model), (QStringList{"b", "a"}));
        // The untranslated text is no part of the stored record.
        QCOMPARE(model->saveState().at(1).toList().at(0).toString(), QStringLiteral("a"));
    }

    void clearList()
    {
        QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
        model->clearList();
        QCOMPARE(removed.count(), 0);

        addAll({"a", "b", "c"});
        pin(*model, QStringLiteral("b"));
        model->addItem(QIcon(), QStringLiteral("Open"), true);
        QVERIFY(QMetaObject::invokeMethod(model.get(), "clearList"));
        QCOMPARE(model->rowCount(), 0);
        QVERIFY(model->saveState().isEmpty());
        QCOMPARE(removed.count(), 1);

        // The list is usable again afterwards.
        addAll({"x"});
        QCOMPARE(rowsOf(*model), QStringList{"x"});
    }

    void saveStateRecord()
    {
        addAll({"b", "a"});
        pin(*model, QStringLiteral("a"));
        model->addItem(QIcon(), QStringLiteral("Open"), false);
        const QList<QVariant> expected{record(QStringLiteral("a"), true),
                                       record(QStringLiteral("b"), false),
                                       record(QStringLiteral("Open"), false)};
        const QList<QVariant> state = model->saveState();
        QCOMPARE(state, expected);
        for (const QVariant &element : state) {
            QCOMPARE(element.userType(), int(QMetaType::QVariantList));
            QCOMPARE(element.toList().at(0).userType(), int(QMetaType::QString));
            QCOMPARE(element.toList().at(1).userType(), int(QMetaType::Bool));
        }
    }

    void saveRestoreRoundTrip_data()
    {
        QTest::addColumn<QStringList>("added");
        QTest::addColumn<QStringList>("pinned");
        QTest::addColumn<QStringList>("rows");
        QTest::newRow("empty") << QStringList() << QStringList() << QStringList();
        QTest::newRow("one pinned") << QStringList{"b", "a"} << QStringList{"a"} << QStringList{"*a", "|", "b"};
        QTest::newRow("pins in the middle") << QStringList{"e", "d", "c", "b", "a"} << QStringList{"b", "d"}
                                            << QStringList{"*b", "*d", "|", "a", "c", "e"};
        QTest::newRow("all pinned") << QStringList{"b", "a"} << QStringList{"a", "b"} << QStringList{"*a", "*b", "|"};
        QTest::newRow("odd paths") << QStringList{QString(), "C:\\Docs\\x y.txt", "\xc3\xa9t\xc3\xa9"}
                                   << QStringList{QString()}
                                   << QStringList{"*", "|", QString::fromUtf8("\xc3\xa9t\xc3\xa9"), "C:\\Docs\\x y.txt"};
    }

    void saveRestoreRoundTrip()
    {
        QFETCH(QStringList, added);
        QFETCH(QStringList, pinned);
        QFETCH(QStringList, rows);
        addAll(added);
        for (const QString &path : pinned)
            pin(*model, path);
        QCOMPARE(rowsOf(*model), rows);
        const QList<QVariant> state = model->saveState();

        BackstageListModel restored(nullptr, 10);
        QAbstractItemModelTester restoredTester(&restored, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy inserted(&restored, &QAbstractItemModel::rowsInserted);
        restored.restoreState(state);
        QCOMPARE(rowsOf(restored), rows);
        QCOMPARE(restored.saveState(), state);
        QCOMPARE(inserted.count(), rows.isEmpty() ? 0 : 1);
    }

    void roundTripThroughSettings()
    {
        // Hosts store the record in settings files, which turn the pin flag into text.
        addAll({"c", "b", "a"});
        pin(*model, QStringLiteral("b"));
        const QStringList rows = rowsOf(*model);
        QTemporaryDir dir;
        QVERIFY(dir.isValid());
        const QString file = dir.filePath(QStringLiteral("recent.ini"));
        {
            QSettings settings(file, QSettings::IniFormat);
            settings.setValue(QStringLiteral("recent"), QVariant(model->saveState()));
        }
        QSettings settings(file, QSettings::IniFormat);
        BackstageListModel restored;
        restored.restoreState(settings.value(QStringLiteral("recent")).toList());
        QCOMPARE(rowsOf(restored), rows);
    }

    void restoreAppendsToExistingEntries()
    {
        makeModel(4);
        addAll({"x", "a"});
        model->restoreState({record(QStringLiteral("a"), false), record(QStringLiteral("p"), true),
                             record(QStringLiteral("q"), false), record(QStringLiteral("r"), false)});
        // No duplicate check, appended after the existing history, cut at the maximum.
        QCOMPARE(rowsOf(*model), (QStringList{"*p", "|", "a", "x", "a"}));
        QVERIFY(!entryAt(*model, 0)->isFixed());

        // Each row is its own entry: selecting the older duplicate moves that one.
        const Entry older = entryAt(*model, 4);
        model->selectItem(model->index(4, 0));
        QCOMPARE(entryAt(*model, 2), older);
        QCOMPARE(rowsOf(*model), (QStringList{"*p", "|", "a", "a", "x"}));
    }

    void restoreMalformedRecords_data()
    {
        QTest::addColumn<QList<QVariant>>("state");
        QTest::addColumn<QStringList>("rows");

        const QVariant a = record(QStringLiteral("a"), false);
        const QVariant b = record(QStringLiteral("b"), true);
        QTest::newRow("empty record") << QList<QVariant>() << QStringList();
        QTest::newRow("empty elements")
            << QList<QVariant>{QVariant(QVariantList()), a, QVariant(QVariantList())} << QStringList{"a"};
        QTest::newRow("invalid variants") << QList<QVariant>{QVariant(), a, QVariant()} << QStringList{"a"};
        QTest::newRow("element not a list")
            << QList<QVariant>{QVariant(QStringLiteral("x")), a, QVariant(7), QVariant(true), b}
            << QStringList{"*b", "|", "a"};
        QTest::newRow("element is a map")
            << QList<QVariant>{QVariant(QVariantMap{{QStringLiteral("path"), QStringLiteral("m")}}), a}
            << QStringList{"a"};
        QTest::newRow("path of wrong type")
            << QList<QVariant>{record(42, false), record(QVariant(), true), record(QVariantList{QStringLiteral("n")}, false),
                               record(QRect(1, 2, 3, 4), true), a}
            << QStringList{"a"};
        QTest::newRow("truncated after the path")
            << QList<QVariant>{QVariant(QVariantList{QStringLiteral("t")}), b} << QStringList{"*b", "|", "t"};
        QTest::newRow("pin flag as text or number")
            << QList<QVariant>{record(QStringLiteral("s"), QStringLiteral("true")),
                               record(QStringLiteral("f"), QStringLiteral("false")),
                               record(QStringLiteral("one"), 1), record(QStringLiteral("zero"), 0)}
            << QStringList{"*s", "*one", "|", "f", "zero"};
        QTest::newRow("pin flag of wrong type")
            << QList<QVariant>{record(QStringLiteral("w"), QVariantList{true}), record(QStringLiteral("v"), QVariant())}
            << QStringList{"w", "v"};
        QTest::newRow("extra values, last is the pin")
            << QList<QVariant>{QVariant(QVariantList{QStringLiteral("e"), false, 3, true})} << QStringList{"*e", "|"};
        QTest::newRow("string list element")
            << QList<QVariant>{QVariant(QStringList{QStringLiteral("sl"), QStringLiteral("true")})}
            << QStringList{"*sl", "|"};
        QTest::newRow("nested garbage")
            << QList<QVariant>{QVariant(QVariantList{QVariant(QVariantList{a, b})}), a} << QStringList{"a"};
        QTest::newRow("raw bytes")
            << QList<QVariant>{QVariant(QByteArray("\x00\xff\x13garbage", 10)),
                               record(QByteArray("\xff\xfe\x00", 3), true), a}
            << QStringList{"a"};
    }

    void restoreMalformedRecords()
    {
        QFETCH(QList<QVariant>, state);
        QFETCH(QStringList, rows);
        model->restoreState(state);
        QCOMPARE(rowsOf(*model), rows);

        // Whatever was read is a clean record again.
        BackstageListModel again;
        again.restoreState(model->saveState());
        QCOMPARE(rowsOf(again), rows);
    }

    void restoreIsOneStep()
    {
        addAll({"x"});
        QPersistentModelIndex x(model->index(0, 0));
        QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
        QStringList seen;
        connect(model.get(), &QAbstractItemModel::rowsInserted, this, [&] { seen = rowsOf(*model); });
        model->restoreState({record(QStringLiteral("a"), false), QVariant(5), record(QStringLiteral("b"), false)});
        // The good entries arrive together, never half of the record.
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(seen, (QStringList{"x", "a", "b"}));
        QCOMPARE(removed.count(), 0);
        QCOMPARE(x.row(), 0);
    }

    void restoreHugeRecords()
    {
        QList<QVariant> state;
        const int count = 20000;
        state.reserve(count);
        for (int i = 0; i < count; ++i)
            state << record(QString::number(i), i % 1000 == 0);

        // Bounded: only the first entries fit.
        makeModel(10);
        model->restoreState(state);
        QCOMPARE(model->saveState(), state.mid(0, 10));
        QCOMPARE(rowsOf(*model).mid(0, 3), (QStringList{"*0", "|", "1"}));

        // Unbounded: everything, pins on top.
        makeModel(-1);
        model->restoreState(state);
        QCOMPARE(model->saveState(), state);
        QCOMPARE(model->rowCount(), count + 1);
        QCOMPARE(rowsOf(*model).at(20), QStringLiteral("|"));

        // One element carrying a huge list is still read as path and pin.
        QVariantList big{QStringLiteral("big")};
        for (int i = 0; i < 100000; ++i)
            big << QVariant(i);
        big << true;
        model->clearList();
        model->restoreState({QVariant(big)});
        QCOMPARE(rowsOf(*model), (QStringList{"*big", "|"}));
    }

    void restoreGarbageStream()
    {
        // Random bytes read as a record: no crash, and valid entries alongside survive.
        QRandomGenerator random(4711);
        for (int round = 0; round < 200; ++round) {
            QByteArray garbage(int(random.bounded(64)), Qt::Uninitialized);
            for (char &c : garbage)
                c = char(random.bounded(256));
            QList<QVariant> state{record(QStringLiteral("a"), true),
                                  QVariant(garbage),
                                  record(garbage, false),
                                  QVariant(QVariantList{QVariant(garbage), QVariant(garbage)}),
                                  record(QString::fromLatin1(garbage), false)};
            model->clearList();
            model->restoreState(state);
            const QStringList rows = rowsOf(*model);
            QCOMPARE(rows.size(), 3);
            QCOMPARE(rows.at(0), QStringLiteral("*a"));
            QCOMPARE(rows.at(2), QString::fromLatin1(garbage));
        }
    }

    void rowsFollowTheirEntries_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 12; ++seed)
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }

    void rowsFollowTheirEntries()
    {
        // Random operations: after each one every persistent index must still point at
        // its own entry, and the rows must match the history.
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        makeModel(seed % 3 == 0 ? -1 : 6 + seed % 5);
        const QIcon icon(QPixmap(8, 8));
        for (int step = 0; step < 300; ++step) {
            RowTracker tracker(*model);
            const int rows = model->rowCount();
            const QModelIndex anyRow = model->index(rows ? int(random.bounded(rows)) : 0, 0);
            const QString path = QString::number(random.bounded(12));
            const int op = int(random.bounded(20));
            if (op < 5)
                model->addItem(path, random.bounded(4) != 0);
            else if (op == 5)
                model->addItem(icon, QStringLiteral("F") + path, random.bounded(2) != 0);
            else if (op < 9)
                model->selectItem(anyRow);
            else if (op < 14)
                model->pinItem(anyRow);
            else if (op == 14)
                model->setMaxNumberOfItems(int(random.bounded(12)) - 1);
            else if (op == 15)
                model->restoreState({record(path, random.bounded(2) != 0), record(QString(path + path), false)});
            else if (op == 16 && random.bounded(4) == 0)
                model->clearList();
            else if (op == 17)
                model->setUntranslatedText(anyRow, path);
            else if (op > 17)
                model->setData(anyRow, path);
            const QString moved = tracker.verify();
            QVERIFY2(moved.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(moved)));
            const QString structure = checkRowStructure(*model);
            QVERIFY2(structure.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(structure)));
        }
    }

    void changesFromRowSignalsWaitTheirTurn()
    {
        // A receiver that changes the list while rows are being announced sees complete
        // steps, and its change is applied after the one in progress.
        addAll({"c", "b", "a"});
        int calls = 0;
        connect(model.get(), &QAbstractItemModel::rowsMoved, this, [&] {
            if (calls++ == 0) {
                model->addItem(QStringLiteral("late"));
                model->pinItem(model->index(rowOf(*model, QStringLiteral("b")), 0));
            }
        });
        connect(model.get(), &QAbstractItemModel::rowsInserted, this, [&] {
            const QString structure = checkRowStructure(*model);
            QVERIFY2(model->rowCount() >= 3, qPrintable(structure));
        });
        model->selectItem(model->index(2, 0));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "|", "late", "c", "a"}));
        QCOMPARE(checkRowStructure(*model), QString());
    }

    void entriesOutliveTheModel()
    {
        addAll({"a"});
        const Entry kept = entryAt(*model, 0);
        kept->setRect(QRect(1, 2, 3, 4));
        cleanup();
        QCOMPARE(kept->path(), QStringLiteral("a"));
        QCOMPARE(kept->rect(), QRect(1, 2, 3, 4));
        init();
    }
};

ZEL_TEST_MAIN(tst_BackstageListModel)
#include "tst_backstagelistmodel.moc"
