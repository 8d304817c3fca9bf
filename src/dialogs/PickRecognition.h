#pragma once

#include <ozm_widgets/MsDataLook.h>

#include <QLabel>
#include <QStringList>

#include <memory>

namespace ozm {

class SeenEntries;

/**
 * Says in a few lines what the entries highlighted in a file dialog are, or why they hold no data.
 *
 * They are looked at beside the event loop, the latest request only.
 */
class PickRecognition : public QLabel
{
    Q_OBJECT

public:
    PickRecognition(const std::shared_ptr<SeenEntries> &seen, QWidget *parent);

    void recognise(const QStringList &paths);
    /// The answer for a pick that is alone; of no path until it is there, and for none or many.
    [[nodiscard]] const msreader::MsSample &onlyPick() const { return m_onlyPick; }

Q_SIGNALS:
    /// Emitted when the answer to the last question is shown.
    void recognised();
    void onlyPickChanged();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void setOnlyPick(const msreader::MsSample &sample);
    void take(const msreader::MsSample &sample);
    void showLines(const QStringList &lines);
    void elide();

    msreader::MsDataLook m_look;
    QStringList m_picks;
    msreader::MsSample m_onlyPick;
    QStringList m_found; ///< A line for each of the first picks that were looked at.
    qsizetype m_dataCount = 0;
    QStringList m_lines;
};

} // namespace ozm
