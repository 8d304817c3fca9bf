#include <ozm_widgets/OZMStyle.h>

#include "style/ContrastStyle.h"
#include "style/StyleIconEngine.h"
#include "style/StylePalette.h"
#include "support/Logging.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QStyle>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QToolTip>

using namespace Qt::StringLiterals;

// Outside all namespaces, where the resource compiler puts its functions. A static build drops resources
// that nobody names.
static void initResources()
{
    Q_INIT_RESOURCE(ozm_widgets_style);
}

namespace {

const QString kIconFolder = u":/style/icons"_s;
const QString kFusion = u"fusion"_s;
// Kept with the application, since that is what it is true of.
constexpr const char *kApplied = "ozmAppliedStyle";

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString sheet()
{
    static const QString sheet = [] {
        initResources();
        const QByteArray bytes = read(u":/style/stylesheet"_s);
        if (bytes.isEmpty())
            OZM_WIDGETS_WARNING() << "The style sheet :/style/stylesheet is missing.";
        return QString::fromUtf8(bytes);
    }();
    return sheet;
}

/// The name of an installed style: @p wanted, or else Fusion, which is part of the toolkit.
QString installedStyle(const QString &wanted)
{
    if (QStyleFactory::keys().contains(wanted, Qt::CaseInsensitive))
        return wanted;
    OZM_WIDGETS_WARNING() << "The style" << wanted << "is not installed; Fusion is used instead.";
    return kFusion;
}

/// Tool tips have a palette of their own, which does not follow the application's.
void followWithToolTips()
{
    QToolTip::setPalette(QApplication::palette());
}

/// Has the sheet's palette roles looked up again when the palette changes, which the toolkit does not do.
class PaletteFollower : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == qApp && event->type() == QEvent::ApplicationPaletteChange && !m_busy) {
            m_busy = true;
            followWithToolTips();
            // Never to none in between: after that the toolkit keeps docks that are gone, and the next sheet that
            // anyone sets ends the program.
            const QString current = qApp->styleSheet();
            qApp->setStyleSheet(current + u' ');
            qApp->setStyleSheet(current);
            m_busy = false;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_busy = false;
};

void followPalette()
{
    const QString name = u"ozmPaletteFollower"_s;
    if (qApp->findChild<QObject *>(name, Qt::FindDirectChildrenOnly))
        return;
    auto *follower = new PaletteFollower(qApp);
    follower->setObjectName(name);
    qApp->installEventFilter(follower);
}

} // namespace

std::unique_ptr<ozm::StyleIconEngine> ozm::loadStyleIcon(const QString &name)
{
    initResources();
    const QByteArray svg = read(kIconFolder + u'/' + name + u".svg"_s);
    if (svg.isEmpty() || !QSvgRenderer(svg).isValid())
        return nullptr;
    return std::make_unique<StyleIconEngine>(name, svg);
}

bool ozm::isStyleApplied()
{
    return qApp->property(kApplied).isValid();
}

void OZMStyle::apply(const QString &style)
{
    if (qApp->property(kApplied).toString() == style && qApp->styleSheet() == sheet())
        return;
    const QString installed = installedStyle(style);
    if (installed.compare(kFusion, Qt::CaseInsensitive) == 0)
        QApplication::setStyle(new ozm::ContrastStyle);
    else
        QApplication::setStyle(installed);
    qApp->setStyleSheet(sheet());
    qApp->setProperty(kApplied, style);
    followPalette();
    followWithToolTips();
}

QPalette OZMStyle::palette(Scheme scheme)
{
    return ozm::stylePalette(scheme == Scheme::Dark);
}

OZMStyle::Scheme OZMStyle::scheme(const QPalette &palette)
{
    const bool dark =
        palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
    return dark ? Scheme::Dark : Scheme::Light;
}

QIcon OZMStyle::icon(const QString &name)
{
    static QHash<QString, QIcon> icons;
    if (const auto known = icons.constFind(name); known != icons.cend())
        return *known;
    if (auto engine = ozm::loadStyleIcon(name))
        return *icons.insert(name, QIcon(engine.release()));
    // Not kept: the theme may change.
    if (QIcon::hasThemeIcon(name))
        return QIcon::fromTheme(name);
    qCDebug(lcOzmWidgets) << "No icon has the name" << name;
    return {};
}

QStringList OZMStyle::iconNames()
{
    initResources();
    QStringList names = QDir(kIconFolder).entryList({u"*.svg"_s}, QDir::Files, QDir::Name);
    for (QString &name : names)
        name.chop(4);
    return names;
}
