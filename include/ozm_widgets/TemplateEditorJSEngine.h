#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>
#include <QVariant>

#include <chrono>
#include <memory>

class TemplateEditorJSEnginePrivate;

/**
 * Runs the JavaScript of report templates.
 *
 * Scripts see the decoded codes as the global object `inputParameters`, and the helper functions of the
 * script library as `templateEditorCore`:
 *
 *     TemplateEditorJSEngine engine;
 *     engine.evaluateJS(u"templateEditorCore.number(inputParameters['[Mass]'], 2)"_s,
 *                       {{u"[Mass]"_s, 1045.534}});
 *
 * The library is a file that evaluates to an object of functions, which keep no state of their own. Without
 * a usable one the engine is not valid, has said so in one warning, and runs scripts without helpers.
 *
 * Variables that scripts leave behind stay until the engine is destroyed; TemplateEditorJSCodeReader keeps templates apart.
 * GUI thread, with a QCoreApplication.
 */
class OZM_WIDGETS_EXPORT TemplateEditorJSEngine : public QObject
{
    Q_OBJECT

public:
    /// With the library templateEditorJSLib/TemplateEditorJSUtils.js in the application's folder.
    explicit TemplateEditorJSEngine(QObject *parent = nullptr);
    explicit TemplateEditorJSEngine(const QString &path, QObject *parent = nullptr);
    ~TemplateEditorJSEngine() override;

    /// True when the library was loaded and evaluated without an error, as the engine was made.
    [[nodiscard]] bool isValid() const;

    /// The text of the script's result; @p code itself when the script fails in any way: an error as its
    /// result, anything thrown, a result whose conversion throws, or a deadline missed.
    [[nodiscard]] QString evaluateJS(const QString &code, const QMap<QString, QVariant> &parameters);

    /**
     * How long the scripts of one decoding may run together before they are interrupted; 5 seconds unless
     * set, none at all when zero. Those that have not ended by then count as failed. Promises and functions
     * connected to signals, which run with the event loop, have until then, too. For all engines of the
     * process, from the next decoding on; any thread.
     *
     * Only running script code is interrupted. One call of a built-in function that takes long by itself
     * (filling an array of a hundred million elements) is not: it ends in its own time. In a helper process
     * it is ended, half a second later.
     */
    static void setDeadline(std::chrono::milliseconds deadline);
    /// The time that the scripts of one decoding have in all.
    [[nodiscard]] static std::chrono::milliseconds deadline();

    /// How far scripts reach into the objects that they are given.
    enum class ObjectAccess
    {
        Full,     ///< Scripts read and set properties, call slots and invokable methods, connect to signals.
        ReadOnly, ///< Scripts read properties.
    };

    /**
     * How scripts may use objects that stand among their parameters, and those that these give: fully unless
     * set. In either case the objects stay the application's, which deletes them. For all engines of the
     * process, from the next decoding on; any thread.
     */
    static void setObjectAccess(ObjectAccess access);
    /// The access that is in force for the process.
    [[nodiscard]] static ObjectAccess objectAccess();

    /// Where scripts run.
    enum class ScriptPlace
    {
        InProgram,     ///< In this program. A script that takes all memory takes the program along.
        HelperProcess, ///< In a process of their own, which may end without harm to this program.
    };

    /**
     * Where the scripts of templates run: in this program unless set. Helper processes are for templates of others.
     *
     *     TemplateEditorJSEngine::setScriptPlace(TemplateEditorJSEngine::ScriptPlace::HelperProcess);
     *     const ozm::TemplateReport report = AbstractTemplateEditor::decodeTECReport(text, {});
     *     if (report.scriptError.hasError())
     *         qWarning() << report.scriptError;
     *
     * Results are the same, with these differences:
     * - Values cross: texts, numbers, dates, what else is of Qt's core, lists and maps of such, and enumerators
     *   as numbers. Objects and values of other types stay: a script fails where it uses one, whatever the
     *   object access, and runs where it does not.
     * - The deadline holds for functions built into the engine, too: the process is ended, and the scripts after
     *   that one fail.
     * - A process that ends takes along the variables that scripts have left behind. The next decoding starts
     *   another. One process serves all engines of this program, and ends with it.
     * - Its time zone and its surroundings are those of this program when the process is started.
     *
     * The helper program comes with the plug-in of the script engine. When it is missing, is of another version, or
     * ends, scripts fail, and the report's scriptError says why. For all engines of the process, from the next
     * decoding on; any thread.
     */
    static void setScriptPlace(ScriptPlace place);
    /// The place that is in force for the process.
    [[nodiscard]] static ScriptPlace scriptPlace();

    /**
     * The memory that the helper process may take beyond what it has when it starts, in bytes; a gigabyte unless set,
     * without a bound when zero. A script that wants more ends it. Linux and Windows hold a process to it, other
     * systems as they hold to RLIMIT_AS: macOS does not. From the next decoding on; any thread.
     */
    static void setHelperMemory(qint64 bytes);
    /// The bound that is in force for the process.
    [[nodiscard]] static qint64 helperMemory();

    /**
     * The path of the helper program, for applications that put it elsewhere; empty unless set. It is looked for in
     * "ozm_widgets/libexec" beside the library, and on macOS in the Helpers of the application as well. From
     * the next decoding on; any thread.
     */
    static void setHelperProgram(const QString &path);
    /// The path that was set.
    [[nodiscard]] static QString helperProgram();

private:
    friend class TemplateEditorJSCodeReader;

    const std::unique_ptr<TemplateEditorJSEnginePrivate> d;
};

/**
 * Decodes the text of a template: runs the scripts between "<script>" and "</script>" and puts their results
 * in their places, then puts values in the places of codes.
 *
 *     TemplateEditorJSCodeReader reader;
 *     reader.readAsString(u"[Name]: <script>6 * 7</script>"_s, {{u"[Name]"_s, u"T12"_s}});
 *     // T12: <script>42</script>
 *
 * The tags stay; AbstractTemplateEditor::withoutScriptTags() takes them out for readers. The pieces run from
 * the last to the first. What a template leaves behind in the engine is gone for the next one.
 *
 * Parsed templates are remembered, up to a bound on the characters that takes. GUI thread.
 */
class OZM_WIDGETS_EXPORT TemplateEditorJSCodeReader : public QObject
{
    Q_OBJECT

public:
    explicit TemplateEditorJSCodeReader(QObject *parent = nullptr);
    ~TemplateEditorJSCodeReader() override;

    /// False when the script engine, or the library of script helpers, is not there.
    [[nodiscard]] bool isValid() const;

    /// The code of all pieces of script in @p text, in order of position.
    [[nodiscard]] QList<QString> createAndReturnAllScriptElements(const QString &text);

    /**
     * The decoded text. Each key of @p parameters is replaced, in ascending order and with letter case, in
     * all of the text, so that a value may bring in a key that comes later. A string list is joined with
     * "; ", any other value is put in as QVariant::toString() has it.
     */
    [[nodiscard]] QString readAsString(const QString &text, const QMap<QString, QVariant> &parameters);

private:
    friend class TemplateDecoder;
    class Private;
    const std::unique_ptr<Private> d;
};
