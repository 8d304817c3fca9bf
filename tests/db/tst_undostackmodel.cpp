#include "UndoModel.h"
#include "UndoTestTools.h"
#include "support/StrictTest.h"

#include <QRandomGenerator>
#include <QScopeGuard>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using ozm::OperationLogItemData;
using ozm::UndoStack;

namespace {

// Sanitizers take ten times as long, and look at memory, of which each sequence uses the same.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kSequences = 10000;
#else
constexpr int kSequences = 100000;
#endif
constexpr int kLongestSequence = 24;

QStringList *s_warnings = nullptr;

/// Warnings take their place in the journal, since their order counts as well.
void noteWarning(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type != QtWarningMsg)
        return;
    static const QStringList known{
        u"Error in logging begin of macro command"_s,
        u"Error in logging"_s,
        u"Error in"_s,
        u"No macro command to end"_s,
        u"No macro command to abort"_s,
        u"in the middle of a macro"_s,
        u"no matching beginMacro()"_s,
        u"Push refused while an undo or redo runs"_s,
        u"Macro refused while an undo or redo runs"_s,
        u"Undo refused while an undo or redo runs"_s,
        u"Redo refused while an undo or redo runs"_s,
        u"Clear refused while an undo or redo runs"_s,
    };
    for (const QString &text : known) {
        if (message.contains(text)) {
            s_warnings->append(u"! "_s + text);
            return;
        }
    }
    s_warnings->append(u"! unknown: "_s + message);
}

QString commandText(const QUndoCommand *command)
{
    if (dynamic_cast<const ScriptedCommand *>(command))
        return command->text();
    QStringList texts;
    for (int i = 0; i < command->childCount(); ++i)
        texts.append(commandText(command->child(i)));
    return u'(' + texts.join(u' ') + u')';
}

QString historyOf(const UndoStack &stack)
{
    QStringList texts;
    for (int i = 0; i <= stack.count(); ++i) {
        if (i == stack.index())
            texts.append(u"|"_s);
        if (i < stack.count())
            texts.append(commandText(stack.command(i)));
    }
    return texts.join(u' ');
}

/// A stack and the model of one, driven through the same random operations.
class Race
{
public:
    explicit Race(quint32 seed)
        : m_random(seed)
        , m_logger(&m_journal)
        , m_stack(std::make_unique<UndoStack>())
    {
        s_warnings = &m_journal;
        m_stack->setLogging(&m_logger);
        if (oneIn(4)) {
            m_model.undoLimit = 1 + m_random.bounded(3);
            m_stack->setUndoLimit(m_model.undoLimit);
        }
    }

    /// Empty when stack and model agree to the end; otherwise the operations and the difference.
    QString run()
    {
        const int length = 1 + m_random.bounded(kLongestSequence);
        for (int i = 0; i < length; ++i) {
            step();
            if (const QString difference = compare(); !difference.isEmpty())
                return m_operations.join(u", "_s) + u": "_s + difference;
        }
        m_stack.reset();
        m_model.clear();
        return m_journal == m_model.journal ? QString() : u"different deaths at the end"_s;
    }

private:
    bool oneIn(int count) { return m_random.bounded(count) == 0; }

    std::shared_ptr<Edit> edit(bool mayNest)
    {
        auto edit = std::make_shared<Edit>();
        edit->name = u"c%1"_s.arg(++m_names);
        edit->mergeId = m_random.bounded(3) - 1;
        edit->failsRedo = oneIn(6);
        edit->failsUndo = oneIn(8);
        edit->failsBefore = oneIn(10);
        edit->logged = !oneIn(8);
        edit->auditTrail = !oneIn(8);
        edit->greedy = oneIn(4);
        edit->obsoleteAfterRedo = oneIn(12);
        if (mayNest && oneIn(8))
            edit->inner = this->edit(oneIn(2));
        if (oneIn(6))
            edit->step = static_cast<Edit::Step>(1 + m_random.bounded(6));
        edit->stepsBefore = oneIn(4);
        return edit;
    }

    ScriptedCommand *command(const Edit &edit)
    {
        return new ScriptedCommand(edit, &m_journal, [this, edit](const std::shared_ptr<Edit> &inner) {
            if (inner)
                (void)m_stack->push(command(*inner));
            innerStep(edit);
        });
    }

