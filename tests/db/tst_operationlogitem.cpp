#include "support/StrictTest.h"

#include <ozm_widgets/db/common/OperationLogItem.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

using namespace Qt::StringLiterals;
using namespace ozm;
using ozm::test::expectWarning;
using Item = QSharedPointer<OperationLogItem>;

namespace {

constexpr qint64 kNoon = 1772366400000; // 2026-03-01T12:00:00Z

OperationLogItemData data(const QVariant &value)
{
    return {OperationLogItemType::Set, OperationLogItemSubject::Type::Project, {u"Title"_s}, value};
}

OperationLogItemData legacy()
{
    OperationLogItemData old;
    old.setLegacyDescription(u"Title changed"_s);
    return old;
}

Item item(qint64 id, const Item &parent = {}, const OperationLogItemData &record = data(1))
{
    return OperationLogItemPrivate::createItem(parent, id, kNoon, u"jdoe"_s, record);
}

QList<qint64> idsOf(const QList<Item> &items)
{
    QList<qint64> ids;
    for (const Item &each : items)
        ids.append(each->id());
    return ids;
}

Item chain(int length, const OperationLogItemData &record = data(1))
{
    Item top = item(0);
    Item last = top;
    for (int i = 1; i < length; ++i)
        last = item(i, last, record);
    return top;
}

/// Stands for an application's own kind of entry.
class OwnItem : public OperationLogItem
{
public:
    explicit OwnItem(const Item &parent, qint64 timestamp = kNoon)
        : OperationLogItem(parent, 70, timestamp, u"jdoe"_s, ::data(1))
    {}
};

} // namespace

