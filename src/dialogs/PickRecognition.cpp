#include "dialogs/PickRecognition.h"

#include "dialogs/SeenEntries.h"

#include <ozm_widgets/SpectrumFileDialog.h>

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace ozm {

namespace {

using msreader::MsSample;

// Enough for what fits beneath a dialog; of more, the numbers tell.
constexpr qsizetype kMostLines = 3;

QString nameOf(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return QFileInfo(path).fileName();
}

QString lineFor(const MsSample &sample, bool isAlone)
{
    const QString name = nameOf(sample.path);
    if (sample.isData())
        return PickRecognition::tr("%1: %2").arg(name, sample.description);
    const bool isEntered = isAlone && sample.kind == EntryKind::Folder &&
                           !SpectrumFileDialog::isVendorRawFolder(sample.path, false);
    return isEntered ? PickRecognition::tr("%1: a folder to look into").arg(name)
                     : PickRecognition::tr("%1: no data, left out. %2").arg(name, sample.refusal);
}

} // namespace

PickRecognition::PickRecognition(const std::shared_ptr<SeenEntries> &seen, QWidget *parent)
    : QLabel(parent)
{
    setObjectName(u"recognition"_s);
    setAccessibleName(tr("What is highlighted"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    // Its room is there from the start, so that nothing moves under the mouse; long names do not widen it.
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    showLines({});
    setFixedHeight(static_cast<int>(kMostLines + 1) * fontMetrics().lineSpacing() + 2 * margin());
    m_look.setRecognition([seen](const QString &path) { return seen->sampleAt(path); });
    connect(&m_look, &msreader::MsDataLook::seen, this, &PickRecognition::take);
}

void PickRecognition::recognise(const QStringList &paths)
{
    m_look.cancel();
    m_picks = paths;
    setOnlyPick({});
    m_found.clear();
    m_dataCount = 0;
    if (paths.isEmpty()) {
        showLines({});
        return;
    }
    // The text about the former entry would be taken for one about this.
    m_lines = {tr("Looking at %1 …").arg(nameOf(paths.constFirst()))};
    elide();
    m_look.look(paths);
}

void PickRecognition::setOnlyPick(const MsSample &sample)
{
    m_onlyPick = sample;
    Q_EMIT onlyPickChanged();
}

void PickRecognition::take(const MsSample &sample)
{
    m_dataCount += sample.isData() ? 1 : 0;
    if (m_found.size() < kMostLines)
        m_found.append(lineFor(sample, m_picks.size() == 1));
    if (m_look.isRunning())
        return;
    QStringList lines = m_found;
    if (m_picks.size() == 1)
        setOnlyPick(sample);
    else
        lines.prepend(tr("%1 of %2 hold data").arg(m_dataCount).arg(m_picks.size()));
    showLines(lines);
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
