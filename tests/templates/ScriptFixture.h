#pragma once

#include <ozm_widgets/TemplateEditorJSEngine.h>

#include <QString>

#include <array>
#include <chrono>

namespace ozm::test {

inline QString piece(const QString &code)
{
    return QStringLiteral("<script>") + code + QStringLiteral("</script>");
}

/// Sets the deadline for as long as it lives.
class Deadline
{
public:
    explicit Deadline(std::chrono::milliseconds deadline) { TemplateEditorJSEngine::setDeadline(deadline); }
    ~Deadline() { TemplateEditorJSEngine::setDeadline(m_before); }
    Q_DISABLE_COPY_MOVE(Deadline)

private:
    const std::chrono::milliseconds m_before = TemplateEditorJSEngine::deadline();
};

using Place = TemplateEditorJSEngine::ScriptPlace;
inline constexpr std::array kPlaces{Place::InProgram, Place::HelperProcess};

/// Has scripts run at a place for as long as it lives.
class Placed
{
public:
    explicit Placed(Place place) { TemplateEditorJSEngine::setScriptPlace(place); }
    ~Placed()
    {
        TemplateEditorJSEngine::setScriptPlace(Place::InProgram);
        TemplateEditorJSEngine::setHelperMemory(1 << 30);
        TemplateEditorJSEngine::setHelperProgram({});
    }
    Q_DISABLE_COPY_MOVE(Placed)
};

} // namespace ozm::test
