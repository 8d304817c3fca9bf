#pragma once

#include <ozm_audit_widgets/NumberSet.h>
#include <ozm_audit_widgets/TrailModel.h>

#include <QWidget>

#include <functional>
#include <memory>

class QAction;

namespace ozm::audit {

class SigningSession;

/**
 * A trail to be read, searched, filtered, reviewed, signed and handed on.
 *
 *     auto *view = new ozm::audit::TrailView(*store);
 *     view->setLogger(&logger, {u"jdoe"_s, u"Jane Doe"_s, u"analyst"_s});
 *     view->setSigningSession(&session);
 *     view->setSubjectHook([this](const QString &type, const QString &key) { select(type, key); });
 *
 * Without a logger the view only reads; without a session nothing can be signed; without a hook there is no way
 * from an entry to its object. How many entries the filter hides is always shown. Everything can be reached by
 * keyboard: Ctrl+F searches, Ctrl+G goes to a number, Ctrl+C copies the selected rows.
 *
 * Store, logger and session must outlive the view. GUI thread.
 */
class OZM_AUDIT_WIDGETS_EXPORT TrailView : public QWidget
{
    Q_OBJECT

public:
    /// The acts of the view, for menus and tool bars of the application.
    enum class Action
    {
        Sign,
        Review,
        History,
        ShowSubject,
        Print,
        SavePdf,
        SaveCsv,
        Copy, ///< An inspection copy.
        Verify,
        SaveFilter,
        OpenFilter,
        GoTo,
        Details, ///< Shows them or not; at first, where the view is high enough.
    };
    /// Shows the object with a key as the entry has it: type of the subject, and JSON.
    using SubjectHook = std::function<void(const QString &type, const QString &key)>;

    explicit TrailView(Store &store, QWidget *parent = nullptr);
    /// For forms of Qt Designer: empty and disabled until setStore().
    explicit TrailView(QWidget *parent = nullptr);
    ~TrailView() override;

    /// Gives a view of a form its trail and enables it. Call it once, and before the functions below: model and
    /// actions are other ones afterwards.
    void setStore(Store &store);

    /// The rows that the view shows.
    [[nodiscard]] TrailModel &model() const;
    /// Belongs to the view, and is enabled while the act is possible.
    [[nodiscard]] QAction *action(Action action) const;

    /// Signatures, reviews and other acts in this view are recorded by @p logger as done by @p user.
    void setLogger(Logger *logger, const Person &user);
    /// Signatures are made in @p session; null takes the acts away.
    void setSigningSession(SigningSession *session);
    /// Called when the user asks for the object of an entry.
    void setSubjectHook(const SubjectHook &hook);
    /// Copied along with inspection copies.
    void setVerifier(const QString &path);

    /// Shows what @p filter lets through, with its conditions as chips above.
    void setFilter(const TrailFilter &filter);
    /// Shows the entries about one subject only.
    void showSubject(const QString &type, const QString &key);
    /// Selects the entry; shows all entries when the filter hides it.
    void showEntry(qint64 number);
    /// The newest entries, and those that come.
    void showNewest();
    /// The entries that are selected; empty when none is.
    [[nodiscard]] NumberSet selectedNumbers() const;
    /// The entry under the cursor; number 0 when there is none.
    [[nodiscard]] Entry currentEntry() const;

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};

} // namespace ozm::audit
