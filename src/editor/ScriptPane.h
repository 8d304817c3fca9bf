#pragma once

#include <ozm_widgets/TemplateDiagnostics.h>

#include <QWidget>

#include <functional>

class QLabel;
class QPushButton;
class QPlainTextEdit;

namespace ozm::editor {

class CodeEdit;
class CodeModel;

/// Where a script is written and tried out before it is put into the template.
class ScriptPane : public QWidget
{
    Q_OBJECT

public:
    /// Decodes a content against what the preview shows.
    using Decode = std::function<TemplateReport(const QString &content)>;

    ScriptPane(CodeModel *codes, const Decode &decode, QWidget *parent);

    /// With or without its tags; @p isNew says that it stands nowhere in the template yet.
    void edit(const QString &script, bool isNew);
    /// The script in its tags.
    [[nodiscard]] QString script() const;
    void setReadOnly(bool readOnly);
    void insertCode(const QString &code);
    void run();

Q_SIGNALS:
    void applied(const QString &script);
    void newRequested();

private:
    void showOutcome(const TemplateReport &report);

    const Decode m_decode;
    CodeEdit *m_code;
    QLabel *m_error;
    QPlainTextEdit *m_result;
    QPushButton *m_new;
    QPushButton *m_run;
    QPushButton *m_apply;
};

} // namespace ozm::editor
