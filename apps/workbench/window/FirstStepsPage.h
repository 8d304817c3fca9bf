#pragma once

#include <QScrollArea>
#include <QString>

#include <vector>

class QLabel;
class QPushButton;
class QVBoxLayout;

namespace workbench {

/// One thing to try.
struct FirstStep
{
    QString name; ///< Of its button and of its outcome, for tests and robots.
    QString title;
    QString text;   ///< What it shows, in a sentence or two.
    QString button; ///< What a click does.
    QString code;   ///< The classes behind it.
};

/**
 * A page of things to try, one click each. It says beside each step what came of it, and marks those that were tried.
 *
 *     auto *page = new FirstStepsPage(steps);
 *     connect(page, &FirstStepsPage::asked, this, [=](int step) { page->setOutcome(step, run(step)); });
 */
class FirstStepsPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit FirstStepsPage(const std::vector<FirstStep> &steps, QWidget *parent = nullptr);

    /// Marks the step as tried, with @p text below its button.
    void setOutcome(int step, const QString &text);
    /// A step that is at work cannot be begun again.
    void setBusy(int step, bool busy);

Q_SIGNALS:
    void asked(int step);
    /// The user wants to go on without the samples of this page.
    void ownSamplesAsked();

protected:
    bool viewportEvent(QEvent *event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    struct Row
    {
        QLabel *title;
        QString text;
        QPushButton *button;
        QLabel *outcome;
    };

    void addStep(const FirstStep &step, QVBoxLayout *column);

    std::vector<Row> m_rows;
};

} // namespace workbench
