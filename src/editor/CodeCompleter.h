#pragma once

#include <QObject>

#include <functional>

class QAbstractScrollArea;
class QCompleter;
class QKeyEvent;
class QTextCursor;

namespace ozm::editor {

class CodeModel;

/// Offers codes in a text field after an opening bracket.
class CodeCompleter : public QObject
{
    Q_OBJECT

public:
    struct Field
    {
        QAbstractScrollArea *widget;
        std::function<QTextCursor()> cursor;
        std::function<QRect()> cursorRect;
        /// Puts the code in the place of what the cursor has selected.
        std::function<void(QTextCursor cursor, const QString &code)> insert;
    };

    CodeCompleter(CodeModel *codes, const Field &field);

    /// To be called after a key that changed the text.
    void offer();

    /// Keys that choose from the list are handed to the field first, which must leave them to the list.
    [[nodiscard]] bool takes(const QKeyEvent &event) const;

private:
    void accept(const QString &code);

    const Field m_field;
    QCompleter *m_completer;
};

} // namespace ozm::editor
