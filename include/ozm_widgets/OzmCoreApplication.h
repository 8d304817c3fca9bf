#pragma once

#include <ozm_widgets/ozm_widgets_export.h>

#include <QLocale>
#include <QObject>
#include <QString>

namespace ozm {

class OzmMessageBox;

/**
 * Settings that an application and this library share: one object per process, beside whichever QApplication there is.
 *
 *     QApplication application(argc, argv);
 *     ozm::OzmCoreApplication::start();   // style and translation
 *     ozm::OzmCoreApplication::loadTranslation(QLocale(), u"application"_s);   // its own, if it has one
 *
 *     connect(ozm::OzmCoreApplication::instance(), &ozm::OzmCoreApplication::ozmMessageBoxShown, this,
 *             [](ozm::OzmMessageBox *box) { journal(box->signal(), box->text()); });
 */
class OZM_WIDGETS_EXPORT OzmCoreApplication : public QObject
{
    Q_OBJECT

public:
    /// Made with the first call; never null.
    [[nodiscard]] static OzmCoreApplication *instance();

    /// Applies the style, see OZMStyle::apply(), and loads the library's translation into the user's
    /// language. To be called once the QApplication is there.
    static void start(const QString &style = QStringLiteral("fusion"));

    /// Has this library, and the toolkit below it, speak the language of @p locale instead of the one
    /// before: English, French or German. An application loads its own texts by their @p name:
    /// ":/i18n/<name>_<language>.qm". False without a translation into that language: the texts are
    /// English then, the toolkit's too unless another file of texts speaks a language. GUI thread.
    static bool loadTranslation(const QLocale &locale, const QString &name = QStringLiteral("ozm_widgets"));

    /// The user of the application, for the audit trail: the name that was set, or else the name by which the
    /// operating system knows the account that the process runs under. Where it knows none, the environment
    /// (USER, USERNAME, LOGNAME) is believed; "unknown" when that is silent too. Any thread.
    [[nodiscard]] static QString userName();
    /// Empty goes back to the operating system's name. Any thread.
    static void setUserName(const QString &name);

Q_SIGNALS:
    /// Once each time a box is shown, from the GUI thread, with the box visible and its event loop running.
    /// A slot may answer the box: box->button(QMessageBox::Yes)->click().
    void ozmMessageBoxShown(ozm::OzmMessageBox *box);

private:
    OzmCoreApplication();
    ~OzmCoreApplication() override;
};

} // namespace ozm
