#include "data/DataProgress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

// Enough to see that it moves; the numbers say the rest.
constexpr int kBarWidth = 90;

} // namespace

DataProgress::DataProgress(QWidget *parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
{
    setObjectName(u"dataProgress"_s);
    m_text->setObjectName(u"dataProgressText"_s);

    // How many folders there are is known only at the end.
    auto *bar = new QProgressBar(this);
    bar->setObjectName(u"dataProgressBar"_s);
    bar->setAccessibleName(tr("Search for data is running"));
    bar->setRange(0, 0);
    bar->setTextVisible(false);
    bar->setFixedWidth(kBarWidth);

    auto *cancel = new QToolButton(this);
    cancel->setObjectName(u"cancelDataSearch"_s);
    cancel->setText(tr("Cancel"));
    cancel->setToolTip(tr("End the search; nothing is added"));
    connect(cancel, &QToolButton::clicked, this, &DataProgress::canceled);

    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text);
    row->addWidget(bar);
    row->addWidget(cancel);
}

void DataProgress::show(int searched, int found)
{
    m_text->setText(tr("Looking for data: %1 searched, %2 found").arg(searched).arg(found));
    setVisible(true);
}

} // namespace workbench
