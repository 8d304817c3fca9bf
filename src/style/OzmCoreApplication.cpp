#include <ozm_widgets/OzmCoreApplication.h>

#include <ozm_widgets/OZMStyle.h>

#include "style/SystemUser.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QMutex>
#include <QThread>
#include <QTranslator>

#include <algorithm>
#include <array>
#include <memory>

using namespace Qt::StringLiterals;

static void initTranslations()
{
    // A static build drops resources that nobody names.
    Q_INIT_RESOURCE(ozm_widgets_translations);
}

namespace ozm {

namespace {

struct User
{
    QMutex mutex;
    QString name;
};

User &user()
{
    static User user;
    return user;
}

QString userOfSystem()
{
    // Anyone can set a variable, so it counts only where the system knows nobody. A directory service may take
    // its time, and is asked once.
    static const QString known = systemUserName();
    if (!known.isEmpty())
        return known;
    for (const char *variable : {"USER", "USERNAME", "LOGNAME"}) {
        QString name = qEnvironmentVariable(variable);
        if (!name.isEmpty())
            return name;
    }
    return u"unknown"_s;
}

const QString kTranslators = u"ozmTranslator/"_s;
const QString kToolkit = u"qtbase"_s;
const QString kTexts = u":/i18n"_s;

// Texts that some of the toolkit's own translations lack, though its dialogs show them; lupdate finds them here.
[[maybe_unused]] constexpr std::array kTextsOfToolkit{
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Alias"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Drive"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "File"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "File Folder"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Folder"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Shortcut"),
    QT_TRANSLATE_NOOP("QAbstractFileIconProvider", "Unknown"),
    QT_TRANSLATE_NOOP("QPrintDialog", "Duplex Settings Conflicts"),
    QT_TRANSLATE_NOOP("QPrintDialog", "Invalid Pages Definition"),
    QT_TRANSLATE_NOOP("QPrintDialog", "There are conflicts in duplex settings. Do you want to fix them?"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Double Sided Printing"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Long side binding"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Off"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Pages"),
    QT_TRANSLATE_NOOP("QPrintSettingsOutput", "Short side binding"),
};

void uninstall(const QString &file)
{
    delete qApp->findChild<QTranslator *>(kTranslators + file, Qt::FindDirectChildrenOnly);
}

/// Loads <file>_<language>.qm in place of what was loaded of that file before; false when there is none.
bool install(const QString &file, const QLocale &locale, const QString &folder)
{
    uninstall(file);
    auto translator = std::make_unique<QTranslator>(qApp);
    translator->setObjectName(kTranslators + file);
    if (!translator->load(locale, file, u"_"_s, folder))
        return false;
    return QCoreApplication::installTranslator(translator.release());
}

/// True while a file of texts, other than the toolkit's, speaks a language of its own.
bool isAnyForeign()
{
    const auto all = qApp->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly);
    return std::ranges::any_of(all, [](const QTranslator *translator) {
        return translator->objectName().startsWith(kTranslators) &&
               translator->objectName() != kTranslators + kToolkit &&
               QLocale(translator->language()).language() != QLocale::English;
    });
}

} // namespace

OzmCoreApplication::OzmCoreApplication()
{
    // Whoever asks first, the object belongs to the GUI thread.
    if (qApp && qApp->thread() != thread())
        moveToThread(qApp->thread());
}

OzmCoreApplication::~OzmCoreApplication() = default;

OzmCoreApplication *OzmCoreApplication::instance()
{
    static OzmCoreApplication application;
    return &application;
}

void OzmCoreApplication::start(const QString &style)
{
    OZMStyle::apply(style);
    (void)loadTranslation(QLocale());
}

bool OzmCoreApplication::loadTranslation(const QLocale &locale, const QString &name)
{
    initTranslations();
    if (install(name, locale, kTexts)) {
        install(kToolkit, locale, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return true;
    }
    // The texts in the sources are English, but for the forms that a number decides on.
    install(name, QLocale::English, kTexts);
    // The toolkit alone would put its words between English ones.
    if (!isAnyForeign())
        uninstall(kToolkit);
    return false;
}

QString OzmCoreApplication::userName()
{
    const QMutexLocker lock(&user().mutex);
    return user().name.isEmpty() ? userOfSystem() : user().name;
}

void OzmCoreApplication::setUserName(const QString &name)
{
    const QMutexLocker lock(&user().mutex);
    user().name = name;
}

} // namespace ozm
