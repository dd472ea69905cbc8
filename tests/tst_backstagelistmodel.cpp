#include "ZelTest.h"

#include "BackstageListModel.h"

#include <QAbstractItemModelTester>
#include <QPixmap>
#include <QRandomGenerator>

#include <memory>

using namespace zel;

using Entry = QSharedPointer<BackstageListItem>;

namespace {

Entry entryAt(const BackstageListModel &model, int row)
{
    return model.data(model.index(row, 0), Qt::UserRole).value<Entry>();
}

// The rows as text: "|" is the separator, a leading "*" marks a pinned entry, "#" a fixed one.
QStringList rowsOf(const BackstageListModel &model)
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row) {
        const Entry entry = entryAt(model, row);
        if (!entry || entry->isSeparator())
            rows << (entry ? QStringLiteral("|") : QStringLiteral("<null>"));
        else
            rows << QString(QLatin1String(entry->isPinned() ? "*" : "")
                            + QLatin1String(entry->isFixed() ? "#" : "") + entry->path());
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

QVariant record(const QVariant &path, const QVariant &pinned)
{
    return QVariant(QVariantList{path, pinned});
}

// The rows must be the pinned entries, a separator unless the last of them is fixed, then the
// others, each part in the order of the saved history. Returns the mismatch, empty if none.
QString structureError(const BackstageListModel &model)
{
    QStringList pinned, recent, actual;
    for (const QVariant &element : model.saveState())
        (element.toList().at(1).toBool() ? pinned : recent) << element.toList().at(0).toString();
    int pinnedRows = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        actual << model.index(row, 0).data().toString();
        if (entryAt(model, row)->isPinned())
            pinnedRows = row + 1;
    }
    QStringList expected = pinned;
    if (!pinned.isEmpty() && (pinnedRows == 0 || !entryAt(model, pinnedRows - 1)->isFixed()))
        expected << QString();
    expected << recent;
    if (actual == expected)
        return QString();
    return QStringLiteral("rows %1, expected %2")
        .arg(actual.join(QLatin1Char(',')), expected.join(QLatin1Char(',')));
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
        tester.reset(new QAbstractItemModelTester(model.get(),
                                                  QAbstractItemModelTester::FailureReportingMode::QtTest));
    }

    // Runs a script of steps: "a" adds document a, "#a" adds a fixed entry, a trailing "-"
    // makes either unpinnable; "*a" pins or unpins a, ">a" selects it.
    void apply(const QString &script)
    {
        for (QString step : script.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const bool pinnable = !step.endsWith(QLatin1Char('-'));
            if (!pinnable)
                step.chop(1);
            const QModelIndex index = model->index(rowOf(*model, step.mid(1)), 0);
            if (step.startsWith(QLatin1Char('*')))
                model->pinItem(index);
            else if (step.startsWith(QLatin1Char('>')))
                model->selectItem(index);
            else if (step.startsWith(QLatin1Char('#')))
                model->addItem(QIcon(QPixmap(8, 8)), step.mid(1), pinnable);
            else
                model->addItem(step, pinnable);
        }
    }

