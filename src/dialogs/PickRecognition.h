#pragma once

#include <QLabel>
#include <QStringList>

#include <memory>

namespace ozm {

/**
 * Says in a few lines what the entries highlighted in a file dialog are, or why they hold no data.
 *
 * They are looked at in another thread, the latest request only; a share that does not answer holds up
 * neither the dialog nor its end.
 */
class PickRecognition : public QLabel
{
    Q_OBJECT

public:
    explicit PickRecognition(QWidget *parent = nullptr);
    ~PickRecognition() override;

    void recognise(const QStringList &paths);

Q_SIGNALS:
    /// Emitted when the answer to the last question is shown.
    void recognised();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    class Requests;

    void showLines(const QStringList &lines);
    void elide();

    const std::shared_ptr<Requests> m_requests;
    QStringList m_lines;
};

} // namespace ozm
