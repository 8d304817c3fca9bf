#include "samples/SampleEditor.h"

#include "audit/AuditTrailCsv.h"
#include "audit/AuditTrailJson.h"
#include "data/DataColumns.h"
#include "data/DataSamples.h"
#include "samples/SampleCommands.h"
#include "samples/SampleFile.h"

#include <ozm_common_core_mini/ColumnNames.h>

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using ozm::Error;
using ozm::OperationLogItemData;
using ozm::OperationLogItemSubject;
using ozm::OperationLogItemType;
using ozm::OperationLogItemUndoContext;

namespace workbench {

namespace {

OperationLogItemData fileEvent(const QString &path, const QString &what, const QVariant &value)
{
    const OperationLogItemSubject file(OperationLogItemSubject::Type::File,
                                       {{kName, QFileInfo(path).fileName()}}, {});
    return {OperationLogItemType::Event, file, {what}, value};
}

QString newName(const QString &pattern, const QString &oldName, int number)
{
    QString name;
    for (const QChar c : pattern)
        if (c == u'*')
            name += oldName;
        else if (c == u'#')
            name += QString::number(number);
        else
            name += c;
    return name;
}

OperationLogItemData bulkData(OperationLogItemType type, const QString &attribute, const QVariant &value)
{
    return {type, OperationLogItemSubject::Type::Label, {attribute}, value};
}

} // namespace

SampleEditor::SampleEditor(ozm::audit::Store &store, const QString &user, QObject *parent)
    : QObject(parent)
    , m_user(user)
    , m_logger(store, {.user = {user}})
    , m_trail(store)
{
    m_stack.setLogging(&m_logger);
}

SampleEditor::~SampleEditor() = default;

Error SampleEditor::start()
{
    // The session is recorded first; where that fails, so would all else.
    const Error unrecorded = m_logger.error();
    return unrecorded.hasError() ? unrecorded : m_trail.refresh();
}

Error SampleEditor::setCell(qint64 id, const QString &column, const QString &text)
{
    return push(std::make_unique<SetCellCommand>(target(), id, column, text));
}

Error SampleEditor::addSample(const QMap<QString, QString> &texts)
{
    return push(std::make_unique<AddSampleCommand>(target(), texts));
}

Error SampleEditor::addData(const QList<ozm::msreader::MsSample> &found, const QString &source)
{
    const auto samples = samplesOf(found, m_table);
    Commands commands;
    for (const auto &texts : samples)
        commands.push_back(std::make_unique<AddSampleCommand>(target(), texts));
    const OperationLogItemSubject folder(OperationLogItemSubject::Type::File,
                                         {{kName, QDir(source).dirName()}}, {{kPath, source}});
    return runMacro({OperationLogItemType::Add, folder, {u"Samples"_s}, samples.size()},
                    samples.size() == 1 ? tr("Add data of 1 sample")
                                        : tr("Add data of %1 samples").arg(samples.size()),
                    std::move(commands));
}

Error SampleEditor::deleteSamples(const QList<qint64> &ids)
{
    if (ids.size() == 1)
        return push(std::make_unique<DeleteSampleCommand>(target(), ids.constFirst()));
    Commands commands;
    for (const qint64 id : ids)
        commands.push_back(std::make_unique<DeleteSampleCommand>(target(), id));
    return runMacro(bulkData(OperationLogItemType::Delete, u"Samples"_s, ids.size()),
                    tr("Delete %1 samples").arg(ids.size()), std::move(commands));
}

Error SampleEditor::renameSamples(const QList<qint64> &ids, const QString &pattern)
{
    Commands commands;
    for (const qint64 id : ids) {
        const RowNode *row = m_table.rowOf(id);
        const QString oldName = row ? row->getDataAt(kName).toString() : QString();
        const int number = static_cast<int>(commands.size()) + 1;
        commands.push_back(
            std::make_unique<SetCellCommand>(target(), id, kName, newName(pattern, oldName, number)));
    }
    return runMacro(bulkData(OperationLogItemType::Set, kName, pattern), tr("Rename to %1").arg(pattern),
                    std::move(commands));
}

Error SampleEditor::push(std::unique_ptr<SampleCommand> command)
{
    if (Error error = command->check(m_table); error.hasError())
        return refuse(*command, error);
    return finish(m_logger.push(m_stack, command.release()));
}

Error SampleEditor::runMacro(const OperationLogItemData &data, const QString &text, Commands commands)
{
    if (commands.empty())
        return {};
    const SampleCommand *refused = nullptr;
    if (Error error = tryOut(m_table, commands, &refused); error.hasError())
        return refuse(*refused, error);

    QList<ozm::audit::Step> steps;
    for (const auto &command : commands)
        steps.append({command.get(), OperationLogItemUndoContext::New});
    if (Error error = m_logger.prepareMacro(data, steps); error.hasError())
        return finish(error);

    m_stack.beginMacro(data, text);
    Error result;
    for (auto &command : commands) {
        Error error = m_stack.push(command.release());
        if (error.hasError() && !result.hasError())
            result = error;
    }
    if (!m_stack.endMacro())
        result.addWarning(tr("The step is recorded, but could not be marked as finished yet."));
    return finish(result);
}

Error SampleEditor::tryOut(const SampleTable &table, const Commands &commands, const SampleCommand **refused)
{
    const std::unique_ptr<SampleTable> scratch = table.copy();
    for (const auto &command : commands) {
        if (Error error = command->check(*scratch); error.hasError()) {
            *refused = command.get();
            return error;
        }
        command->apply(*scratch);
    }
    return {};
}

Error SampleEditor::undo()
{
    return m_stack.canUndo() ? finish(m_logger.undo(m_stack)) : Error();
}

Error SampleEditor::redo()
{
    return m_stack.canRedo() ? finish(m_logger.redo(m_stack)) : Error();
}

Error SampleEditor::moveTo(int index)
{
    Error error;
    while (!error.hasError() && m_stack.index() > index && m_stack.canUndo())
        error = undo();
    while (!error.hasError() && m_stack.index() < index && m_stack.canRedo())
        error = redo();
    return error;
}

Error SampleEditor::load(const QString &path)
{
    const auto samples = samplefile::read(path);
    if (!samples) {
        Error error = samples.error();
        if (const Error record = m_logger.recordEvent(fileEvent(path, u"Loaded samples"_s, {}), error);
            record.hasError())
            error.addWarning(record.errorMessage());
        return finish(error);
    }
    return audited(fileEvent(path, u"Loaded samples"_s, static_cast<int>(samples.value().size())),
                   [this, &samples] {
                       m_stack.clear();
                       m_table.replaceAll(samples.value());
                       return Error();
                   });
}

Error SampleEditor::save(const QString &path)
{
    return audited(fileEvent(path, u"Saved samples"_s, m_table.rowCount()), [this, path] {
        Error error = samplefile::write(m_table, path);
        if (!error.hasError())
            m_stack.setClean();
        return error;
    });
}

Error SampleEditor::exportTrail(const QString &path)
{
    const bool isTable = QFileInfo(path).suffix().compare("csv"_L1, Qt::CaseInsensitive) == 0;
    const QString format = isTable ? u"CSV"_s : u"JSON"_s;
    return audited(fileEvent(path, u"Exported audit trail"_s, format), [this, path, isTable] {
        // With the record of this export in it.
        Error error = m_trail.refresh();
        if (error.hasError())
            return error;
        return isTable ? writeAuditTrailCsv(m_trail, path) : writeAuditTrailJson(m_trail, path);
    });
}

Error SampleEditor::audited(const OperationLogItemData &data, const std::function<Error()> &act)
{
    if (Error error = m_logger.recordEvent(data); error.hasError())
        return finish(error);
    Error error = act();
    if (error.hasError()) {
        if (const Error record = m_logger.recordEvent(data, error); record.hasError())
            error.addWarning(record.errorMessage());
    }
    return finish(error);
}

Error SampleEditor::refuse(const SampleCommand &command, Error reason)
{
    const Error record = m_logger.recordRefused({&command, OperationLogItemUndoContext::New}, reason);
    if (record.hasError())
        reason.addWarning(record.errorMessage());
    return finish(reason);
}

Error SampleEditor::finish(Error error)
{
    for (const Error &late : {m_logger.settle(), m_trail.refresh()}) {
        // Mostly it is the trouble that was met already.
        if (late.hasError() && late.errorMessage() != error.errorMessage())
            error.addWarning(late.errorMessage());
    }
    if (error.hasError() || !error.warnings().isEmpty())
        Q_EMIT trouble(error);
    return error;
}

} // namespace workbench
