#include "Palettes.h"
#include "support/StrictTest.h"

#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/OZMDockWidgetTitleBar.h>
#include <ozm_widgets/OZMStyle.h>
#include <ozm_widgets/OzmCoreApplication.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QApplication>
#include <QCheckBox>
#include <QDockWidget>
#include <QFile>
#include <QLoggingCategory>
#include <QMainWindow>
#include <QPainter>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSet>
#include <QStyle>
#include <QStyleFactory>
#include <QTableWidget>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <QXmlStreamReader>

#include <cmath>
#include <memory>

using namespace Qt::StringLiterals;
using namespace ozm::test;
using Scheme = OZMStyle::Scheme;

namespace {

/// The colour that a picture is drawn in: of all its pixels, the one that covers most.
QColor inkOf(const QPixmap &pixmap)
{
    const QImage image = pixmap.toImage();
    QColor ink(Qt::transparent);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            if (image.pixelColor(x, y).alpha() > ink.alpha())
                ink = image.pixelColor(x, y);
    }
    return ink;
}

bool isClose(const QColor &a, const QColor &b)
{
    constexpr int kRounding = 4;
    return qAbs(a.red() - b.red()) <= kRounding && qAbs(a.green() - b.green()) <= kRounding &&
           qAbs(a.blue() - b.blue()) <= kRounding;
}

double luminance(const QColor &color)
{
    const auto linear = [](double c) {
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

double contrast(const QPalette &palette, QPalette::ColorRole a, QPalette::ColorRole b)
{
    return contrast(palette.color(a), palette.color(b));
}

/// The number of pixels that can be told from @p ground.
int visiblePixels(const QImage &image, const QColor &ground)
{
    constexpr double kVisible = 3.0;
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += contrast(image.pixelColor(x, y), ground) >= kVisible ? 1 : 0;
    return count;
}

/// Under a style sheet the style has no name, but still its measures.
bool isStyle(const QString &name)
{
    const std::unique_ptr<QStyle> style(QStyleFactory::create(name));
    for (const auto metric :
         {QStyle::PM_ToolBarIconSize, QStyle::PM_SliderThickness, QStyle::PM_MenuBarVMargin,
          QStyle::PM_ScrollBarSliderMin, QStyle::PM_DefaultFrameWidth})
        if (QApplication::style()->pixelMetric(metric) != style->pixelMetric(metric))
            return false;
    return true;
}

/// Places for values and the key: each language must keep them.
QSet<QString> marksOf(const QString &text)
{
    static const QRegularExpression kMark(u"%L?[0-9n]|\\[\\*\\]|&(?=\\S)|;;"_s);
    QSet<QString> marks;
    for (const QRegularExpressionMatch &match : kMark.globalMatch(text))
        marks.insert(match.captured());
    return marks;
}

/// Texts of a file that are not translated, or whose translation lost a mark.
QStringList faultsOfTexts(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {path};
    QStringList faults;
    QString source;
    for (QXmlStreamReader xml(&file); !xml.atEnd(); xml.readNext()) {
        if (xml.isStartElement() && xml.name() == "source"_L1)
            source = xml.readElementText();
        if (!xml.isStartElement() || xml.name() != "translation"_L1)
            continue;
        const bool isUnfinished = xml.attributes().hasAttribute(u"type"_s);
        const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        if (isUnfinished || marksOf(text) != marksOf(source))
            faults.append(source);
    }
    return faults;
}

struct Dock
{
    Dock()
        : dock(new QDockWidget(u"History"_s, &window))
        , bar(new OZMDockWidgetTitleBar(dock))
    {
        dock->setTitleBarWidget(bar);
        dock->setWidget(new QWidget);
        window.setCentralWidget(new QWidget);
        window.addDockWidget(Qt::LeftDockWidgetArea, dock);
        window.resize(600, 400);
        window.show();
    }
    [[nodiscard]] QToolButton *button(const QString &name) const
    {
        return bar->findChild<QToolButton *>(name);
    }

    QMainWindow window;
    QDockWidget *dock;
    OZMDockWidgetTitleBar *bar;
};

struct Panes
{
    Panes(Qt::Orientation orientation, Qt::LayoutDirection direction)
        : splitter(orientation)
    {
        splitter.setLayoutDirection(direction);
        splitter.addWidget(new QWidget);
        splitter.addWidget(new QWidget);
        splitter.resize(407, 407);
        splitter.setSizes({100, 300});
        splitter.show();
    }
    [[nodiscard]] int first() const { return splitter.sizes().constFirst(); }
    [[nodiscard]] ozm::BlackSplitterHandle *handle() const
    {
        return qobject_cast<ozm::BlackSplitterHandle *>(splitter.handle(1));
    }

    ozm::BlackSplitter splitter;
};

} // namespace

class TestStyle : public ozm::test::StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(OZMStyle::palette(Scheme::Light)); }

    void applyOnceAndOnlyOnce()
    {
        OZMStyle::apply();
        QVERIFY(isStyle(u"fusion"_s));
        QVERIFY(qApp->styleSheet().contains("QToolBar"_L1));
        // A handler that someone else installed is replaced.
        qApp->setStyleSheet(u"QPushButton { color: red }"_s);
        OZMStyle::apply();
        QVERIFY(!qApp->styleSheet().contains("red"_L1));
    }

    void missingStyleFallsBack()
    {
        OZMStyle::apply(u"windows"_s);
        QVERIFY(isStyle(u"windows"_s) && !isStyle(u"fusion"_s));
        expectWarning(u"The style \"nonesuch\" is not installed"_s);
        OZMStyle::apply(u"nonesuch"_s);
        QVERIFY(isStyle(u"fusion"_s));
        // One warning, not one a call.
        OZMStyle::apply(u"nonesuch"_s);
        OZMStyle::apply(u"Fusion"_s);
    }

    void sheetFollowsThePalette()
    {
        OZMStyle::apply();
        QToolBar bar;
        bar.resize(200, 40);
        const auto border = [&bar] { return bar.grab().toImage().pixelColor(100, 39); };
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark, Scheme::Light}) {
            QApplication::setPalette(OZMStyle::palette(scheme));
            QCOMPARE(OZMStyle::scheme(QApplication::palette()), scheme);
            QCOMPARE(border(), OZMStyle::palette(scheme).color(QPalette::Mid));
            for (const auto role : {QPalette::ToolTipBase, QPalette::ToolTipText})
                QCOMPARE(QToolTip::palette().color(role), OZMStyle::palette(scheme).color(role));
        }
    }

    void palettesAreReadable()
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark})
            checkContrasts(OZMStyle::palette(scheme));
    }

