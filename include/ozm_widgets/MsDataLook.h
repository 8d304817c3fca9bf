#pragma once

#include <ozm_widgets/MsSample.h>
#include <ozm_widgets/ozm_widgets_export.h>

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace ozm::msreader {

/**
 * Looks at entries on disk beside the event loop and tells what data each of them holds.
 *
 *     auto *look = new ozm::msreader::MsDataLook(this);
 *     connect(look, &ozm::msreader::MsDataLook::seen, model, &SampleModel::add);
 *     look->look(droppedPaths);
 *
 * A share that does not answer holds up neither the thread that asks nor the object's end, nor what is asked for
 * after a cancel(). All signals come in the thread the object lives in, whose event loop must run.
 */
class OZM_WIDGETS_EXPORT MsDataLook : public QObject
{
    Q_OBJECT

public:
    explicit MsDataLook(QObject *parent = nullptr);
    /// Nothing more is told; what is being looked at is left to end by itself.
    ~MsDataLook() override;

    /// Says what is at a path.
    using Recognition = std::function<MsSample(const QString &path)>;

    /// Has @p recognition, called in another thread, answer in place of MsDataSearch::sampleAt(), from the next look() on:
    /// one that remembers, for instance.
    void setRecognition(const Recognition &recognition);

    /// Data folders are measured as well, from the next look() on; as in MsDataSearch::sizeOnDisk().
    void setMeasuresFolders(bool measures);

    /// Looks at each of @p paths as MsDataSearch::sampleAt() does, in their order and after those asked for before.
    void look(const QStringList &paths);
    /// Forgets all that was not told yet; there is no finished() for it.
    void cancel();
    /// True while something that was asked for is still to be told.
    [[nodiscard]] bool isRunning() const;

Q_SIGNALS:
    /// One path was looked at.
    void seen(const ozm::msreader::MsSample &sample);
    /// Everything that was asked for has been told.
    void finished();

private:
    class Desk;

    void take(int round, const MsSample &sample);

    const std::shared_ptr<Desk> m_desk;
    qsizetype m_waiting = 0;
    Recognition m_recognition;
    int m_round = 0;
    bool m_measuresFolders = false;
};

} // namespace ozm::msreader