    void innerStep(const Edit &edit)
    {
        if (edit.step == Edit::Undo)
            m_stack->undo();
        else if (edit.step == Edit::Redo)
            m_stack->redo();
        else if (edit.step == Edit::Begin)
            m_stack->beginMacro(recordOf(u"in "_s + edit.name), {});
        else if (edit.step == Edit::End)
            m_stack->endMacro();
        else if (edit.step == Edit::Abort)
            m_stack->abortMacro();
        else if (edit.step == Edit::Clear)
            m_stack->clear();
    }

    void push()
    {
        const auto edit = this->edit(true);
        if (oneIn(6)) {
            edit->inner = {};
            edit->step = Edit::None;
            m_operations.append(u"unseen "_s + edit->name);
            static_cast<QUndoStack *>(m_stack.get())->push(command(*edit));
            m_model.pushUnseen(edit);
            return;
        }
        m_operations.append(u"push "_s + edit->name);
        ScriptedCommand *command = this->command(*edit);
        const bool failed = m_stack->push(command).hasError();
        m_outcome = failed == m_model.push(edit);
    }

    void macroStep()
    {
        switch (m_random.bounded(6)) {
        case 0:
        case 1:
        case 2: {
            OperationLogItemData data = recordOf(u"m%1"_s.arg(++m_names));
            data.setCollapseTrivialMacro(!oneIn(3));
            m_operations.append(u"begin"_s);
            m_stack->beginMacro(data, {});
            m_model.beginMacro(u"m%1"_s.arg(m_names), data.collapseTrivialMacro());
            return;
        }
        case 3:
            m_operations.append(u"abort"_s);
            m_outcome = m_stack->abortMacro() == m_model.abortMacro();
            return;
        default:
            m_operations.append(u"end"_s);
            m_outcome = m_stack->endMacro() == m_model.endMacro();
        }
    }

    void otherStep()
    {
        switch (m_random.bounded(5)) {
        case 0:
            m_operations.append(u"clear"_s);
            if (oneIn(2))
                m_stack->clear();
            else
                static_cast<QUndoStack *>(m_stack.get())->clear();
            m_model.clear();
            return;
        case 1:
        case 2:
            m_operations.append(u"logger"_s);
            m_model.loggerAttached = !m_model.loggerAttached;
            m_stack->setLogging(m_model.loggerAttached ? &m_logger : nullptr);
            return;
        default:
            m_operations.append(u"failing logger"_s);
            m_model.loggerFails = m_logger.fails = !m_logger.fails;
            m_logger.failsByNullEntry = oneIn(2);
        }
    }

    void step()
    {
        m_outcome = true;
        const int kind = m_random.bounded(20);
        if (kind < 8) {
            push();
        } else if (kind < 11) {
            m_operations.append(u"undo"_s);
            m_stack->undo();
            m_model.undo();
        } else if (kind < 14) {
            m_operations.append(u"redo"_s);
            m_stack->redo();
            m_model.redo();
        } else if (kind < 19) {
            macroStep();
        } else {
            otherStep();
        }
    }

    QString compare()
    {
        if (m_journal != m_model.journal)
            return m_journal.join(u"; "_s) + u" instead of "_s + m_model.journal.join(u"; "_s);
        if (!m_outcome)
            return u"another result"_s;
        const QString history = historyOf(*m_stack);
        if (history != m_model.history())
            return history + u" instead of "_s + m_model.history();
        const auto recent = m_stack->recentLogItem().toStrongRef();
        if ((recent ? recent->id() : 0) != m_model.recentItem)
            return u"another recent item"_s;
        return {};
    }

    QRandomGenerator m_random;
    QStringList m_journal;
    QStringList m_operations;
    RecordingLogger m_logger;
    UndoModel m_model;
    std::unique_ptr<UndoStack> m_stack;
    int m_names = 0;
    bool m_outcome = true;
};

} // namespace

class TestUndoStackModel : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void randomSequences()
    {
        const QtMessageHandler before = qInstallMessageHandler(noteWarning);
        const auto restore = qScopeGuard([before] { qInstallMessageHandler(before); });
        for (quint32 seed = 0; seed < kSequences; ++seed) {
            if (const QString difference = Race(seed).run(); !difference.isEmpty())
                QFAIL(qPrintable(u"seed %1: %2"_s.arg(QString::number(seed), difference)));
        }
    }
};

QTEST_GUILESS_MAIN(TestUndoStackModel)
#include "tst_undostackmodel.moc"