private:
    static void checkContrasts(const QPalette &palette)
    {
        constexpr double kReadable = 4.5;
        const QList<std::pair<QPalette::ColorRole, QPalette::ColorRole>> pairs{
            {QPalette::WindowText, QPalette::Window},
            {QPalette::Text, QPalette::Base},
            {QPalette::Text, QPalette::AlternateBase},
            {QPalette::ButtonText, QPalette::Button},
            {QPalette::HighlightedText, QPalette::Highlight},
            {QPalette::ToolTipText, QPalette::ToolTipBase},
            {QPalette::Link, QPalette::Base},
            {QPalette::PlaceholderText, QPalette::Base},
            {QPalette::WindowText, QPalette::Midlight},
        };
        for (const auto &[text, ground] : pairs)
            QVERIFY2(
                contrast(palette, text, ground) >= kReadable,
                qPrintable(u"%1 on %2: %3"_s.arg(text).arg(ground).arg(contrast(palette, text, ground))));
        // Drawings need less than text: the ring of the focus, and icons that are disabled.
        constexpr double kVisible = 3.0;
        QPalette disabled = palette;
        disabled.setCurrentColorGroup(QPalette::Disabled);
        QVERIFY(contrast(palette, QPalette::Highlight, QPalette::Window) >= kVisible);
        QVERIFY(contrast(disabled, QPalette::WindowText, QPalette::Window) >= kVisible);
    }

