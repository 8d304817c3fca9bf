// Pictures of the file dialogs for people to look at: files_gallery <folder> [<locale> [<points>]]. Twice the size
// with QT_SCALE_FACTOR=2. Not a test: what looks wrong is for eyes to say.

#include "core_ms/SampleTree.h"
#include "files/FileDialogDriver.h"
#include "style/Palettes.h"
#include "support/WithoutRights.h"

#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/FileDialog.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/SpectrumFileDialog.h>
#include <ozm_widgets/openfilefolderdialog.h>

#include <QCheckBox>
#include <QLabel>
#include <QPainter>

using namespace Qt::StringLiterals;
using namespace ozm::test;

namespace {

constexpr int kGap = 16;
constexpr int kWidth = 1880;

/// Pictures in rows as wide as the sheet.
QPixmap sheetOf(const QList<QPixmap> &pictures)
{
    const qreal ratio = pictures.constFirst().devicePixelRatio();
    QPixmap sheet(QSize(kWidth, 9000) * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(QColor(128, 128, 128));
    QPainter painter(&sheet);
    QPoint at(kGap, kGap);
    int height = 0;
    for (const QPixmap &picture : pictures) {
        const QSize size = picture.deviceIndependentSize().toSize();
        if (at.x() + size.width() > kWidth) {
            at = {kGap, at.y() + height + kGap};
            height = 0;
        }
        painter.drawPixmap(at, picture);
        at.rx() += size.width() + kGap;
        height = qMax(height, size.height());
    }
    painter.end();
    return sheet.copy(QRect(QPoint(), QSize(kWidth, at.y() + height + kGap) * ratio));
}

QPixmap picture(QWidget &widget)
{
    widget.show();
    (void)QTest::qWaitForWindowExposed(&widget);
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents();
    return widget.grab();
}

QPixmap spectrumPicture(const SampleTree &tree, const QStringList &picks, QFileDialog::ViewMode mode)
{
    SpectrumFileDialog dialog;
    dialog.setWindowTitle(u"Open MS data"_s);
    dialog.setDirectory(tree.path());
    dialog.setNameFilters({u"MS data (*.mzml *.raw *.wiff *.d)"_s, u"All files (*)"_s,
                           u"MS data ("_s + QStringList(40, u"*.mzml"_s).join(u' ') + u')'});
    dialog.selectNameFilter(dialog.nameFilters().at(picks.isEmpty() ? 2 : 1));
    dialog.show();
    const FileDialogDriver driver(&dialog);
    Qt::KeyboardModifiers keys;
    for (const QString &pick : picks) {
        (void)driver.click(tree.path(pick), keys);
        keys = Qt::ControlModifier;
    }
    dialog.setViewMode(mode);
    const auto *label = dialog.findChild<QLabel *>(u"recognition"_s);
    (void)QTest::qWaitFor([label] { return !label || !label->toolTip().isEmpty(); });
    return picture(dialog);
}

QPixmap savePicture(const SampleTree &tree)
{
    FileDialog dialog(nullptr, u"Save table"_s, tree.path(), u"Tables (*.csv)"_s);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.show();
    FileDialogDriver(&dialog).type(u"results"_s);
    return picture(dialog);
}

QPixmap folderPicture(const SampleTree &tree)
{
    FileDialog dialog(nullptr, u"Find MS data"_s, tree.path());
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOptions(QFileDialog::ShowDirsOnly);
    return picture(dialog);
}

/// The finder as it comes up, in the middle of a search, and after one that was canceled.
QList<QPixmap> finderPictures(const SampleTree &large)
{
    QList<QPixmap> pictures;
    const DialogDriver driver({[&](QDialog *dialog) {
        pictures.append(picture(*dialog));
        dialog->findChild<QLineEdit *>(u"crawlPathLine"_s)->setText(large.path());
        dialog->findChild<QCheckBox *>(u"enableRecursiveSearch"_s)->setChecked(true);
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, dialog, [&] {
            const QString status = dialog->findChild<QLabel *>(u"searchStatus"_s)->text();
            if (status.isEmpty() || status.contains(": 0."_L1))
                return;
            poll.stop();
            pictures.append(dialog->grab());
            dialog->reject();
        });
        poll.start(0);
        dialog->accept();
        pictures.append(picture(*dialog));
        dialog->reject();
    }});
    (void)FileCrawlerDialog::generateMSDataPaths(nullptr);
    return pictures;
}

/// The finder's message about folders that it cannot read.
QPixmap passedOverPicture()
{
    const SampleTree tree;
    tree.make({u"a.mzml"_s, u"Service/x.mzml"_s, u"Private/x.mzml"_s});
    setMode(tree.path(), 0755);
    for (const QString &name : {u"Service"_s, u"Private"_s})
        setMode(tree.path(name), 0);
    QPixmap pixmap;
    {
        const WithoutRights nobody;
        const DialogDriver driver(
            {[&](QDialog *dialog) {
                 dialog->findChild<QLineEdit *>(u"crawlPathLine"_s)->setText(tree.path());
                 dialog->findChild<QCheckBox *>(u"enableRecursiveSearch"_s)->setChecked(true);
                 dialog->accept();
             },
             [&](QDialog *box) {
                 pixmap = picture(*box);
                 box->accept();
             }});
        (void)FileCrawlerDialog::generateMSDataPaths(nullptr);
    }
    for (const QString &name : {u"Service"_s, u"Private"_s})
        setMode(tree.path(name), 0755);
    return pixmap;
}

QPixmap promptPicture(const QString &error, const QString &file)
{
    openfilefolderdialog prompt(nullptr, error, file, {}, true, true);
    return picture(prompt);
}

QPixmap boxPicture(const std::function<void()> &show)
{
    QPixmap pixmap;
    const DialogDriver driver({[&](QDialog *box) {
        pixmap = picture(*box);
        box->accept();
    }});
    show();
    return pixmap;
}

} // namespace

