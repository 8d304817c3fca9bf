#include "window/FileQuestions.h"

#include <ozm_widgets/DefaultWidgetCreator.h>
#include <ozm_widgets/openfilefolderdialog.h>

#include <QCoreApplication>
#include <QPointer>
#include <QSettings>
#include <QWidget>

using namespace Qt::StringLiterals;
using ozm::DefaultWidgetCreator;
using ozm::Error;

namespace workbench::files {

namespace {

using DirLocation = FileSystemSettings::DirLocation;

constexpr auto kSwitch = "OZM_USE_QT_FILE_DIALOG";
constexpr auto kSetting = "toolkitFileDialogs"_L1;

QString tr(const char *text)
{
    return QCoreApplication::translate("workbench::files", text);
}

DirLocation samplesLocation()
{
    static const DirLocation location = FileSystemSettings::addLocation(u"samples"_s);
    return location;
}

DirLocation dataLocation()
{
    static const DirLocation location = FileSystemSettings::addLocation(u"data"_s);
    return location;
}

DirLocation trailLocation()
{
    static const DirLocation location = FileSystemSettings::addLocation(u"trail"_s);
    return location;
}

DirLocation reportLocation()
{
    static const DirLocation location = FileSystemSettings::addLocation(u"reports"_s);
    return location;
}

DirLocation templateLocation()
{
    // By this name the template editor remembers its folder.
    static const DirLocation location = FileSystemSettings::addLocation(u"templates"_s);
    return location;
}

FileExtensionsNameFilter samplesFilter()
{
    return FileExtensionsNameFilter(tr("Samples (*.csv)"));
}

FileExtensionsNameFilter dataFilter()
{
    FileExtensionsNameFilter filter;
    if (const auto data = FileTypes::find(u"MS"_s))
        filter.add(tr("MS data"), *data);
    return filter.add(FileExtensionsNameFilter(tr("All files (*)")));
}

QSettings settings()
{
    return QSettings(QCoreApplication::applicationName(), QCoreApplication::applicationName());
}

} // namespace

QString askSamples(QWidget *parent, const QString &current)
{
    return DefaultWidgetCreator::fileAccessor()->getOpenFileName(parent, tr("Open samples"), current,
                                                                 samplesFilter(), samplesLocation());
}

QStringList askData(QWidget *parent, const QString &folder)
{
    return DefaultWidgetCreator::fileAccessor()->getOpenFileNames(parent, tr("Open MS data"), folder,
                                                                  dataFilter(), nullptr, {}, dataLocation());
}

QString askDataFolder(QWidget *parent)
{
    return DefaultWidgetCreator::fileAccessor()->getExistingDirectory(
        parent, tr("Find MS data"), {}, QFileDialog::ShowDirsOnly, dataLocation());
}

Location askSaveSamples(QWidget *parent, const QString &current)
{
    return DefaultWidgetCreator::fileAccessor()->getSaveFileName(parent, tr("Save samples"), current,
                                                                 samplesFilter(), samplesLocation());
}

Location askExportTrail(QWidget *parent)
{
    return DefaultWidgetCreator::fileAccessor()->getSaveFileName(
        parent, tr("Export audit trail"), {}, u"audit.json"_s,
        FileExtensionsNameFilter(tr("JSON (*.json);;Table (*.csv)")), nullptr, {}, trailLocation());
}

QString askOpenTemplate(QWidget *parent)
{
    return DefaultWidgetCreator::fileAccessor()->getOpenFileName(
        parent, tr("Choose template"), {}, FileExtensionsNameFilter(tr("Templates (*.ozt *.html *.txt)")),
        templateLocation());
}

Location askSaveReport(QWidget *parent, const QString &name)
{
    return DefaultWidgetCreator::fileAccessor()->getSaveFileName(
        parent, tr("Save report"), {}, name, FileExtensionsNameFilter(tr("PDF (*.pdf);;HTML (*.html)")),
        nullptr, {}, reportLocation());
}

QString askReportFolder(QWidget *parent)
{
    return DefaultWidgetCreator::fileAccessor()->getExistingDirectory(
        parent, tr("Save reports in folder"), {}, QFileDialog::ShowDirsOnly, reportLocation());
}

Error save(QWidget *parent, const Location &location, const ozm::IFileAccessor::Writer &writer)
{
    const QPointer<QWidget> owner(parent);
    Error error = DefaultWidgetCreator::fileAccessor()->saveFile(location, writer);
    if (error.hasError() || !owner)
        return error;
    const QPointer<openfilefolderdialog> prompt =
        new openfilefolderdialog(parent, {}, location.toString(), {}, true, true);
    prompt->exec();
    delete prompt.data();
    return error;
}

bool usesToolkitDialogs()
{
    return qEnvironmentVariableIntValue(kSwitch) > 0;
}

void setUsesToolkitDialogs(bool on)
{
    qputenv(kSwitch, on ? "1" : "0");
    settings().setValue(kSetting, on);
}

void restoreDialogChoice()
{
    if (!qEnvironmentVariableIsSet(kSwitch) && settings().value(kSetting, false).toBool())
        qputenv(kSwitch, "1");
}

} // namespace workbench::files