private Q_SLOTS:
    void drawingsAreSeen_data()
    {
        QTest::addColumn<QPalette>("palette");
        for (const auto &[name, colors] : palettes())
            QTest::addRow("%s", qPrintable(name)) << colors;
    }

    void drawingsAreSeen()
    {
        QFETCH(const QPalette, palette);
        OZMStyle::apply();
        QApplication::setPalette(palette);
        const QColor window = palette.color(QPalette::Window);
        QCheckBox box;
        QRadioButton radio;
        // Most of an outline around 13 pixels.
        for (QWidget *button : {static_cast<QWidget *>(&box), static_cast<QWidget *>(&radio)}) {
            const int outline = visiblePixels(button->grab().toImage(), window);
            QVERIFY2(outline > 30, qPrintable(u"%1"_s.arg(outline)));
        }

        QToolBar bar;
        for (int i = 0; i < 9; ++i)
            bar.addAction(u"A long name of an action"_s);
        bar.resize(300, 40);
        bar.show();
        auto *more = bar.findChild<QToolButton *>(u"qt_toolbar_ext_button"_s);
        QTRY_VERIFY(more->isVisible());
        const QImage arrow = more->grab().toImage();
        const QRect inside = arrow.rect().adjusted(1, 1, -1, -1);
        QVERIFY(visiblePixels(arrow.copy(inside), arrow.pixelColor(inside.topLeft())) > 12);

        const QColor highlight = palette.color(QPalette::Highlight);
        for (const QString &name : OZMStyle::iconNames()) {
            QImage image(16, 16, QImage::Format_RGB32);
            image.fill(highlight);
            QPainter painter(&image);
            OZMStyle::icon(name).paint(&painter, image.rect(), Qt::AlignCenter, QIcon::Selected);
            painter.end();
            QVERIFY2(visiblePixels(image, highlight) >= 8, qPrintable(name));
        }
    }

    void everyIconIsDrawn()
    {
        const QStringList names = OZMStyle::iconNames();
        QVERIFY(names.size() > 80);
        for (const QString &name : names) {
            const QImage image = OZMStyle::icon(name).pixmap(24).toImage();
            int inked = 0;
            bool touchesEdge = false;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    const bool ink = image.pixelColor(x, y).alpha() > 128;
                    inked += ink ? 1 : 0;
                    touchesEdge |= ink && (x == 0 || y == 0 || x == 23 || y == 23);
                }
            }
            QVERIFY2(inked > 15, qPrintable(name));
            QVERIFY2(!touchesEdge, qPrintable(name + u" is cut off"_s));
        }
    }

    void iconsFollowModeAndPalette()
    {
        // One and the same icon throughout, as an action keeps it.
        const QIcon icon = OZMStyle::icon(u"document-save"_s);
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            const QPalette palette = OZMStyle::palette(scheme);
            QApplication::setPalette(palette);
            QVERIFY(isClose(inkOf(icon.pixmap(32)), palette.color(QPalette::WindowText)));
            QVERIFY(isClose(inkOf(icon.pixmap(32, QIcon::Disabled)),
                            palette.color(QPalette::Disabled, QPalette::WindowText)));
            QVERIFY(
                isClose(inkOf(icon.pixmap(32, QIcon::Selected)), palette.color(QPalette::HighlightedText)));
        }
    }

    void iconsAreSharp()
    {
        const QIcon icon = OZMStyle::icon(u"format-justify-fill"_s);
        for (const qreal ratio : {1.0, 1.5, 2.0, 3.0}) {
            const QPixmap pixmap = icon.pixmap(QSize(16, 16), ratio);
            QCOMPARE(pixmap.size(), QSize(16, 16) * ratio);
            QCOMPARE(pixmap.devicePixelRatio(), ratio);
        }
        // Drawn anew at the painter's ratio, not stretched: twice the size has twice the detail.
        QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(2);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        icon.paint(&painter, QRect(0, 0, 32, 32));
        painter.end();
        QCOMPARE(image, icon.pixmap(QSize(32, 32), 2.0).toImage().convertToFormat(image.format()));
    }

    void unknownIconIsNull()
    {
        QTest::ignoreMessage(QtDebugMsg, "No icon has the name \"no-such-icon\"");
        QLoggingCategory::setFilterRules(u"ozm.widgets.debug=true"_s);
        QVERIFY(OZMStyle::icon(u"no-such-icon"_s).isNull());
        QLoggingCategory::setFilterRules({});
        QVERIFY(OZMStyle::icon(u"../stylesheet"_s).isNull());
    }

    void dockTitleBar()
    {
        const Dock fixture;
        QToolButton *floating = fixture.button(u"floatButton"_s);
        QToolButton *closing = fixture.button(u"closeButton"_s);
        QCOMPARE(closing->accessibleName(), u"Close History"_s);
        fixture.dock->setWindowTitle(
            u"A title far too long for the narrow place that it has to be shown in"_s);
        QVERIFY(closing->accessibleName().endsWith("shown in"_L1));
        QVERIFY2(fixture.bar->minimumSizeHint().width() < 150,
                 "a long title keeps the dock from being narrow");
        fixture.dock->setWindowTitle(u"Trail[*] [*][*]"_s);
        QCOMPARE(fixture.bar->accessibleName(), u"Trail [*]"_s);
        fixture.dock->setWindowModified(true);
        QCOMPARE(closing->accessibleName(), u"Close Trail* [*]"_s);

        QTest::mouseDClick(fixture.bar, Qt::LeftButton, {}, QPoint(20, fixture.bar->height() / 2));
        QVERIFY(fixture.dock->isFloating());
        QVERIFY(floating->accessibleName().startsWith("Dock "_L1));
        QTest::keyClick(floating, Qt::Key_Space);
        QVERIFY(!fixture.dock->isFloating());
        QVERIFY(floating->focusPolicy() & Qt::TabFocus);

        fixture.dock->setFeatures(QDockWidget::DockWidgetClosable);
        QVERIFY(floating->isHidden() && !closing->isHidden());
        closing->click();
        QVERIFY(fixture.dock->isHidden());

        // Kept by someone else, the bar outlives its dock.
        QWidget keeper;
        fixture.bar->setParent(&keeper);
        delete fixture.dock;
        QVERIFY(!fixture.bar->grab().isNull() && fixture.bar->sizeHint().isValid());
    }

    void dockTitleBarStandsUpright()
    {
        const Dock fixture;
        QVERIFY(fixture.bar->width() > fixture.bar->height());
        fixture.dock->setFeatures(fixture.dock->features() | QDockWidget::DockWidgetVerticalTitleBar);
        QTRY_VERIFY(fixture.bar->height() > fixture.bar->width());
        QVERIFY(fixture.button(u"closeButton"_s)->y() < fixture.button(u"floatButton"_s)->y());
        fixture.dock->setFeatures(QDockWidget::DockWidgetClosable);
        QTRY_VERIFY(fixture.bar->width() > fixture.bar->height());
    }

    void splitterHandle_data()
    {
        QTest::addColumn<Qt::Orientation>("orientation");
        QTest::addColumn<Qt::LayoutDirection>("direction");
        QTest::newRow("horizontal") << Qt::Horizontal << Qt::LeftToRight;
        QTest::newRow("right to left") << Qt::Horizontal << Qt::RightToLeft;
        QTest::newRow("vertical") << Qt::Vertical << Qt::LeftToRight;
    }

    void splitterHandle()
    {
        QFETCH(const Qt::Orientation, orientation);
        QFETCH(const Qt::LayoutDirection, direction);
        const bool lying = orientation == Qt::Horizontal;
        Panes panes(orientation, direction);
        ozm::BlackSplitter &splitter = panes.splitter;
        ozm::BlackSplitterHandle *handle = panes.handle();
        QVERIFY(handle);
        QCOMPARE(handle->cursor().shape(), lying ? Qt::SplitHCursor : Qt::SplitVCursor);
        QVERIFY((lying ? handle->width() : handle->height()) >= 7);

        // The keys and the mouse mean directions on the screen.
        const auto place = [&] { return lying ? handle->x() : handle->y(); };
        const int start = place();
        const int size = panes.first();
        QTest::keyClick(handle, lying ? Qt::Key_Right : Qt::Key_Down);
        QCOMPARE(place(), start + 20);
        QTest::keyClick(handle, lying ? Qt::Key_Left : Qt::Key_Up, Qt::ShiftModifier);
        QCOMPARE(place(), start + 19);
        QTest::mousePress(handle, Qt::LeftButton, {}, QPoint(2, 2));
        QTest::mouseMove(handle, QPoint(5, 5));
        QTest::mouseRelease(handle, Qt::LeftButton, {}, QPoint(2, 2));
        QCOMPARE(place(), start + 22);
        const int before = panes.first();
        QCOMPARE(before, direction == Qt::RightToLeft ? size - 22 : size + 22);

        splitter.setChildrenCollapsible(false);
        QTest::mouseDClick(handle, Qt::LeftButton);
        QCOMPARE(panes.first(), before);
        splitter.setChildrenCollapsible(true);
        QTest::mouseDClick(handle, Qt::LeftButton);
        QCOMPARE(panes.first(), 0);
        QTest::keyClick(handle, Qt::Key_Return);
        QCOMPARE(panes.first(), before);

        // The smaller one may not be collapsed, so the other is.
        splitter.setCollapsible(0, false);
        QTest::mouseDClick(handle, Qt::LeftButton);
        QCOMPARE(splitter.sizes().constLast(), 0);
        QTest::mouseDClick(handle, Qt::LeftButton);
        QCOMPARE(panes.first(), before);
    }

    void rightToLeft()
    {
        const auto icon = [](const QString &name) { return OZMStyle::icon(name).pixmap(32).toImage(); };
        const auto cell = [](const QString &text) {
            QTableWidget table(1, 1);
            table.setItem(0, 0, new QTableWidgetItem(text));
            return table.grab().toImage();
        };
        const QImage undo = icon(u"edit-undo"_s);
        const QImage find = icon(u"edit-find"_s);
        QApplication::setLayoutDirection(Qt::RightToLeft);
        const auto back = qScopeGuard([] { QApplication::setLayoutDirection(Qt::LeftToRight); });
        QVERIFY(icon(u"edit-undo"_s) != undo);
        QCOMPARE(icon(u"edit-find"_s), find);
        // Not "1-", nor the time before its date.
        for (const auto &text : {u"-1"_s, u"2026-11-22 08:47 +00:00"_s, u"/data/run.d"_s})
            QCOMPARE(cell(text), cell(u'\u2066' + text + u'\u2069'));
    }

    void languagesAreComplete_data()
    {
        QTest::addColumn<QLocale::Language>("language");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("close");
        QTest::addColumn<QString>("cancel");
        QTest::addColumn<QStringList>("picks");
        QTest::newRow("en") << QLocale::English << u"Warning"_s << u"Close"_s << u"Cancel"_s
                            << QStringList{u"1 file or folder"_s, u"2 files and folders"_s};
        QTest::newRow("de") << QLocale::German << u"Warnung"_s << u"Schließen"_s << u"Abbrechen"_s
                            << QStringList{u"1 Datei oder Ordner"_s, u"2 Dateien und Ordner"_s};
        QTest::newRow("fr") << QLocale::French << u"Avertissement"_s << u"Fermer"_s << u"Annuler"_s
                            << QStringList{u"1\u00a0fichier ou dossier"_s, u"2\u00a0fichiers et dossiers"_s};
    }

    void languagesAreComplete()
    {
        for (const auto &name : {u"ozm_widgets"_s, u"ozm_audit"_s, u"workbench"_s}) {
            const QString path =
                QStringLiteral(TRANSLATIONS "/%1_%2.ts").arg(name, QLatin1String(QTest::currentDataTag()));
            QCOMPARE(faultsOfTexts(path), QStringList());
        }
        QFETCH(const QLocale::Language, language);
        QFETCH(const QString, warning);
        QFETCH(const QString, close);
        QVERIFY(ozm::OzmCoreApplication::loadTranslation(language));
        QCOMPARE(OZMStyle::tr("Warning"), warning);
        QTEST(QStringList({SpectrumFileDialog::tr("%n file(s) and folder(s)", nullptr, 1),
                           SpectrumFileDialog::tr("%n file(s) and folder(s)", nullptr, 2)}),
              "picks");
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "cancel");
        const Dock fixture;
        QCOMPARE(fixture.button(u"closeButton"_s)->toolTip(), close);
        // No translation into it: English again, not German left over, and not the toolkit alone in Italian.
        QVERIFY(!ozm::OzmCoreApplication::loadTranslation(QLocale(QLocale::Italian)));
        QCOMPARE(OZMStyle::tr("Warning"), u"Warning"_s);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), u"Cancel"_s);
        QTRY_COMPARE(fixture.button(u"closeButton"_s)->toolTip(), u"Close"_s);
    }
};

QTEST_MAIN(TestStyle)
#include "tst_style.moc"
