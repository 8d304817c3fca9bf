// Pictures of the file dialogs for people to look at: files_gallery <folder>. Twice the size with
// QT_SCALE_FACTOR=2. Not a test: what looks wrong is for eyes to say.

#include "../core_ms/SampleTree.h"
#include "DialogDriver.h"

#include <ozm_widgets/FileCrawlerDialog.h>
#include <ozm_widgets/FileDialog.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/SpectrumFileDialog.h>
#include <ozm_widgets/openfilefolderdialog.h>

#include <QLabel>
#include <QPainter>
#include <QProgressBar>

using namespace Qt::StringLiterals;
using namespace ozm::test;

namespace {

constexpr int kGap = 16;
constexpr int kWidth = 1360;

/// Pictures in rows as wide as the sheet.
QPixmap sheetOf(const QList<QPixmap> &pictures)
{
    const qreal ratio = pictures.constFirst().devicePixelRatio();
    QPixmap sheet(QSize(kWidth, 2000) * ratio);
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
    dialog.setNameFilters({u"MS data (*.mzml *.raw *.wiff *.d)"_s, u"All files (*)"_s});
    dialog.selectNameFilter(u"All files (*)"_s);
    dialog.show();
    const FileDialogDriver driver(&dialog);
    Qt::KeyboardModifiers keys;
    for (const QString &pick : picks) {
        (void)driver.click(tree.path(pick), keys);
        keys = Qt::ControlModifier;
    }
    dialog.setViewMode(mode);
    const auto *label = dialog.findChild<QLabel *>(u"recognition"_s);
    (void)QTest::qWaitFor([label] { return !label->text().isEmpty(); });
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

QPixmap finderPicture(const SampleTree &tree, bool isSearching)
{
    FileCrawlerDialog finder;
    finder.findChild<QLineEdit *>(u"crawlPathLine"_s)->setText(isSearching ? tree.path() : QString());
    QPixmap pixmap;
    if (isSearching) {
        // While accept() searches; the answer to the box that follows ends it.
        QTimer::singleShot(0, &finder, [&] { pixmap = finder.grab(); });
        const DialogDriver driver({[](QDialog *box) { box->reject(); }, [](QDialog *box) { box->reject(); }});
        finder.setAskForDestinationPath(true);
        finder.show();
        finder.accept();
        return pixmap;
    }
    return picture(finder);
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

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const FileStateGuard guard;
    const QDir out(QApplication::arguments().value(1, u"."_s));
    out.mkpath(u"."_s);
    ozm::OzmCoreApplication::start();
    const SampleTree tree;
    tree.make({u"Day 1/x.mzml"_s, u"Run 12.d/AcqData/"_s, u"Run 13.d/analysis.tdf"_s, u"Empty.d/"_s,
               u"HeLa 200 ng.mzml"_s, u"blank.raw"_s, u"results.csv"_s, u"notes.txt"_s,
               u"A long name, as instruments give them, with sample, date, operator and method.mzml"_s});
    for (const auto scheme : {OZMStyle::Scheme::Light, OZMStyle::Scheme::Dark}) {
        QApplication::setPalette(OZMStyle::palette(scheme));
        const QList<QPixmap> pictures{
            spectrumPicture(tree, {u"Run 12.d"_s}, QFileDialog::Detail),
            spectrumPicture(tree, {u"Run 12.d"_s, u"HeLa 200 ng.mzml"_s, u"Empty.d"_s}, QFileDialog::List),
            savePicture(tree),
            folderPicture(tree),
            finderPicture(tree, false),
            finderPicture(tree, true),
            promptPicture({}, tree.path(u"results.csv"_s)),
            promptPicture(u"The disk is full."_s, tree.path(u"results.csv"_s)),
            boxPicture([&] { (void)FileDialog::checkIfFileCanBeOpenToWrite(nullptr, tree.path()); }),
        };
        const QString name = scheme == OZMStyle::Scheme::Dark ? u"dark"_s : u"light"_s;
        sheetOf(pictures).save(
            out.filePath(u"files-%1-%2x.png"_s.arg(name).arg(application.devicePixelRatio())));
    }
    return 0;
}
