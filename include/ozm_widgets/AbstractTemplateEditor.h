#pragma once

#include <ozm_widgets/DecodeTecExtraData.h>
#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/ShortCodes.h>
#include <ozm_widgets/TemplateDiagnostics.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QMetaObject>
#include <QString>

#include <memory>

class RowNode;

/**
 * The window in which report templates are written, and the functions that fill them with data.
 *
 * A template is a text with short codes such as "[Name]" and with pieces of script. The window shows it as
 * formatted text, in which codes and scripts are chips, or as its source; beside it what a report will look
 * like. An application derives from it, and says which codes there are and what data the preview shows:
 *
 *     class CertificateEditor : public AbstractTemplateEditor
 *     {
 *     public:
 *         QList<ShortCode> shortCodes() const override { return sampleCodes(); }
 *         QList<RowNode *> previewRows() const override { return m_rows; }
 *     };
 *
 *     editor->setSourceText(stored);
 *     connect(editor, &AbstractTemplateEditor::saved, this, [editor] { store(editor->sourceText()); });
 *
 * Templates go into the window and come out of it in their envelope (see TECWrapper). Decoding is for
 * content, with and without window:
 *
 *     const QString line = AbstractTemplateEditor::decodeTEC(u"[Sequence], [Charge]+"_s, &row, {});
 *
 * Codes without a value stay in the text, and so does the code of a script that fails; decodeTECReport()
 * says which, and gives the very text that decodeTEC() gives. Script tags stay, too: a text for readers
 * goes through withoutScriptTags(). GUI thread.
 */
class OZM_WIDGETS_EXPORT AbstractTemplateEditor : public QMainWindow
{
    Q_OBJECT
    Q_PROPERTY(QString sourceText READ sourceText WRITE setSourceText NOTIFY sourceTextChanged)
    Q_PROPERTY(Mode mode READ mode WRITE setMode NOTIFY modeChanged)
    Q_PROPERTY(bool readOnly READ isReadOnly WRITE setReadOnly NOTIFY readOnlyChanged)
    Q_PROPERTY(bool modified READ isModified NOTIFY modifiedChanged)
    Q_PROPERTY(QString filePath READ filePath NOTIFY filePathChanged)

public:
    class Private;

    /// How the window shows the template.
    enum class Mode
    {
        Rich, ///< Formatted text with chips.
        Plain ///< The source.
    };
    Q_ENUM(Mode)

    explicit AbstractTemplateEditor(QWidget *parent = nullptr);
    ~AbstractTemplateEditor() override;

    // The application answers these. They are asked when the window is shown, when the language of the application
    // changes, and by refresh().

    /// The codes that are offered. Others are marked as unknown, unless there are none at all.
    [[nodiscard]] virtual QList<ShortCode> shortCodes() const = 0;
    /// The rows that fill the preview; they must outlive the window, or the next refresh().
    [[nodiscard]] virtual QList<RowNode *> previewRows() const;
    /// The name of @p row in the preview; unless overridden, its first value.
    [[nodiscard]] virtual QString previewName(const RowNode &row) const;
    /// The objects that fill codes which @p row does not know; a null row stands for all rows as a group, or for none.
    [[nodiscard]] virtual QList<DecodeTecExtraData> extraData(const RowNode *row) const;
    /// Further rows that the template's parts can repeat for in a report on @p row, by name; see ozm::fillTemplate().
    /// They must live until the next call.
    [[nodiscard]] virtual QMap<QString, QList<RowNode *>> rowLists(const RowNode *row) const;
    /// The style sheet, letters, sheet, header and footer of the application's reports: the preview, paper and PDF of
    /// the window have them, and ozm::ReportPaper and ozm::ReportView take the same.
    [[nodiscard]] virtual ozm::ReportPaperOptions paperOptions() const;
    /// The folder in which questions for template files begin; empty leaves that to the accessor.
    [[nodiscard]] virtual QString storageDirectory() const;

