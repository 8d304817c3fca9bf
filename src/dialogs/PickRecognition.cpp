#include "dialogs/PickRecognition.h"

#include <ozm_widgets/MsDataSearch.h>
#include <ozm_widgets/SpectrumFileDialog.h>

#include <QFileInfo>
#include <QMutex>
#include <QThreadPool>

#include <atomic>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using msreader::MsDataSearch;
using msreader::MsSample;

// Enough for what fits beneath a dialog; of more, the numbers tell.
constexpr qsizetype kMostLines = 3;

QString lineFor(const QString &path, const MsSample &info, bool isAlone)
{
    const QString name = QFileInfo(path).fileName();
    if (info.isData())
        return PickRecognition::tr("%1: %2").arg(name, info.description);
    const bool isEntered =
        isAlone && QFileInfo(path).isDir() && !SpectrumFileDialog::isVendorRawFolder(path, false);
    return isEntered ? PickRecognition::tr("%1: a folder to look into").arg(name)
                     : PickRecognition::tr("%1: no data, left out. %2").arg(name, info.refusal);
}

/// Of their own, so that a share which does not answer holds up nobody else's work.
QThreadPool &threads()
{
    static QThreadPool pool;
    return pool;
}

QString withoutSlashAtEnd(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

/// The text to show for @p paths; empty when @p isOutdated becomes true in the middle.
QStringList linesFor(const QStringList &paths, const std::function<bool()> &isOutdated)
{
    QStringList lines;
    qsizetype dataCount = 0;
    for (const QString &entry : paths) {
        if (isOutdated())
            return {};
        const QString path = withoutSlashAtEnd(entry);
        const MsSample info = MsDataSearch::sampleAt(path);
        dataCount += info.isData() ? 1 : 0;
        if (lines.size() < kMostLines)
            lines.append(lineFor(path, info, paths.size() == 1));
    }
    if (paths.size() > 1)
        lines.prepend(PickRecognition::tr("%1 of %2 hold data").arg(dataCount).arg(paths.size()));
    return lines;
}

} // namespace

/// Outlives the label, as long as somebody looks at its entries.
class PickRecognition::Requests
{
public:
    explicit Requests(PickRecognition *label)
        : m_label(label)
    {}

    void end()
    {
        const QMutexLocker lock(&m_mutex);
        m_label = nullptr;
        ++latest;
    }

    void answer(int number, const QStringList &lines)
    {
        const QMutexLocker lock(&m_mutex);
        if (!m_label)
            return;
        const auto show = [label = m_label, this, number, lines] {
            if (number == latest)
                label->showLines(lines);
        };
        QMetaObject::invokeMethod(m_label, show, Qt::QueuedConnection);
    }

    std::atomic<int> latest = 0;

private:
    QMutex m_mutex;
    PickRecognition *m_label;
};

PickRecognition::PickRecognition(QWidget *parent)
    : QLabel(parent)
    , m_requests(std::make_shared<Requests>(this))
{
    setObjectName(u"recognition"_s);
    setAccessibleName(tr("What is highlighted"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Its room is there from the start, so that nothing moves under the mouse; long names do not widen it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    showLines({});
    setFixedHeight(static_cast<int>(kMostLines + 1) * fontMetrics().lineSpacing() + 2 * margin());
}

PickRecognition::~PickRecognition()
{
    m_requests->end();
}

void PickRecognition::recognise(const QStringList &paths)
{
    const int number = ++m_requests->latest;
    if (paths.isEmpty()) {
        showLines({});
        return;
    }
    // The text about the former entry would be taken for one about this.
    m_lines = {tr("Looking at %1 …").arg(QFileInfo(withoutSlashAtEnd(paths.constFirst())).fileName())};
    elide();
    threads().start([requests = m_requests, number, paths] {
        const QStringList lines = linesFor(paths, [&] { return requests->latest != number; });
        requests->answer(number, lines);
    });
}

void PickRecognition::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    elide();
}

void PickRecognition::showLines(const QStringList &lines)
{
    m_lines = lines;
    setToolTip(lines.join(u'\n'));
    // One entry alone has room for its whole reason.
    setWordWrap(lines.size() <= 1);
    elide();
    Q_EMIT recognised();
}

void PickRecognition::elide()
{
    if (wordWrap()) {
        setText(m_lines.value(0, tr("Highlight files and folders to see what data they hold.")));
        return;
    }
    QStringList shown;
    for (const QString &line : std::as_const(m_lines))
        shown.append(fontMetrics().elidedText(line, Qt::ElideRight, width()));
    setText(shown.join(u'\n'));
}

} // namespace ozm