class TestOperationLogItem : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void newItem()
    {
        const Item parent = item(5);
        const Item child = item(9, parent);
        QCOMPARE(child->internalId(), parent->internalId() + 1);
        QCOMPARE(child->dateTime().toUTC(), QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC));
        child->setId(77);
        QCOMPARE(parent->child(0)->id(), 77);
        QCOMPARE(parent->indexOf(child), 0);
        QCOMPARE(parent->indexOf(parent), -1);
        QVERIFY(!parent->child(-1) && !parent->child(1));
        const QSharedPointer<OwnItem> null(new OwnItem({}, 0));
        QVERIFY(null->isNull() && null->toJsonObject().isEmpty());
    }

    void relinking()
    {
        const Item a = item(1);
        const Item b = item(2);
        const Item x = item(3, a);
        const Item y = item(4, a);
        b->addChild(x);
        QCOMPARE(idsOf(a->children()), QList<qint64>{4});
        QCOMPARE(x->parent(), b);
        b->addChild(y);
        b->addChild(x);
        b->addChild({});
        QCOMPARE(idsOf(b->children()), (QList<qint64>{4, 3}));
        a->setChildren({y, {}, item(5), y});
        QCOMPARE(idsOf(a->children()), (QList<qint64>{4, 5}));
        QCOMPARE(idsOf(b->children()), QList<qint64>{3});
        a->setChildren({});
        QVERIFY2(!y->parent(), "a child that was left out is top-level");
        OperationLogItemPrivate::setParent(x, nullptr);
        QVERIFY(!x->parent() && !b->hasChildren());
    }

    // An entry of an own class knows the parent it was made with, which does not know the entry.
    void ownClasses()
    {
        const Item top = item(1);
        const QSharedPointer<OwnItem> own(new OwnItem(top));
        const QSharedPointer<OwnItem> below(new OwnItem(own));
        top->setChildren({own, below});
        QCOMPARE(top->children(), (QList<Item>{own, below}));
        const QSharedPointer<OwnItem> other(new OwnItem(top));
        expectWarning(u"item 1 cannot be placed below itself"_s);
        other->addChild(top);
        QVERIFY(!top->parent());
        top->addChild(other);
        QCOMPARE(top->childCount(), 3);
    }

    void noItemIsItsOwnAncestor()
    {
        const Item top = item(1);
        const Item middle = item(2, top);
        const Item bottom = item(3, middle);
        for (const Item &below : {top, middle, bottom}) {
            expectWarning(u"item 1 cannot be placed below itself"_s);
            below->addChild(top);
        }
        expectWarning(u"item 2 cannot be placed below itself"_s);
        bottom->setChildren({middle, item(4)});
        QCOMPARE(idsOf(bottom->children()), QList<qint64>{4});
        QCOMPARE(middle->parent(), top);
    }

    // Entries leave from anywhere, and what is left keeps its order; with a quadratic way this takes minutes.
    void manyLeave_data()
    {
        QTest::addColumn<int>("stride");
        QTest::newRow("from the front") << 1;
        QTest::newRow("from the back") << 299999;
        QTest::newRow("from all over") << 77777;
    }
    void manyLeave()
    {
        QFETCH(int, stride);
        constexpr int kCount = 300000;
        const Item from = item(-1);
        QList<Item> all;
        for (int i = 0; i < kCount; ++i)
            all.append(item(i, from));
        const Item to = item(-2);
        for (qint64 i = 0, place = 0; i < kCount - 2; ++i, place = (place + stride) % kCount)
            to->addChild(all.at(place));
        QCOMPARE(from->childCount(), 2);
        QCOMPARE(to->child(1)->id(), stride);
        QVERIFY(from->child(0)->id() < from->child(1)->id());
        QCOMPARE(from->indexOf(from->child(1)), 1);
        const Item third = item(-3);
        third->setChildren(to->children());
        QVERIFY(!to->hasChildren() && third->childCount() == kCount - 2);
        third->addChild(third->child(0));
        QCOMPARE(third->child(kCount - 3)->id(), 0);
    }

    void json()
    {
        const Item macro = item(7);
        item(8, macro, data(u"b"_s));
        item(9, macro, OperationLogItemData());
        item(10, macro, legacy());
        const auto stamp = [](QJsonObject json, int id) {
            json.insert("id"_L1, id);
            json.insert("time"_L1, u"2026-03-01T12:00:00"_s);
            json.insert("user"_L1, u"jdoe"_s);
            return json;
        };
        QJsonObject expected = stamp(data(1).toJsonObject(), 7);
        expected.insert("children"_L1, QJsonArray{stamp(data(u"b"_s).toJsonObject(), 8),
                                                  stamp({{u"legacyDescription"_s, u"Title changed"_s}}, 10)});
        QCOMPARE(macro->toJsonObject(), expected);

        const Item lonely = item(1);
        const Item invalid = item(2, lonely, OperationLogItemData());
        QVERIFY(!lonely->toJsonObject().contains("children"_L1));
        item(3, invalid);
        expectWarning(u"item 2 has no valid record: JSON leaves it out, with all below it"_s);
        QVERIFY(!lonely->toJsonObject().contains("children"_L1));
    }

    void rows()
    {
        const Item macro = item(7);
        const Item first = item(8, macro);
        item(9, first);
        item(10, macro);
        QStringList ids;
        for (const QList<QString> &row : macro->toStringLists())
            ids.append(row.at(0) + u'<' + row.at(1));
        QCOMPARE(ids, QStringList({u"7<"_s, u"8<7"_s, u"9<8"_s, u"10<7"_s}));
        const QString time = QLocale().toString(macro->dateTime(), QLocale::ShortFormat);
        QCOMPARE(macro->toStringList(),
                 QStringList({u"7"_s, QString(), time, u"jdoe"_s, u"Set Project 'Title' to 1"_s}));
    }

    void deepJsonCanBeReadBack_data()
    {
        QTest::addColumn<OperationLogItemData>("record");
        QTest::addColumn<int>("levels");
        QTest::newRow("records") << data(1) << 511;
        QTest::newRow("values that fit here and there")
            << data(QVariantList{QVariantList{QVariantList()}}) << 511;
        QTest::newRow("legacy") << legacy() << 512;
    }
    void deepJsonCanBeReadBack()
    {
        QFETCH(OperationLogItemData, record);
        expectWarning(u"is nested too deeply for JSON, which leaves it out"_s);
        const QByteArray json = QJsonDocument(chain(1000, record)->toJsonObject()).toJson();
        QJsonObject level = QJsonDocument::fromJson(json).object();
        int levels = 0;
        for (; !level.isEmpty(); ++levels)
            level = level.value("children"_L1).toArray().first().toObject();
        QTEST(levels, "levels");
    }

    // Guards against a crash: with one destructor inside the other, a chain of this length ends the stack.
    void longChainsAreDestroyed()
    {
        constexpr int kLength = 1000000;
        Item top = chain(kLength);
        QCOMPARE(top->toStringLists().size(), kLength);
        const Item kept = top->child(0)->child(0);
        QWeakPointer<OperationLogItem> gone = top->child(0);
        top.reset();
        QVERIFY2(!gone && !kept->parent(), "a parent is not kept alive");
        gone = kept->child(0);
        kept->setChildren({});
        QVERIFY(!gone);
    }
};

QTEST_GUILESS_MAIN(TestOperationLogItem)
#include "tst_operationlogitem.moc"
