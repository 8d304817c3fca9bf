#include "support/StrictTest.h"

#include <ozm_common_core_mini/ColumnFriendlyName.h>
#include <ozm_common_core_mini/ColumnNames.h>
#include <ozm_common_core_mini/CsvWriter.h>
#include <ozm_common_core_mini/RowNode.h>
#include <ozm_common_core_mini/VariantItems.h>

#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

} // namespace

class TestRows : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void valuesByColumn()
    {
        RowNode root({kName, kCharge, kName});
        QCOMPARE(root.columnNames(), QStringList({kName, kCharge}));
        RowNode *row = root.addNewChildMatchRootDataSize();
        QVERIFY(row->setDataAt(kCharge, 2));
        QVERIFY(!row->setDataAt(kMass, 1.0));
        QVERIFY(!row->setDataAt(-1, 1.0));

        bool found = false;
        QCOMPARE(row->getDataAt(kCharge, &found), QVariant(2));
        QVERIFY(found);
        QVERIFY(!row->getDataAt(kName, &found).isValid());
        QVERIFY2(found, "the column is there, though nothing was set");
        QVERIFY(!row->getDataAt(kMass, &found).isValid());
        QVERIFY(!found);

        QCOMPARE(root.addColumn(kMass), 2);
        QVERIFY2(row->setDataAt(kMass, 1045.5), "columns are those of the whole tree");
        QVERIFY(!root.getDataAt(kMass).isValid());
    }

    void valuesOfTheRowsAbove()
    {
        RowNode protein({kProteinName, kSequence});
        protein.setDataAt(kProteinName, u"mAb"_s);
        RowNode *peptide = protein.addNewChildMatchRootDataSize()->addNewChildMatchRootDataSize();
        QCOMPARE(peptide->getDataAt(kProteinName, nullptr, true), QVariant(u"mAb"_s));
        QVERIFY(!peptide->getDataAt(kProteinName).isValid());
    }

    void copies()
    {
        RowNode root({kName});
        root.setDataAt(kName, u"top"_s);
        root.addNewChildMatchRootDataSize()->setDataAt(kName, u"below"_s);

        RowNode copy(root);
        QCOMPARE(copy.getDataAt(kName), QVariant(u"top"_s));
        QVERIFY(copy.childCount() == 0 && !copy.parent());
        copy.addColumn(kMass);
        QVERIFY2(root.columnIndex(kMass) == -1, "a copy has columns of its own");

        RowNode other({kCharge});
        other.setDataAt(kCharge, 3);
        *root.child(0) = other;
        QCOMPARE(root.child(0)->getDataAt(kCharge), QVariant(3));
        QVERIFY(!root.child(0)->getDataAt(kName).isValid());
        QCOMPARE(root.child(0)->parent(), &root);

        const std::unique_ptr<RowNode> tree = root.copyTree();
        QCOMPARE(tree->child(0)->getDataAt(kCharge), QVariant(3));
        QCOMPARE(tree->child(0)->root(), tree.get());
    }

    void childrenBringTheirColumns()
    {
        RowNode root({kName});
        auto *child = new RowNode({kMass, kName});
        child->setDataAt(kMass, 5.0);
        child->setDataAt(kName, u"x"_s);
        child->addNewChildMatchRootDataSize()->setDataAt(kMass, 6.0);
        QCOMPARE(root.addChild(child, true), child);
        QCOMPARE(child->columnNames(), QStringList({kName, kMass}));
        QCOMPARE(child->getDataAt(kMass), QVariant(5.0));
        QCOMPARE(child->child(0)->getDataAt(kMass), QVariant(6.0));

        auto *narrow = new RowNode({kComment, kName});
        narrow->setDataAt(kName, u"y"_s);
        QVERIFY(root.addChild(narrow, false));
        QCOMPARE(narrow->getDataAt(kName), QVariant(u"y"_s));
        QCOMPARE(root.columnIndex(kComment), -1);
    }

    void movingChildren()
    {
        RowNode root({kName});
        RowNode *first = root.addNewChildMatchRootDataSize();
        RowNode *second = root.addNewChildMatchRootDataSize();
        second->addNewChildMatchRootDataSize();
        std::unique_ptr<RowNode> taken = root.takeChild(1);
        QCOMPARE(taken.get(), second);
        QVERIFY(!taken->parent());
        taken->addColumn(kMass);
        QCOMPARE(root.columnIndex(kMass), -1);
        QCOMPARE(root.insertChild(0, std::move(taken)), second);
        QCOMPARE(root.indexOf(second), 0);
        QCOMPARE(root.indexOf(first), 1);
        QVERIFY(!root.takeChild(2) && !root.child(-1));
    }

    void refusedChildren()
    {
        RowNode root({kName});
        RowNode *child = root.addNewChildMatchRootDataSize();
        QVERIFY(!root.addChild(nullptr, true));
        QVERIFY2(!root.addChild(child, true), "it has a parent");
        QVERIFY2(!child->addChild(&root, true), "it is above");
        QVERIFY(!root.addChild(&root, true));
    }

    // Guards against a crash: destructors one inside the other would end the stack.
    void deepTree()
    {
        auto root = std::make_unique<RowNode>(QStringList{kName});
        RowNode *last = root.get();
        for (int i = 0; i < 500000; ++i)
            last = last->addNewChildMatchRootDataSize();
        const std::unique_ptr<RowNode> copy = root->copyTree();
        root.reset();
        QCOMPARE(copy->childCount(), 1);
    }

    void displayOfValues()
    {
        const auto &names = ColumnFriendlyName::getColumnFriendlyNames();
        QCOMPARE(ColumnFriendlyName::friendlyName(kCalcMr), u"Calculated mass (Da)"_s);
        QCOMPARE(ColumnFriendlyName::friendlyName(u"Own"_s), u"Own"_s);
        QCOMPARE(ColumnFriendlyName::toolTip(u"Own"_s), u"Own"_s);
        QVERIFY(ColumnFriendlyName::toolTip(kCharge) != kCharge);
        QCOMPARE(names.value(kCalcMr).valueToString(1045.53421), u"1045.5342"_s);
        QCOMPARE(names.value(kCharge).valueToString(2), u"2"_s);
        QCOMPARE(names.value(kMass).valueToString(u"unknown"_s), u"unknown"_s);
        QCOMPARE(names.value(kModificationsNameList)
                     .valueToString(QVariant::fromValue(VariantItems({u"Ox"_s, u"Ac"_s}))),
                 u"Ox; Ac"_s);
    }

    void csv_data()
    {
        QTest::addColumn<QList<QList<QString>>>("rows");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QChar>("separator");
        QTest::addColumn<QByteArray>("content");
        using Rows = QList<QList<QString>>;
        QTest::newRow("nothing") << Rows() << QString() << QChar(u',') << QByteArray();
        QTest::newRow("plain") << Rows{{u"a"_s, u"µ"_s}, {u""_s, u"1.5"_s}} << QString() << QChar(u',')
                               << QByteArray("a,\xc2\xb5\r\n,1.5\r\n");
        QTest::newRow("special characters")
            << Rows{{u"a,b"_s, u"say \"x\""_s, u"two\nlines"_s, u" blank"_s}} << QString() << QChar(u',')
            << QByteArray("\"a,b\",\"say \"\"x\"\"\",\"two\nlines\",\" blank\"\r\n");
        QTest::newRow("own separator and qualifier") << Rows{{u"a,b"_s, u"c;d"_s, u"it's"_s}} << u"'"_s
                                                     << QChar(u';') << QByteArray("a,b;'c;d';'it''s'\r\n");
    }
    void csv()
    {
        QFETCH(QList<QList<QString>>, rows);
        QFETCH(QString, text);
        QFETCH(QChar, separator);
        QFETCH(QByteArray, content);
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"table.csv"_s);
        QVERIFY(ozm::CsvWriter::writeFile(path, rows, text, separator));
        QCOMPARE(contentOf(path), "\xef\xbb\xbf" + content);
    }

    void csvLargerThanItsChunks()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"large.csv"_s);
        const QList<QList<QString>> rows(20000, {u"PEPTIDESEQUENCE"_s, u"1045.5342"_s});
        QVERIFY(ozm::CsvWriter::writeFile(path, rows));
        QCOMPARE(contentOf(path).count("PEPTIDESEQUENCE,1045.5342\r\n"), 20000);
    }

    void csvThatCannotBeWritten()
    {
        const QTemporaryDir folder;
        QVERIFY(!ozm::CsvWriter::writeFile(folder.filePath(u"missing/table.csv"_s), {{u"a"_s}}));
        QVERIFY2(!ozm::CsvWriter::writeFile(folder.path(), {{u"a"_s}}), "a folder is no file");
#ifdef Q_OS_UNIX
        const QString pipe = folder.filePath(u"pipe"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(!ozm::CsvWriter::writeFile(pipe, {{u"a"_s}}));
        QVERIFY2(!QFileInfo(pipe).isFile(), "the pipe is still one");
        QVERIFY(ozm::CsvWriter::writeFile(u"/dev/null"_s, {{u"a"_s}}));
        QVERIFY(!ozm::CsvWriter::writeFile(u"/dev/full"_s, {{u"a"_s}}));
#endif
        const QString cut = folder.filePath(u"cut"_s);
        QVERIFY(!ozm::CsvWriter::writeFile(cut + QChar(u'\0') + u".csv"_s, {{u"a"_s}}));
        QVERIFY2(!QFile::exists(cut), "the file of the name up to the null character");
    }

#ifdef Q_OS_UNIX
    void csvKeepsSharedFiles()
    {
        const QTemporaryDir folder;
        const QByteArray path = QFile::encodeName(folder.filePath(u"table.csv"_s));
        const QByteArray other = QFile::encodeName(folder.filePath(u"other.csv"_s));
        QFile old(QFile::decodeName(path));
        QVERIFY(old.open(QIODevice::WriteOnly));
        QCOMPARE(old.write("a much longer content than the new one"), 38);
        old.close();
        QCOMPARE(::link(path.constData(), other.constData()), 0);
        QVERIFY(ozm::CsvWriter::writeFile(QFile::decodeName(path), {{u"a"_s}}));
        QCOMPARE(contentOf(QFile::decodeName(other)), QByteArray("\xef\xbb\xbf"
                                                                 "a\r\n"));
    }
#endif
};

QTEST_GUILESS_MAIN(TestRows)
#include "tst_rows.moc"
