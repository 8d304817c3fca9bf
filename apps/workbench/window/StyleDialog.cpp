#include "window/StyleDialog.h"

#include "samples/RoomyDelegate.h"
#include "window/FileQuestions.h"

#include <ozm_widgets/BlackSplitterHandle.h>
#include <ozm_widgets/OZMStyle.h>

#include <QApplication>
#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QVBoxLayout>

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// Room for the longest name of an icon.
constexpr QSize kCell(178, 60);
constexpr auto kSignal = ozm::OzmMessageBoxSignal::FirstOfApplication;

void showCritical(QWidget *parent)
{
    OZMStyle::critical(parent, kSignal, StyleDialog::tr("Run not saved"),
                       StyleDialog::tr("The run could not be saved. Nothing was changed."),
                       QMessageBox::Retry | QMessageBox::Cancel, QMessageBox::Retry,
                       StyleDialog::tr("The disk has 12 MB left; the run needs 1.4 GB."));
}

void showWarning(QWidget *parent)
{
    OZMStyle::warning(parent, kSignal,
                      DisplayRichString(StyleDialog::tr("<b>3 samples</b> have no sequence.<br>They are left "
                                                        "out of the report.")),
                      QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok);
}

void showInformation(QWidget *parent)
{
    OZMStyle::information(parent, kSignal, StyleDialog::tr("12 samples were added."));
}

void showQuestion(QWidget *parent)
{
    OZMStyle::question(parent, kSignal, StyleDialog::tr("Delete samples"),
                       StyleDialog::tr("Delete the 3 chosen samples?"), QMessageBox::Yes | QMessageBox::No,
                       QMessageBox::No, StyleDialog::tr("Delete"), StyleDialog::tr("Keep"));
}

void showAbout(QWidget *parent)
{
    OZMStyle::about(
        parent, StyleDialog::tr("About the workbench"),
        DisplayRichString(
            StyleDialog::tr("<b>Workbench</b> %1<br>Samples and their annotations, every step recorded.<br>"
                            "<a href=\"https://www.qt.io\">Made with Qt</a>")
                .arg(QApplication::applicationVersion())));
}

struct BoxRow
{
    const char *name;
    const char *icon;
    const char *text;
    void (*show)(QWidget *parent);
};

constexpr std::array kBoxes{
    BoxRow{"showCritical", "dialog-error", QT_TRANSLATE_NOOP("workbench::StyleDialog", "Critical"),
           showCritical},
    BoxRow{"showWarning", "dialog-warning", QT_TRANSLATE_NOOP("workbench::StyleDialog", "Warning"),
           showWarning},
    BoxRow{"showInformation", "dialog-information",
           QT_TRANSLATE_NOOP("workbench::StyleDialog", "Information"), showInformation},
    BoxRow{"showQuestion", "dialog-question", QT_TRANSLATE_NOOP("workbench::StyleDialog", "Question"),
           showQuestion},
    BoxRow{"showAbout", "view-style", QT_TRANSLATE_NOOP("workbench::StyleDialog", "About"), showAbout},
};

} // namespace

StyleDialog::StyleDialog(QWidget *parent)
    : QDialog(parent)
{
    setObjectName(u"styleDialog"_s);
    setWindowTitle(tr("Style"));
    resize(QSize(forFontOf(*this, 900), forFontOf(*this, 620)).boundedTo(screen()->availableSize()));

    auto *side = new QWidget(this);
    auto *column = new QVBoxLayout(side);
    column->addWidget(createSchemes());
    column->addWidget(createFileDialogs());
    column->addWidget(createBoxes());
    column->addStretch();

    auto *splitter = new ozm::BlackSplitter(Qt::Horizontal, this);
    splitter->addWidget(createIcons());
    splitter->addWidget(side);
    splitter->setStretchFactor(0, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
}

QWidget *StyleDialog::createIcons()
{
    auto *icons = new QListWidget(this);
    icons->setObjectName(u"icons"_s);
    icons->setAccessibleName(tr("Icons"));
    icons->setViewMode(QListView::IconMode);
    icons->setResizeMode(QListView::Adjust);
    icons->setMovement(QListView::Static);
    icons->setIconSize({24, 24});
    const QSize cell(forFontOf(*this, kCell.width()), forFontOf(*this, kCell.height()));
    icons->setGridSize(cell);
    for (const QString &name : OZMStyle::iconNames()) {
        auto *item = new QListWidgetItem(OZMStyle::icon(name), name, icons);
        item->setSizeHint(cell);
        item->setToolTip(name);
    }
    return icons;
}

QWidget *StyleDialog::createBoxes()
{
    auto *group = new QGroupBox(tr("Messages"), this);
    auto *column = new QVBoxLayout(group);
    for (const BoxRow &row : kBoxes) {
        auto *button = new QPushButton(OZMStyle::icon(QString::fromLatin1(row.icon)), tr(row.text), group);
        button->setObjectName(QString::fromLatin1(row.name));
        connect(button, &QPushButton::clicked, this, [this, show = row.show] { show(this); });
        column->addWidget(button);
    }
    return group;
}

QWidget *StyleDialog::createSchemes()
{
    auto *group = new QGroupBox(tr("Colours"), this);
    auto *column = new QVBoxLayout(group);
    auto *light = new QRadioButton(tr("Light"), group);
    light->setObjectName(u"light"_s);
    auto *dark = new QRadioButton(tr("Dark"), group);
    dark->setObjectName(u"dark"_s);
    column->addWidget(light);
    column->addWidget(dark);
    const bool isDark = OZMStyle::scheme(QApplication::palette()) == OZMStyle::Scheme::Dark;
    (isDark ? dark : light)->setChecked(true);
    connect(dark, &QRadioButton::toggled, this, [](bool on) {
        QApplication::setPalette(OZMStyle::palette(on ? OZMStyle::Scheme::Dark : OZMStyle::Scheme::Light));
    });
    return group;
}

QWidget *StyleDialog::createFileDialogs()
{
    auto *group = new QGroupBox(tr("File dialogs"), this);
    auto *column = new QVBoxLayout(group);
    auto *system = new QRadioButton(tr("Those of the system"), group);
    system->setObjectName(u"systemFileDialogs"_s);
    auto *toolkit = new QRadioButton(tr("Those of the toolkit"), group);
    toolkit->setObjectName(u"toolkitFileDialogs"_s);
    column->addWidget(system);
    column->addWidget(toolkit);
    (files::usesToolkitDialogs() ? toolkit : system)->setChecked(true);
    connect(toolkit, &QRadioButton::toggled, this, &files::setUsesToolkitDialogs);
    return group;
}

} // namespace workbench
