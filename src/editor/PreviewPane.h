#pragma once

#include <ozm_widgets/ReportPaper.h>
#include <ozm_widgets/TemplateDiagnostics.h>

#include <QTimer>
#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QSplitter;
class QToolButton;

namespace ozm {
class ReportView;
} // namespace ozm

namespace ozm::editor {

/// The template filled with data on the pages that it prints on, and below what could not be filled. Only what the text
/// carries itself is shown; nothing is loaded.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    struct Decoded
    {
        QString content; ///< The content that was decoded.
        TemplateReport report;
        ReportPaperOptions paper;
    };
    /// The text of the template as it is edited, and the caret's place in it.
    struct Caret
    {
        QString text;
        qsizetype position = 0;
    };
    /// Does a part of what there is to do before a template is decoded; false when that is done.
    using Prepare = std::function<bool()>;
    using Decode = std::function<Decoded()>;
    using FindCaret = std::function<Caret()>;

    PreviewPane(const Prepare &prepare, const Decode &decode, const FindCaret &findCaret, QWidget *parent);

    /// @p names are of the rows; when there are several, all of them as a group can be chosen, too.
    void setRows(const QStringList &names);
    /// The row's index; -1 for all as a group, or when there is none.
    [[nodiscard]] int row() const;

    /// Decodes soon, when nobody asks again for a moment.
    void updateSoon();
    void updateNow();
    /// Decodes only when updateNow() says so, as for a template that takes long.
    void setPaused(bool paused);
    /// Scrolls to what stands at the caret, when it rests for a moment.
    void followSoon();

Q_SIGNALS:
    /// A place in the content that was decoded last, at which @p part begins.
    void placeChosen(const QString &content, qsizetype offset, const QString &part);

protected:
    void showEvent(QShowEvent *event) override;

private:
    [[nodiscard]] QWidget *makeZoomBar();
    void showZoom();
    void follow();
    void goOn();
    void showReport();
    void listTroubles(const TemplateReport &report);
    void listMoreTroubles();
    void giveRoomToTroubles(bool there);
    void addTrouble(const QString &icon, const QString &text, qsizetype offset, const QString &part);
    void add(const UnresolvedCode &code);
    void add(const FailedScript &script);
    void add(const BroughtInCode &code);
    void add(const FaultyInstruction &instruction);
    void choose(const QListWidgetItem *item);

    const Prepare m_prepare;
    const Decode m_decode;
    const FindCaret m_findCaret;
    QString m_content; ///< Of the report that is shown.
    Decoded m_next;    ///< It is shown once it is laid out.
    QComboBox *m_row;
    ReportView *m_pages;
    QLabel *m_page;
    QToolButton *m_zoom;
    QLabel *m_count;
    QSplitter *m_splitter;
    QWidget *m_below;
    QListWidget *m_troubles;
    TemplateReport m_report; ///< The one that is listed in m_troubles, without its text.
    QTimer m_timer;
    int m_delayMs; ///< From an edit to the decoding.
    QTimer m_followTimer;
    bool m_isStale = true;    ///< The template was edited since it was decoded.
    bool m_isLaidOut = false; ///< The report that was decoded last is shown.
    bool m_isPaused = false;
};

} // namespace ozm::editor
