#include "support/StrictTest.h"

#include <ozm_widgets/db/common/OperationLogItem.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>

using namespace Qt::StringLiterals;
using ozm::OperationLogItem;
using ozm::OperationLogItemData;
using ozm::OperationLogItemPrivate;
using ozm::OperationLogItemSubject;
using ozm::OperationLogItemType;
using ozm::test::expectWarning;
using Item = QSharedPointer<OperationLogItem>;

namespace {

constexpr qint64 kNoon = 1772366400000; // 2026-03-01T12:00:00Z

OperationLogItemData data(const QVariant &value)
{
    return {OperationLogItemType::Set, OperationLogItemSubject::Type::Project, {u"Title"_s}, value};
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

Item chain(int length, Item *bottom = nullptr)
{
    Item top = item(0);
    Item last = top;
    for (int i = 1; i < length; ++i)
        last = item(i, last);
    if (bottom)
        *bottom = last;
    return top;
}

/// Stands for an application's own kind of entry.
class OwnItem : public OperationLogItem
{
public:
    OwnItem() = default;
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
        QCOMPARE(child->parent(), parent);
        QCOMPARE(child->dateTime().toUTC(), QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC));
        QCOMPARE(child->dataToString(), u"Set Project 'Title' to 1"_s);
        child->setId(77);
        QCOMPARE(parent->child(0)->id(), 77);
        QCOMPARE(parent->indexOf(child), 0);
        QCOMPARE(parent->indexOf(parent), -1);
        QVERIFY(!parent->child(-1) && !parent->child(1));

        const QSharedPointer<OwnItem> own(new OwnItem);
        QVERIFY(own->isNull());
        QVERIFY(own->toJsonObject().isEmpty());
    }

    void relinking()
    {
        const Item a = item(1);
        const Item b = item(2);
        const Item x = item(3, a);
        const Item y = item(4, a);

        b->addChild(x);
        QCOMPARE(idsOf(a->children()), QList<qint64>{4});
        QCOMPARE(idsOf(b->children()), QList<qint64>{3});
        QCOMPARE(x->parent(), b);

        b->addChild(y);
        b->addChild(x);
        QCOMPARE(idsOf(b->children()), (QList<qint64>{4, 3}));
        b->addChild({});
        QCOMPARE(b->childCount(), 2);

        a->setChildren({y, {}, y, item(5)});
        QCOMPARE(idsOf(a->children()), (QList<qint64>{4, 5}));
        QCOMPARE(idsOf(b->children()), QList<qint64>{3});
        a->setChildren({});
        QVERIFY2(!y->parent(), "a child that was left out is top-level");

        OperationLogItemPrivate::setParent(x, nullptr);
        QVERIFY(!x->parent() && !b->hasChildren());
    }

    void parentIsNotKeptAlive()
    {
        Item parent = item(1);
        const Item child = item(2, parent);
        parent.reset();
        QVERIFY(!child->parent());
        QCOMPARE(child->toStringList().at(1), QString());
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
        QVERIFY(!top->parent());
        QCOMPARE(middle->parent(), top);
    }

    void json()
    {
        const Item macro = item(7);
        item(8, macro, data(u"b"_s));
        item(9, macro, OperationLogItemData());
        OperationLogItemData old;
        old.setLegacyDescription(u"Title changed"_s);
        item(10, macro, old);

        QJsonObject expected = data(1).toJsonObject();
        expected.insert("id"_L1, 7);
        expected.insert("time"_L1, u"2026-03-01T12:00:00"_s);
        expected.insert("user"_L1, u"jdoe"_s);
        QJsonObject child = data(u"b"_s).toJsonObject();
        child.insert("id"_L1, 8);
        child.insert("time"_L1, u"2026-03-01T12:00:00"_s);
        child.insert("user"_L1, u"jdoe"_s);
        const QJsonObject legacy{{u"legacyDescription"_s, u"Title changed"_s},
                                 {u"id"_s, 10},
                                 {u"time"_s, u"2026-03-01T12:00:00"_s},
                                 {u"user"_s, u"jdoe"_s}};
        expected.insert("children"_L1, QJsonArray{child, legacy});
        QCOMPARE(macro->toJsonObject(), expected);

        const Item lonely = item(1);
        item(2, lonely, OperationLogItemData());
        QVERIFY(!lonely->toJsonObject().contains("children"_L1));
    }

    void rows()
    {
        const Item macro = item(7);
        const Item first = item(8, macro);
        item(9, first);
        item(10, macro);
        const QString time = QLocale().toString(macro->dateTime(), QLocale::ShortFormat);
        const QString text = u"Set Project 'Title' to 1"_s;
        const QList<QList<QString>> expected{
            {u"7"_s, QString(), time, u"jdoe"_s, text},
            {u"8"_s, u"7"_s, time, u"jdoe"_s, text},
            {u"9"_s, u"8"_s, time, u"jdoe"_s, text},
            {u"10"_s, u"7"_s, time, u"jdoe"_s, text},
        };
        QCOMPARE(macro->toStringLists(), expected);
        QCOMPARE(macro->toStringList(), expected.first());
    }

    void deepJsonCanBeReadBack()
    {
        expectWarning(u"is nested too deeply for JSON"_s);
        const QByteArray json = QJsonDocument(chain(1000)->toJsonObject()).toJson();
        QJsonObject level = QJsonDocument::fromJson(json).object();
        QVERIFY(!level.isEmpty());
        int levels = 0;
        for (; !level.isEmpty(); ++levels)
            level = level.value("children"_L1).toArray().first().toObject();
        QCOMPARE(levels, 257);
    }

    // Guards against a crash: with one destructor inside the other, a chain of this length ends the stack.
    void longChainsAreDestroyed()
    {
        constexpr int kLength = 1000000;
        Item bottom;
        Item top = chain(kLength, &bottom);
        QCOMPARE(top->toStringLists().size(), kLength);
        const QWeakPointer<OperationLogItem> weakTop = top;
        top.reset();
        QVERIFY(!weakTop);
        QVERIFY(bottom && !bottom->parent());

        top = chain(kLength);
        const QWeakPointer<OperationLogItem> second = top->child(0);
        top->setChildren({});
        QVERIFY(!second);
    }
};

QTEST_GUILESS_MAIN(TestOperationLogItem)
#include "tst_operationlogitem.moc"