    /// The template in its envelope; the very content that setSourceText() was given while nobody edited it.
    [[nodiscard]] QString sourceText() const;
    /// Rich for a new window.
    [[nodiscard]] Mode mode() const;
    /// True when the template can be looked at only.
    [[nodiscard]] bool isReadOnly() const;
    /// True when there are edits that were not saved.
    [[nodiscard]] bool isModified() const;
    /// Where the template was read from or saved to; empty for a new one.
    [[nodiscard]] QString filePath() const;

    /**
     * Shows the template in the envelope @p wrapped in the place of the present one, without a question.
     * False, with the message "Wrong template editor content format.", when it is in none or in one of
     * another version: the window then keeps what it holds.
     */
    bool setSourceText(const QString &wrapped);
    /// Shows the template in the file @p path. False, with a message, when it cannot be read.
    bool openFile(const QString &path);
    /// A template of more than eight million characters is shown as its source only.
    void setMode(Mode mode);
    /// Lets nobody edit the template, or lets them again.
    void setReadOnly(bool readOnly);
    /// Asks again for codes, rows and extra data.
    void refresh();

    void setVisible(bool visible) override;

    // Decoding, with no window.

    /**
     * Decodes a template in its envelope against the properties of @p extraData. Codes are patterns here: the
     * first property of its own (not inherited) that the code matches as a regular expression, in any letter
     * case, fills it. Numbers are shown as their column shows them, or with three digits after the point.
     */
    [[nodiscard]] static QString decodeTEC(const QString &text, const QList<DecodeTecExtraData> &extraData);

    /**
     * Decodes a template without envelope against @p row, and against @p extraData where the row has no
     * value: the property of the code's name with a small first letter fills it, unchanged. Empty when
     * @p row is null. Warns of codes that are known columns and have no value.
     */
    [[nodiscard]] static QString decodeTEC(const QString &text, const RowNode *row,
                                           const QList<DecodeTecExtraData> &extraData);

    /// Decodes against the summary of @p rows, as ozm::rn::GroupSummary makes it; against the row itself when
    /// it is the only one. Null rows are passed over; empty when there are no others.
    [[nodiscard]] static QString decodeTEC(const QString &text, const QList<RowNode *> &rows,
                                           const QList<DecodeTecExtraData> &extraData);

    /// The text of decodeTEC() for the same arguments, and what could not be filled in.
    [[nodiscard]] static ozm::TemplateReport decodeTECReport(const QString &text,
                                                             const QList<DecodeTecExtraData> &extraData);
    [[nodiscard]] static ozm::TemplateReport decodeTECReport(const QString &text, const RowNode *row,
                                                             const QList<DecodeTecExtraData> &extraData);
    [[nodiscard]] static ozm::TemplateReport decodeTECReport(const QString &text,
                                                             const QList<RowNode *> &rows,
                                                             const QList<DecodeTecExtraData> &extraData);

    /// @p decodedText without its script tags; what stands between them stays.
    [[nodiscard]] static QString withoutScriptTags(const QString &decodedText);

    /// The codes that decoding understands for extra data of these types; a code that two types share is
    /// listed twice.
    [[nodiscard]] static QList<ShortCode> extraDataShortCodes(const QList<QMetaObject> &metaObjects);

Q_SIGNALS:
    /// After every edit, undo and redo, and when another template is shown.
    void sourceTextChanged();
    /// The user or setMode() chose the other mode.
    void modeChanged(AbstractTemplateEditor::Mode mode);
    /// After setReadOnly().
    void readOnlyChanged(bool readOnly);
    /// The first edit after saving, or saving after an edit.
    void modifiedChanged(bool modified);
    /// The template is another file now: it was opened, or saved as.
    void filePathChanged(const QString &path);
    /// The template was written to @p path.
    void saved(const QString &path);

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    const std::unique_ptr<Private> d;
};