// A picture that cannot be made may end it.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const FileStateGuard guard;
    const QDir out(QApplication::arguments().value(1, u"."_s));
    out.mkpath(u"."_s);
    QLocale::setDefault(QLocale(QApplication::arguments().value(2, u"en"_s)));
    ozm::OzmCoreApplication::start();
    QFont font = QApplication::font();
    if (const int points = QApplication::arguments().value(3).toInt())
        font.setPointSize(points);
    QApplication::setFont(font);
    const SampleTree tree;
    tree.make({u"Day 1/x.mzml"_s, u"Run 12.d/AcqData/"_s, u"Run 13.d/analysis.tdf"_s, u"Empty.d/"_s,
               u"HeLa 200 ng.mzml"_s, u"blank.raw"_s, u"results.csv"_s, u"notes.txt"_s,
               u"A long name, as instruments give them, with sample, date, operator and method.mzml"_s});
    const SampleTree large;
    for (int i = 0; i < 5000; ++i)
        large.makeOne(u"Day %1/x.mzml"_s.arg(i));
    for (const auto &[name, palette] : palettes()) {
        QApplication::setPalette(palette);
        QList<QPixmap> pictures{
            spectrumPicture(tree, {}, QFileDialog::Detail),
            spectrumPicture(tree, {u"Empty.d"_s}, QFileDialog::Detail),
            spectrumPicture(tree, {u"Run 12.d"_s, u"HeLa 200 ng.mzml"_s, u"Empty.d"_s}, QFileDialog::List),
            savePicture(tree),
            folderPicture(tree),
            promptPicture({}, tree.path(u"results.csv"_s)),
            promptPicture(u"The disk is full."_s, tree.path(u"results.csv"_s)),
            boxPicture([&] { (void)FileDialog::checkIfFileCanBeOpenToWrite(nullptr, tree.path()); }),
        };
        pictures += finderPictures(large);
        pictures.append(passedOverPicture());
        sheetOf(pictures).save(out.filePath(u"files-%1-%2-%3pt-%4x.png"_s.arg(name, QLocale().name().left(2))
                                                .arg(font.pointSize())
                                                .arg(application.devicePixelRatio())));
    }
    return 0;
}
