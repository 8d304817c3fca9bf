// A script plug-in of an older version: only its identifier matters, as it must never be called.

#include <QObject>

class OlderScripts : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "ozm_widgets.ScriptEngineInterface/1")
};

#include "OlderScripts.moc"
