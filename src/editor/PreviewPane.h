#pragma once

#include <ozm_widgets/TemplateDiagnostics.h>

#include <QTimer>
#include <QWidget>

#include <functional>

class QComboBox;
class QLabel;
class QListWidget;
class QListWidgetItem;
class QTextBrowser;

namespace ozm::editor {

/// The template filled with data, and beside it what could not be filled. Only what the text carries itself
/// is shown; nothing is loaded.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    struct Decoded
    {
        QString content; ///< The content that was decoded.
        TemplateReport report;
    };
    using Decode = std::function<Decoded()>;

    PreviewPane(const Decode &decode, QWidget *parent);

    /// @p names are of the rows; when there are several, all of them as a group can be chosen, too.
    void setRows(const QStringList &names);
    /// The row's index; -1 for all as a group, or when there is none.
    [[nodiscard]] int row() const;

    /// Decodes soon, when nobody asks again for a moment.
    void updateSoon();
    void updateNow();
    /// Decodes only when updateNow() says so, as for a template that takes long.
    void setPaused(bool paused);

Q_SIGNALS:
    /// A place in the content that was decoded last, at which @p part begins.
    void placeChosen(const QString &content, qsizetype offset, const QString &part);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void showText(const QString &text);
    void listTroubles(const TemplateReport &report);
    void addTrouble(const QString &icon, const QString &text, qsizetype offset, const QString &part);
    void choose(const QListWidgetItem *item);

    const Decode m_decode;
    QString m_content;
    QComboBox *m_row;
    QTextBrowser *m_text;
    QLabel *m_count;
    QListWidget *m_troubles;
    QTimer m_timer;
    bool m_isStale = true;
    bool m_isPaused = false;
};

} // namespace ozm::editor
