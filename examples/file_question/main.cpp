// A question for a file to save to, and a table written there: file_question [answer]
//
// With an answer no dialog is shown, as in a test or a batch.

#include <ozm_common_core/AutomationKeys.h>
#include <ozm_common_core_mini/AutomationStore.h>
#include <ozm_widgets/DefaultWidgetCreator.h>

#include <QApplication>
#include <QTextStream>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (argc > 1)
        as::setValue(AUTOMATION_OZMFILEDIALOG_SAVE_FILE_NAME_KEY, QString::fromLocal8Bit(argv[1]));

    // At start-up; an application that keeps its files elsewhere installs a creator of its own.
    ozm::DefaultWidgetCreator::initialize();

    const auto accessor = ozm::DefaultWidgetCreator::fileAccessor();
    const auto location = accessor->getSaveFileName(nullptr, u"Save table"_s, {},
                                                    FileExtensionsNameFilter(u"CSV files (*.csv)"_s), {});
    if (location.isCanceled())
        return 0;
    const QList<QList<QString>> rows{{u"Name"_s, u"Charge"_s}, {u"T12"_s, u"2"_s}};
    const ozm::Error error = accessor->saveCsvFile(location, rows, u"\""_s, u',');
    QTextStream(stdout) << (error.hasError() ? error.errorMessage() : u"Saved to "_s + location.toString())
                        << Qt::endl;
    return error.hasError() ? 1 : 0;
}
