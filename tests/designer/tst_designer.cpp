#include "support/StrictTest.h"

#include <QPluginLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

using namespace Qt::StringLiterals;

/// The library's widgets as Qt Designer takes them from the plug-in.
class TestDesigner : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void formsGetTheWidgets()
    {
        QPluginLoader loader(QStringLiteral(DESIGNER_PLUGIN));
        const auto *plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
        QVERIFY2(plugin, qPrintable(loader.errorString()));
        for (QDesignerCustomWidgetInterface *row : plugin->customWidgets()) {
            const std::unique_ptr<QWidget> widget(row->createWidget(nullptr));
            QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), row->name());

            QMap<QString, QString> texts;
            QXmlStreamReader form(row->domXml());
            while (!form.atEnd()) {
                if (form.readNext() != QXmlStreamReader::StartElement)
                    continue;
                if (form.name() == u"widget" && !texts.contains(u"widget"_s))
                    texts.insert(u"widget"_s, form.attributes().value("class"_L1).toString());
                const QString element = form.name().toString();
                if (QStringList{u"class"_s, u"extends"_s, u"header"_s}.contains(element))
                    texts.insert(element, form.readElementText());
            }
            QVERIFY2(!form.hasError(), qPrintable(form.errorString()));
            QCOMPARE(texts.value(u"widget"_s), row->name());
            QCOMPARE(texts.value(u"class"_s), row->name());
            QVERIFY(widget->inherits(qPrintable(texts.value(u"extends"_s))));
        }
        QCOMPARE(plugin->customWidgets().size(), 4);
    }
};

QTEST_MAIN(TestDesigner)
#include "tst_designer.moc"
