#pragma once

#include "EngineScriptRealm.h"
#include "templates/scripts/ScriptProtocol.h"

#include <QObject>

#include <map>
#include <memory>

namespace ozm {

/// Keeps the realms of an application, and does as its requests ask. Answers go to the standard output.
class ScriptServer : public QObject
{
    Q_OBJECT

public:
    /// Does as the request in a frame asks; ends the process when there is none in it.
    void serve(const QByteArray &payload);

private:
    void serve(const scriptprotocol::CreateRealm &request);
    void serve(const scriptprotocol::RunScripts &request);
    void serve(const scriptprotocol::DropRealm &request);

    std::map<quint32, std::unique_ptr<EngineScriptRealm>> m_realms;
};

/// Writes a frame. The process ends when nobody reads it.
void writeFrame(const QByteArray &frame);

/// The content of the next frame, once it is there as a whole. The process ends when there is none.
[[nodiscard]] QByteArray readFrame();

} // namespace ozm