private slots:
    void init() { makeModel(-1); }

    void cleanup()
    {
        tester.reset();
        model.reset();
    }

    void history_data()
    {
        QTest::addColumn<int>("maximum");
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("rows");
        QTest::newRow("empty") << -1 << "" << "";
        QTest::newRow("newest first") << -1 << "a b c" << "c b a";
        QTest::newRow("again to front") << -1 << "a b a" << "a b";
        QTest::newRow("top again") << -1 << "a b b" << "b a";
        QTest::newRow("case") << -1 << "a A" << "A a";
        // An existing entry keeps its pin state and its own pinnable flag.
        QTest::newRow("keeps pin") << -1 << "a b c *a x- a- x *x" << "*a | x c b";
        QTest::newRow("unpinnable") << -1 << "a- b *a" << "b a";
        QTest::newRow("max 3") << 3 << "a b c d e" << "e d c";
        QTest::newRow("max -7") << -7 << "a b c d e" << "e d c b a";
        QTest::newRow("max 0") << 0 << "a b c" << "";
        // A pinned entry takes a place; it is dropped, with its separator, once the oldest.
        QTest::newRow("pin counts") << 3 << "a b c *b d" << "*b | d c";
        QTest::newRow("oldest pin goes") << 3 << "a b c *b d e" << "e d c";
        QTest::newRow("selected pin stays") << 3 << "a b c *c d >c e f" << "*c | f e";
        QTest::newRow("select keeps pins") << -1 << "a b c *a *b >a" << "*a *b | c";
        // One separator however many pins, always after the last pinned entry.
        QTest::newRow("all pinned") << -1 << "a b c *c *a *b" << "*c *b *a |";
        QTest::newRow("unpin some") << -1 << "a b c *c *a *b *b *c" << "*a | c b";
        QTest::newRow("unpin all") << -1 << "a b c *c *a *a *c" << "c b a";
        // Documents go in front of fixed entries, later fixed entries after them; a fixed
        // entry closing the pinned block needs no separator.
        QTest::newRow("fixed") << -1 << "#Open a b #Browse-" << "b a #Open #Browse";
        QTest::newRow("fixed pinned") << -1 << "#Open a b #More- *a *Open" << "*a *#Open b #More";
        QTest::newRow("fixed pin alone") << -1 << "#Open a b *a *Open *a" << "*#Open b a";
        QTest::newRow("fixed unpinnable") << -1 << "#Open- a *Open" << "a #Open";
        QTest::newRow("fixed not trimmed") << 2 << "a b #Open" << "b a #Open";
        QTest::newRow("then trimmed") << 2 << "a b #Open c" << "c b";
        QTest::newRow("select doc") << -1 << "a b c #Open >a" << "a c b #Open";
        QTest::newRow("select top") << -1 << "a b c #Open >c" << "c b a #Open";
        QTest::newRow("select fixed") << -1 << "a b c #Open >Open" << "c b a #Open";
    }

    void history()
    {
        QFETCH(int, maximum);
        QFETCH(QString, script);
        QFETCH(QString, rows);
        makeModel(maximum);
        apply(script);
        QCOMPARE(rowsOf(*model), rows.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QCOMPARE(model->maxNumberOfItems(), qMax(-1, maximum));
    }

    void setMaxNumberOfItemsTrimsTheTail()
    {
        apply("a b c d e");
        QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
        QSignalSpy reset(model.get(), &QAbstractItemModel::modelReset);
        model->setMaxNumberOfItems(2);
        // Raising the maximum again brings nothing back and announces nothing.
        model->setMaxNumberOfItems(10);
        QCOMPARE(rowsOf(*model), (QStringList{"e", "d"}));
        QCOMPARE(removed.count(), 1);
        QCOMPARE(removed.at(0).at(1).toInt(), 2);
        QCOMPARE(removed.at(0).at(2).toInt(), 4);
        QCOMPARE(reset.count(), 0);
    }

    void pinningSignalsAndSeparator()
    {
        apply("a- b c");
        QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy selected(model.get(), &BackstageListModel::itemSelected);
        apply("*a");
        QCOMPARE(inserted.count() + changed.count(), 0);
        apply("*c"); // stays in row 0: only its pin mark changes
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(changed.at(0).at(0).toModelIndex().row(), 0);
        const QModelIndex separator = model->index(1, 0);
        QCOMPARE(separator.data().toString(), QString());
        QVERIFY(!(model->flags(separator) & Qt::ItemIsSelectable));
        // Selecting or pinning the separator does nothing.
        model->selectItem(separator);
        model->pinItem(separator);
        QCOMPARE(rowsOf(*model), (QStringList{"*c", "|", "b", "a"}));
        QCOMPARE(selected.count(), 0);
        QCOMPARE(model->saveState().size(), 3);
    }

    void addFixedItemReturnsItsRow()
    {
        const QModelIndex open = model->addItem(QIcon(), QStringLiteral("/home/user/docs/Open"), true);
        QCOMPARE(open.row(), 0);
        QCOMPARE(open.data(Qt::UserRole).value<Entry>()->folderName(), QStringLiteral("docs"));
        apply("a b *a");
        const QModelIndex more = model->addItem(QIcon(), QStringLiteral("More"), false);
        QCOMPARE(more.row(), model->rowCount() - 1);
    }

    void selectionReportsUntranslatedText()
    {
        apply("a b #Open-");
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        QSignalSpy selected(model.get(), &BackstageListModel::itemSelected);
        model->setUntranslatedText(model->index(1, 0), QStringLiteral("A-id"));
        model->setUntranslatedText(model->index(1, 0), QStringLiteral("A-id"));
        model->setUntranslatedText(model->index(2, 0), QStringLiteral("open-cmd"));
        QCOMPARE(changed.count(), 2);
        apply(">a >b >Open");
        QCOMPARE(selected.count(), 3);
        QCOMPARE(selected.at(0).at(0).toString(), QStringLiteral("A-id"));
        QCOMPARE(selected.at(1).at(0).toString(), QStringLiteral("b"));
        QCOMPARE(selected.at(2).at(0).toString(), QStringLiteral("open-cmd"));
        // The untranslated text is no part of the stored record.
        QCOMPARE(model->saveState().at(1).toList().at(0).toString(), QStringLiteral("a"));
    }

    void badIndexesChangeNothing()
    {
        apply("a b");
        BackstageListModel other;
        other.addItem(QStringLiteral("x"));
        QSignalSpy selected(model.get(), &BackstageListModel::itemSelected);
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        for (const QModelIndex &index : {QModelIndex(), model->index(5, 0), other.index(0, 0)}) {
            model->selectItem(index);
            model->pinItem(index);
            model->setUntranslatedText(index, QStringLiteral("t"));
            QVERIFY(!model->setData(index, QStringLiteral("z")));
            QVERIFY(!model->data(index, Qt::UserRole).isValid());
        }
        QCOMPARE(rowsOf(*model), (QStringList{"b", "a"}));
        QCOMPARE(selected.count() + changed.count(), 0);
        QCOMPARE(rowsOf(other), QStringList{"x"});
    }

    void setData_data()
    {
        QTest::addColumn<int>("role");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("accepted");
        QTest::addColumn<int>("changes");
        QTest::newRow("display") << int(Qt::DisplayRole) << QVariant(QStringLiteral("z")) << true << 1;
        QTest::newRow("edit, number") << int(Qt::EditRole) << QVariant(42) << true << 1;
        QTest::newRow("same text") << int(Qt::DisplayRole) << QVariant(QStringLiteral("a")) << true << 0;
        QTest::newRow("user role") << int(Qt::UserRole) << QVariant(QStringLiteral("z")) << false << 0;
    }

    void setData()
    {
        QFETCH(int, role);
        QFETCH(QVariant, value);
        QFETCH(bool, accepted);
        QFETCH(int, changes);
        apply("b a");
        const QModelIndex index = model->index(0, 0);
        QSignalSpy changed(model.get(), &QAbstractItemModel::dataChanged);
        QCOMPARE(model->setData(index, value, role), accepted);
        QCOMPARE(changed.count(), changes);
        if (changes)
            QCOMPARE(changed.at(0).at(1).toModelIndex(), index);
        QCOMPARE(rowsOf(*model), (QStringList{"a", "b"})); // the path is never edited in place
    }

    void clearList()
    {
        QSignalSpy removed(model.get(), &QAbstractItemModel::rowsRemoved);
        model->clearList();
        QCOMPARE(removed.count(), 0);
        apply("a b c *b");
        model->addItem(QIcon(), QStringLiteral("Open"), true);
        QVERIFY(QMetaObject::invokeMethod(model.get(), "clearList"));
        QVERIFY(model->saveState().isEmpty());
        QCOMPARE(removed.count(), 1);
        apply("x");
        QCOMPARE(rowsOf(*model), QStringList{"x"});
    }

    void saveAndRestore()
    {
        // Empty and odd paths, whitespace kept, pins in the middle of the history.
        const QStringList paths{QString(), "C:\\Docs\\x y.txt", QString::fromUtf8("\xc3\xa9t\xc3\xa9"),
                                "a", "a ", "b", "c"};
        for (const QString &path : paths)
            model->addItem(path);
        model->pinItem(model->index(rowOf(*model, QString()), 0));
        apply("*b");
        const QStringList rows{"*b", "*", "|", "c", "a ", "a", paths.at(2), paths.at(1)};
        QCOMPARE(rowsOf(*model), rows);
        const QList<QVariant> state = model->saveState();
        for (const QVariant &element : state) {
            QCOMPARE(element.toList().at(0).userType(), int(QMetaType::QString));
            QCOMPARE(element.toList().at(1).userType(), int(QMetaType::Bool));
        }

        BackstageListModel restored(nullptr, 10);
        QAbstractItemModelTester restoredTester(&restored,
                                                QAbstractItemModelTester::FailureReportingMode::QtTest);
        QSignalSpy inserted(&restored, &QAbstractItemModel::rowsInserted);
        restored.restoreState({});
        QCOMPARE(inserted.count(), 0);
        restored.restoreState(state);
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(rowsOf(restored), rows);
        QCOMPARE(restored.saveState(), state);
        // Fixed entries are part of the record too.
        model->addItem(QIcon(), QStringLiteral("Open"), false);
        QCOMPARE(model->saveState().last(), record(QStringLiteral("Open"), false));
    }

    void restoreAppendsToExistingEntries()
    {
        makeModel(4);
        apply("x a");
        model->restoreState({record(QStringLiteral("a"), false), record(QStringLiteral("p"), true),
                             record(QStringLiteral("q"), false), record(QStringLiteral("r"), false)});
        // No duplicate check, appended after the existing history, cut at the maximum.
        QCOMPARE(rowsOf(*model), (QStringList{"*p", "|", "a", "x", "a"}));
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
        QTest::newRow("empty or invalid elements")
            << QList<QVariant>{QVariant(QVariantList()), a, QVariant()} << QStringList{"a"};
        QTest::newRow("not a list")
            << QList<QVariant>{QVariant(QStringLiteral("x")), a, QVariant(7), QVariant(true), b,
                               QVariant(QVariantMap{{QStringLiteral("path"), QStringLiteral("m")}})}
            << QStringList{"*b", "|", "a"};
        QTest::newRow("path of wrong type")
            << QList<QVariant>{record(42, false), record(QVariant(), true),
                               record(QVariantList{QStringLiteral("n")}, false),
                               record(QRect(1, 2, 3, 4), true), a}
            << QStringList{"a"};
        QTest::newRow("no pin flag")
            << QList<QVariant>{QVariant(QVariantList{QStringLiteral("t")}), b} << QStringList{"*b", "|", "t"};
        QTest::newRow("pin as text or number")
            << QList<QVariant>{record(QStringLiteral("s"), QStringLiteral("true")),
                               record(QStringLiteral("f"), QStringLiteral("false")),
                               record(QStringLiteral("one"), 1), record(QStringLiteral("zero"), 0)}
            << QStringList{"*s", "*one", "|", "f", "zero"};
        QTest::newRow("pin of wrong type")
            << QList<QVariant>{record(QStringLiteral("w"), QVariantList{true}),
                               record(QStringLiteral("v"), QVariant())}
            << QStringList{"w", "v"};
        QTest::newRow("last value is the pin")
            << QList<QVariant>{QVariant(QVariantList{QStringLiteral("e"), false, 3, true})}
            << QStringList{"*e", "|"};
        QTest::newRow("string list")
            << QList<QVariant>{QVariant(QStringList{QStringLiteral("sl"), QStringLiteral("true")})}
            << QStringList{"*sl", "|"};
        QTest::newRow("nested or raw bytes")
            << QList<QVariant>{QVariant(QVariantList{QVariant(QVariantList{a, b})}),
                               QVariant(QByteArray("\x00\xff\x13garbage", 10)),
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
        apply("x");
        QPersistentModelIndex x(model->index(0, 0));
        QSignalSpy inserted(model.get(), &QAbstractItemModel::rowsInserted);
        QStringList seen;
        connect(model.get(), &QAbstractItemModel::rowsInserted, this, [&] { seen = rowsOf(*model); });
        const QVariant a = record(QStringLiteral("a"), false);
        model->restoreState({a, QVariant(5), record(QStringLiteral("b"), false)});
        // The good entries arrive together, never half of the record.
        QCOMPARE(inserted.count(), 1);
        QCOMPARE(seen, (QStringList{"x", "a", "b"}));
        QCOMPARE(x.row(), 0); // nothing removed or moved on the way
    }

    void restoreHugeRecords()
    {
        QList<QVariant> state;
        for (int i = 0; i < 20000; ++i)
            state << record(QString::number(i), i % 1000 == 0);
        makeModel(10); // bounded: only the first entries fit
        model->restoreState(state);
        QCOMPARE(model->saveState(), state.mid(0, 10));
        makeModel(-1); // unbounded: everything, pins on top
        model->restoreState(state);
        QCOMPARE(model->saveState(), state);
        QCOMPARE(rowsOf(*model).at(20), QStringLiteral("|"));
    }

    void rowsFollowTheirEntries_data()
    {
        QTest::addColumn<int>("seed");
        for (int seed = 1; seed <= 12; ++seed)
            QTest::newRow(qPrintable(QString::number(seed))) << seed;
    }

    void rowsFollowTheirEntries()
    {
        // Random operations: after each one every persistent index must still point at its own
        // entry (or be invalid once the entry is gone), which holds only when every step is
        // announced correctly, and the rows must match the history.
        QFETCH(int, seed);
        QRandomGenerator random{quint32(seed)};
        makeModel(seed % 3 == 0 ? -1 : 6 + seed % 5);
        const QIcon icon(QPixmap(8, 8));
        for (int step = 0; step < 300; ++step) {
            QList<QPair<QPersistentModelIndex, Entry>> tracked;
            for (int row = 0; row < model->rowCount(); ++row)
                tracked << qMakePair(QPersistentModelIndex(model->index(row, 0)), entryAt(*model, row));
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
                model->restoreState({record(path, random.bounded(2) != 0), record(path.repeated(2), false)});
            else if (op == 16 && random.bounded(4) == 0)
                model->clearList();
            else if (op == 17)
                model->setUntranslatedText(anyRow, path);
            else if (op > 17)
                model->setData(anyRow, path);

            QSet<BackstageListItem *> present;
            for (int row = 0; row < model->rowCount(); ++row)
                present.insert(entryAt(*model, row).data());
            for (const auto &t : qAsConst(tracked)) {
                const bool there = present.contains(t.second.data());
                QVERIFY2(there == t.first.isValid() && (!there || entryAt(*model, t.first.row()) == t.second),
                         qPrintable(QStringLiteral("step %1: index of %2").arg(step).arg(t.second->path())));
            }
            const QString structure = structureError(*model);
            QVERIFY2(structure.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(structure)));
        }
    }

    void changesFromRowSignalsWaitTheirTurn()
    {
        // A receiver that changes the list while rows are being announced sees complete
        // steps, and its change is applied after the one in progress.
        apply("c b a");
        int calls = 0;
        connect(model.get(), &QAbstractItemModel::rowsMoved, this, [&] {
            if (calls++ == 0) {
                model->addItem(QStringLiteral("late"));
                model->pinItem(model->index(rowOf(*model, QStringLiteral("b")), 0));
            }
        });
        connect(model.get(), &QAbstractItemModel::rowsInserted, this,
                [&] { QVERIFY2(model->rowCount() >= 3, qPrintable(structureError(*model))); });
        model->selectItem(model->index(2, 0));
        QCOMPARE(rowsOf(*model), (QStringList{"*b", "|", "late", "c", "a"}));
        QCOMPARE(structureError(*model), QString());
    }

    void entriesOutliveTheModel()
    {
        apply("a");
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
