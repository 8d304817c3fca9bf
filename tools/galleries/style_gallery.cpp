// Pictures of the style for people to look at: style_gallery <folder> [<locale> [<points>]]. Twice the size with
// QT_SCALE_FACTOR=2. Not a test: what looks wrong is for eyes to say.

#include "style/Palettes.h"
#include "window/MainWindow.h"
#include "window/StyleDialog.h"
#include "workbench/SampleFixture.h"

#include <ozm_widgets/OZMDockWidgetTitleBar.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/OzmMessageBox.h>

#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QPainter>
#include <QPushButton>
#include <QTableView>
#include <QtMath>

#include <numeric>

using namespace Qt::StringLiterals;
using ozm::OzmMessageBox;

namespace {

constexpr auto kSignal = ozm::OzmMessageBoxSignal::FirstOfApplication;
constexpr int kGap = 16;

/// Pictures in columns, on one sheet.
QPixmap sheetOf(const QList<QPixmap> &pictures, int columns)
{
    QList<int> widths(columns, 0);
    QList<int> heights;
    for (int i = 0; i < pictures.size(); ++i) {
        const QSizeF size = pictures[i].deviceIndependentSize();
        if (i % columns == 0)
            heights.append(0);
        widths[i % columns] = qMax(widths[i % columns], qCeil(size.width()));
        heights.last() = qMax(heights.last(), qCeil(size.height()));
    }
    const auto total = [](const QList<int> &parts) {
        return std::accumulate(parts.cbegin(), parts.cend(), kGap) + kGap * int(parts.size());
    };
    const qreal ratio = pictures.constFirst().devicePixelRatio();
    QPixmap sheet(QSize(total(widths), total(heights)) * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(QColor(128, 128, 128));
    QPainter painter(&sheet);
    int y = kGap;
    for (int row = 0; row < heights.size(); ++row) {
        int x = kGap;
        for (int column = 0; column < columns && row * columns + column < pictures.size(); ++column) {
            painter.drawPixmap(x, y, pictures[row * columns + column]);
            x += widths[column] + kGap;
        }
        y += heights[row] + kGap;
    }
    return sheet;
}

QPixmap picture(QWidget &widget)
{
    widget.show();
    for (int i = 0; i < 20; ++i)
        QApplication::processEvents();
    return widget.grab();
}

/// The box that @p show brings up, with its details open.
QPixmap boxPicture(const std::function<void()> &show)
{
    QPixmap pixmap;
    QObject context;
    QObject::connect(ozm::OzmCoreApplication::instance(), &ozm::OzmCoreApplication::ozmMessageBoxShown,
                     &context, [&](OzmMessageBox *box) {
                         box->showDetailsIfPresent();
                         pixmap = picture(*box);
                         box->done(0);
                     });
    show();
    return pixmap;
}

QList<QPixmap> boxPictures(QWidget *parent)
{
    const QString plain = u"The run could not be saved. Nothing was changed."_s;
    const DisplayRichString rich(u"<b>3 samples</b> have no sequence:<ul><li>T1</li><li>T7</li></ul>"
                                 u"<a href=\"x\">Why it matters</a>"_s);
    const QString details = u"The disk has 12 MB left; the run needs 1.4 GB.\n/data/runs/2026/11"_s;
    const auto yesNo = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    using O = OZMStyle;
    return {
        boxPicture([=] { O::critical(parent, kSignal, plain); }),
        boxPicture([=] { O::critical(parent, kSignal, u"Run"_s, rich, yesNo, QMessageBox::No, details); }),
        boxPicture([=] { O::warning(parent, kSignal, plain); }),
        boxPicture([=] { O::warning(parent, kSignal, u"Run"_s, rich, yesNo, QMessageBox::No, details); }),
        boxPicture([=] { O::information(parent, kSignal, plain); }),
        boxPicture([=] { O::information(parent, kSignal, rich); }),
        boxPicture([=] { O::question(parent, kSignal, u"Run"_s, plain, yesNo); }),
        boxPicture([=] { O::question(parent, kSignal, u"Run"_s, rich, yesNo, QMessageBox::No, u"Keep"_s); }),
        boxPicture([=] { O::about(parent, u"About"_s, rich); }),
    };
}

/// The boxes of the dialog, in the language of the run.
QList<QPixmap> dialogBoxPictures(const workbench::StyleDialog &dialog)
{
    QList<QPixmap> pictures;
    for (const auto *name : {"showCritical", "showWarning", "showInformation", "showQuestion", "showAbout"}) {
        auto *button = dialog.findChild<QPushButton *>(QString::fromLatin1(name));
        pictures.append(boxPicture([button] { button->click(); }));
    }
    return pictures;
}

QPixmap windowPicture()
{
    ozm::test::SampleFixture fixture;
    workbench::MainWindow window(*fixture.editor, fixture.trailPath());
    (void)fixture.editor->setCell(fixture.idAt(0), kCharge, u"3"_s);
    (void)fixture.editor->renameSamples({fixture.idAt(0), fixture.idAt(1)}, u"R#"_s);
    // One upright title bar beside the lying ones.
    auto *trail = window.findChild<QDockWidget *>(u"trailDock"_s);
    trail->setFeatures(trail->features() | QDockWidget::DockWidgetVerticalTitleBar);
    window.show();
    window.findChild<QTableView *>(u"sampleTable"_s)->selectRow(1);
    return picture(window);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QDir out(QApplication::arguments().value(1, u"."_s));
    QLocale::setDefault(QLocale(QApplication::arguments().value(2, u"en"_s)));
    ozm::OzmCoreApplication::start();
    for (const QString &text : {u"ozm_audit"_s, u"workbench"_s})
        ozm::OzmCoreApplication::loadTranslation(QLocale(), text);
    out.mkpath(u"."_s);
    QFont font = QApplication::font();
    if (const int points = QApplication::arguments().value(3).toInt())
        font.setPointSize(points);
    QApplication::setFont(font);
    for (const auto &[name, palette] : ozm::test::palettes()) {
        const QString suffix = u"-%1-%2-%3pt-%4x.png"_s.arg(name, QLocale().name().left(2))
                                   .arg(font.pointSize())
                                   .arg(application.devicePixelRatio());
        QApplication::setPalette(palette);
        QWidget parent;
        QApplication::setWindowIcon(OZMStyle::icon(u"spectrum"_s));
        sheetOf(boxPictures(&parent), 3).save(out.filePath(u"boxes"_s + suffix));
        windowPicture().save(out.filePath(u"window"_s + suffix));
        workbench::StyleDialog dialog;
        dialog.resize(dialog.size().expandedTo({1440, 900}));
        picture(dialog).save(out.filePath(u"style"_s + suffix));
        dialog.hide();
        sheetOf(dialogBoxPictures(dialog), 3).save(out.filePath(u"examples"_s + suffix));
    }
    return 0;
}
