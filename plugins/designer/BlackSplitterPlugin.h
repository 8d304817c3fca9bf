#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// ozm::BlackSplitter in Qt Designer, as a container whose pages are the panes.
class BlackSplitterPlugin : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetInterface")
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    [[nodiscard]] bool isContainer() const override { return true; }
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] QString domXml() const override;
    [[nodiscard]] QString group() const override;
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    [[nodiscard]] QWidget *createWidget(QWidget *parent) override;
};
